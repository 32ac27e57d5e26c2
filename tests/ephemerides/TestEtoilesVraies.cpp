#include "tests/OutilsTests.hpp"
#include "tests/ephemerides/EtoilesVraies.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <charconv>
#include <regex>
#include <set>

namespace velmaris {
namespace {

using essais::EcartEcrit;
using essais::EcartLu;
using essais::EtoileVraie;
using essais::TableLue;

constexpr double kJamais = 3; ///< minutes of arc past which a row is never to be used
constexpr int kAnneeDite = 2026;

/// What the pages call a row: its name, else its label.
std::string Appel(const TableLue &t, int rang) {
  const auto i = static_cast<std::size_t>(rang);
  return std::string(t.etoiles.EtoileNom.at(i).empty() ? t.etoiles.EtoileBayer.at(i) : t.etoiles.EtoileNom.at(i));
}

/// A row that lies too far off, with how far: as it is written, and as it is read in the year told.
struct Fausse {
  std::string appel;
  int rang = 0;
  bool nommee = false;
  double ecrit = 0, lu = 0;
};

std::vector<Fausse> Fausses() {
  const TableLue t;
  const auto vraies = essais::LitEtoilesVraies();
  std::vector<Fausse> fausses;
  for (int rang = 1; rang <= kNombreLignesEtoiles; ++rang) {
    const auto i = static_cast<std::size_t>(rang);
    const auto &vraie = vraies.at(i - 1);
    if (!vraie) {
      continue;
    }
    const Fausse f{Appel(t, rang), rang, !t.etoiles.EtoileNom.at(i).empty(), EcartEcrit(rang, *vraie),
                   EcartLu(t, rang, *vraie, kAnneeDite)};
    if (f.ecrit > kJamais || f.lu > kJamais) {
      fausses.push_back(f);
    }
  }
  return fausses;
}

/// The text of a page from a heading to the next.
std::string Section(const std::string &page, const std::string &titre) {
  const std::string texte = essais::Contenu(std::filesystem::path(VELMARIS_DONNEES).parent_path() / "docs" / page);
  const std::size_t debut = texte.find(titre);
  EXPECT_NE(debut, std::string::npos) << page << " has no " << titre;
  return debut == std::string::npos ? "" : texte.substr(debut, texte.find("\n#", debut) - debut);
}

/// What stands between backquotes in the rows of a table, or in the paragraphs, of a section.
std::set<std::string> Citees(const std::string &section, bool rangees) {
  std::set<std::string> citees;
  std::istringstream lignes(section);
  const std::regex motif("`([^`]+)`");
  for (std::string ligne; std::getline(lignes, ligne);) {
    if (ligne.starts_with("|") != rangees) {
      continue;
    }
    for (std::sregex_iterator m(ligne.begin(), ligne.end(), motif); m != std::sregex_iterator(); ++m) {
      const std::string mot = (*m)[1];
      if (mot.size() > 1 && mot.find('/') == std::string::npos) {
        citees.insert(mot);
      }
    }
  }
  return citees;
}

/// A figure of the page in minutes of arc, where its degrees are degrees.
double Minutes(const std::string &chiffre, const std::string &unite) {
  double valeur = 0;
  std::from_chars(chiffre.data(), chiffre.data() + chiffre.size(), valeur);
  return unite == "'" ? valeur : valeur * 60;
}

/// Half of the last digit that stands in the page.
double Pas(const std::string &unite) { return (unite == "'" ? 0.05 : 3.0) + 0.001; }

TEST(StarRows, AsWrittenLieAsFarFromTheirTruePlacesAsTheCatalogueTells) {
  const auto vraies = essais::LitEtoilesVraies();
  ASSERT_EQ(vraies.size(), static_cast<std::size_t>(kNombreLignesEtoiles));
  int absentes = 0;
  for (int rang = 1; rang <= kNombreLignesEtoiles; ++rang) {
    const auto &vraie = vraies.at(static_cast<std::size_t>(rang) - 1);
    absentes += vraie ? 0 : 1;
    if (vraie) {
      EXPECT_NEAR(EcartEcrit(rang, *vraie), vraie->ecart, 0.06 + vraie->ecart * 1E-5) << rang;
    }
  }
  EXPECT_EQ(absentes, 1) << "T Coronae Borealis";
}

TEST(StarRows, OutsideTheListOfThoseNeverToBeUsedStayWithinThreeMinutes) {
  const TableLue t;
  const auto vraies = essais::LitEtoilesVraies();
  const auto citees = Citees(Section("guide/en/exactitude.md", "{ #jamais }"), true);
  int sures = 0;
  for (int rang = 1; rang <= static_cast<int>(t.liste.size()); ++rang) {
    const auto &vraie = vraies.at(static_cast<std::size_t>(rang) - 1);
    if (vraie && citees.count(Appel(t, rang)) == 0) {
      ++sures;
      EXPECT_LE(EcartLu(t, rang, *vraie, kAnneeDite), kJamais) << Appel(t, rang);
      EXPECT_LE(EcartEcrit(rang, *vraie), kJamais) << Appel(t, rang);
    }
  }
  EXPECT_GT(sures, 60);
}

TEST(StarRows, OverThreeMinutesOffAreEachNamedInBothGuides) {
  std::set<std::string> nommees;
  std::set<std::string> autres;
  for (const Fausse &f : Fausses()) {
    (f.nommee ? nommees : autres).insert(f.appel);
  }
  autres.insert("Galt");
  for (const char *langue : {"fr", "en"}) {
    const std::string section = Section(std::string("guide/") + langue + "/exactitude.md", "{ #jamais }");
    EXPECT_EQ(Citees(section, true), nommees) << langue;
    EXPECT_EQ(Citees(section, false), autres) << langue;
  }
}

TEST(StarRows, OverThreeMinutesOffHaveTheirFiguresInThePageOfExactness) {
  const std::string section = Section("EXACTITUDE.md", "#### Rows over 3' off: never use these");
  const std::string titre = "\\| `([^`]+)`(?: \\((\\d+)\\))?";
  const std::regex deux(titre + R"( \| ([0-9.]+)(°|') \| ([0-9.]+)(°|') \|)");
  const std::regex une(R"(`([^`]+)`(?: \((\d+)\))? ([0-9.]+)('))");
  const auto cherche = [&](const std::regex &motif) {
    return std::pair(std::sregex_iterator(section.begin(), section.end(), motif), std::sregex_iterator());
  };
  std::map<std::string, std::smatch> enDeux;
  std::map<std::string, std::smatch> enUne;
  for (auto [m, fin] = cherche(deux); m != fin; ++m) {
    enDeux[(*m)[1].str() + (*m)[2].str()] = *m;
  }
  for (auto [m, fin] = cherche(une); m != fin; ++m) {
    enUne[(*m)[1].str() + (*m)[2].str()] = *m;
  }
  const auto fausses = Fausses();
  EXPECT_EQ(enDeux.size() + enUne.size(), fausses.size());
  for (const Fausse &f : fausses) {
    const std::string cle = f.appel + (f.nommee ? "" : std::to_string(f.rang));
    if (const auto d = enDeux.find(cle); d != enDeux.end()) {
      EXPECT_NEAR(Minutes(d->second[3], d->second[4]), f.ecrit, Pas(d->second[4])) << cle;
      EXPECT_NEAR(Minutes(d->second[5], d->second[6]), f.lu, Pas(d->second[6])) << cle;
    } else {
      ASSERT_EQ(enUne.count(cle), 1U) << cle;
      EXPECT_NEAR(Minutes(enUne[cle][3], "'"), f.lu, Pas("'")) << cle;
    }
  }
}

} // namespace
} // namespace velmaris
