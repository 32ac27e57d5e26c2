#include "OutilsReduit.hpp"

#include <cmath>

/// "point": the fix of saved sights.
namespace velmaris {
namespace {

using nlohmann::ordered_json;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// Runs of "point"; files as those of "reduit".
class CalculPoint : public Reduit {
protected:
  /// A star's sight whose reading is brought to the height that it has by the sky of today at 47 30 N, 5 10 W.
  /// @param rang  in the list, from 0
  /// @param heure  "HH", of 2026-06-21
  std::string Etoile(int rang, const std::string &heure, double minutesDeTrop = 0) const {
    auto lignes = LignesSoleil();
    lignes[0] = heure;
    lignes[1] = "00";
    lignes[2] = "00";
    lignes[17] = " 3 ";
    lignes.push_back(" " + std::to_string(rang) + " ");
    const std::string nom = std::to_string(rang) + "-" + heure + "-" + std::to_string(minutesDeTrop) + ".LoP";
    // The intercept of a first reading tells how much is to be added to it; twice, for refraction.
    double lecture = 40;
    for (int tour = 0; tour < 4; ++tour) {
      PoseLecture(lignes, lecture);
      const Passage p = Lance({"controle", EcritVisee(nom, lignes)});
      lecture -= Objets(p.sortie).at(0)["actuel"]["intercept"].get<double>() / 60;
    }
    PoseLecture(lignes, lecture + minutesDeTrop / 60);
    return EcritVisee(nom, lignes);
  }
  static void PoseLecture(std::vector<std::string> &lignes, double degres) {
    const long centiemes = std::lround(degres * 6000);
    lignes[13] = std::to_string(centiemes / 6000);
    lignes[12] = std::to_string(centiemes / 100 % 60);
    lignes[16] = std::to_string(100 + centiemes % 100).substr(1);
    lignes[19] = " 2 ";
    lignes[20] = "1";
  }
  /// Three stars that stand well apart at 23 h, south-east, west and north-west.
  std::vector<std::string> Trois() const { return {Etoile(28, "23"), Etoile(56, "23"), Etoile(140, "23")}; }
  /// Five around.
  std::vector<std::string> Cinq(double minutesDeTrop) const {
    std::vector<std::string> fichiers;
    for (const int rang : {28, 24, 56, 140, 84}) {
      fichiers.push_back(Etoile(rang, "23", minutesDeTrop));
    }
    return fichiers;
  }
  static ordered_json PointDe(std::vector<std::string> arguments, int etat = 0) {
    arguments.insert(arguments.begin(), "point");
    const Passage p = Lance(arguments);
    EXPECT_EQ(p.etat, etat) << p.sortie << p.erreurs;
    EXPECT_THAT(p.erreurs, IsEmpty());
    return Objets(p.sortie).back();
  }
};

std::vector<std::string> Mots(const ordered_json &o) { return o["avis"].get<std::vector<std::string>>(); }

std::vector<std::string> Avec(std::vector<std::string> options, const std::vector<std::string> &fichiers) {
  options.insert(options.end(), fichiers.begin(), fichiers.end());
  return options;
}

/// Miles between a fix and a place.
double Loin(const ordered_json &o, double latitude, double longitude) {
  constexpr double kRad = 0.017453292519943295;
  return std::hypot((o["latitude"].get<double>() - latitude) * 60,
                    (o["longitude"].get<double>() - longitude) * 60 * std::cos(latitude * kRad));
}

constexpr double kLatitude = 47.5;
constexpr double kLongitude = -5 - 10.0 / 60;

TEST_F(CalculPoint, TellsWhereTheStarsWereTakenFrom) {
  const ordered_json o = PointDe(Trois());
  EXPECT_THAT(Cles(o), ElementsAre("latitude", "longitude", "heure", "ellipse", "residus", "erreur_commune", "avis"));
  EXPECT_THAT(Cles(o["ellipse"]), ElementsAre("a", "b", "direction"));
  EXPECT_LT(Loin(o, kLatitude, kLongitude), 0.03) << "readings are of a hundredth of a minute";
  EXPECT_EQ(o["heure"], "21/06/2026 23:00:00");
  ASSERT_THAT(o["residus"], SizeIs(3));
  for (const auto &residu : o["residus"]) {
    EXPECT_LT(std::fabs(residu.get<double>()), 0.02);
  }
  EXPECT_TRUE(o["erreur_commune"].is_null());
  EXPECT_THAT(Mots(o), Contains("commune_trop_peu"));
}

TEST_F(CalculPoint, ByTheToldLinesIsTheCrossingOfTheDrawnOnes) {
  const auto fichiers = Trois();
  const ordered_json o = PointDe(Avec({"--theorie", "dite"}, fichiers));
  // The told lines' own residuals at the fix are those of their intercepts from the typed position, which is theirs
  // all.
  for (std::size_t i = 0; i < fichiers.size(); ++i) {
    const ordered_json visee = ReduitUn(fichiers[i]);
    constexpr double kRad = 0.017453292519943295;
    const double azimut = visee["azimut"].get<double>() * kRad;
    const double nord = (o["latitude"].get<double>() - kLatitude) * 60;
    const double est = (o["longitude"].get<double>() - kLongitude) * 60 * std::cos(kLatitude * kRad);
    EXPECT_NEAR(o["residus"][i].get<double>(),
                visee["intercept"].get<double>() - nord * std::cos(azimut) - est * std::sin(azimut), 0.02)
        << i;
  }
}

TEST_F(CalculPoint, OfFilesByTheirRunIsToldForTheWantedTime) {
  const auto fichiers = Trois();
  const ordered_json o = PointDe(Avec({"--cap", "180", "--vitesse", "6", "--heure", "22/06/2026 01:00:00"}, fichiers));
  EXPECT_EQ(o["heure"], "22/06/2026 01:00:00");
  EXPECT_LT(Loin(o, kLatitude - 0.2, kLongitude), 0.05);
  const ordered_json alors = PointDe(fichiers);
  EXPECT_GT(o["ellipse"]["a"].get<double>(), alors["ellipse"]["a"].get<double>()) << "two hours of doubt";
  const std::string route =
      Ecrit("route.txt", "# by the log\r\n21/06/2026 22:00:00 180 6\r\n\r\n22/06/2026 00:00:00 90 6,0\n");
  const ordered_json jambes = PointDe(Avec({"--route", route, "--heure", "22/06/2026 01:00:00"}, fichiers));
  EXPECT_LT(Loin(jambes, kLatitude - 0.1, kLongitude + 0.1 / std::cos((kLatitude - 0.1) * 0.017453292519943295)), 0.05);
}

TEST_F(CalculPoint, TheAssumedErrorScalesTheEllipse) {
  const auto fichiers = Trois();
  const ordered_json un = PointDe(Avec({"--ecart-type", "1"}, fichiers));
  const ordered_json deux = PointDe(Avec({"--ecart-type", "2"}, fichiers));
  EXPECT_NEAR(deux["ellipse"]["a"].get<double>() / un["ellipse"]["a"].get<double>(), 2, 1E-3);
  EXPECT_EQ(Lance(Avec({"point", "--ecart-type", "0"}, fichiers)).etat, 2);
}

TEST_F(CalculPoint, ACommonErrorOfFiveStarsAroundIsToldInMiles) {
  const ordered_json o = PointDe(Cinq(2));
  EXPECT_NEAR(o["erreur_commune"].get<double>(), 2, 0.05);
  EXPECT_LT(Loin(o, kLatitude, kLongitude), 0.1);
}

TEST_F(CalculPoint, AnImprobableSightIsNamedByItsFile) {
  auto fichiers = Cinq(0);
  fichiers.push_back(Etoile(104, "23"));
  fichiers[2] = Etoile(56, "23", 60);
  const ordered_json o = PointDe(fichiers);
  EXPECT_THAT(Mots(o), Contains("improbable"));
  EXPECT_EQ(o["improbable"], fichiers[2]);
}

TEST_F(CalculPoint, WithoutAFixTheReasonStandsInTheObject) {
  const std::string une = Etoile(28, "23");
  const ordered_json o = PointDe({une}, 1);
  EXPECT_THAT(Cles(o),
              ElementsAre("latitude", "longitude", "heure", "ellipse", "residus", "erreur_commune", "avis", "erreur"));
  EXPECT_TRUE(o["latitude"].is_null());
  EXPECT_TRUE(o["ellipse"].is_null());
  EXPECT_THAT(Mots(o), ElementsAre("une_visee"));
  EXPECT_THAT(Mots(PointDe({une, une}, 1)), ElementsAre("azimuts_serres"));
}

TEST_F(CalculPoint, OfTwoSightsTheOtherPlaceIsToldToo) {
  const ordered_json o = PointDe({Etoile(28, "23"), Etoile(56, "23")});
  EXPECT_THAT(Mots(o), Contains("deux_solutions"));
  EXPECT_LT(Loin(o, kLatitude, kLongitude), 0.05);
  EXPECT_GT(Loin(o["seconde"], kLatitude, kLongitude), 60);
}

TEST_F(CalculPoint, FilesThatFailAreToldAsByReduitAndAreNotInTheFix) {
  auto fichiers = Trois();
  for (const std::string &mauvais : {(dossier_ / "rien.LoP").string(), dossier_.string(), Ecrit("vide.LoP", "")}) {
    const auto arguments = Avec({"point", mauvais}, fichiers);
    const Passage p = Lance(arguments);
    const Passage r = Lance({"reduit", mauvais});
    EXPECT_EQ(p.etat, r.etat) << mauvais;
    const auto objets = Objets(p.sortie);
    ASSERT_THAT(objets, SizeIs(2)) << mauvais;
    EXPECT_EQ(objets[0].dump(), Objets(r.sortie).at(0).dump());
    EXPECT_TRUE(objets[1]["residus"][0].is_null());
    EXPECT_LT(Loin(objets[1], kLatitude, kLongitude), 0.03);
  }
}

TEST_F(CalculPoint, ARouteThatCanNotBeReadIsToldWithItsLine) {
  const auto fichiers = Trois();
  const Passage p =
      Lance(Avec({"point", "--route", Ecrit("r.txt", "21/06/2026 22:00:00 180 6\n21/06/2026 23:00 90 6\n")}, fichiers));
  EXPECT_EQ(p.etat, 1);
  const ordered_json o = Objets(p.sortie).at(0);
  EXPECT_THAT(Cles(o), ElementsAre("fichier", "ligne", "erreur"));
  EXPECT_EQ(o["ligne"], 2);
  EXPECT_EQ(o["erreur"]["numero"], 13);
  EXPECT_EQ(Objets(Lance(Avec({"point", "--route", "rien"}, fichiers)).sortie).at(0)["erreur"]["numero"], 53);
  for (const char *ligne : {"21/06/2026 22:00:00 361 6", "21/06/2026 22:00:00 -1 6", "21/06/2026 22:00:00 1 101",
                            "21/06/2026 22:00:00 1", "21/06/2026 22:00:00 1 2 3", "31/02/2026 22:00:00 1 2", "x",
                            "21/06/2026 22:00:00 nan 6", "21/06/1750 22:00:00 1 2"}) {
    EXPECT_EQ(Lance(Avec({"point", "--route", Ecrit("r.txt", ligne)}, fichiers)).etat, 1) << ligne;
  }
}

TEST_F(CalculPoint, ItsArgumentsAreJudged) {
  const auto fichiers = Trois();
  const std::vector<std::vector<std::string>> fautes{{"--cap", "90"},
                                                     {"--vitesse", "5"},
                                                     {"--cap", "90", "--vitesse", "5", "--route", "r"},
                                                     {"--theorie", "autre"},
                                                     {"--cap", "est", "--vitesse", "5"}};
  for (const auto &faute : fautes) {
    EXPECT_EQ(Lance(Avec(Avec({"point"}, faute), fichiers)).etat, 2) << faute[0];
  }
  EXPECT_EQ(Lance({"point"}).etat, 2);
  EXPECT_EQ(Objets(Lance(Avec({"point", "--heure", "hier"}, fichiers)).sortie).back()["erreur"]["numero"], 13);
  EXPECT_EQ(Lance(Avec({"point", "--dut1", "3600"}, fichiers)).etat, 1);
  const std::string tiret = EcritVisee("-x.LoP", LignesSoleil());
  EXPECT_THAT(Objets(Lance({"point", "--", tiret}).sortie).back()["avis"][0], "une_visee");
}

TEST_F(CalculPoint, TheSampleDayIsWhereItsShipWent) {
  // The ship of the sample day made 228 degrees at 6.3 knots, worked out apart, while 225 at 6 was reckoned.
  const std::string dossier = std::string(VELMARIS_DONNEES) + "/exemples/journee/";
  struct Quart {
    std::vector<std::string> visees;
    double latitude, longitude; // of the ship
    double milles;              // that the fix may lie off
  };
  const std::vector<Quart> quarts = {{{"1 Vega", "2 Altair", "3 Capella"}, 47.495316, -5.174366, 0.1},
                                     {{"4 Soleil", "5 Soleil"}, 46.902801, -6.142887, 1.6},
                                     {{"6 Arcturus", "7 Vega", "8 Spica"}, 46.268911, -7.167260, 0.1}};
  for (const Quart &quart : quarts) {
    std::vector<std::string> arguments = {"--route", dossier + "route.txt"};
    for (const std::string &nom : quart.visees) {
      arguments.push_back(dossier + nom + ".LoP");
    }
    const ordered_json point = PointDe(arguments);
    const double nord = (point["latitude"].get<double>() - quart.latitude) * 60;
    const double est = (point["longitude"].get<double>() - quart.longitude) * 60 * 0.69;
    EXPECT_LT(std::hypot(nord, est), quart.milles) << point;
  }
}

TEST_F(CalculPoint, AFullDiskEndsItWithAWord) {
  const Environnement environnement(Variables{{"LANG", "C"}});
  const Passage p = Lance({"point", EcritVisee("a.LoP", LignesSoleil())}, VELMARIS_CALCUL, "/dev/full");
  EXPECT_EQ(p.etat, 1);
  EXPECT_EQ(p.erreurs, "velmaris-calcul: the output can't be written\n");
}

} // namespace
} // namespace velmaris
