#include "Passage.hpp"
#include "ephemerides/ModulePosLune.hpp"
#include "foundations/TexteNombre.hpp"

#include <array>
#include <charconv>
#include <gmock/gmock.h>

namespace velmaris {
namespace {

using nlohmann::ordered_json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

const std::vector<std::string> kMoment{"lune", "2026", "6", "21", "12", "5", "30.25", "47.5", "-5.17"};

Lune LuneAttendue() {
  Lune l;
  l.LuneAn = 2026;
  l.LuneMois = 6;
  l.LuneJour = 21;
  l.LuneHeure = 12;
  l.LuneMinute = 5;
  l.LuneSeconde = 30.25F;
  CalculLune(l);
  return l;
}

/// The text of a member, as it stands in the output.
std::string Brut(const std::string &sortie, const std::string &cle) {
  const std::string debut = "\"" + cle + "\":";
  const std::size_t p = sortie.find(debut) + debut.size();
  return sortie.substr(p, sortie.find_first_of(",}", p) - p);
}

template <class Nombre> std::string PlusCourt(Nombre x) {
  std::array<char, 40> tampon{};
  return {tampon.data(), std::to_chars(tampon.data(), tampon.data() + tampon.size(), x).ptr};
}

TEST(CalculLune, TellsThePlaceFromTheCentreAndFromTheStation) {
  const Passage p = Lance(kMoment);
  ASSERT_EQ(p.etat, 0) << p.erreurs;
  EXPECT_THAT(p.erreurs, IsEmpty());
  const ordered_json o = Objets(p.sortie).at(0);
  EXPECT_THAT(Cles(o), ElementsAre("jd", "longitude", "latitude", "distance", "parallaxe", "ad", "decl", "obliquite",
                                   "long_soleil", "phase", "ad_topo", "decl_topo", "demi_diametre", "azimut", "hauteur",
                                   "texte_ad", "texte_decl"));
  Lune l = LuneAttendue();
  EXPECT_EQ(o["jd"].get<double>(), l.LuneJD);
  EXPECT_EQ(o["longitude"].get<double>(), l.LuneLongitude);
  EXPECT_EQ(o["latitude"].get<double>(), l.LuneLatitude);
  EXPECT_EQ(o["distance"].get<double>(), l.LuneDistance);
  EXPECT_EQ(o["parallaxe"].get<double>(), l.LuneParallaxe);
  EXPECT_EQ(o["ad"].get<double>(), l.LuneAD);
  EXPECT_EQ(o["decl"].get<double>(), l.LuneDecl);
  EXPECT_EQ(o["obliquite"].get<double>(), l.LuneObliquite);
  EXPECT_EQ(o["long_soleil"].get<double>(), l.LuneLongSoleil);
  EXPECT_EQ(o["phase"].get<double>(), l.LunePhase);
  TopoLune(l, l.LuneAD, l.LuneDecl, 47.5F, -5.17F, "Asc. droite : ");
  EXPECT_EQ(o["ad_topo"].get<double>(), l.LuneAD);
  EXPECT_EQ(o["decl_topo"].get<double>(), l.LuneDecl);
  EXPECT_EQ(Brut(p.sortie, "demi_diametre"), PlusCourt(l.LuneDemiDiametre));
  EXPECT_EQ(Brut(p.sortie, "azimut"), PlusCourt(l.LuneAzimut));
  EXPECT_EQ(Brut(p.sortie, "hauteur"), PlusCourt(l.LuneHauteur));
  EXPECT_EQ(Brut(p.sortie, "phase"), PlusCourt(l.LunePhase));
  EXPECT_EQ(o["texte_ad"].get<std::string>(), l.LuneTexteAD);
  EXPECT_EQ(o["texte_decl"].get<std::string>(), l.LuneTexteDecl);
}

TEST(CalculLune, TheLabelIsInTheLanguageAskedFor) {
  const auto texte = [](const char *langue) {
    std::vector<std::string> arguments = kMoment;
    arguments.insert(arguments.begin() + 1, {"--langue", langue});
    return Objets(Lance(arguments).sortie).at(0)["texte_ad"].get<std::string>();
  };
  EXPECT_THAT(texte("fr"), StartsWith("Asc. droite : "));
  EXPECT_EQ(texte("aucune").find(" h "), 2U);
  EXPECT_NE(texte("en"), texte("fr"));
}

TEST(CalculLune, ADateBeyondNumbersIsAnErrorInTheObject) {
  const Passage p = Lance({"lune", "1e308", "6", "21", "12", "5", "30", "47.5", "-5"});
  EXPECT_EQ(p.etat, 1);
  EXPECT_EQ(Objets(p.sortie).at(0)["erreur"]["numero"], 6);
}

TEST(CalculLune, AFigureThatIsNoNumberOrMissingIsAUsageError) {
  std::vector<std::string> arguments = kMoment;
  arguments[4] = "midi";
  Passage p = Lance(arguments);
  EXPECT_EQ(p.etat, 2);
  EXPECT_THAT(p.sortie, IsEmpty());
  EXPECT_THAT(p.erreurs, HasSubstr("midi"));
  arguments = kMoment;
  arguments.pop_back();
  p = Lance(arguments);
  EXPECT_EQ(p.etat, 2);
  EXPECT_THAT(p.sortie, IsEmpty());
}

} // namespace
} // namespace velmaris
