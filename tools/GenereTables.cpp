// Turns the published coefficients into constant tables of the program, once it has made sure of them.
//
//   genere-tables DOSSIER SORTIE.cpp    reads the tables of a folder and writes the definitions of
//   ephemerides/Series.hpp genere-tables --sommes DOSSIER      prints the lines of SOMMES.txt for the tables of a
//   folder
//
// Decimal figures go from text to text and are never rounded. A table that isn't the published one, by its counts, its
// smallest amplitude, some of its rows or its sum, is an error that names the file, and nothing is written.

#include "GenereTables.hpp"
#include "LectureTables.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tables {
namespace {

namespace fs = std::filesystem;

/// A figure to the fifteen digits that rows are known by; some rows of the tables have one more.
std::string QuinzeChiffres(const std::string &fichier, const std::string &texte) {
  std::array<char, 40> tampon{};
  const auto resultat = std::to_chars(tampon.data(), tampon.data() + tampon.size(), LitNombre<double>(fichier, texte),
                                      std::chars_format::general, 15);
  return {tampon.data(), resultat.ptr};
}

double Amplitude(const std::string &fichier, const Rangee &rangee) {
  return std::fabs(LitNombre<double>(fichier, rangee.front()));
}

void VerifieBornes(const std::string &fichier, const Section &section, double plusPetite) {
  double trouvee = HUGE_VAL;
  for (const Rangee &rangee : section.rangees) {
    trouvee = std::min(trouvee, Amplitude(fichier, rangee));
  }
  if (trouvee != plusPetite) {
    Refuse(fichier, section.nom + " has a smallest amplitude of " + std::to_string(trouvee));
  }
}

void VerifieRangees(const std::string &fichier, const std::vector<Section> &sections) {
  for (const RangeeConnue &connue : kRangees) {
    if (fichier != connue.fichier) {
      continue;
    }
    const auto section = std::find_if(sections.begin(), sections.end(),
                                      [&](const Section &candidate) { return candidate.nom == connue.section; });
    const Rangee attendue = Champs(connue.texte);
    for (std::size_t i = 0; i < attendue.size(); ++i) {
      if (section == sections.end() || connue.rang > section->rangees.size() ||
          QuinzeChiffres(fichier, section->rangees[connue.rang - 1].at(i)) != QuinzeChiffres(fichier, attendue[i])) {
        Refuse(fichier, "row " + std::to_string(connue.rang) + " " + connue.section + " isn't " + connue.texte);
      }
    }
  }
}

void VerifieCompte(const std::string &fichier, const std::string &nom, std::size_t trouve, std::size_t attendu) {
  if (trouve != attendu) {
    Refuse(fichier, nom + " has " + std::to_string(trouve) + " rows and not " + std::to_string(attendu));
  }
}

/// A row as an initializer: the fields as they stand, those named whole checked to fit in eight bits.
std::string Initialise(const std::string &fichier, const Rangee &rangee, std::size_t premierEntier,
                       std::size_t apresEntiers) {
  std::string texte = "    {";
  for (std::size_t i = 0; i < rangee.size(); ++i) {
    if (i >= premierEntier && i < apresEntiers) {
      LitNombre<std::int8_t>(fichier, rangee[i]);
    } else {
      LitNombre<double>(fichier, rangee[i]);
    }
    texte += (i == 0 ? "" : ", ") + rangee[i];
  }
  return texte + "},\n";
}

void AjoutePlanete(const fs::path &dossier, const PlaneteAttendue &planete, std::string &sortie) {
  const std::string fichier = planete.fichier;
  const std::vector<Section> sections = Decoupe(fichier, Lit(dossier / fichier), 3);
  const std::string termes = "kTermes" + std::string(planete.nom);
  std::string series;
  std::size_t rang = 0;
  std::size_t total = 0;
  sortie += "constexpr TermeVsop " + termes + "[] = {\n";
  for (std::size_t coordonnee = 0; coordonnee < 3; ++coordonnee) {
    series += "    CoordonneeVsop{\n";
    for (std::size_t puissance = 0; puissance < 6; ++puissance) {
      const std::size_t attendu = planete.comptes[coordonnee][puissance];
      if (attendu == 0) {
        continue;
      }
      const std::string nom = std::string(1, "LBR"[coordonnee]) + std::to_string(puissance);
      if (rang == sections.size() || sections[rang].nom != nom) {
        Refuse(fichier, "section " + nom + " isn't where it belongs");
      }
      const Section &section = sections[rang++];
      VerifieCompte(fichier, nom, section.rangees.size(), attendu);
      VerifieCompte(fichier, nom, section.annonce, attendu);
      if (puissance == 0) {
        VerifieBornes(fichier, section, planete.plusPetites[coordonnee]);
      }
      for (const Rangee &rangee : section.rangees) {
        sortie += Initialise(fichier, rangee, 0, 0);
      }
      series += "        std::span(" + termes + " + " + std::to_string(total) + ", " + std::to_string(attendu) + "),\n";
      total += attendu;
    }
    series += "    },\n";
  }
  VerifieCompte(fichier, "the table", rang, sections.size());
  VerifieRangees(fichier, sections);
  sortie += "};\n\n} // namespace\n\nconstinit const SeriesPlanete kSeries" + std::string(planete.nom) + "{\n" +
            series + "};\n\nnamespace {\n\n";
}

void AjouteNutation(const fs::path &dossier, std::string &sortie) {
  const std::string fichier = kFichierNutation;
  const std::vector<Section> sections = Decoupe(fichier, Lit(dossier / fichier), 9);
  VerifieCompte(fichier, "the table", sections.size(), 1);
  const Section &section = sections.front();
  VerifieCompte(fichier, "longitude", section.rangees.size(), kTermesPsi);
  std::size_t obliquite = 0;
  sortie += "constinit const std::array<TermeNutation, " + std::to_string(kTermesPsi) + "> kNutation{{\n";
  double plusPetite = HUGE_VAL;
  for (const Rangee &rangee : section.rangees) {
    sortie += Initialise(fichier, rangee, 0, 5);
    obliquite += LitNombre<double>(fichier, rangee[7]) != 0 || LitNombre<double>(fichier, rangee[8]) != 0 ? 1 : 0;
    plusPetite = std::min(plusPetite, std::fabs(LitNombre<double>(fichier, rangee[5])));
  }
  sortie += "}};\n\n";
  VerifieCompte(fichier, "obliquity", obliquite, kTermesEps);
  if (plusPetite != kPlusPetitPsi) {
    Refuse(fichier, "the smallest coefficient is " + std::to_string(plusPetite));
  }
  VerifieRangees(fichier, sections);
}

void AjouteLune(const fs::path &dossier, const LuneAttendue &lune, std::string &sortie) {
  const std::string fichier = lune.fichier;
  const std::vector<Section> sections = Decoupe(fichier, Lit(dossier / fichier), 11);
  VerifieCompte(fichier, "the table", sections.size(), 1);
  const Section &section = sections.front();
  VerifieCompte(fichier, "the table", section.rangees.size(), lune.termes);
  VerifieBornes(fichier, section, lune.plusPetite);
  VerifieRangees(fichier, sections);
  sortie += "constinit const std::array<TermeLune, " + std::to_string(lune.termes) + "> " + lune.nom + "{{\n";
  for (std::size_t i = 0; i < section.rangees.size(); ++i) {
    const Rangee &rangee = section.rangees[i];
    const bool planetes =
        std::any_of(rangee.begin() + 5, rangee.end(), [](const std::string &champ) { return champ != "0"; });
    // One term among those with planets has none.
    if ((planetes && i < lune.sansPlanetes) || (!planetes && i == lune.sansPlanetes)) {
      Refuse(fichier, "row " + std::to_string(i + 1) + " stands on the wrong side of the terms with planets");
    }
    sortie += Initialise(fichier, rangee, 1, 10);
  }
  sortie += "}};\n\n";
}

std::vector<std::string> Fichiers() {
  std::vector<std::string> fichiers{kFichierNutation};
  for (const LuneAttendue &lune : kLune) {
    fichiers.emplace_back(lune.fichier);
  }
  for (const PlaneteAttendue &planete : kPlanetes) {
    fichiers.emplace_back(planete.fichier);
  }
  std::sort(fichiers.begin(), fichiers.end());
  return fichiers;
}

std::string Genere(const fs::path &dossier) {
  std::string sortie = "// Generated from ephemerides/tables; not to be changed by hand.\n"
                       "#include \"ephemerides/Series.hpp\"\n\nnamespace velmaris {\nnamespace {\n\n";
  for (const PlaneteAttendue &planete : kPlanetes) {
    AjoutePlanete(dossier, planete, sortie);
  }
  sortie += "} // namespace\n\n";
  AjouteNutation(dossier, sortie);
  for (const LuneAttendue &lune : kLune) {
    AjouteLune(dossier, lune, sortie);
  }
  // The sums come last: a table that is wrong in a way of its own is told so first.
  VerifieSommes(dossier, Fichiers());
  return sortie + "} // namespace velmaris\n";
}

} // namespace
} // namespace tables

int main(int argc, char **argv) {
  try {
    if (argc == 3 && std::string_view(argv[1]) == "--sommes") {
      std::fputs(tables::LignesSommes(argv[2], tables::Fichiers()).c_str(), stdout);
      return 0;
    }
    if (argc != 3) {
      std::fputs("usage: genere-tables DOSSIER SORTIE.cpp | genere-tables --sommes DOSSIER\n", stderr);
      return 2;
    }
    tables::Ecrit(argv[2], tables::Genere(argv[1]));
    return 0;
  } catch (const std::exception &erreur) {
    std::fprintf(stderr, "genere-tables: %s\n", erreur.what());
    return 1;
  }
}
