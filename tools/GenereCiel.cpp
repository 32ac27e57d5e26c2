// Turns the tables of the complements into constants of the program, once it has made sure of them.
//
//   genere-ciel EPHEMERIDES DOSSIER SORTIE.cpp   reads the series of planets from the first folder, stars and Moon from
//                                                the second, and writes the definitions of TablesCiel.hpp
//   genere-ciel --sommes DOSSIER                 prints the lines of SOMMES.txt for the second folder
//
// The series of planets are checked by genere-tables, whose sums are compared here once more.

#include "GenereTables.hpp"
#include "LectureTables.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <sstream>

namespace tables {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kVoisins = 4; ///< terms that are worked out together
constexpr std::size_t kEtoiles = 246;
constexpr std::size_t kColonnesEtoile = 8;
constexpr const char *kFichierEtoiles = "stars_icrs.txt";
constexpr const char *kFichierLune = "lune_chebychev.txt";
constexpr double kRayonMax = 1.0E9; ///< metres: no coordinate of the Moon is larger

std::vector<std::string> Propres() { return {kFichierLune, kFichierEtoiles}; }

/// The three columns of one planet, each section filled up to a multiple of neighbours, and where each one lies.
struct Colonnes {
  std::array<std::string, 3> textes;
  std::string places;
  std::size_t total = 0;
};

void AjouteSection(const std::string &fichier, const Section &section, const std::string &nom, Colonnes &colonnes) {
  const std::size_t rempli = (section.rangees.size() + kVoisins - 1) / kVoisins * kVoisins;
  for (std::size_t i = 0; i < rempli; ++i) {
    for (std::size_t c = 0; c < colonnes.textes.size(); ++c) {
      const std::string champ = i < section.rangees.size() ? section.rangees[i][c] : "0";
      LitNombre<double>(fichier, champ);
      colonnes.textes[c] += champ + (i % kVoisins == kVoisins - 1 ? ",\n" : ", ");
    }
  }
  const std::string place = std::to_string(colonnes.total) + ", " + std::to_string(rempli) + ")";
  colonnes.places += "TermesCiel{";
  for (const char *colonne : {"A", "B", "C"}) {
    colonnes.places += "std::span(k" + nom + colonne + ").subspan(" + place + ", ";
  }
  colonnes.places += "},\n";
  colonnes.total += rempli;
}

void AjoutePlanete(const fs::path &dossier, const PlaneteAttendue &planete, std::string &sortie) {
  const std::string fichier = planete.fichier;
  const std::vector<Section> sections = Decoupe(fichier, Lit(dossier / fichier), 3);
  const std::string nom = planete.nom;
  Colonnes colonnes;
  std::size_t rang = 0;
  for (const auto &comptes : planete.comptes) {
    colonnes.places += "CoordonneeCiel{\n";
    for (const std::size_t attendu : comptes) {
      if (attendu == 0) {
        colonnes.places += "TermesCiel{},\n";
      } else if (rang == sections.size() || sections[rang].rangees.size() != attendu) {
        Refuse(fichier, "a section hasn't its number of rows");
      } else {
        AjouteSection(fichier, sections[rang++], nom, colonnes);
      }
    }
    colonnes.places += "},\n";
  }
  sortie += "namespace {\n";
  for (std::size_t c = 0; c < colonnes.textes.size(); ++c) {
    sortie += "alignas(32) constexpr std::array<double, " + std::to_string(colonnes.total) + "> k" + nom + "ABC"[c] +
              "{\n" + colonnes.textes[c] + "};\n";
  }
  sortie += "} // namespace\nconstinit const SeriesCiel kCiel" + nom + "{\n" + colonnes.places + "};\n\n";
}

/// A figure of a star within what it can be.
const std::string &Borne(const std::string &fichier, const std::string &champ, double bas, double haut) {
  const double valeur = LitNombre<double>(fichier, champ);
  if (!(valeur >= bas && valeur <= haut)) {
    Refuse(fichier, champ + " is out of its column's bounds");
  }
  return champ;
}

/// One row as an initializer; a row of '-' is a star without a place.
std::string InitialiseEtoile(const std::string &fichier, const Rangee &rangee) {
  if (std::all_of(rangee.begin() + 1, rangee.end(), [](const std::string &champ) { return champ == "-"; })) {
    return "std::nullopt,\n";
  }
  const auto lit = [&](std::size_t colonne, double bas, double haut) {
    return Borne(fichier, rangee[colonne], bas, haut);
  };
  return "EtoileIcrs{" + lit(1, 0, 360) + ", " + lit(2, -90, 90) + ", " + lit(3, -1E4, 1E4) + ", " + lit(4, -1E4, 1E4) +
         ", " + lit(5, 0, 1000) + ", " + lit(6, -2, 12) + "},\n";
}

void AjouteEtoiles(const fs::path &dossier, std::string &sortie) {
  const std::string fichier = kFichierEtoiles;
  std::string octets = Lit(dossier / fichier);
  std::replace(octets.begin(), octets.end(), '|', ' ');
  std::istringstream flux(octets);
  std::size_t rang = 0;
  sortie += "constinit const std::array<std::optional<EtoileIcrs>, kNombreEtoilesIcrs> kEtoilesIcrs{\n";
  for (std::string ligne; std::getline(flux, ligne);) {
    Rangee champs = Champs(ligne);
    if (champs.empty() || champs.front().starts_with('#')) {
      continue;
    }
    if (champs.size() != kColonnesEtoile || champs.front() != std::to_string(++rang)) {
      Refuse(fichier, "isn't row " + std::to_string(rang) + ": " + ligne);
    }
    if (champs[2].starts_with('+')) {
      champs[2].erase(0, 1);
    }
    sortie += InitialiseEtoile(fichier, champs);
  }
  if (rang != kEtoiles) {
    Refuse(fichier, "has " + std::to_string(rang) + " rows and not " + std::to_string(kEtoiles));
  }
  sortie += "};\n\n";
}

void AjouteLune(const fs::path &dossier, std::string &sortie) {
  const std::string fichier = kFichierLune;
  std::istringstream flux(Lit(dossier / fichier));
  Rangee entete;
  std::size_t lues = 0;
  std::string valeurs;
  for (std::string ligne; std::getline(flux, ligne);) {
    if (ligne.empty() || ligne.front() == '#') {
      continue;
    }
    const Rangee champs = Champs(ligne);
    if (entete.empty()) {
      entete = champs;
      entete.resize(4);
      continue;
    }
    if (champs.size() != 3 * LitNombre<std::size_t>(fichier, entete[3])) {
      Refuse(fichier, "a row has " + std::to_string(champs.size()) + " fields");
    }
    for (const std::string &champ : champs) {
      LitNombre<std::int32_t>(fichier, Borne(fichier, champ, -kRayonMax, kRayonMax));
      valeurs += champ + ",";
    }
    valeurs += "\n";
    ++lues;
  }
  if (entete.empty() || lues != LitNombre<std::size_t>(fichier, entete[2])) {
    Refuse(fichier, "has " + std::to_string(lues) + " rows, other than its heading tells");
  }
  LitNombre<double>(fichier, entete[0]);
  LitNombre<double>(fichier, entete[1]);
  sortie += "namespace {\nconstinit const std::int32_t kLune[] = {\n" + valeurs +
            "};\n} // namespace\nconstinit const TableLune kTableLune{" + entete[0] + ", " + entete[1] + ", " +
            entete[2] + ", " + entete[3] + ", kLune};\n\n";
}

std::string Genere(const fs::path &ephemerides, const fs::path &dossier) {
  std::string sortie = "// Generated from ephemerides/tables and complements/ciel/tables; not to be changed by hand.\n"
                       "#include \"complements/ciel/TablesCiel.hpp\"\n\nnamespace velmaris {\n\n";
  std::vector<std::string> planetes;
  for (const PlaneteAttendue &planete : kPlanetes) {
    AjoutePlanete(ephemerides, planete, sortie);
    planetes.emplace_back(planete.fichier);
  }
  AjouteEtoiles(dossier, sortie);
  AjouteLune(dossier, sortie);
  VerifieSommes(ephemerides, planetes);
  VerifieSommes(dossier, Propres());
  return sortie + "} // namespace velmaris\n";
}

} // namespace
} // namespace tables

int main(int argc, char **argv) {
  try {
    if (argc == 3 && std::string_view(argv[1]) == "--sommes") {
      std::fputs(tables::LignesSommes(argv[2], tables::Propres()).c_str(), stdout);
      return 0;
    }
    if (argc != 4) {
      std::fputs("usage: genere-ciel EPHEMERIDES DOSSIER SORTIE.cpp | genere-ciel --sommes DOSSIER\n", stderr);
      return 2;
    }
    tables::Ecrit(argv[3], tables::Genere(argv[1], argv[2]));
    return 0;
  } catch (const std::exception &erreur) {
    std::fprintf(stderr, "genere-ciel: %s\n", erreur.what());
    return 1;
  }
}
