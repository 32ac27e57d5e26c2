#include "tests/shell/bureau/OutilsBureau.hpp"

#include "shell/Aide.hpp"
#include "shell/bureau/Identite.hpp"
#include "shell/ecran/Presentation.hpp"

#include <functional>
#include <string>
#include <vector>

/// The about box, its links and pictures; the user's guide.
namespace velmaris::essais {
namespace {

class AvecLiens : public Programme {
protected:
  AvecLiens() {
    bureau.ports.modale = [this](CadreFenetre &cadre) {
      ++ouvertures;
      EXPECT_TRUE(cadre.visible);
      EXPECT_EQ(cadre.nom, kFenetreApropos);
      joue();
      cadre.visible = false;
    };
    bureau.ports.ouvre = [this](const std::string &adresse, const std::function<void()> &sansProgramme) {
      ouverts.push_back(adresse);
      if (!bureauOuvre) {
        sansProgramme();
      }
    };
    bureau.ports.lecteur = [this](const std::string &type) {
      return lecteurAide && type == "application/vnd.ms-htmlhelp";
    };
  }

  /// "A propos", with something done while the box is open.
  void Montre(const std::function<void()> &geste) {
    joue = geste;
    ClicControle(bureau, d.PU_Apropos);
  }

  static std::string Numeros(bool revision) {
    const Version v = VersionProgramme();
    return std::to_string(v.majeure) + "." + std::to_string(v.mineure) +
           (revision ? "." + std::to_string(v.revision) : std::string());
  }

  Apropos &a = bureau.apropos;
  std::function<void()> joue = [] {};
  std::vector<std::string> ouverts;
  bool bureauOuvre = true;
  bool lecteurAide = false;
  int ouvertures = 0;
};

TEST_F(AvecLiens, TheBoxOpensOnceAllModulesHaveBeenPutAway) {
  Demarre();
  ClicControle(bureau, d.Command23);
  Montre([this] {
    EXPECT_FALSE(d.Frame7.visible || d.Frame10.visible);
    EXPECT_EQ(a.cadre.titre, "A propos");
  });
  EXPECT_EQ(ouvertures, 1);
}

TEST_F(AvecLiens, ItTellsNameAndVersionAsBuilt) {
  Demarre();
  Montre([this] {
    EXPECT_EQ(a.Label1.legende, "Velmaris");
    EXPECT_EQ(a.Label2[3].legende, "Version : " + Numeros(false));
    EXPECT_EQ(a.Label5.legende, "Site de VELMARIS");
  });
  EXPECT_EQ(TexteVersion(), Numeros(true));
}

TEST_F(AvecLiens, ItTakesTheLanguageChosenWhenItOpens) {
  Demarre();
  Montre([this] { EXPECT_EQ(a.Command1.legende, "Fermer"); });
  ClicControle(bureau, d.Image10[1]);
  Montre([this] {
    EXPECT_EQ(a.Command1.legende, "Close");
    EXPECT_EQ(a.cadre.titre, "About");
    EXPECT_EQ(a.Label2[3].legende, "Version : " + Numeros(false)) << "written after the language";
  });
}

TEST_F(AvecLiens, WithoutALanguageFileTheBuiltInFrenchShows) {
  bureau.dossiers.programme = "/nulle/part";
  Demarre();
  Montre([this] { EXPECT_EQ(a.Command1.legende, "Fermer"); });
}

TEST_F(AvecLiens, TheLinksOpenTheSiteAndALetterAboutThisVersion) {
  Demarre();
  Montre([this] {
    ClicControle(bureau, a.Label5);
    ClicControle(bureau, a.Label3);
  });
  EXPECT_EQ(ouverts, (std::vector<std::string>{std::string(Site()), "mailto:" + std::string(Courriel()) +
                                                                        "?subject=Velmaris%20V" + Numeros(true)}));
  EXPECT_TRUE(boites.empty());
}

TEST_F(AvecLiens, AnAddressThatNothingOpensIsShownToBeCopied) {
  Demarre();
  bureauOuvre = false;
  Montre([this] { ClicControle(bureau, a.Label5); });
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_EQ(boites[0].adresse, Site());
  EXPECT_EQ(boites[0].texte, d.TexteAdresse.legende);
}

TEST_F(AvecLiens, WithoutAMailProgramThePlainAddressOfTheAuthorsIsShown) {
  Demarre();
  bureauOuvre = false;
  Montre([this] { ClicControle(bureau, a.Label3); });
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_EQ(boites[0].adresse, Courriel());
}

TEST_F(AvecLiens, TheTextOfTheoriesTellsTheSunsOwnShortOne) {
  Demarre();
  for (const auto &[langue, mots] : {std::pair<std::size_t, const char *>{1, "Sun: a short theory of its own."},
                                     {0, "Soleil : une courte théorie propre."}}) {
    ClicControle(bureau, d.Image10[langue]);
    EXPECT_NE(bureau.messages[23].find(mots), std::string::npos) << bureau.messages[23];
  }
}

TEST_F(AvecLiens, TheTextWithAMessageBehindItShowsIt) {
  Demarre();
  Montre([this] { ClicControle(bureau, a.Label4); });
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_EQ(boites[0].texte, bureau.messages[23]);
  EXPECT_NE(boites[0].texte, "");
}

TEST_F(AvecLiens, ThePicturesSwapUnderTheMouseAtMostOnceInALittleUnderASecond) {
  Demarre();
  Montre([this] {
    const auto montre = [&] { return a.Image1[0].visible ? 0 : 1; };
    const auto bouge = [&](int seconde, int milliemes) {
      temps.seconde = static_cast<std::uint16_t>(seconde);
      temps.millisecondes = static_cast<std::uint16_t>(milliemes);
      SurvoleControle(bureau, a.Image1[static_cast<std::size_t>(montre())]);
      EXPECT_NE(a.Image1[0].visible, a.Image1[1].visible) << "one shows";
    };
    EXPECT_EQ(montre(), 0);
    bouge(30, 0);
    EXPECT_EQ(montre(), 1) << "the first move";
    bouge(30, 860);
    EXPECT_EQ(montre(), 1) << "0.00001 day is 864 ms";
    bouge(30, 870);
    EXPECT_EQ(montre(), 0);
    bouge(31, 0);
    EXPECT_EQ(montre(), 0);
    bouge(40, 0);
    EXPECT_EQ(montre(), 1);
    bouge(10, 0);
    EXPECT_EQ(montre(), 0) << "a clock set back doesn't stop it";
  });
}

TEST_F(AvecLiens, ClosingBringsTheMainWindowToTheFront) {
  Demarre();
  Montre([this] {
    ClicControle(bureau, a.Command1);
    EXPECT_FALSE(a.cadre.visible);
  });
  EXPECT_EQ(bureau.premierPlan, kFenetreDonnees);
}

TEST_F(AvecLiens, LeavingTheProgramClosesTheBox) {
  Demarre();
  a.cadre.visible = true;
  reponse = true;
  ClicControle(bureau, d.Sortie);
  EXPECT_FALSE(a.cadre.visible);
}

/// The guide as it is installed: pages in both languages, and help files where asked.
class Guide : public AvecLiens {
protected:
  Guide() {
    LanguesSeules();
    Demarre();
  }

