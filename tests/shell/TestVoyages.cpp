#include "tests/shell/droites/OutilsDroites.hpp"

namespace velmaris::essais {
namespace {

constexpr int kF5 = 116;

/// Whole journeys, as a navigator makes them.
class Voyage : public QuatreDroites {
protected:
  void SetUp() override {
    DemarreSansCarte();
    ClicControle(bureau, d.Command23);
  }

  /// Reduces a sight and stores it by the line's key.
  void Note(int ligne, const Visee &v) {
    TapeSoleil(v);
    Calcule();
    intercepts.push_back(bureau.visee.Intercept);
    azimuts.push_back(bureau.visee.Azimut);
    ClicOption(bureau, d.Option1[0]);
    Donnees_KeyDown(bureau, kF5 + ligne);
  }

  /// The morning's sight in line 1 of the user, the afternoon's in line 2, both shown.
  void DeuxDroites() {
    Note(0, kMatin);
    Note(1, kApresMidi);
    ClicControle(bureau, d.Command6);
    Donnees_KeyDown(bureau, kF5);
    Donnees_KeyDown(bureau, kF5 + 1);
  }

  /// A line as it was reduced, through a place on the sheet of the morning.
  Segment Ligne(std::size_t ligne, double latitude, double longitude) const {
    return LigneDepuis(Lieu(latitude, longitude, LatitudeDe(kMatin), LongitudeDe(kMatin)), azimuts[ligne],
                       intercepts[ligne]);
  }

  void AttendUneLigne(Couleur couleur, const Segment &attendue) {
    const auto traits = Traits(couleur);
    ASSERT_EQ(traits.size(), 1U);
    EXPECT_TRUE(MemeTrait(traits[0], attendue));
  }

  void AttendLesDeuxDroites() {
    AttendUneLigne(kTraitPremiere, Ligne(0, LatitudeDe(kMatin), LongitudeDe(kMatin)));
    AttendUneLigne(kTraitAjoute, Ligne(1, LatitudeDe(kApresMidi), LongitudeDe(kApresMidi)));
  }

  std::vector<double> intercepts, azimuts; ///< of the reductions, before any text of the store
};

TEST_F(Voyage, TwoSunSightsOfADayCrossWhereTheFirstIsCarriedToTheSecond) {
  DeuxDroites();
  const auto portee = [&] { return Ligne(0, LatitudeDe(kApresMidi), LongitudeDe(kApresMidi)); };
  AttendLesDeuxDroites();
  Transporte(0, "2");
  for (const int zoom : {200, 60, 1200}) {
    BougeCurseur(bureau, d.HScroll1, zoom * 10);
    AttendLesDeuxDroites();
    AttendUneLigne(kTraitTransporte, portee());
  }
  ClicControle(bureau, d.Command14);
  AttendLesDeuxDroites();
  AttendUneLigne(kTraitTransporte, portee());
  EXPECT_TRUE(boites.empty());
}

TEST_F(Voyage, TheFirstSightIsCarriedAlongTheRunToTheDeadReckoningPoint) {
  DeuxDroites();
  Donnees_KeyDown(bureau, kF5); // the morning's position and hour into the panel
  Intervalle(9, 0, 15, 0);
  Route("230", "4");
  ASSERT_EQ(d.Text15.texte, "24");
  const double route = 230 * kPi / 180;
  const double latitude = LatitudeDe(kMatin) + 24 * std::cos(route) / 60;
  const double longitude = LongitudeDe(kMatin) - 24 * std::sin(route) / 60 / std::cos(LatitudeDe(kMatin) * kPi / 180);
  Presse(ModeDroite::TransporteEstime, 0);
  for (const int zoom : {200, 60, 1200}) {
    BougeCurseur(bureau, d.HScroll1, zoom * 10);
    AttendUneLigne(kTraitTransporte, Ligne(0, latitude, longitude));
    const auto parcours = Traits(kRouge, Style::Points);
    ASSERT_EQ(parcours.size(), 1U);
    EXPECT_TRUE(Pres(parcours[0].fin, Lieu(latitude, longitude, LatitudeDe(kMatin), LongitudeDe(kMatin)), 1));
    EXPECT_TRUE(Pres(parcours[0].debut, {bureau.image1.largeur / 2, bureau.image1.hauteur / 2}, 1));
  }
  EXPECT_TRUE(d.Option1[4].choisi);
  EXPECT_TRUE(boites.empty());
}

TEST_F(Voyage, MemoireEndsTheDayAndLeavesNoLineForTheNextSession) {
  DeuxDroites();
  Transporte(0, "2");
  const std::string fraction = Reglage("T25(0)");
  reponse = true;
  ClicControle(bureau, d.Command8);
  ClicControle(bureau, d.Command6);
  boites.clear();
  for (int ligne = 0; ligne < 4; ++ligne) {
    Donnees_KeyDown(bureau, kF5 + ligne);
    ASSERT_EQ(boites.size(), static_cast<std::size_t>(ligne) + 1);
    EXPECT_EQ(boites.back().texte, bureau.messages[11]);
  }
  EXPECT_TRUE(bureau.image1.traces.empty());
  EXPECT_EQ(Reglage("T25(0)"), fraction);
  EXPECT_EQ(Reglage("O4(0)"), "0");
  EXPECT_EQ(Reglage("In(0)") + Reglage("Az(0)") + Reglage("Nom(0)"), "00(F5)");
  EXPECT_EQ(Demande("SELECT COUNT(*) FROM valeurs WHERE valeur<>'' AND cle LIKE '%(_)' AND cle NOT LIKE 'O4%' AND cle "
                    "NOT LIKE 'T25%' AND cle NOT LIKE 'In%' AND cle NOT LIKE 'Az%' AND cle NOT LIKE 'Nom%'"),
            std::vector<std::string>{"0"});

  Bureau suivant;
  Branche(suivant);
  bureau.valeurs.reset();
  Donnees_Charge(suivant, {});
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(suivant.donnees.LHeure[i].legende + suivant.donnees.Ldate[i].legende, "");
    EXPECT_EQ(suivant.donnees.Droite[i].infobulle, "(F" + std::to_string(i + 5) + ")");
  }
}

} // namespace
} // namespace velmaris::essais
