#include "LectureTables.hpp"

#include <cstdint>
#include <fstream>
#include <map>
#include <sstream>

namespace tables {

namespace fs = std::filesystem;

std::string Lit(const fs::path &chemin) {
  std::ifstream fichier(chemin, std::ios::binary);
  std::ostringstream octets;
  octets << fichier.rdbuf();
  if (!fichier) {
    Refuse(chemin.string(), "can't be read");
  }
  return octets.str();
}

std::string Somme(std::string_view octets) {
  std::uint64_t somme = 0xcbf29ce484222325U;
  for (const char c : octets) {
    somme = (somme ^ static_cast<unsigned char>(c)) * 0x100000001b3U;
  }
  std::string texte(16, '0');
  for (std::size_t i = texte.size(); i-- > 0; somme >>= 4U) {
    texte[i] = "0123456789abcdef"[somme & 15U];
  }
  return texte;
}

Rangee Champs(const std::string &ligne) {
  std::istringstream flux(ligne);
  Rangee champs;
  for (std::string champ; flux >> champ;) {
    champs.push_back(champ);
  }
  return champs;
}

std::vector<Section> Decoupe(const std::string &fichier, const std::string &octets, std::size_t colonnes) {
  std::vector<Section> sections;
  std::istringstream flux(octets);
  for (std::string ligne; std::getline(flux, ligne);) {
    const Rangee champs = Champs(ligne);
    if (champs.empty() || champs.front().starts_with('#')) {
      continue;
    }
    if (champs.size() == 2) {
      sections.push_back({champs[0], LitNombre<std::size_t>(fichier, champs[1]), {}});
      continue;
    }
    if (champs.size() != colonnes) {
      Refuse(fichier, "a row has " + std::to_string(champs.size()) + " fields: " + ligne);
    }
    if (sections.empty()) {
      sections.emplace_back();
    }
    sections.back().rangees.push_back(champs);
  }
  return sections;
}

std::string LignesSommes(const fs::path &dossier, const std::vector<std::string> &fichiers) {
  std::string lignes;
  for (const std::string &fichier : fichiers) {
    lignes += Somme(Lit(dossier / fichier)) + "  " + fichier + "\n";
  }
  return lignes;
}

void VerifieSommes(const fs::path &dossier, const std::vector<std::string> &fichiers) {
  std::map<std::string, std::string> sommes;
  std::istringstream flux(Lit(dossier / "SOMMES.txt"));
  for (std::string ligne; std::getline(flux, ligne);) {
    const Rangee champs = Champs(ligne);
    if (champs.size() == 2 && champs.front() != "#") {
      sommes[champs[1]] = champs[0];
    }
  }
  for (const std::string &fichier : fichiers) {
    if (sommes[fichier] != Somme(Lit(dossier / fichier))) {
      Refuse(fichier, "its sum isn't the one in SOMMES.txt");
    }
  }
}

void Ecrit(const fs::path &chemin, const std::string &texte) {
  std::ofstream fichier(chemin, std::ios::binary | std::ios::trunc);
  fichier << texte << std::flush;
  if (!fichier) {
    Refuse(chemin.string(), "can't be written");
  }
}

} // namespace tables
