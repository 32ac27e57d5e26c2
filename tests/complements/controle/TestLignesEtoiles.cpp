#include "JugeVisee.hpp"
#include "OutilsControle.hpp"
#include "complements/controle/LignesEtoiles.hpp"
#include "tests/ephemerides/EtoilesVraies.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

/// Rows of the star table that lie off their star, and the sights of those stars.
namespace velmaris {
namespace {

using essais::Champs;
using essais::Controle;
using essais::Part;
using essais::Visee;

constexpr int kRangGalt = 67;

/// What a row is off by, the judge's catalogue and precession against the table as it is read; minutes of arc.
double EcartJuge(int rang) {
  static const auto vraies = essais::LitEtoilesVraies();
  static const essais::TableLue table;
  return essais::EcartLu(table, rang, *vraies.at(static_cast<std::size_t>(rang) - 1), 2000);
}

TEST(StarRowsMarked, AreThoseThatTheCatalogueHasFiveMinutesOff) {
  int marquees = 0;
  for (int rang = 1; rang <= kNombreLignesEtoiles; ++rang) {
    const auto ecart = EcartDeLigne(essais::Table(), rang);
    if (rang == kRangGalt) {
      EXPECT_FALSE(ecart) << "a nova";
      continue;
    }
    ASSERT_TRUE(ecart) << rang;
    EXPECT_NEAR(*ecart, EcartJuge(rang), 0.02) << rang;
    marquees += *ecart > kLigneMarquee ? 1 : 0;
  }
  EXPECT_GT(marquees, 80);
  EXPECT_FALSE(EcartDeLigne(essais::Table(), 0));
  EXPECT_FALSE(EcartDeLigne(essais::Table(), kNombreLignesEtoiles + 1));
}

/// A sight of a star 40 degrees from the zenith, by one of four bearings.
Visee ViseeDe(int rang, int cote) {
  Visee v;
  v.corps = Corps::Etoiles;
  v.rang = rang - 1;
  v.heure = 4;
  v.latitude = v.longitude = 0;
  const essais::VueJugee vue = essais::VueParJuges(Champs(v, 0));
  const double longitude = std::remainder(-vue.gha, 360);
  v.longitude = std::remainder(std::round(longitude) + (cote == 2 ? 40 : cote == 3 ? -40 : 0), 360);
  v.latitude = std::round(vue.declinaison) + (cote == 0 ? 40 : cote == 1 ? -40 : 0);
  return v;
}

/// What the row makes of the computed height, by the judge's sidereal time and the table's place; minutes.
double PartJugee(const Observation &o, int rang, double hauteurVraie) {
  double jd0 = 0;
  double jd = 0;
  eraCal2jd(2026, 6, 21, &jd0, &jd);
  jd += (4 + 5 / 60.0 + 30 / 3600.0) / 24;
  static const essais::TableLue table;
  const PaireX lue = table.place(rang, 21, 6, 2026);
  double azimut = 0;
  double hauteur = 0;
  const double est = -LongitudeEstimee(o) * ERFA_DD2R;
  eraHd2ae(eraGmst82(jd0, jd) + est - lue.gauche * ERFA_DD2R, lue.droite * ERFA_DD2R, LatitudeEstimee(o) * ERFA_DD2R,
           &azimut, &hauteur);
  return (hauteur * ERFA_DR2D - hauteurVraie) * 60;
}

TEST(StarRowsMarked, HaveTheirErrorNamedInTheSightThatItSpoils) {
  int visees = 0;
  for (int rang = 1; rang <= kNombreEtoiles; ++rang) {
    if (rang == kRangGalt || EcartJuge(rang) <= 5) {
      continue;
    }
    double pire = 0;
    for (int cote = 0; cote < 4; ++cote) {
      const Visee v = ViseeDe(rang, cote);
      if (std::fabs(v.latitude) > 89) {
        continue;
      }
      Observation o = Champs(v, 0);
      essais::PoseLecture(o, essais::LectureJuste(o));
      const FicheControle fiche = Controle(o);
      ASSERT_TRUE(fiche.actuel);
      EXPECT_NEAR(fiche.actuel->intercept, 0, 0.15) << "the true star has no intercept " << rang;
      const double part = PartJugee(o, rang, essais::VueParJuges(o).hauteur);
      pire = std::max(pire, std::fabs(part));
      // Nutation and aberration, which the row hasn't, are no fault of it: 0.6' at most together.
      if (std::fabs(part) > 1) {
        ASSERT_TRUE(Part(fiche, Cause::Etoile)) << rang << " " << cote << " " << part;
        EXPECT_EQ(fiche.causes.front().cause, Cause::Etoile) << rang;
        EXPECT_NEAR(*Part(fiche, Cause::Etoile), part, 0.7 + std::fabs(part) * 0.001) << rang << " " << cote;
      }
    }
    EXPECT_GT(pire, EcartJuge(rang) * 0.6) << rang;
    ++visees;
  }
  EXPECT_GT(visees, 50);
}

TEST(StarRowsMarked, GoodRowsHaveNoErrorOfTheirOwn) {
  for (const char *nom : {"Sirius", "Arcturus", "Vega", "Capella", "Rigel", "Altair", "Spica", "Fomalhaut"}) {
    const auto &noms = essais::Table().EtoileNom;
    const int rang = static_cast<int>(std::find(noms.begin(), noms.end(), nom) - noms.begin());
    EXPECT_LT(EcartDeLigne(essais::Table(), rang), 0.3) << nom;
    for (int cote = 0; cote < 4; ++cote) {
      const Visee v = ViseeDe(rang, cote);
      if (std::fabs(v.latitude) < 89) {
        Observation o = Champs(v, 0);
        essais::PoseLecture(o, essais::LectureJuste(o));
        EXPECT_FALSE(Part(Controle(o), Cause::Etoile)) << nom;
      }
    }
  }
}

TEST(StarRowsMarked, TheNovaHasNoFigureOfToday) {
  Visee v;
  v.corps = Corps::Etoiles;
  v.rang = kRangGalt - 1;
  const FicheControle fiche = Controle(Champs(v, 30));
  EXPECT_FALSE(fiche.actuel);
  EXPECT_EQ(fiche.refus, RaisonRefus::EtoileSansPlace);
  EXPECT_EQ(fiche.grade, GradeControle::SansActuel);
  EXPECT_TRUE(essais::LigneDe(fiche, EtapeControle::Declinaison).dit);
  EXPECT_FALSE(essais::LigneDe(fiche, EtapeControle::Declinaison).actuel);
}

} // namespace
} // namespace velmaris
