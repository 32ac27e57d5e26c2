#include "OutilsReduit.hpp"

#include "complements/ciel/CielDuMoment.hpp"
#include "complements/ciel/EtapesHauteur.hpp"

#include <cmath>
#include <cstdio>

/// "serie": a run of readings of one body.
namespace velmaris {
namespace {

using nlohmann::ordered_json;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

/// Runs of "serie"; its files in a folder for each test.
class CalculSerie : public Reduit {
protected:
  /// Heights of the star of row 147 at 47 N, 6 W, a reading a half minute from 21 h on.
  /// @param fautes  minutes that each is off by
  std::string Fichier(const std::vector<double> &fautes) const {
    std::string texte = "# Vega\n";
    for (std::size_t i = 0; i < fautes.size(); ++i) {
      const DateCivile date{2026, 6, 21, 21, static_cast<int>(i / 2), static_cast<double>(i % 2 * 30)};
      const PlaceGeocentrique place = PlaceDe(PrepareCiel(MomentDe(date)), {GenreAstre::Etoile, 147});
      const double lue = LecturePour({}, place, {47, -6, 0}, VueDe(place, {47, -6, 0}).hauteur) + fautes[i] / 60;
      char ligne[64];
      std::snprintf(ligne, sizeof ligne, "21/06/2026 21:%02d:%02d %d %.6f\n", static_cast<int>(i / 2),
                    static_cast<int>(i % 2 * 30), static_cast<int>(lue), (lue - std::floor(lue)) * 60);
      texte += ligne;
    }
    return Ecrit("serie.txt", texte);
  }
  static ordered_json Serie(const std::string &fichier, int etat = 0, const std::string &corps = "147") {
    const Passage p = Lance({"serie", corps, "47", "-6", fichier});
    EXPECT_EQ(p.etat, etat) << p.sortie << p.erreurs;
    return Objets(p.sortie).at(0);
  }
};

TEST_F(CalculSerie, TellsOneReadingAtTheMiddleOfTheRun) {
  const ordered_json o = Serie(Fichier({1, 1, 1, 1, 1}));
  EXPECT_THAT(Cles(o), ElementsAre("heure", "hauteur", "ecart_type", "residus", "ecartees"));
  EXPECT_EQ(o["heure"].get<std::string>(), "21/06/2026 21:01:00");
  const PlaceGeocentrique place =
      PlaceDe(PrepareCiel(MomentDe(DateCivile{2026, 6, 21, 21, 1, 0})), {GenreAstre::Etoile, 147});
  const double juste = LecturePour({}, place, {47, -6, 0}, VueDe(place, {47, -6, 0}).hauteur);
  EXPECT_NEAR((o["hauteur"].get<double>() - juste) * 60, 1, 1E-3);
  EXPECT_DOUBLE_EQ(o["ecart_type"].get<double>(), 0.7 / std::sqrt(5));
  EXPECT_THAT(o["residus"], SizeIs(5));
  EXPECT_NEAR(o["residus"][0].get<double>(), 0, 1E-3);
  EXPECT_THAT(o["ecartees"], IsEmpty());
}

TEST_F(CalculSerie, LeavesAnImprobableReadingOutAndTellsIt) {
  const ordered_json o = Serie(Fichier({0, 0, 0, 8, 0, 0}));
  EXPECT_EQ(o["ecartees"], ordered_json({4}));
  EXPECT_NEAR(o["residus"][3].get<double>(), 8, 0.01) << "its residual is told, by the mean of the others";
  EXPECT_DOUBLE_EQ(o["ecart_type"].get<double>(), 0.7 / std::sqrt(5));
}

TEST_F(CalculSerie, ASlopeThatIsntTheSkysIsToldInAWord) {
  EXPECT_THAT(Serie(Fichier({-9, -6, -3, 0, 3, 6, 9}))["avis"], Contains("pente"));
}

TEST_F(CalculSerie, WhatCantBeReducedIsAnErrorInTheObject) {
  EXPECT_EQ(Serie(Fichier({0, 0}), 1)["erreur"]["numero"], 5);
  EXPECT_THAT(Serie(Fichier({0, 0}), 1)["erreur"]["texte"].get<std::string>(), HasSubstr("trois"));
  EXPECT_EQ(Serie(Fichier({0, 0, 0}), 1, "67")["erreur"]["numero"], 5);
  const ordered_json absent = Serie((dossier_ / "absent").string(), 1);
  EXPECT_THAT(Cles(absent), ElementsAre("fichier", "erreur"));
  EXPECT_EQ(absent["erreur"]["numero"], 53);
  const ordered_json faute = Serie(Ecrit("faute", "21/06/2026 21:00:00 40 1\nx\n"), 1);
  EXPECT_EQ(faute["ligne"], 2);
  EXPECT_EQ(faute["erreur"]["numero"], 13);
  const Passage p = Lance({"serie", "147", "91", "0", Fichier({0, 0, 0})});
  EXPECT_EQ(p.etat, 1);
  EXPECT_THAT(Objets(p.sortie).at(0)["erreur"]["texte"].get<std::string>(), HasSubstr("lieu"));
}

TEST_F(CalculSerie, ABodyThatIsNoneIsAUsageError) {
  for (const char *corps : {"Aries", "Pluton", "247"}) {
    EXPECT_EQ(Lance({"serie", corps, "47", "-6", "x"}).etat, 2) << corps;
  }
  EXPECT_EQ(Lance({"serie", "147", "47", "-6"}).etat, 2);
  EXPECT_EQ(Lance({"serie", "147", "47", "-6", "x", "--ecart-type", "0"}).etat, 2);
}

} // namespace
} // namespace velmaris
