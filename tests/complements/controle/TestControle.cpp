#include "JugeVisee.hpp"
#include "OutilsControle.hpp"
#include "lines/FichierLoP.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <filesystem>

/// What the check tells of a sight: today's figures, the grade, and the causes with their parts.
namespace velmaris {
namespace {

using essais::Champs;
using essais::Controle;
using essais::LigneDe;
using essais::Part;
using essais::PoseLecture;
using essais::Visee;

constexpr double kRad = 0.017453292519943295;

/// A sight that a ship takes some miles from the estimated position.
Observation Juste(const Visee &v, double milles = 0) {
  Observation o = Champs(v, 0);
  const double part = v.horizon == Horizon::Artificiel ? 30 : 60;
  PoseLecture(o, essais::LectureJuste(o) + milles / part);
  return o;
}

Visee Etoile(int rang) {
  Visee v;
  v.corps = Corps::Etoiles;
  v.rang = rang;
  v.heure = 22;
  return v;
}

/// What the told routine takes for refraction, degrees; worked from its printed formula.
double RefractionDite(double lecture) {
  const double r = kRad / std::tan((lecture + 7.31 / lecture + 4.4) * kRad);
  return r - 0.06 * std::sin((r * 14.7 + 13) * kRad) / 60;
}

/// Rows of the star list: Sirius, Arcturus and others by name, from 0.
int RangDe(std::string_view nom) {
  const auto &noms = essais::Table().EtoileNom;
  return static_cast<int>(std::find(noms.begin() + 1, noms.end(), nom) - noms.begin()) - 1;
}

struct Exemple {
  const char *fichier;
  GradeControle grade;
  std::vector<Cause> causes; ///< that are named, in any order
};

/// The 22 sample sights and why each differs. The refraction of a low body and of a double angle, the dip of a high eye
/// and the Moon's time scale are what the pages tell of them.
std::vector<Exemple> Exemples() {
  using enum Cause;
  using enum GradeControle;
  return {{"02NOV24 221033", Maniere, {Artificiel}},
          {"03MAI26 210540", Accord, {}},
          {"05DEC25 125720", Accord, {}},
          {"08AVR26 055040", Maniere, {Refraction}},
          {"08OCT25 112047", Accord, {Depression}},
          {"10OCT26 221500", Maniere, {Refraction}},
          {"12AOU26 224530", Avertissement, {Artificiel}},
          {"12JAN26 194852", Accord, {Depression}},
          {"14FEV26 201015", Accord, {}},
          {"14JUI26 145615", Maniere, {Depression}},
          {"15MAR09 154218", Accord, {}},
          {"15MAR26 190550", Accord, {}},
          {"19SEP25 233041", Accord, {Depression}},
          {"20NOV26 053010", Accord, {}},
          {"21JUN26 092005", Maniere, {}},
          {"21JUN26 120530", Accord, {}},
          {"22JUI26 192510", Avertissement, {Artificiel}},
          {"24SEP26 203025", Accord, {}},
          {"27AOU24 091506", Maniere, {Artificiel}},
          {"28MAI26 081030", Accord, {Temps}},
          {"30AVR23 210609", Accord, {}},
          {"30JUN26 204020", Accord, {Refraction}}};
}

TEST(Check, SampleSightsAreEachToldTheReasonOfTheirDifference) {
  ASSERT_EQ(Exemples().size(), 22U);
  for (const Exemple &exemple : Exemples()) {
    Observation o;
    ChargeLoP(std::filesystem::path(VELMARIS_DONNEES) / "exemples" / (exemple.fichier + std::string(".LoP")), o);
    const FicheControle fiche = Controle(o);
    ASSERT_TRUE(fiche.actuel) << exemple.fichier;
    // The judge's refraction is another closed form (0.1' at most over 10 degrees), its Moon is good for 10".
    EXPECT_NEAR(fiche.actuel->intercept, essais::InterceptJuge(o), o.corps == Corps::Lune ? 0.3 : 0.15)
        << exemple.fichier;
    EXPECT_EQ(fiche.grade, exemple.grade) << exemple.fichier << " " << fiche.ecart;
    for (const Cause cause : exemple.causes) {
      EXPECT_TRUE(Part(fiche, cause)) << exemple.fichier;
    }
    EXPECT_TRUE(fiche.glissades.empty()) << exemple.fichier;
  }
}

TEST(Check, TodaysFiguresAreThoseOfTheLibraries) {
  for (const auto &[corps, rang, tolerance] :
       {std::tuple{Corps::Soleil, 0, 0.001}, std::tuple{Corps::Lune, 0, 0.005}, std::tuple{Corps::Planetes, 0, 0.001},
        std::tuple{Corps::Planetes, 3, 0.001}, std::tuple{Corps::Etoiles, RangDe("Arcturus"), 0.001}}) {
    Visee v;
    v.corps = corps;
    v.rang = rang;
    v.heure = 14;
    const Observation o = Champs(v, 30);
    const essais::VueJugee vue = essais::VueParJuges(o);
    const FicheControle fiche = Controle(o);
    ASSERT_TRUE(fiche.actuel);
    EXPECT_NEAR(fiche.actuel->gha, vue.gha, tolerance) << static_cast<int>(corps);
    EXPECT_NEAR(fiche.actuel->declinaison, vue.declinaison, tolerance) << static_cast<int>(corps);
  }
}

TEST(Check, ItsDifferenceIsTodaysInterceptLessTheToldOneAndGradesItByHalfAMileAndOneAndAHalf) {
  const Observation o = Juste({}, 3);
  const double milles = Controle(o).actuel->intercept;
  EXPECT_NEAR(milles, 3, 0.15);
  for (const auto &[ecart, grade] :
       {std::pair{0.499, GradeControle::Accord}, std::pair{-0.499, GradeControle::Accord},
        std::pair{0.501, GradeControle::Maniere}, std::pair{-1.499, GradeControle::Maniere},
        std::pair{1.501, GradeControle::Avertissement}, std::pair{-70.0, GradeControle::Avertissement}}) {
    const FicheControle fiche = ControleVisee(o, {0, 0, 0, milles - ecart}, essais::Table());
    EXPECT_NEAR(fiche.ecart, ecart, 1E-9);
    EXPECT_EQ(fiche.grade, grade) << ecart;
  }
}

TEST(Check, ATimeThatIsNoneHasNoFigureOfTodayAndTellsWhy) {
  const auto attend = [](const Observation &o, RaisonRefus raison) {
    const FicheControle fiche = ControleVisee(o, {1, 2, 3, 4}, essais::Table());
    EXPECT_FALSE(fiche.actuel);
    ASSERT_TRUE(fiche.refus);
    EXPECT_EQ(*fiche.refus, raison);
    EXPECT_EQ(fiche.grade, GradeControle::SansActuel);
    EXPECT_EQ(fiche.ecart, 0);
    EXPECT_TRUE(fiche.causes.empty());
    EXPECT_TRUE(fiche.glissades.empty());
    EXPECT_EQ(LigneDe(fiche, EtapeControle::Intercept).dit, 4);
    for (const LigneControle &ligne : fiche.lignes) {
      EXPECT_FALSE(ligne.actuel);
      EXPECT_FALSE(ligne.raison);
    }
  };
  const Observation bonne = Juste({});
  const auto sans = [&](std::string Observation::*champ, const char *texte) {
    Observation o = bonne;
    o.*champ = texte;
    return o;
  };
  attend(sans(&Observation::heure, "60"), RaisonRefus::HeureImpossible);
  attend(sans(&Observation::heure, "24"), RaisonRefus::HeureImpossible);
  attend(sans(&Observation::minute, "60"), RaisonRefus::HeureImpossible);
  attend(sans(&Observation::minute, "5.5"), RaisonRefus::HeureImpossible);
  attend(sans(&Observation::seconde, "60"), RaisonRefus::HeureImpossible);
  attend(sans(&Observation::jour, "31"), RaisonRefus::DateImpossible); // of June
  attend(sans(&Observation::jour, "0"), RaisonRefus::DateImpossible);
  attend(sans(&Observation::mois, "13"), RaisonRefus::DateImpossible);
  attend(sans(&Observation::mois, ""), RaisonRefus::DateImpossible);
  attend(sans(&Observation::annee, "1799"), RaisonRefus::AnneeHorsLimites);
  attend(sans(&Observation::annee, "26"), RaisonRefus::AnneeHorsLimites);
  attend(sans(&Observation::latitudeDegres, "95"), RaisonRefus::LieuImpossible);
  Observation fevrier = bonne;
  fevrier.jour = "31";
  fevrier.mois = "02";
  attend(fevrier, RaisonRefus::DateImpossible);
  Observation lune = bonne;
  lune.corps = Corps::Lune;
  lune.annee = "2150";
  attend(lune, RaisonRefus::LuneHorsTable);
  Observation sansEtoile = bonne;
  sansEtoile.corps = Corps::Etoiles;
  attend(sansEtoile, RaisonRefus::RangInconnu);
  sansEtoile.corps = Corps::Planetes;
  attend(sansEtoile, RaisonRefus::RangInconnu);
}

TEST(Check, AYearOfTwoDigitsIsTheOneThatAStarsReductionTakes) {
  Observation o = Juste(Etoile(RangDe("Arcturus")), 1);
  const FicheControle entiere = Controle(o);
  o.annee = "26";
  const FicheControle courte = Controle(o);
  ASSERT_TRUE(courte.actuel);
  EXPECT_EQ(courte.actuel->intercept, entiere.actuel->intercept);
  // The told precession takes the year as it is typed: nearly twenty centuries back.
  EXPECT_EQ(courte.grade, GradeControle::Avertissement);
}

TEST(Check, ThePlanetBetweenZeroAndOneDegreeSouthLosesItsSign) {
  // Jupiter crosses the equator southwards in the autumn of 2022, turns, and comes back over it.
  int vues = 0;
  for (int jour = 0; jour < 84; ++jour) {
    Visee v;
    v.corps = Corps::Planetes;
    v.rang = 2;
    v.annee = 2022;
    v.mois = 10 + jour / 28;
    v.jour = jour % 28 + 1;
    v.heure = 18;
    const Observation o = Juste(v);
    const double dec = essais::VueParJuges(o).declinaison;
    const FicheControle fiche = Controle(o);
    ASSERT_TRUE(fiche.actuel);
    if (dec > -0.99 && dec < -0.01) {
      ++vues;
      const auto part = Part(fiche, Cause::Signe);
      ASSERT_TRUE(part) << jour << " " << dec;
      EXPECT_EQ(fiche.causes.front().cause, Cause::Signe);
      // Twice the declination times the cosine of the parallactic angle; near the meridian that is all of it.
      const double lat = 47.5 * kRad;
      const double q =
          std::cos(lat) * std::sin((essais::VueParJuges(o).gha - 5) * kRad) / std::cos(fiche.actuel->Hc * kRad);
      EXPECT_NEAR(*part, -2 * dec * 60 * std::sqrt(1 - q * q), std::fabs(dec)) << jour;
      EXPECT_EQ(LigneDe(fiche, EtapeControle::Declinaison).raison, Cause::Signe);
    } else if (dec > 0.01 || dec < -1.01) {
      EXPECT_FALSE(Part(fiche, Cause::Signe)) << jour << " " << dec;
    }
  }
  EXPECT_GT(vues, 10);
}

/// An hour at which the Sun of a sight stands about so high in the afternoon of 2026 June 21 at 47.5 north.
Visee SoleilA(double hauteur, double oeil = 0) {
  Visee v;
  v.oeil = oeil;
  double meilleur = 90;
  Visee choisi = v;
  for (int minute = 12 * 60; minute < 21 * 60; ++minute) {
    v.heure = minute / 60;
    v.minute = minute % 60;
    const double lecture = essais::LectureJuste(Champs(v, 0));
    if (std::fabs(lecture - hauteur) < meilleur) {
      meilleur = std::fabs(lecture - hauteur);
      choisi = v;
    }
  }
  return choisi;
}

TEST(Check, TheToldRefractionIsShortByHalfAMinuteAndMoreLowDown) {
  for (const double hauteur : {5.0, 15.0}) {
    const Visee v = SoleilA(hauteur);
    const FicheControle fiche = Controle(Champs(v, hauteur));
    // Bennett (1982), the almanac's closed form.
    const double almanach = 1 / std::tan((hauteur + 7.31 / (hauteur + 4.4)) * kRad);
    const auto part = Part(fiche, Cause::Refraction);
    ASSERT_TRUE(part) << hauteur;
    EXPECT_NEAR(*part, RefractionDite(hauteur) * 60 - almanach, 0.1) << hauteur;
    EXPECT_NEAR(*part, hauteur < 10 ? -4.5 : -0.8, hauteur < 10 ? 0.3 : 0.15);
    EXPECT_EQ(LigneDe(fiche, EtapeControle::Refraction).raison, Cause::Refraction);
  }
  EXPECT_FALSE(Part(Controle(Champs(SoleilA(45), 45)), Cause::Refraction));
}

TEST(Check, TheToldDipIsTooLargeByAnEighthOfAMinuteTimesTheRootOfTheEyesHeight) {
  for (const double oeil : {2.5, 9.0, 25.0}) {
    const FicheControle fiche = Controle(Juste(SoleilA(40, oeil)));
    const double part = (60 * 0.0321 - 1.76) * std::sqrt(oeil);
    EXPECT_EQ(Part(fiche, Cause::Depression).has_value(), part > 0.3) << oeil;
    EXPECT_NEAR(*LigneDe(fiche, EtapeControle::Depression).dit - *LigneDe(fiche, EtapeControle::Depression).actuel,
                part, 1E-3);
  }
  EXPECT_NEAR(*Part(Controle(Juste(SoleilA(40, 25))), Cause::Depression), 0.83, 0.01);
}

TEST(Check, AShoreThatHidesTheHorizonIsADifferenceOfDip) {
  const Observation o = Juste(SoleilA(40, 3.048));
  ReglagesControle reglages;
  reglages.distanceHorizon = 1;
  const auto part = Part(Controle(o, reglages), Cause::Depression);
  ASSERT_TRUE(part);
  EXPECT_NEAR(*part, 60 * 0.0321 * std::sqrt(3.048) - 6.1, 0.1) << "printed table: 10 feet and a mile give 6.1'";
}

TEST(Check, AirAndArcOfTheSettingsHaveTheirParts) {
  const Observation o = Juste(SoleilA(15));
  ReglagesControle reglages;
  reglages.pression = 980;
  reglages.temperature = 35;
  reglages.erreursArc = {{0, 0.5}, {90, 0.5}};
  const FicheControle sans = Controle(o);
  const FicheControle avec = Controle(o, reglages);
  EXPECT_NEAR(*Part(avec, Cause::ErreurArc), 0.5, 1E-9);
  EXPECT_EQ(LigneDe(avec, EtapeControle::ErreurArc).actuel, 0.5);
  const double almanach = *LigneDe(sans, EtapeControle::Refraction).actuel;
  EXPECT_NEAR(*LigneDe(avec, EtapeControle::Refraction).actuel, almanach * 980 / 1010 * 283 / 308, 0.01);
  EXPECT_NEAR(avec.ecart - sans.ecart, 0.5 + almanach * (1 - 980.0 / 1010 * 283 / 308), 0.02);
}

TEST(Check, TheMoonGoesOnHerWayDuringTheDifferenceOfTheTimeScales) {
  int nommees = 0;
  for (int jour = 0; jour < 84; ++jour) {
    Visee v;
    v.corps = Corps::Lune;
    v.jour = 1 + jour / 3;
    v.heure = 3 + jour % 3 * 8;
    Observation o = Champs(v, 0);
    essais::PoseLecture(o, std::max(essais::LectureJuste(o), 0.0));
    if (Val(o.lectureDegres) < 10 || Val(o.lectureDegres) > 85) {
      continue;
    }
    // What she goes in 69.184 s by the judge, seen from the place.
    Observation apres = o;
    const double secondes = Val(o.minute) * 60 + Val(o.seconde) + 69.184;
    apres.minute = std::to_string(static_cast<int>(secondes / 60));
    apres.seconde = essais::Virgule(std::fmod(secondes, 60));
    const double lat = 47.5 * kRad;
    const auto hauteur = [&](double gha, double dec) {
      const double d = dec * kRad;
      return std::asin(std::sin(lat) * std::sin(d) + std::cos(lat) * std::cos(d) * std::cos((gha - 5) * kRad)) / kRad;
    };
    std::replace(apres.seconde.begin(), apres.seconde.end(), ',', '.');
    const essais::VueJugee a = essais::VueParJuges(o);
    const essais::VueJugee b = essais::VueParJuges(apres);
    const double tourne = 69.184 * 360.98564736629 / 86400;
    const double attendu = (hauteur(a.gha, a.declinaison) - hauteur(b.gha - tourne, b.declinaison)) * 60;
    const FicheControle fiche = Controle(o);
    const auto part = Part(fiche, Cause::Temps);
    if (std::fabs(attendu) > 0.31) {
      ++nommees;
      ASSERT_TRUE(part) << jour << " " << attendu;
      EXPECT_NEAR(*part, attendu, 0.02) << jour;
    } else if (std::fabs(attendu) < 0.29) {
      EXPECT_FALSE(part) << jour;
    }
    EXPECT_EQ(LigneDe(fiche, EtapeControle::EcartTemps).dit, 0);
    EXPECT_NEAR(*LigneDe(fiche, EtapeControle::EcartTemps).actuel, 69.184, 1E-6);
    EXPECT_EQ(LigneDe(fiche, EtapeControle::EcartTemps).raison, Cause::Temps);
  }
  EXPECT_GT(nommees, 4);
}

TEST(Check, TheEarthsLagIsAPartOfTheTimeScalesAndOfNoOtherCause) {
  // A star with a bad row and one with a good one, west enough that the turning of the Earth lowers them.
  for (const char *nom : {"Arcturus", "Rasalhague"}) {
    const Observation o = Juste(Etoile(RangDe(nom)));
    ReglagesControle reglages;
    reglages.dut1 = 20; // far more than it ever is: 5' of hour angle
    const FicheControle sans = Controle(o);
    const FicheControle avec = Controle(o, reglages);
    const double lat = 47.5 * kRad;
    const double dec = sans.actuel->declinaison * kRad;
    const auto hauteur = [&](double gha) {
      const double angle = (gha - 5) * kRad;
      return std::asin(std::sin(lat) * std::sin(dec) + std::cos(lat) * std::cos(dec) * std::cos(angle)) / kRad;
    };
    const double gha = sans.actuel->gha;
    const double attendu = (hauteur(gha) - hauteur(gha + 20 * 360.98564736629 / 86400)) * 60;
    ASSERT_GT(std::fabs(attendu), 0.5);
    ASSERT_TRUE(Part(avec, Cause::Temps)) << nom;
    EXPECT_NEAR(*Part(avec, Cause::Temps), attendu, 0.005) << nom;
    EXPECT_NEAR(Part(avec, Cause::Etoile).value_or(0), Part(sans, Cause::Etoile).value_or(0), 1E-6) << nom;
    EXPECT_NEAR(avec.ecart - sans.ecart, attendu, 0.005) << nom;
    if (!Part(sans, Cause::Etoile)) {
      EXPECT_EQ(avec.lignes.at(static_cast<std::size_t>(EtapeControle::AngleHoraire)).raison, Cause::Temps) << nom;
    }
  }
}

TEST(Check, OffAnArtificialHorizonTheRefractionOfTheDoubleAngleIsHalvedAndTheMoonsLimbIsMissing) {
  Visee v;
  v.corps = Corps::Etoiles;
  v.rang = RangDe("Arcturus");
  v.heure = 22;
  v.horizon = Horizon::Artificiel;
  const Observation o = Juste(v);
  const double lecture = essais::LectureJuste(o);
  const FicheControle fiche = Controle(o);
  const double almanach = 1 / std::tan((lecture / 2 + 7.31 / (lecture / 2 + 4.4)) * kRad);
  const double attendu = RefractionDite(lecture) * 30 - almanach;
  ASSERT_TRUE(Part(fiche, Cause::Artificiel));
  EXPECT_NEAR(*Part(fiche, Cause::Artificiel), attendu, 0.1);
  EXPECT_FALSE(Part(fiche, Cause::Depression));
  v.corps = Corps::Lune;
  v.jour = 24;
  v.heure = 19;
  v.bord = Bord::Inferieur;
  const Observation lune = Juste(v);
  const double bord = essais::LectureJuste(lune);
  ASSERT_GT(bord, 20);
  const double air = RefractionDite(bord) * 30 - 1 / std::tan((bord / 2 + 7.31 / (bord / 2 + 4.4)) * kRad);
  EXPECT_NEAR(*Part(Controle(lune), Cause::Artificiel), essais::VueParJuges(lune).demiDiametre + air, 0.1);
}

TEST(Check, ABodyBelowTheHorizonIsSaidFirst) {
  Visee v;
  v.heure = 0;
  const FicheControle nuit = Controle(Champs(v, 20));
  ASSERT_FALSE(nuit.causes.empty());
  EXPECT_EQ(nuit.causes.front(), (PartCause{Cause::Horizon, 0}));
  EXPECT_LT(nuit.actuel->Hc, -10);
  EXPECT_FALSE(Part(Controle(Juste({})), Cause::Horizon));
  // Refraction lifts the upper limb over the horizon while the centre is 49' below it.
  int dessous = 0;
  for (int minute = 0; minute < 120; ++minute) {
    v.heure = 19 + minute / 60;
    v.minute = minute % 60;
    const Observation o = Champs(v, 1);
    const double centre = essais::VueParJuges(o).hauteur * 60;
    const double bord = centre + 34 + 15.7 + 1.76 * std::sqrt(v.oeil);
    if (std::fabs(bord) > 1) {
      EXPECT_EQ(Part(Controle(o), Cause::Horizon).has_value(), bord < 0) << minute;
      dessous += bord < 0 ? 1 : 0;
    }
  }
  EXPECT_GT(dessous, 10);
  EXPECT_LT(dessous, 110);
}

TEST(Check, EveryDifferenceOverATenthOfAMinuteHasItsReason) {
  for (const Corps corps : {Corps::Soleil, Corps::Lune, Corps::Planetes, Corps::Etoiles}) {
    for (int heure = 0; heure < 24; ++heure) {
      Visee v;
      v.corps = corps;
      v.heure = heure;
      v.rang = heure % 4;
      v.oeil = 20;
      v.horizon = heure % 3 == 0 ? Horizon::Artificiel : Horizon::Naturel;
      const FicheControle fiche = Controle(Champs(v, 33.3));
      ASSERT_EQ(fiche.lignes.size(), 15U);
      for (const LigneControle &ligne : fiche.lignes) {
        if (!ligne.dit || !ligne.actuel) {
          EXPECT_FALSE(ligne.raison) << static_cast<int>(ligne.etape);
        } else if (ligne.unite == UniteControle::Minutes) {
          EXPECT_EQ(ligne.raison.has_value(), std::fabs(*ligne.actuel - *ligne.dit) > 0.1)
              << static_cast<int>(ligne.etape);
        } else if (ligne.unite == UniteControle::Degres) {
          EXPECT_EQ(ligne.raison.has_value(), std::fabs(std::remainder(*ligne.actuel - *ligne.dit, 360)) * 60 > 0.1)
              << static_cast<int>(ligne.etape) << " body " << static_cast<int>(corps) << " hour " << heure;
        }
      }
      const LigneControle &lue = LigneDe(fiche, EtapeControle::Lecture);
      EXPECT_EQ(*lue.dit, *lue.actuel);
      EXPECT_FALSE(lue.raison);
    }
  }
}

} // namespace
} // namespace velmaris
