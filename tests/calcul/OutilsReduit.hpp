#pragma once

#include "Passage.hpp"
#include "tests/OutilsTests.hpp"

#include <filesystem>
#include <gmock/gmock.h>
#include <string>
#include <vector>

namespace velmaris {

/// The 21 lines of an ordinary sight of the Sun.
inline std::vector<std::string> LignesSoleil() {
  return {"12",  "05", "30", "21",   "06",    "2026", "05",  "10",   "47",  "30", "2,5",
          "0,0", "34", "65", "Nord", "Ouest", "38",   " 0 ", "NATU", " 1 ", "0"};
}

inline std::string Assemble(const std::vector<std::string> &lignes, const std::string &fin) {
  std::string texte;
  for (const std::string &ligne : lignes) {
    texte += ligne + fin;
  }
  return texte;
}

/// Runs of "reduit", in a folder for each test, removed after it.
class Reduit : public testing::Test {
protected:
  std::string Ecrit(const std::string &nom, const std::string &octets) const {
    essais::Pose(dossier_ / nom, octets);
    return (dossier_ / nom).string();
  }
  std::string EcritVisee(const std::string &nom, const std::vector<std::string> &lignes) const {
    return Ecrit(nom, Assemble(lignes, "\r\n"));
  }
  static nlohmann::ordered_json ReduitUn(const std::string &fichier, int etat = 0) {
    const Passage p = Lance({"reduit", "--langue", "aucune", fichier});
    EXPECT_EQ(p.etat, etat) << p.sortie << p.erreurs;
    EXPECT_THAT(p.erreurs, testing::IsEmpty());
    const auto objets = Objets(p.sortie);
    EXPECT_THAT(objets, testing::SizeIs(1));
    return objets.empty() ? nlohmann::ordered_json() : objets.front();
  }
  void AttendErreur(const std::string &fichier, int numero) const {
    const nlohmann::ordered_json o = ReduitUn(fichier, 1);
    EXPECT_THAT(Cles(o), testing::ElementsAre("fichier", "erreur"));
    EXPECT_THAT(Cles(o["erreur"]), testing::ElementsAre("numero", "texte"));
    EXPECT_EQ(o["fichier"], fichier);
    EXPECT_EQ(o["erreur"]["numero"], numero);
    EXPECT_THAT(o["erreur"]["texte"].get<std::string>(), testing::Not(testing::IsEmpty()));
  }

  essais::DossierTemporaire temporaire_;
  std::filesystem::path dossier_ = temporaire_.chemin();
};

} // namespace velmaris
