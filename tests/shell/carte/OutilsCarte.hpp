#pragma once

#include "shell/carte/Carte.hpp"
#include "tests/shell/bureau/OutilsBureau.hpp"

#include <string>
#include <string_view>

namespace velmaris::essais {

/// The program with small files of its own: each outline is a single segment near 47 degrees north, 5 degrees west.
class AvecCarte : public Programme {
protected:
  static constexpr std::string_view kSegment = "0.486 0.535\n0.487 0.536\n";

  AvecCarte() {
    for (const char *nom : {"Contours.Asc", "Totale.asc", "Iles.Asc", "Rivieres.Asc", "Lacs.Asc"}) {
      PoseDonnees(nom, kSegment);
    }
    PoseDonnees("Villes.txt", "+47.75 +003.37 1 P Lorient\n");
    PoseDonnees("Utilisateur.txt", "+48.05 +005.00 3 Ar-Men\n");
    DemarreSansCarte();
  }

  void PoseDonnees(const std::string &nom, std::string_view octets) {
    std::filesystem::create_directories(bureau.dossiers.utilisateur);
    Pose(bureau.dossiers.utilisateur / nom, octets);
  }
  /// There is no such file, neither in the user's folder nor beside the program.
  void OteDonnees(const std::string &nom) {
    std::filesystem::remove(bureau.dossiers.utilisateur / nom);
    bureau.dossiers.programme = "/nulle/part";
  }

  /// Colours of what is drawn, in order, each once in a row.
  std::vector<Couleur> Couleurs() const {
    std::vector<Couleur> couleurs;
    for (const Polyligne &ligne : TracesDe<Polyligne>(bureau.image1)) {
      if (couleurs.empty() || couleurs.back() != ligne.plume.couleur) {
        couleurs.push_back(ligne.plume.couleur);
      }
    }
    return couleurs;
  }

  std::vector<std::string> TextesBoites() const {
    std::vector<std::string> textes;
    for (const Boite &boite : boites) {
      textes.push_back(boite.texte);
    }
    return textes;
  }

  /// The points that a table has no room for.
  static std::string TropDePoints() {
    std::string octets;
    for (int i = 0; i < 60002; ++i) {
      octets += "0.5 0.25\n";
    }
    return octets;
  }
};

} // namespace velmaris::essais
