#include "shell/visee/ChampsJuges.hpp"

#include "shell/visee/Saisie.hpp"
#include "sights/JugementVisee.hpp"

#include <algorithm>
#include <array>

namespace velmaris {
namespace {

constexpr std::size_t kNomPlanete = 15; ///< names of the lists, after those of the fields
constexpr std::size_t kNomEtoile = 16;

/// The fields of a sight in the order of their names.
/// @param d  the main window's record, constant or not
template <class Fenetre> auto Champs(Fenetre &d) {
  return std::array<decltype(&d.Text3), kChampsVisee>{&d.TDate[0], &d.TDate[1], &d.TDate[2], &d.Text3,  &d.Text4,
                                                      &d.Text5,    &d.Text8,    &d.Text9,    &d.Text6,  &d.Text7,
                                                      &d.Text13,   &d.Text12,   &d.Text25,   &d.Text11, &d.Text10};
}

/// The words on a field, by how it stands.
std::string Mots(const Bureau &bureau, std::size_t champ, Verdict verdict) {
  const Donnees &d = bureau.donnees;
  const Etat &etat = bureau.etat;
  const std::string nom = d.Nom.at(champ).legende;
  switch (verdict) {
  case Verdict::Bon:
    return {};
  case Verdict::Vide:
    return nom + " : " + etat.TexteManque.legende;
  case Verdict::HorsBornes:
    return nom + " : " + etat.TexteHorsBornes.legende + etat.Domaine.at(champ).legende;
  case Verdict::DateImpossible:
    return d.TexteSansDate.legende;
  case Verdict::PasUnNombre:
  case Verdict::SousLaMer:
  case Verdict::HorsDuJour:
  case Verdict::HorsDeLHeure:
    break;
  }
  const auto rang = static_cast<std::size_t>(verdict) - static_cast<std::size_t>(Verdict::PasUnNombre);
  return nom + " " + d.TexteDefaut.at(rang).legende;
}

/// The words on the list of a kind of body, of a sight of that kind which has chosen none.
std::string MotsListe(const Bureau &bureau, const Observation &o, Corps corps) {
  const std::size_t nom = corps == Corps::Planetes ? kNomPlanete : kNomEtoile;
  return o.corps == corps && SansAstreChoisi(o)
             ? bureau.donnees.Nom.at(nom).legende + " : " + bureau.etat.TexteManque.legende
             : std::string();
}

/// The lists that a star or a planet is chosen from.
void JugeListes(Bureau &bureau, const Observation &o) {
  Donnees &d = bureau.donnees;
  d.Combo7.alerte = MotsListe(bureau, o, Corps::Planetes);
  d.Combo6.alerte = MotsListe(bureau, o, Corps::Etoiles);
  d.Combo8.alerte = d.Combo6.alerte;
}

/// The results are those of the sight that was reduced last, while the fields are still that sight.
void JugeResultats(Bureau &bureau, const Observation &o) {
  Donnees &d = bureau.donnees;
  const bool bons = bureau.viseeReduite && MemeVisee(*bureau.viseeReduite, o);
  for (Controle *resultat : {&d.Affichage_Intercept, &d.Affichage_Azimuth, &d.LabControle[0], &d.LabControle[1]}) {
    resultat->alerte = bons || resultat->legende.empty() ? "" : bureau.etat.TexteResultatPerime.legende;
  }
}

} // namespace

void JugeChamps(Bureau &bureau) {
  const Observation o = LitPanneau(bureau.donnees);
  const std::array<Verdict, kChampsVisee> verdicts = JugeVisee(o);
  const std::array<Controle *, kChampsVisee> champs = Champs(bureau.donnees);
  for (std::size_t i = 0; i < champs.size(); ++i) {
    champs.at(i)->alerte = Mots(bureau, i, verdicts.at(i));
  }
  JugeListes(bureau, o);
  JugeResultats(bureau, o);
}

std::string DefautDuPanneau(const Bureau &bureau) {
  const Observation o = LitPanneau(bureau.donnees);
  constexpr std::size_t kLecture = 10;
  std::string mots = EstCommencee(o) ? MotsListe(bureau, o, Corps::Planetes) + MotsListe(bureau, o, Corps::Etoiles)
                                     : Mots(bureau, kLecture, Verdict::Vide);
  const std::array<Verdict, kChampsVisee> verdicts = JugeVisee(o);
  for (std::size_t i = 0; i < verdicts.size() && mots.empty(); ++i) {
    mots = Mots(bureau, i, verdicts.at(i));
  }
  return mots;
}

std::string MotsAlerte(const Bureau &bureau) {
  const Donnees &d = bureau.donnees;
  if (!d.Frame7.visible) {
    return {};
  }
  const Controle *champ = bureau.champ;
  if (champ != nullptr && champ->fenetre == kFenetreDonnees && !champ->alerte.empty()) {
    return champ->alerte;
  }
  for (const Controle *liste : {&d.Combo7, &d.Combo6}) {
    if (!liste->alerte.empty()) {
      return liste->alerte;
    }
  }
  const auto champs = Champs(d);
  const auto *const premier =
      std::find_if(champs.begin(), champs.end(), [](const Controle *c) { return !c->alerte.empty(); });
  return premier == champs.end() ? std::string() : (*premier)->alerte;
}

} // namespace velmaris
