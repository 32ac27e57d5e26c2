#include "shell/complements/Verification.hpp"

#include "shell/bureau/Avis.hpp"
#include "shell/bureau/Evenements.hpp"
#include "shell/complements/MotsControle.hpp"
#include "shell/complements/ReglagesLus.hpp"

#include <array>
#include <string>
#include <vector>

namespace velmaris {
namespace {

/// Where the store keeps the settings, in the order of the fields.
constexpr std::array<std::string_view, kChampsReglages> kCles = {"ControlePression", "ControleTemperature",
                                                                 "ControleRivage", "ControleUT1", "ControleArc"};

std::array<std::string, kChampsReglages> TextesDesReglages(const Fiche &f) {
  std::array<std::string, kChampsReglages> textes;
  for (std::size_t i = 0; i < textes.size(); ++i) {
    textes.at(i) = f.Text1.at(i).texte;
  }
  return textes;
}

/// Takes over what the fields set, and marks those that can't be used.
void PrendReglages(Bureau &bureau) {
  Fiche &f = bureau.fiche;
  const ReglagesLus lus = LitReglages(TextesDesReglages(f));
  bureau.verification.reglages = lus.reglages;
  bureau.verification.verifiee.reset();
  for (std::size_t i = 0; i < lus.bons.size(); ++i) {
    f.Text1.at(i).alerte = lus.bons.at(i) ? "" : f.TexteRefuse.legende + f.Text1.at(i).infobulle;
  }
}

/// Fills a list of lines, of which the first ones show.
void PoseListe(std::array<Controle, 4> &montrees, const std::vector<std::string> &lignes, const std::string &aucune) {
  for (std::size_t i = 0; i < montrees.size(); ++i) {
    montrees.at(i).legende = i < lignes.size() ? lignes[i] : "";
  }
  if (lignes.empty()) {
    montrees[0].legende = aucune;
  }
}

/// The body in the language of the moment; a star's and a planet's names are those of the lists.
std::string NomDeLAstre(const Bureau &bureau) {
  const Corps corps = bureau.verification.visee->observation.corps;
  const bool seul = corps == Corps::Soleil || corps == Corps::Lune;
  return seul ? bureau.donnees.Option7.at(static_cast<std::size_t>(corps)).legende : bureau.NomAstre;
}

/// The sight itself, for a copy: date, time and estimated position as typed.
std::string ViseeEnTexte(const Observation &o) {
  return o.jour + "/" + o.mois + "/" + o.annee + " " + o.heure + ":" + o.minute + ":" + o.seconde + " UTC  " +
         o.latitudeDegres + "° " + o.latitudeMinutes + "' " + (o.sud ? "S" : "N") + "  " + o.longitudeDegres + "° " +
         o.longitudeMinutes + "' " + (o.est ? "E" : "W");
}

/// The sheet grows faint with the results that it is of.
void VieillitFiche(Bureau &bureau) {
  Fiche &f = bureau.fiche;
  const std::string &alerte = bureau.donnees.Affichage_Intercept.alerte;
  f.Verdict.alerte = alerte;
  for (std::size_t i = 0; i < kEtapesFiche; ++i) {
    f.Dit.at(i).alerte = alerte;
    f.Actuel.at(i).alerte = alerte;
    f.Raison.at(i).alerte = alerte;
  }
  for (std::size_t i = 0; i < f.Causes.size(); ++i) {
    f.Causes.at(i).alerte = alerte;
    f.Glissades.at(i).alerte = alerte;
  }
}

/// Fills the sheet.
void RemplitFiche(Bureau &bureau, const FicheControle *controle) {
  Fiche &f = bureau.fiche;
  const std::string &aucune = f.TexteAucune.legende;
  f.cadre.titre = bureau.donnees.PU_Fiche.legende;
  PoseLignes(f, controle != nullptr ? *controle : FicheControle());
  f.Verdict.legende = controle != nullptr ? MotsDuVerdict(f, *controle, NomDeLAstre(bureau)) : f.TexteSansVisee.legende;
  PoseListe(f.Causes, controle != nullptr ? MotsDesCauses(f, *controle) : std::vector<std::string>(), aucune);
  PoseListe(f.Glissades, controle != nullptr ? MotsDesGlissades(bureau, *controle) : std::vector<std::string>(),
            aucune);
  f.Command1.actif = controle != nullptr;
}

} // namespace

const FicheControle *ControleDuResultat(Bureau &bureau) {
  Verification &v = bureau.verification;
  if (!v.visee || bureau.donnees.Affichage_Intercept.legende.empty()) {
    return nullptr;
  }
  if (v.verifiee != v.visee) {
    v.fiche = ControleVisee(v.visee->observation, v.visee->dit, bureau.etoiles, v.reglages);
    v.verifiee = v.visee;
  }
  return &v.fiche;
}

void AccordeVerification(Bureau &bureau) {
  const FicheControle *controle = ControleDuResultat(bureau);
  const bool bref = bureau.donnees.Label72.visible; // the compact layout
  auto &[chiffres, grade] = bureau.donnees.LabControle;
  chiffres.legende = controle != nullptr ? ChiffresDuControle(bureau.fiche, *controle, bref) : "";
  grade.legende = controle != nullptr ? JugementDuControle(bureau.fiche, *controle, bref) : "";
  chiffres.visible = controle != nullptr;
  grade.visible = controle != nullptr;
  if (bureau.fiche.cadre.visible) {
    RemplitFiche(bureau, controle);
    VieillitFiche(bureau);
  }
}

void OuvreFiche_Click(Bureau &bureau, int /*indice*/) {
  bureau.fiche.cadre.visible = true;
  bureau.premierPlan = kFenetreFiche;
}

void LitReglagesVerification(Bureau &bureau) {
  for (std::size_t i = 0; i < kCles.size(); ++i) {
    bureau.fiche.Text1.at(i).texte = LitReglage(bureau, kCles.at(i));
  }
  PrendReglages(bureau);
}

namespace fiche {

void Text1_Change(Bureau &bureau, int indice) {
  const auto rang = static_cast<std::size_t>(indice);
  PrendReglages(bureau);
  if (const Controle &champ = bureau.fiche.Text1.at(rang); champ.alerte.empty()) {
    EcritReglage(bureau, kCles.at(rang), champ.texte);
  } else {
    Avise(bureau, bureau.fiche.Label1.at(rang).legende + " : " + champ.alerte);
  }
}

void Command1_Click(Bureau &bureau, int /*indice*/) {
  const std::optional<ViseeDite> &visee = bureau.verification.visee;
  bureau.ports.copieTexte((visee ? ViseeEnTexte(visee->observation) + "\n" : "") + TexteDeFiche(bureau.fiche));
  Avise(bureau, bureau.etat.TexteCopie.legende + bureau.donnees.PU_Fiche.legende);
}

void Command2_Click(Bureau &bureau, int /*indice*/) {
  bureau.fiche.cadre.visible = false;
  bureau.premierPlan = kFenetreDonnees;
}

} // namespace fiche
} // namespace velmaris
