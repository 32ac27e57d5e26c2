#pragma once

#include "shell/Demarrage.hpp"
#include "shell/Sortie.hpp"
#include "shell/bureau/Evenements.hpp"
#include "shell/bureau/Valeurs.hpp"
#include "shell/carte/Souris.hpp"
#include "shell/droites/Droites.hpp"
#include "shell/ecran/Modules.hpp"
#include "shell/visee/Astres.hpp"
#include "shell/visee/PanneauDirect.hpp"
#include "shell/visee/Saisie.hpp"

#include "tests/OutilsTests.hpp"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <string>
#include <thread>
#include <vector>

namespace velmaris::essais {

/// The ticks of the clock until all that waits for another program is written, as a program that goes on has them.
inline void AttendEcrit(Valeurs &valeurs) {
  for (int i = 0; i < 30'000 && valeurs.enAttente(); ++i) {
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
    valeurs.Retente();
  }
  EXPECT_FALSE(valeurs.enAttente());
}

/// The whole program without a screen: its own data folder, a clock that stands at 2026 June 21 12:05:30 UTC, English
/// weekday names, and boxes that are noted and answered with `reponse`.
class Programme : public ::testing::Test {
protected:
  Programme() { Branche(bureau); }

  void Branche(Bureau &b) {
    b.dossiers = {dossier.chemin() / "utilisateur", VELMARIS_DONNEES, "/nulle/part", dossier.chemin() / "accueil"};
    std::filesystem::create_directories(b.dossiers.accueil);
    b.horloge.source = [this] { return temps; };
    b.horloge.locale = [this] { return locale; };
    b.ports.boite = [this](const Boite &boite) {
      boites.push_back(boite);
      return reponse;
    };
    b.ports.nomJour = [](const ValeurDate &date) {
      constexpr std::array<const char *, 7> kJours = {"sunday",   "monday", "tuesday", "wednesday",
                                                      "thursday", "friday", "saturday"};
      return std::string(kJours.at(static_cast<std::size_t>(JourSemaine(date))));
    };
    b.ports.nomMois = [](const ValeurDate &date) { return "month" + std::to_string(date.mois); };
  }

  /// Beside the program lie the two languages and nothing else: neither outlines, nor cities, nor objects.
  void LanguesSeules() {
    const std::filesystem::path seul = dossier / "programme";
    std::filesystem::create_directories(seul);
    for (const char *nom : {"FR.txt", "EN.txt"}) {
      std::filesystem::copy_file(std::filesystem::path(VELMARIS_DONNEES) / nom, seul / nom);
    }
    bureau.dossiers.programme = seul;
  }

  void Demarre(const Ecran &ecran = {}) { Donnees_Charge(bureau, ecran); }

  /// Starts without "Toujours Visible": the sheet is looked at without the chart over it.
  void DemarreSansCarte(const Ecran &ecran = {}) {
    Demarre(ecran);
    d.Check2.valeur = 0;
  }

  /// Opens the editor of objects and puts one into its list, which no file has yet.
  void AjouteObjet(const std::string &nom) {
    d.FOptionCarte.visible = true;
    ClicControle(bureau, d.Command18);
    Utilisateur &u = bureau.utilisateur;
    for (const auto &[champ, texte] : {std::pair{&u.Text4, nom},
                                       {&u.Text3, "3"},
                                       {&u.Text8, "47"},
                                       {&u.Text9, "30"},
                                       {&u.Text6, "5"},
                                       {&u.Text7, "0"}}) {
      SaisitTexte(bureau, *champ, texte);
    }
    ClicControle(bureau, u.Command1);
  }

  /// Types into a field as a user does, entering and leaving it.
  void Tape(Controle &champ, const std::string &texte) {
    EntreChamp(bureau, champ);
    SaisitTexte(bureau, champ, texte);
    QuitteChamp(bureau, champ);
  }

  /// A sight of the Sun off Brittany: lower limb, sea horizon, seconds.
  void TapeVisee() {
    Tape(d.TDate[0], "21");
    Tape(d.TDate[1], "6");
    Tape(d.TDate[2], "2026");
    Tape(d.Text3, "12");
    Tape(d.Text4, "5");
    Tape(d.Text5, "30");
    Tape(d.Text8, "47");
    Tape(d.Text9, "30");
    ClicOption(bureau, d.OptN[0]);
    Tape(d.Text6, "5");
    Tape(d.Text7, "10");
    ClicOption(bureau, d.OptE[1]);
    Tape(d.Text13, "65");
    Tape(d.Text12, "34");
    Tape(d.Text25, "38");
    Tape(d.Text11, "-1.0");
    Tape(d.Text10, "2.5");
  }

  void Calcule() { ClicControle(bureau, d.Command2); }

  std::string Reglage(std::string_view cle, std::string_view defaut = "absent") {
    return LitReglage(bureau, cle, defaut);
  }

  DossierTemporaire dossier;
  TempsSysteme temps{2026, 6, 0, 21, 12, 5, 30, 250};
  ValeurDate locale{2026, 6, 21, 14, 5, 30};
  std::vector<Boite> boites;
  bool reponse = false;
  Bureau bureau;
  Donnees &d = bureau.donnees;
};

} // namespace velmaris::essais
