#include "shell/Sortie.hpp"

#include "foundations/Erreur.hpp"
#include "lines/FichierLoP.hpp"
#include "shell/Reprise.hpp"
#include "shell/bureau/Explication.hpp"
#include "shell/bureau/Sauvegarde.hpp"
#include "shell/bureau/Valeurs.hpp"
#include "shell/carte/FichierObjets.hpp"
#include "shell/carte/Objets.hpp"
#include "shell/ciel/EcranCiel.hpp"
#include "shell/droites/FichierVisee.hpp"
#include "shell/ecran/PageImprimee.hpp"
#include "shell/ecran/Rangement.hpp"
#include "shell/registre/LectureRegistre.hpp"
#include "shell/registre/Registre.hpp"
#include "shell/visee/Journal.hpp"
#include "shell/visee/Saisie.hpp"

#include <algorithm>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace velmaris {
namespace {

constexpr std::size_t kLegendeQuitter = 14; ///< caption under "Quitter"

/// Keeps the settings of the exit. What a start has taken for a stored value that it couldn't read, and that nobody has
/// changed since, isn't one to be kept.
void GardeReglages(Bureau &bureau) {
  const std::vector<CleValeur> &depart = bureau.reglagesDepart;
  for (const CleValeur &c : ReglagesSortie(bureau.donnees)) {
    if (std::find(depart.begin(), depart.end(), c) == depart.end()) {
      bureau.valeurs->SaveSetting(kApplication, kSection, c.cle, c.valeur);
    }
  }
}

} // namespace

std::vector<CleValeur> ReglagesSortie(const Donnees &d) {
  std::vector<CleValeur> cles;
  const auto garde = [&](const std::string &cle, const std::string &valeur) { cles.push_back({cle, valeur}); };
  const auto booleen = [](bool vrai) { return vrai ? "True" : "False"; };
  garde("T6", d.Text6.texte);
  garde("T7", d.Text7.texte);
  garde("T8", d.Text8.texte);
  garde("T9", d.Text9.texte);
  garde("Hem", d.OptN[0].choisi ? "Nord" : "Sud");
  garde("Lon", d.OptE[0].choisi ? "Est" : "Ouest");
  garde("T10", d.Text10.texte);
  garde("T11", d.Text11.texte);
  garde("C2", std::to_string(d.Check2.valeur));
  garde("opCarte0", booleen(d.OpCarte[0].choisi));
  garde("opCarte1", booleen(d.OpCarte[1].choisi));
  for (std::size_t i = 0; i < d.Check1.size(); ++i) {
    garde("C1 " + std::to_string(i), std::to_string(d.Check1[i].valeur));
  }
  return cles;
}

void Sortie_Click(Bureau &bureau, int /*indice*/) {
  // The title tells what is asked, also while no language file has filled the messages.
  const std::string titre = "Velmaris - " + bureau.donnees.Label50[kLegendeQuitter].legende;
  if (!bureau.ports.boite({.texte = bureau.messages[6], .titre = titre, .icone = Icone::Question, .question = true})) {
    bureau.QuitterRefuse = -1;
    return;
  }
  bureau.valeurs->patience().Refait();
  bureau.valeurs->Ensemble([&] { GardeReglages(bureau); });
  GardeDisposition(bureau);
  RetenteJournal(bureau, bureau.valeurs->patience());
  SignaleMagasin(bureau);
  bureau.apropos.cadre.visible = false;
  Ciel_Ferme(bureau);
  bureau.fselect.cadre.visible = false;
  Impression_Ferme(bureau);
  if (bureau.registre.cadre.visible) {
    registre::Command7_Click(bureau, -1);
  }
  BatRegistre(bureau);
  QuitteObjets(bureau);
  FermeReprise(bureau);
  bureau.termine = true;
}

void Secours(Bureau &bureau, const std::exception &erreur) {
  const Donnees &d = bureau.donnees;
  const auto *numerotee = dynamic_cast<const Erreur *>(&erreur);
  const std::string erreurDite =
      numerotee != nullptr ? MotsErreur(d, numerotee->numero) : d.TexteErreur.legende + "\n" + erreur.what();
  GardeSession(bureau);
  const auto *expliquee = dynamic_cast<const ErreurExpliquee *>(&erreur);
  const std::string remede =
      expliquee != nullptr && !expliquee->explication.empty() ? "\n\n" + expliquee->explication : "";
  const std::filesystem::path fichier = FichierSecours(bureau);
  const bool conservee = Passe([&] {
    std::error_code refus;
    std::filesystem::create_directories(fichier.parent_path(), refus);
    SauveLoP(fichier, LitPanneau(d));
  });
  if (bureau.utilisateur.Modifie != 0) {
    Passe([&] { EcritFichier(bureau); });
  }
  Patience derniere;
  RetenteJournal(bureau, derniere);
  Passe([&] { BatRegistre(bureau); });
  const std::string suite = conservee ? d.TexteSecours.legende + "\n" + fichier.string() : d.TexteSansSecours.legende;
  Boite boite{.texte = erreurDite + remede + "\n\n" + suite, .icone = Icone::Erreur};
  if (bureau.reprise && bureau.reprise->tenue()) {
    boite.autre = d.TexteRecommencer.legende;
  }
  bureau.recommence = bureau.ports.boite(boite) && !boite.autre.empty();
}

} // namespace velmaris
