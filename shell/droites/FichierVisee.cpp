#include "shell/droites/FichierVisee.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/Fichiers.hpp"
#include "foundations/TexteNombre.hpp"
#include "lines/FichierLoP.hpp"
#include "shell/bureau/Evenements.hpp"
#include "shell/droites/Bouts.hpp"
#include "shell/droites/Droites.hpp"
#include "shell/droites/MemoireDroites.hpp"
#include "shell/droites/ModesDroite.hpp"
#include "shell/droites/Recentes.hpp"
#include "shell/ecran/ChoixFichier.hpp"
#include "shell/ecran/Modules.hpp"
#include "shell/visee/Annulation.hpp"
#include "shell/visee/Astres.hpp"
#include "shell/visee/ReduitVisee.hpp"
#include "shell/visee/Saisie.hpp"

#include <string>

namespace velmaris {
namespace {

constexpr const char *kMotif = "*LoP";
constexpr std::size_t kLigneHorizon = 18; ///< the one entry of the table that a load empties
constexpr int kTropDeLignes = 9;

/// The sheet is forgotten before the user has chosen: giving up leaves its picture and no sheet.
void RemetFeuille(Bureau &bureau) {
  Donnees &d = bureau.donnees;
  PoseValeur(bureau, d.Check3, 0);
  d.Combo6.visible = true;
  d.Combo8.visible = false;
  bureau.lignesLoP[kLigneHorizon].clear();
  bureau.feuille.LabLon.clear();
  bureau.feuille.LabLat.clear();
  MontreTitresFeuille(bureau);
  OublieFeuille(bureau);
}

void DitNonLu(Bureau &bureau, const std::filesystem::path &chemin) {
  bureau.ports.boite({.texte = bureau.donnees.TexteNonLu.legende + "\n" + chemin.string(), .icone = Icone::Attention});
}

/// Whether a file can be taken for a sight. One that is too large loads nothing and says nothing, like any other that
/// isn't a sight; one that can't be read is told.
/// @param octets  gets what the file holds
bool LitOctets(Bureau &bureau, const std::filesystem::path &chemin, std::string &octets) {
  try {
    octets = LitFichier(chemin);
    return true;
  } catch (const FichierTropGrand &) {
    return false;
  } catch (const Erreur &) {
    DitNonLu(bureau, chemin);
    return false;
  }
}

/// Reads a file's lines into the table. Past a table that is full the read fails without taking its line, so that the
/// end of the file never comes: the program lives on beside it, until it is left.
/// @return false when there is nothing to apply: no file that can be taken for a sight, or the program ends
bool LitLignes(Bureau &bureau, const std::filesystem::path &chemin) {
  std::string octets;
  if (!LitOctets(bureau, chemin, octets)) {
    return false;
  }
  try {
    LitLignesLoP(octets, bureau.lignesLoP);
  } catch (const Erreur &erreur) {
    if (erreur.numero != kTropDeLignes) {
      throw;
    }
    while (!bureau.termine) {
      bureau.ports.attend();
    }
    return false;
  }
  return true;
}

/// Pours the table of lines into the panel, in its order.
void AppliqueAuPanneau(Bureau &bureau) {
  Donnees &d = bureau.donnees;
  Observation observation = LitPanneau(d);
  AppliqueTextesLoP(bureau.lignesLoP, observation);
  PoseChamps(bureau, observation);
  const ChoixLoP choix = LitChoixLoP(bureau.lignesLoP);
  const int corps = choix.corps.value_or(0);
  PoseChoix(bureau, d.Option7, choix.corps.value_or(-1));
  SelAstre(bureau, corps);
  if (choix.horizon) {
    PoseOption(bureau, d.Option5[static_cast<std::size_t>(*choix.horizon)]);
  }
  if (choix.horizonEcrit) {
    Option5_Relache(bureau, -1);
  }
  PoseChoix(bureau, d.Option6, choix.bord.value_or(-1));
  PoseChoix(bureau, d.Option4, choix.fraction.value_or(-1));
  if (choix.rang) {
    PoseListeDuCorps(bureau, corps, *choix.rang);
  }
}

/// Pours the table of lines into the panel, reduces the sight and draws its sheet.
void MontreChargee(Bureau &bureau) {
  bureau.image1.police = {"ms sans serif", 9.0, true};
  AppliqueAuPanneau(bureau);
  Observation observation = LitPanneau(bureau.donnees);
  PrepareVisee(bureau, observation);
  bool reduite = false;
  Passe([&] { reduite = ReduitVisee(bureau, observation).has_value(); });
  TraceNommee(bureau, NomReduite(bureau, observation, reduite),
              [&] { TraceDroites(bureau.feuille, bureau.image1, observation, bureau.visee); });
  MontreTitresFeuille(bureau);
  PublieLigneImpression(bureau, 1, 0);
  PoseMode(bureau, ModeDroite::Enregistre);
  MontreDroitesMultiples(bureau);
  RetraceCarte(bureau);
}

} // namespace

void Command3_Click(Bureau &bureau, int /*indice*/) {
  const Donnees &d = bureau.donnees;
  const std::filesystem::path chemin =
      ChoisitFichier(bureau, d.TexteSauve.legende, NomProposeLoP(LitPanneau(d)), kMotif);
  if (chemin.empty()) {
    return;
  }
  try {
    SauveLoP(chemin, LitPanneau(d), bureau.dossiers.utilisateur);
    NoteRecente(bureau, chemin);
  } catch (const Erreur &erreur) {
    bureau.ports.boite(
        {.texte = MotsErreur(d, erreur.numero) + "\n\n" + d.TexteNonEcrit.legende + "\n" + chemin.string(),
         .icone = Icone::Erreur});
  }
}

void Command4_Click(Bureau &bureau, int /*indice*/) {
  RemetFeuille(bureau);
  const std::filesystem::path chemin = ChoisitFichier(bureau, bureau.donnees.TexteCharge.legende, kMotif, kMotif);
  if (!chemin.empty()) {
    ChargeVisee(bureau, chemin);
  }
}

void OuvreVisee(Bureau &bureau, const std::filesystem::path &chemin) {
  if (std::string octets; !LitOctets(bureau, chemin, octets)) {
    return;
  }
  const std::string nom = SansExtension(chemin.filename().string());
  RetientGeste(bureau, nom, [&] {
    RemetFeuille(bureau);
    if (ChargeVisee(bureau, chemin)) {
      bureau.TitreFichier = nom;
    }
  });
}

std::filesystem::path FichierSecours(const Bureau &bureau) { return bureau.dossiers.utilisateur / "secours.LoP"; }

void PU_Secours_Click(Bureau &bureau, int /*indice*/) { OuvreVisee(bureau, FichierSecours(bureau)); }

bool ChargeVisee(Bureau &bureau, const std::filesystem::path &chemin) {
  if (!LitLignes(bureau, chemin)) {
    return false;
  }
  if (chemin != FichierSecours(bureau)) {
    NoteRecente(bureau, chemin);
  }
  MontreChargee(bureau);
  return true;
}

void ReprendVisee(Bureau &bureau, const Observation &observation) {
  RemetFeuille(bureau);
  LitLignesLoP(EcritLoP(observation), bureau.lignesLoP);
  MontreChargee(bureau);
}

} // namespace velmaris
