#pragma once

#include "tests/shell/bureau/OutilsBureau.hpp"

#include "shell/carte/FichierObjets.hpp"
#include "shell/carte/Objets.hpp"

#include <string>
#include <vector>

namespace velmaris::essais {

/// The program, started, with a user at the editor of the objects.
class AvecObjets : public Programme {
protected:
  AvecObjets() {
    LanguesSeules();
    Demarre();
    std::filesystem::create_directories(fichier.parent_path());
  }

  /// Opens the editor, on a file of these bytes.
  void OuvreSur(std::string_view octets) {
    Pose(fichier, octets);
    Ouvre();
  }

  void Ouvre() {
    d.FOptionCarte.visible = true;
    ClicControle(bureau, d.Command18);
  }

  void Ferme() { ClicControle(bureau, u.Command2); }

  /// Types a whole entry: degrees and minutes or hundredths, "N" or "S", "E" or "W".
  void Saisit(const std::string &nom, const std::string &rayon, const std::string &latDegres,
              const std::string &latParties, char nordSud, const std::string &lonDegres, const std::string &lonParties,
              char estOuest) {
    Tape(u.Text4, nom);
    Tape(u.Text3, rayon);
    Tape(u.Text8, latDegres);
    Tape(u.Text9, latParties);
    ClicOption(bureau, u.OptN[nordSud == 'N' ? 0 : 1]);
    Tape(u.Text6, lonDegres);
    Tape(u.Text7, lonParties);
    ClicOption(bureau, u.OptE[estOuest == 'E' ? 0 : 1]);
  }

  /// Types an entry of that name somewhere, and presses "Nouveau".
  void Nouveau(const std::string &nom) {
    Saisit(nom, "4", "47", "15", 'N', "5", "30", 'W');
    Nouveau();
  }
  void Nouveau() { ClicControle(bureau, u.Command1); }
  void Modifie() { ClicControle(bureau, u.Command3); }
  void Supprime() { ClicControle(bureau, u.Command4); }
  void Choisit(int rang) { ChoisitLigne(bureau, u.List1, rang); }

  std::string Ecrit() const { return Contenu(fichier); }

  /// The files beside the one that is edited.
  std::vector<std::string> Autres() const {
    std::vector<std::string> noms;
    for (const auto &entree : std::filesystem::directory_iterator(fichier.parent_path())) {
      const std::string nom = entree.path().filename().string();
      if (nom != "Utilisateur.txt" && nom.starts_with("Utilisateur")) {
        noms.push_back(nom);
      }
    }
    return noms;
  }

  std::filesystem::path fichier = bureau.dossiers.utilisateur / "Utilisateur.txt";
  Utilisateur &u = bureau.utilisateur;
};

} // namespace velmaris::essais
