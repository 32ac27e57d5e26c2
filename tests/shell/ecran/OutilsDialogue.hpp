#pragma once

#include "tests/shell/bureau/OutilsBureau.hpp"

#include "shell/ecran/ChoixFichier.hpp"

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <unistd.h>

namespace velmaris::essais {

/// The whole program, started, with a user at its file dialog. It opens in an empty folder of the user's own.
class AvecDialogue : public Programme {
protected:
  AvecDialogue() { DemarreSansCarte(); }

  /// What the user does in the dialog the next times it is shown. Left open in the end, it is given up.
  void Jouera(std::function<void()> gestes) {
    bureau.ports.modale = [this, gestes = std::move(gestes), fois = 0](CadreFenetre &cadre) mutable {
      EXPECT_EQ(&cadre, &f.cadre);
      EXPECT_TRUE(cadre.visible);
      ++ouvertures;
      ASSERT_LT(fois++, 500) << "it is asked for again and again";
      gestes();
      restee = cadre.visible;
      if (cadre.visible) {
        ClicControle(bureau, f.Quitter);
      }
    };
  }

  /// Opens the dialog and plays the user in it.
  std::filesystem::path Demande(std::function<void()> gestes, const std::string &nom = "*LoP",
                                const std::string &motif = "*LoP") {
    Jouera(std::move(gestes));
    return ChoisitFichier(bureau, "Fichier", nom, motif);
  }

  void TapeNom(const std::string &texte) {
    EntreChamp(bureau, f.FName);
    SaisitTexte(bureau, f.FName, texte);
  }

  void Ok() { ClicControle(bureau, f.OK); }

  /// Types a name and accepts it.
  void Donne(const std::string &texte) {
    TapeNom(texte);
    Ok();
  }

  /// Clicks on a file of the list.
  void ClicFichier(const std::string &nom) { ChoisitLigne(bureau, f.File1, Rang(f.File1, nom)); }

  /// Clicks on a folder of the list, however far in it stands.
  void ClicDossier(const std::string &nom) {
    const auto &liste = f.Dir1.liste;
    const auto trouve = std::find_if(liste.begin(), liste.end(), [&](const std::string &ligne) {
      const auto debut = ligne.find_first_not_of(' ');
      return debut != std::string::npos && ligne.substr(debut) == nom;
    });
    ASSERT_NE(trouve, liste.end()) << nom;
    ChoisitLigne(bureau, f.Dir1, static_cast<int>(trouve - liste.begin()));
  }

  static int Rang(const Controle &controle, const std::string &ligne) {
    const auto trouve = std::find(controle.liste.begin(), controle.liste.end(), ligne);
    return trouve == controle.liste.end() ? -2 : static_cast<int>(trouve - controle.liste.begin());
  }

  /// Names of the folders that the list shows within the present one.
  std::vector<std::string> Enfants() const {
    std::vector<std::string> noms;
    const auto premier = static_cast<std::size_t>(std::distance(f.dossier.begin(), f.dossier.end()));
    for (std::size_t i = premier; i < f.Dir1.liste.size(); ++i) {
      noms.push_back(f.Dir1.liste[i].substr(f.Dir1.liste[i].find_first_not_of(' ')));
    }
    return noms;
  }

  /// A folder of the user's own.
  std::filesystem::path Dossier(const std::string &nom) {
    std::filesystem::create_directories(lieu / nom);
    return lieu / nom;
  }

  /// Files of the user's own folder.
  void Fichiers(const std::vector<std::string> &noms) {
    for (const std::string &nom : noms) {
      Pose(lieu / nom, nom);
    }
  }

  FSelect &f = bureau.fselect;
  std::filesystem::path lieu = bureau.dossiers.accueil;
  int ouvertures = 0;  ///< how often the dialog was shown
  bool restee = false; ///< it was still open after the user's last gesture
};

} // namespace velmaris::essais
