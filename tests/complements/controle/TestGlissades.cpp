#include "JugeVisee.hpp"
#include "OutilsControle.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <functional>

/// One slip is planted in a good sight: it is found and named.
namespace velmaris {
namespace {

using essais::Champs;
using essais::Visee;

/// Good sights of all bodies, the ship on the estimated position.
std::vector<Observation> Bonnes() {
  std::vector<Observation> bonnes;
  const auto ajoute = [&](const Visee &v) {
    Observation o = Champs(v, 0);
    const double lecture = essais::LectureJuste(o);
    EXPECT_GT(lecture, 10) << v.jour << " " << v.heure;
    EXPECT_LT(lecture, v.horizon == Horizon::Artificiel ? 140 : 80) << v.jour << " " << v.heure;
    essais::PoseLecture(o, lecture);
    bonnes.push_back(o);
  };
  Visee soleil{.mois = 3, .jour = 12, .heure = 14, .minute = 27, .seconde = 13, .latitude = 36.75, .longitude = -21.2};
  soleil.collimation = -7.5;
  ajoute(soleil);
  ajoute({.mois = 10,
          .jour = 24,
          .heure = 7,
          .minute = 41,
          .seconde = 35,
          .latitude = -33.4,
          .longitude = 45.6,
          .collimation = 8.4,
          .bord = Bord::Superieur});
  ajoute({.mois = 9,
          .jour = 21,
          .heure = 20,
          .minute = 35,
          .seconde = 41,
          .latitude = 46.2,
          .longitude = -12.4,
          .corps = Corps::Lune,
          .collimation = 6.2});
  ajoute({.mois = 6,
          .jour = 27,
          .heure = 20,
          .minute = 49,
          .seconde = 14,
          .latitude = 31.6,
          .longitude = -13.1,
          .corps = Corps::Planetes,
          .collimation = -6.5});
  ajoute({.mois = 5,
          .jour = 12,
          .heure = 21,
          .minute = 37,
          .seconde = 52,
          .latitude = 41.3,
          .longitude = -23.7,
          .corps = Corps::Etoiles,
          .rang = 19,
          .collimation = 7.1});
  return bonnes;
}

FicheControle Controle(const Observation &o) { return ControleVisee(o, {}, essais::Table()); }

TEST(Slips, AGoodSightHasNone) {
  for (const Observation &o : Bonnes()) {
    const FicheControle fiche = Controle(o);
    ASSERT_TRUE(fiche.actuel);
    EXPECT_NEAR(fiche.actuel->intercept, 0, 0.3);
    EXPECT_TRUE(fiche.glissades.empty());
  }
}

TEST(Slips, AreSearchedOverTenMilesOnly) {
  Observation o = Bonnes().front();
  const double lecture = essais::LectureJuste(o);
  essais::PoseLecture(o, lecture + 9.5 / 60);
  EXPECT_TRUE(Controle(o).glissades.empty());
}

/// Plants a slip in each good sight that it can be planted in, and wants it found among the first.
/// @param plante  changes the sight; false where it has nothing to change
/// @param estElle  whether a slip that was found is the planted one
void Attend(const std::function<bool(Observation &)> &plante,
            const std::function<bool(const Glissade &, const Observation &avant)> &estElle, const char *quoi,
            int auMoins) {
  int trouvees = 0;
  for (const Observation &bonne : Bonnes()) {
    Observation o = bonne;
    if (!plante(o)) {
      continue;
    }
    const FicheControle fiche = Controle(o);
    ASSERT_TRUE(fiche.actuel) << quoi;
    if (std::fabs(fiche.actuel->intercept) <= 10.2) {
      continue; // too small to be searched: near the meridian say
    }
    const auto elle = std::find_if(fiche.glissades.begin(), fiche.glissades.end(),
                                   [&](const Glissade &g) { return estElle(g, bonne); });
    ASSERT_NE(elle, fiche.glissades.end()) << quoi << " of body " << static_cast<int>(o.corps);
    EXPECT_LT(elle - fiche.glissades.begin(), 3) << quoi;
    EXPECT_NEAR(elle->intercept, 0, 0.3) << quoi;
    // Typed anew as it is told, the sight is good again.
    EXPECT_NEAR(Controle(elle->corrigee).actuel->intercept, elle->intercept, 1E-9) << quoi;
    ++trouvees;
  }
  EXPECT_GE(trouvees, auMoins) << quoi;
}

void Ajoute(std::string &champ, int n) { champ = Format(Val(champ) + n, "00"); }

TEST(Slips, AWrongDegreeOfTheReadingIsFound) {
  for (const int degres : {1, -1, 10, -10}) {
    Attend(
        [&](Observation &o) {
          Ajoute(o.lectureDegres, degres);
          return Val(o.lectureDegres) >= 0 && Val(o.lectureDegres) < 90;
        },
        [&](const Glissade &g, const Observation &avant) {
          return g.genre == GenreGlissade::LectureDegres && g.ajout == -degres &&
                 g.corrigee.lectureDegres == avant.lectureDegres;
        },
        "degree of the reading", 4);
  }
}

TEST(Slips, AWrongHourMinuteDayOrTenOfSecondsIsFound) {
  const auto essaie = [](std::string Observation::*champ, int n, GenreGlissade genre, int auMoins) {
    Attend(
        [&](Observation &o) {
          Ajoute(o.*champ, n);
          return true;
        },
        [&](const Glissade &g, const Observation &avant) {
          return g.genre == genre && g.ajout == -n && Val(g.corrigee.*champ) == Val(avant.*champ);
        },
        "time", auMoins);
  };
  for (const int signe : {1, -1}) {
    essaie(&Observation::heure, signe, GenreGlissade::Heure, 4);
    essaie(&Observation::minute, signe, GenreGlissade::Minute, 2);
    essaie(&Observation::jour, signe, GenreGlissade::Jour, 4);
  }
  // 13, 35, 41, 14 and 52 seconds typed as 53, 5, 1, 54, 2: up to ten miles.
  Attend(
      [](Observation &o) {
        o.seconde = Format(std::fmod(Val(o.seconde) + 50, 60), "00");
        return Val(o.seconde) >= 50;
      },
      [](const Glissade &g, const Observation &avant) {
        return g.genre == GenreGlissade::Secondes && Val(g.corrigee.seconde) == Val(avant.seconde);
      },
      "tens of seconds", 0);
}

TEST(Slips, FiftySecondsNearTheEquatorAreTensOfSeconds) {
  Visee v{.mois = 3, .jour = 20, .heure = 15, .minute = 5, .seconde = 5, .latitude = 1, .longitude = 0};
  Observation o = Champs(v, 0);
  essais::PoseLecture(o, essais::LectureJuste(o));
  o.seconde = "55";
  const FicheControle fiche = Controle(o);
  ASSERT_GT(std::fabs(fiche.actuel->intercept), 10);
  ASSERT_FALSE(fiche.glissades.empty());
  const auto elle = std::find_if(fiche.glissades.begin(), fiche.glissades.end(),
                                 [](const Glissade &g) { return g.genre == GenreGlissade::Secondes; });
  ASSERT_NE(elle, fiche.glissades.end());
  EXPECT_EQ(elle->corrigee.seconde, "05");
  EXPECT_EQ(elle->ajout, -50);
}

TEST(Slips, ASlipOfTimeGoesOverMidnightAndTheEndOfTheMonth) {
  // 0 h 20 of March 1 typed for 23 h 20 of February 28.
  Visee v{.mois = 2, .jour = 28, .heure = 23, .minute = 20, .seconde = 0, .latitude = 20, .longitude = 179};
  Observation bonne = Champs(v, 0);
  essais::PoseLecture(bonne, essais::LectureJuste(bonne));
  Observation o = bonne;
  o.mois = "03";
  o.jour = "01";
  o.heure = "00";
  const FicheControle fiche = Controle(o);
  ASSERT_FALSE(fiche.glissades.empty());
  EXPECT_EQ(fiche.glissades.front().genre, GenreGlissade::Heure);
  EXPECT_EQ(fiche.glissades.front().corrigee, bonne);
}

TEST(Slips, SwappedDigitsOfAFieldAreFound) {
  constexpr std::array kChamps{std::pair{&Observation::jour, ChampGlisse::Jour},
                               std::pair{&Observation::heure, ChampGlisse::Heure},
                               std::pair{&Observation::minute, ChampGlisse::Minute},
                               std::pair{&Observation::latitudeDegres, ChampGlisse::LatitudeDegres},
                               std::pair{&Observation::longitudeDegres, ChampGlisse::LongitudeDegres},
                               std::pair{&Observation::lectureDegres, ChampGlisse::LectureDegres},
                               std::pair{&Observation::lectureMinutes, ChampGlisse::LectureMinutes}};
  int trouvees = 0;
  for (const auto &[champ, nom] : kChamps) {
    Attend(
        [&](Observation &o) {
          std::string &texte = o.*champ;
          if (texte.size() != 2 || texte[0] == texte[1]) {
            return false;
          }
          std::swap(texte[0], texte[1]);
          const double plus = nom == ChampGlisse::Jour ? 28 : nom == ChampGlisse::Heure ? 23 : 59;
          const bool possible = Val(texte) <= plus && Val(texte) >= (nom == ChampGlisse::Jour ? 1 : 0);
          trouvees += possible ? 1 : 0;
          return possible;
        },
        [&](const Glissade &g, const Observation &avant) {
          return g.genre == GenreGlissade::Chiffres && g.champ == nom && g.corrigee.*champ == avant.*champ;
        },
        "swapped digits", 0);
  }
  EXPECT_GT(trouvees, 12);
}

TEST(Slips, TheSignOfTheIndexCorrectionIsFound) {
  Attend(
      [](Observation &o) {
        o.collimation = essais::Virgule(-LitVirgule(o.collimation));
        return true;
      },
      [](const Glissade &g, const Observation &avant) {
        return g.genre == GenreGlissade::Collimation &&
               LitVirgule(g.corrigee.collimation) == LitVirgule(avant.collimation);
      },
      "index correction", 5);
}

TEST(Slips, TheWrongLimbIsFound) {
  Attend(
      [](Observation &o) {
        if (o.corps != Corps::Soleil && o.corps != Corps::Lune) {
          return false;
        }
        o.bord = o.bord == Bord::Inferieur ? Bord::Superieur : Bord::Inferieur;
        return true;
      },
      [](const Glissade &g, const Observation &avant) {
        return g.genre == GenreGlissade::Bord && g.corrigee.bord == avant.bord;
      },
      "limb", 3);
}

TEST(Slips, TheWrongSideOfLatitudeOrLongitudeIsFound) {
  Attend(
      [](Observation &o) {
        o.sud = !o.sud;
        return true;
      },
      [](const Glissade &g, const Observation &avant) {
        return g.genre == GenreGlissade::CoteLatitude && g.corrigee.sud == avant.sud;
      },
      "latitude", 5);
  Attend(
      [](Observation &o) {
        o.est = !o.est;
        return true;
      },
      [](const Glissade &g, const Observation &avant) {
        return g.genre == GenreGlissade::CoteLongitude && g.corrigee.est == avant.est;
      },
      "longitude", 5);
}

TEST(Slips, EachLeavesLittleAndTheBestComesFirst) {
  Observation o = Bonnes().front();
  Ajoute(o.lectureDegres, 1);
  const FicheControle fiche = Controle(o);
  for (std::size_t i = 0; i < fiche.glissades.size(); ++i) {
    EXPECT_LT(std::fabs(fiche.glissades[i].intercept), 2);
    if (i > 0) {
      EXPECT_LE(std::fabs(fiche.glissades[i - 1].intercept), std::fabs(fiche.glissades[i].intercept));
    }
  }
}

} // namespace
} // namespace velmaris
