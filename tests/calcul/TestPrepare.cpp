#include "Passage.hpp"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <set>

/// "prepare": a day's plan, held against "ciel", which works each moment out for itself.
namespace velmaris {
namespace {

using nlohmann::ordered_json;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

ordered_json Prepare(std::vector<std::string> arguments, int etat = 0) {
  arguments.insert(arguments.begin(), "prepare");
  const Passage p = Lance(arguments);
  EXPECT_EQ(p.etat, etat) << p.sortie << p.erreurs;
  EXPECT_THAT(p.erreurs, IsEmpty());
  return Objets(p.sortie).at(0);
}

/// A body at a told moment, "JJ/MM/AAAA HH:MM:SS", from 47.5 N 5.17 W.
ordered_json Vu(const std::string &corps, const std::string &moment) {
  return Objets(Lance({"ciel", corps, moment.substr(0, 10), moment.substr(11), "47.5", "-5.17"}).sortie).at(0);
}

double Hauteur(const std::string &corps, const ordered_json &moment) {
  return Vu(corps, moment.get<std::string>())["hauteur_topo"].get<double>();
}

TEST(CalculPrepare, TellsTwilightsRisesAndPassagesWithinTheSecondThatIsWritten) {
  const ordered_json o = Prepare({"21/06/2026", "47.5", "-5.17"});
  EXPECT_THAT(Cles(o), ElementsAre("soleil", "lune", "crepuscules", "heure", "astres", "choix"));
  EXPECT_THAT(Cles(o["soleil"]), ElementsAre("lever", "meridien", "coucher"));
  EXPECT_THAT(Cles(o["lune"]), ElementsAre("lever", "meridien", "coucher"));
  EXPECT_THAT(Cles(o["crepuscules"]), ElementsAre("civil", "nautique", "astronomique"));
  // A second moves a height by 0.004 degree at most.
  constexpr double kSeconde = 0.0045;
  const std::pair<const char *, double> hauteurs[] = {{"civil", -6}, {"nautique", -12}, {"astronomique", -18}};
  for (const auto &[nom, hauteur] : hauteurs) {
    EXPECT_THAT(Cles(o["crepuscules"][nom]), ElementsAre("matin", "soir"));
    EXPECT_NEAR(Hauteur("Soleil", o["crepuscules"][nom]["matin"]), hauteur, kSeconde) << nom;
    EXPECT_NEAR(Hauteur("Soleil", o["crepuscules"][nom]["soir"]), hauteur, kSeconde) << nom;
  }
  for (const char *quand : {"lever", "coucher"}) {
    EXPECT_NEAR(Hauteur("Soleil", o["soleil"][quand]), -(34 + 15.73) / 60, kSeconde) << "upper limb, 34' of refraction";
  }
  EXPECT_NEAR(Vu("Soleil", o["soleil"]["meridien"].get<std::string>())["azimut_topo"].get<double>(), 180, 0.02);
  EXPECT_NEAR(Vu("Lune", o["lune"]["meridien"].get<std::string>())["azimut_topo"].get<double>(), 180, 0.02);
  EXPECT_TRUE(o["lune"]["coucher"].is_null()) << "it comes after midnight";
}

TEST(CalculPrepare, AHeightOfTheEyeAndAnIndexMoveThePresetsByDipAndCorrection) {
  const ordered_json nu = Prepare({"21/06/2026", "47.5", "-5.17", "--heure", "21:30:00"});
  const ordered_json vetu =
      Prepare({"21/06/2026", "47.5", "-5.17", "--heure", "21:30:00", "--oeil", "4", "--collimation", "-1.5"});
  EXPECT_EQ(nu["heure"], "21/06/2026 21:30:00");
  ASSERT_EQ(nu["astres"].size(), vetu["astres"].size());
  ASSERT_GT(nu["astres"].size(), 10U);
  for (std::size_t i = 0; i < nu["astres"].size(); ++i) {
    EXPECT_THAT(Cles(nu["astres"][i]), ElementsAre("nom", "hauteur", "azimut", "magnitude", "prereglage"));
    EXPECT_NEAR(vetu["astres"][i]["prereglage"].get<double>() - nu["astres"][i]["prereglage"].get<double>(),
                (1.76 * 2 + 1.5) / 60, 1E-4)
        << nu["astres"][i];
  }
}

TEST(CalculPrepare, HeightsAndAzimutsAreThoseOfTheSky) {
  const ordered_json o = Prepare({"21/06/2026", "47.5", "-5.17", "--heure", "21:30:00"});
  int juges = 0;
  for (const auto &astre : o["astres"]) {
    const auto nom = astre["nom"].get<std::string>();
    if (nom == "Venus" || nom == "Lune") {
      const ordered_json vu = Vu(nom, "21/06/2026 21:30:00");
      const double h = astre["hauteur"].get<double>();
      const double refraction = 0.0167 / std::tan((h + 7.32 / (h + 4.32)) * 0.017453292519943295) * 0.28 * 1010 / 283;
      EXPECT_NEAR(h - refraction, vu["hauteur_topo"].get<double>(), 1E-6);
      EXPECT_NEAR(astre["azimut"].get<double>(), vu["azimut_topo"].get<double>(), 1E-6);
      ++juges;
    }
  }
  EXPECT_EQ(juges, 2);
}

TEST(CalculPrepare, ChoicesAreSetsOfProposedBodiesOfThreeFourAndFive) {
  const ordered_json o = Prepare({"21/06/2026", "47.5", "-5.17"});
  std::set<std::string> proposes;
  for (const auto &astre : o["astres"]) {
    proposes.insert(astre["nom"].get<std::string>());
  }
  ASSERT_THAT(o["choix"], SizeIs(15));
  std::multiset<std::size_t> comptes;
  for (const auto &choix : o["choix"]) {
    const auto liste = choix.get<std::vector<std::string>>();
    const std::set<std::string> noms(liste.begin(), liste.end());
    EXPECT_EQ(noms.size(), choix.size()) << "no body twice";
    EXPECT_TRUE(std::includes(proposes.begin(), proposes.end(), noms.begin(), noms.end())) << choix;
    comptes.insert(choix.size());
  }
  EXPECT_EQ(comptes.count(3), 5U);
  EXPECT_EQ(comptes.count(4), 5U);
  EXPECT_EQ(comptes.count(5), 5U);
  EXPECT_EQ(o["choix"][0].size(), 5U) << "more bodies around make the better fix";
}

TEST(CalculPrepare, WhatThereIsNotIsNull) {
  const ordered_json ete = Prepare({"21/06/2026", "72", "10"});
  EXPECT_TRUE(ete["soleil"]["lever"].is_null());
  EXPECT_TRUE(ete["soleil"]["coucher"].is_null());
  EXPECT_FALSE(ete["soleil"]["meridien"].is_null());
  EXPECT_TRUE(ete["crepuscules"]["civil"]["soir"].is_null());
  EXPECT_THAT(ete["choix"], SizeIs(0));
  const ordered_json ancien = Prepare({"21/06/1850", "45", "0"});
  EXPECT_TRUE(ancien["lune"]["meridien"].is_null()) << "the Moon is known from 1900 on";
  EXPECT_FALSE(ancien["soleil"]["lever"].is_null());
}

TEST(CalculPrepare, TheShipsWayMovesThePassage) {
  const auto passage = [](const std::vector<std::string> &route) {
    std::vector<std::string> arguments{"21/06/2026", "60", "0", "--heure", "00:00:00"};
    arguments.insert(arguments.end(), route.begin(), route.end());
    const auto texte = Prepare(arguments)["soleil"]["meridien"].get<std::string>();
    return std::stoi(texte.substr(11, 2)) * 3600 + std::stoi(texte.substr(14, 2)) * 60 + std::stoi(texte.substr(17));
  };
  // Twelve hours at 15 knots east are six degrees of longitude at 60 degrees: the Sun comes 24 minutes earlier, less
  // what the ship has not gone by then.
  const int debout = passage({});
  EXPECT_NEAR(debout - passage({"--cap", "90", "--vitesse", "15"}), debout * 0.5 / 15.5, 5);
}

TEST(CalculPrepare, ATimeOfDayIsThatOfTheShipsOwnDay) {
  EXPECT_EQ(Prepare({"21/06/2026", "20", "175", "--heure", "18:00:00"})["heure"], "20/06/2026 18:00:00");
  EXPECT_EQ(Prepare({"21/06/2026", "20", "-175", "--heure", "05:00:00"})["heure"], "22/06/2026 05:00:00");
}

TEST(CalculPrepare, WhatIsWrongIsToldAsReduitTellsIt) {
  const auto numero = [](const std::vector<std::string> &arguments) {
    const ordered_json o = Prepare(arguments, 1);
    EXPECT_THAT(Cles(o), ElementsAre("erreur"));
    return o["erreur"]["numero"].get<int>();
  };
  EXPECT_EQ(numero({"31/02/2026", "47.5", "-5"}), 13);
  EXPECT_EQ(numero({"demain", "47.5", "-5"}), 13);
  EXPECT_EQ(numero({"21/06/2026", "47.5", "-5", "--heure", "25:00:00"}), 13);
  EXPECT_EQ(numero({"21/06/2026", "90.5", "-5"}), 5);
  EXPECT_EQ(numero({"21/06/2026", "90.5", "-5", "--cap", "0", "--vitesse", "5"}), 5);
  EXPECT_EQ(numero({"21/06/1750", "47.5", "-5"}), 5);
  EXPECT_EQ(numero({"21/06/2026", "47.5", "-5", "--dut1", "3600"}), 5);
}

TEST(CalculPrepare, ItsArgumentsAreJudged) {
  const std::vector<std::vector<std::string>> fautes{{"21/06/2026", "47.5"},
                                                     {"21/06/2026", "nord", "5"},
                                                     {"21/06/2026", "47.5", "5", "--cap", "90"},
                                                     {"21/06/2026", "47.5", "5", "--vitesse", "9"},
                                                     {"21/06/2026", "47.5", "5", "de trop"}};
  for (const auto &faute : fautes) {
    std::vector<std::string> arguments{"prepare"};
    arguments.insert(arguments.end(), faute.begin(), faute.end());
    EXPECT_EQ(Lance(arguments).etat, 2) << faute.back();
  }
  EXPECT_EQ(Prepare({"21/06/2026", "-47.5", "-5"}), Prepare({"--", "21/06/2026", "-47.5", "-5"}));
}

} // namespace
} // namespace velmaris
