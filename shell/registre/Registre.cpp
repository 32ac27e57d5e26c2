#include "shell/registre/Registre.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/bureau/Avis.hpp"
#include "shell/bureau/Evenements.hpp"
#include "shell/droites/FichierVisee.hpp"
#include "shell/droites/ModesDroite.hpp"
#include "shell/registre/LecteurRegistre.hpp"
#include "shell/registre/LectureRegistre.hpp"
#include "shell/registre/MontreSaisie.hpp"
#include "shell/visee/Annulation.hpp"

#include <algorithm>
#include <functional>
#include <string>
#include <utility>

namespace velmaris {
namespace {

/// The place in the log of the row that the keyboard is at.
std::optional<std::size_t> RangCourant(const Bureau &bureau) {
  const int courante = bureau.registre.Table1.tableau.courante;
  return courante == kSansLigne ? std::nullopt
                                : std::optional(RangMontre(bureau.registreOuvert, static_cast<std::size_t>(courante)));
}

/// The sight of the current row, with its body as the lists have it.
/// @return nothing, the reason told, where there is none
std::optional<Observation> ViseeCourante(Bureau &bureau) {
  const std::optional<std::size_t> rang = RangCourant(bureau);
  std::optional<Rangee> rangee = rang ? RangeeDe(*bureau.registreOuvert.lu, *rang) : std::nullopt;
  if (!rangee) {
    Avise(bureau, bureau.registre.TexteSansChoix.legende);
    return std::nullopt;
  }
  if (!ChoisitAstre(*rangee, bureau.etoiles)) {
    Avise(bureau, bureau.registre.TexteSansAstre.legende + rangee->astre);
    return std::nullopt;
  }
  return rangee->observation;
}

/// Takes the current row up and does something more, as one gesture.
void Reprend(Bureau &bureau, const std::string &nom, const std::function<void()> &ensuite) {
  if (const std::optional<Observation> visee = ViseeCourante(bureau)) {
    RetientGeste(bureau, nom, [&] {
      ReprendVisee(bureau, *visee);
      ensuite();
    });
  }
}

void PoseColonnes(Registre &f) {
  constexpr std::array<double, kColonnesRegistre> kLargeurs = {2350, 1750, 1500, 1350, 1200, 2050, 1500};
  constexpr std::array<Cote, kColonnesRegistre> kCotes = {Cote::Gauche, Cote::Gauche, Cote::Droite, Cote::Droite,
                                                          Cote::Droite, Cote::Centre, Cote::Gauche};
  std::vector<Colonne> &colonnes = f.Table1.tableau.colonnes;
  colonnes.resize(kColonnesRegistre);
  for (std::size_t i = 0; i < kColonnesRegistre; ++i) {
    colonnes[i] = {f.Colonne.at(i).legende, kLargeurs.at(i), kCotes.at(i)};
  }
  f.Table1.tableau.coches = true;
}

std::string Compte(const Bureau &bureau) {
  const Registre &f = bureau.registre;
  const RegistreOuvert &r = bureau.registreOuvert;
  if (r.lu == nullptr) {
    return f.TexteLecture.legende;
  }
  std::string compte = std::to_string(r.montrees->size());
  if (r.montrees->size() != r.lu->lignes.size()) {
    compte += f.TexteSur.legende + std::to_string(r.lu->lignes.size());
  }
  compte += r.lu->lignes.size() == 1 ? bureau.fenetrePapier.TexteVisee.legende : f.TexteVisees.legende;
  return r.lu->cassees == 0 ? compte : compte + ", " + std::to_string(r.lu->cassees) + f.TexteCassees.legende;
}

/// The journals that can't be read, one a line after the words; empty where all can.
std::string Illisibles(const Bureau &bureau) {
  std::string mots;
  if (const auto &lu = bureau.registreOuvert.lu) {
    for (const auto &journal : lu->journaux) {
      mots += journal->illisible ? "\n" + journal->chemin.string() : "";
    }
  }
  return mots.empty() ? mots : bureau.registre.TexteIllisible.legende + mots;
}

/// The note's field shows that of the current row, until that is another one.
void AccordeNote(Bureau &bureau) {
  Registre &f = bureau.registre;
  RegistreOuvert &r = bureau.registreOuvert;
  const std::optional<std::size_t> rang = RangCourant(bureau);
  const std::string identite = rang ? IdentiteDe(*r.lu, *rang) : "";
  f.Text2.actif = rang.has_value();
  if (identite != r.noteDe) {
    r.noteDe = identite;
    f.Text2.texte = rang ? AnnotationDe(r, identite).note : "";
  }
}

/// What the buttons can do with the rows meant.
void AccordeBoutons(Bureau &bureau) {
  Registre &f = bureau.registre;
  const Tableau &t = f.Table1.tableau;
  const bool courante = t.courante != kSansLigne;
  const bool visees = courante || !t.choisies.empty();
  f.Command1.actif = courante;
  for (Controle &droite : f.Command2) {
    droite.actif = courante;
  }
  for (Controle *bouton : {&f.Command3[0], &f.Command3[1], &f.Command4, &f.Command5, &f.Command6}) {
    bouton->actif = visees;
  }
  const std::size_t premiere =
      t.choisies.empty() ? static_cast<std::size_t>(std::max(t.courante, 0)) : t.choisies.front();
  const bool masquee =
      visees && AnnotationDe(bureau.registreOuvert,
                             IdentiteDe(*bureau.registreOuvert.lu, RangMontre(bureau.registreOuvert, premiere)))
                    .masquee;
  f.Command3[0].visible = !masquee;
  f.Command3[1].visible = masquee;
}

} // namespace

std::vector<std::size_t> RangsVises(const Bureau &bureau) {
  const RegistreOuvert &r = bureau.registreOuvert;
  std::vector<std::size_t> rangs;
  rangs.reserve(bureau.registre.Table1.tableau.choisies.size());
  for (const std::size_t ligne : bureau.registre.Table1.tableau.choisies) {
    rangs.push_back(RangMontre(r, ligne));
  }
  if (const auto courant = RangCourant(bureau); rangs.empty() && courant) {
    rangs.push_back(*courant);
  }
  return rangs;
}

std::vector<std::string> IdentitesVisees(const Bureau &bureau) {
  std::vector<std::string> identites;
  for (const std::size_t rang : RangsVises(bureau)) {
    identites.push_back(IdentiteDe(*bureau.registreOuvert.lu, rang));
  }
  return identites;
}

void RetientAuPoint(Bureau &bureau, const std::vector<std::string> &identites) {
  std::vector<std::string> &retenues = bureau.registreOuvert.auPoint;
  for (const std::string &identite : identites) {
    if (retenues.size() >= kViseesDuPoint) {
      break;
    }
    if (std::count(retenues.begin(), retenues.end(), identite) == 0) {
      retenues.push_back(identite);
    }
  }
  ++bureau.registre.Table1.tableau.version;
}

void OuvreRegistre_Click(Bureau &bureau, int /*indice*/) {
  bureau.registre.cadre.visible = true;
  bureau.premierPlan = kFenetreRegistre;
  bureau.focus = &bureau.registre.Table1;
  DemandeRegistre(bureau);
}

void AccordeRegistre(Bureau &bureau) {
  Registre &f = bureau.registre;
  if (!f.cadre.visible) {
    return;
  }
  f.cadre.titre = bureau.donnees.PU_Registre.legende;
  PoseColonnes(f);
  f.Label2.infobulle = Illisibles(bureau);
  f.Label2.legende = Compte(bureau) + (f.Label2.infobulle.empty() ? "" : " !");
  f.Text1[2].alerte = LitJourCherche(f.Text1[2].texte) ? "" : f.TexteJourRefuse.legende + f.Text1[2].infobulle;
  AccordeNote(bureau);
  AccordeBoutons(bureau);
  AccordeMontre(bureau);
}

namespace registre {

void Text1_Change(Bureau &bureau, int /*indice*/) { DemandeRegistre(bureau); }

void Check1_Click(Bureau &bureau, int /*indice*/) { DemandeRegistre(bureau); }

void Table1_Click(Bureau &bureau, int /*indice*/) { AccordeNote(bureau); }

void Table1_Coche(Bureau &bureau, int /*indice*/) {
  std::vector<std::string> &retenues = bureau.registreOuvert.auPoint;
  if (const auto rang = RangCourant(bureau)) {
    const std::string identite = IdentiteDe(*bureau.registreOuvert.lu, *rang);
    if (std::erase(retenues, identite) == 0 && retenues.size() < kViseesDuPoint) {
      retenues.push_back(identite);
    }
    ++bureau.registre.Table1.tableau.version;
  }
}

void Text2_Quitte(Bureau &bureau, int /*indice*/) {
  const std::string identite = bureau.registreOuvert.noteDe;
  if (!identite.empty()) {
    const std::string note = bureau.registre.Text2.texte;
    Annote(bureau, {identite}, [&](Annotation &annotation) { annotation.note = note; });
  }
}

void Command1_Click(Bureau &bureau, int /*indice*/) {
  Reprend(bureau, bureau.donnees.PU_Registre.legende + ", " + bureau.registre.Command1.legende, [] {});
}

void Command2_Click(Bureau &bureau, int indice) {
  const std::string &droite = bureau.registre.Command2.at(static_cast<std::size_t>(indice)).legende;
  Reprend(bureau, bureau.donnees.PU_Registre.legende + ", " + droite, [&] {
    PoseMode(bureau, ModeDroite::Enregistre);
    Droite_Click(bureau, indice);
  });
}

void Command3_Click(Bureau &bureau, int indice) {
  Annote(bureau, IdentitesVisees(bureau), [&](Annotation &annotation) { annotation.masquee = indice == 0; });
}

void Command6_Click(Bureau &bureau, int /*indice*/) {
  RetientAuPoint(bureau, IdentitesVisees(bureau));
  Avise(bureau, bureau.registre.TexteAuPoint.legende + std::to_string(bureau.registreOuvert.auPoint.size()));
}

void Command7_Click(Bureau &bureau, int indice) {
  Text2_Quitte(bureau, indice);
  bureau.registre.cadre.visible = false;
  bureau.premierPlan = kFenetreDonnees;
}

} // namespace registre
} // namespace velmaris
