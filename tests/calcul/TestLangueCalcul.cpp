#include "Passage.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

/// The companion speaks its user's language; its results speak to programs.
namespace velmaris {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

std::string Aide(const Variables &voulu) {
  const Environnement environnement(voulu);
  return Lance({"--help"}).sortie;
}

constexpr const char *kFrancais = "Réduit des visées";
constexpr const char *kAnglais = "Reduces sextant sights";

TEST(CalculLangue, TheFirstOfTheThreeVariablesThatHoldsAnythingDecides) {
  EXPECT_THAT(Aide({{"LANG", "fr_FR.UTF-8"}}), HasSubstr(kFrancais));
  EXPECT_THAT(Aide({{"LANG", "en_GB.UTF-8"}}), HasSubstr(kAnglais));
  EXPECT_THAT(Aide({{"LANG", "fr_FR.UTF-8"}, {"LC_MESSAGES", "en_US.UTF-8"}}), HasSubstr(kAnglais));
  EXPECT_THAT(Aide({{"LANG", "en_US.UTF-8"}, {"LC_MESSAGES", "fr_BE"}}), HasSubstr(kFrancais));
  EXPECT_THAT(Aide({{"LC_ALL", "C"}, {"LC_MESSAGES", "fr_FR"}, {"LANG", "fr_FR"}}), HasSubstr(kAnglais));
  EXPECT_THAT(Aide({{"LC_ALL", ""}, {"LC_MESSAGES", ""}, {"LANG", "fr"}}), HasSubstr(kFrancais)) << "empty is unset";
  EXPECT_THAT(Aide({{"LANG", "fr@euro"}}), HasSubstr(kFrancais));
  EXPECT_THAT(Aide({{"LANG", "frp_FR"}}), HasSubstr(kAnglais)) << "another language";
  EXPECT_THAT(Aide({{"LANG", "de_DE.UTF-8"}}), HasSubstr(kAnglais));
  EXPECT_THAT(Aide({}), HasSubstr(kAnglais));
}

/// Words that would give the other language away.
constexpr const char *kMotsFrancais[] = {"obligatoire", "Verbe", "degrés", "Montre", "VERBE", "RANG", "Heure"};
constexpr const char *kMotsAnglais[] = {"required", "Commands", "degrees", "Tells", "COMMAND", "ROW", "Hour", "not "};

TEST(CalculLangue, EveryVerbsHelpHoldsNoWordOfTheOther) {
  for (const char *verbe :
       {"reduit", "horizon", "helio", "place", "etoile", "lune", "ciel", "controle", "point", "prepare", "serie"}) {
    const Environnement francais(Variables{{"LANG", "fr_FR.UTF-8"}});
    const std::string enFrancais = Lance({verbe, "--help"}).sortie;
    const Environnement anglais(Variables{{"LANG", "en_US.UTF-8"}});
    const std::string enAnglais = Lance({verbe, "--help"}).sortie;
    EXPECT_NE(enFrancais, enAnglais) << verbe;
    for (const char *mot : kMotsAnglais) {
      EXPECT_THAT(enFrancais, Not(HasSubstr(mot))) << verbe;
    }
    for (const char *mot : kMotsFrancais) {
      EXPECT_THAT(enAnglais, Not(HasSubstr(mot))) << verbe;
    }
  }
}

struct Faute {
  std::vector<std::string> arguments;
  const char *francais, *anglais;
};

TEST(CalculLangue, AUsageErrorIsToldInIt) {
  const Faute fautes[] = {
      {{}, "argument manquant (un verbe manque)", "missing argument (a command is required)"},
      {{"etoile"}, "argument manquant (RANG manque)", "missing argument (ROW is required)"},
      {{"etoile", "300", "1", "1", "1"}, "300 n'est pas une ligne de la table", "300 isn't a row of the table"},
      {{"etoile", "1.5", "1", "1", "1"}, "1.5 n'est pas une ligne de la table", "1.5 isn't a row of the table"},
      {{"etoile", "1", "a", "1", "1"}, "JOUR: a n'est pas un nombre", "DAY: a isn't a number"},
      {{"helio", "Mars", "1", "2"}, "argument en trop (de trop : 2)", "argument too many"},
      {{"reduit", "--langue"}, "--langue : sa valeur manque", "--langue: 1 required LANGUAGE missing"},
      {{"reduit", "--langue", "de", "x"}, "de n'en est pas une", "de isn't one"}};
  for (const Faute &faute : fautes) {
    for (const bool francais : {true, false}) {
      const Environnement environnement(Variables{{"LANG", francais ? "fr_FR.UTF-8" : "C.UTF-8"}});
      const Passage p = Lance(faute.arguments);
      EXPECT_EQ(p.etat, 2);
      EXPECT_THAT(p.sortie, IsEmpty());
      EXPECT_THAT(p.erreurs, HasSubstr(francais ? faute.francais : faute.anglais));
      EXPECT_THAT(p.erreurs, HasSubstr(francais ? "Usage : velmaris-calcul" : "Usage: velmaris-calcul"));
    }
  }
}

TEST(CalculLangue, ResultsAreTheSameBytesInAnyLanguage) {
  const std::string exemple = VELMARIS_DONNEES "/exemples/21JUN26 120530.LoP";
  for (const std::vector<std::string> &arguments : {std::vector<std::string>{"reduit", exemple, "absent.LoP"},
                                                    {"lune", "2026", "6", "21", "12", "5", "30", "47.5", "-5"},
                                                    {"horizon", "31/02/2026", "12:00:00", "1", "2", "3", "4"},
                                                    {"etoile", "1", "21", "06", "1e308"}}) {
    std::vector<std::string> sorties;
    for (const char *langue : {"fr_FR.UTF-8", "en_US.UTF-8", "C"}) {
      const Environnement environnement(Variables{{"LANG", langue}});
      sorties.push_back(Lance(arguments).sortie);
    }
    EXPECT_NE(sorties[0], "");
    EXPECT_EQ(sorties[0], sorties[1]);
    EXPECT_EQ(sorties[0], sorties[2]);
  }
}

} // namespace
} // namespace velmaris