  std::string PosePage(const std::string &langue) { return PoseVide("aide/" + langue + "/index.html"); }
  std::string PoseVide(const std::string &nom) {
    const auto fichier = bureau.dossiers.programme / nom;
    std::filesystem::create_directories(fichier.parent_path());
    Pose(fichier, "");
    return fichier.string();
  }
};

TEST_F(Guide, F1AndTheButtonOpenThePagesInTheChosenLanguage) {
  const std::string francais = PosePage("fr");
  const std::string anglais = PosePage("en");
  EXPECT_TRUE(Donnees_KeyDown(bureau, 112));
  ClicControle(bureau, d.Command5);
  ClicControle(bureau, d.Image10[1]);
  ClicControle(bureau, d.Command5);
  EXPECT_EQ(ouverts, (std::vector<std::string>{francais, francais, anglais}));
}

TEST_F(Guide, TheHelpFileIsTakenWhereTheDesktopHasAReaderForIt) {
  const std::string page = PosePage("fr");
  const std::string aide = PoseVide("velmaris.chm");
  const std::string help = PoseVide("velmaris-EN.chm");
  OuvreAide(bureau);
  lecteurAide = true;
  OuvreAide(bureau);
  ClicControle(bureau, d.Image10[1]);
  OuvreAide(bureau);
  EXPECT_EQ(ouverts, (std::vector<std::string>{page, aide, help}));
}

TEST_F(Guide, OneThatIsNotInstalledIsTold) {
  OuvreAide(bureau);
  EXPECT_TRUE(ouverts.empty());
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_EQ(boites[0].texte.find(d.TexteSansAide.legende), 0U);
}

TEST_F(Guide, OneThatNothingOpensIsShownByItsPath) {
  const std::string page = PosePage("fr");
  bureauOuvre = false;
  OuvreAide(bureau);
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_EQ(boites[0].adresse, page);
}

} // namespace
} // namespace velmaris::essais
