#include "tests/shell/droites/OutilsDroites.hpp"

#include "foundations/Fichiers.hpp"
#include "lines/FichierLoP.hpp"
#include "shell/droites/FichierVisee.hpp"
#include "sights/DroiteLUN.hpp"
#include "sights/DroitePLA.hpp"
#include "sights/DroiteSTAR.hpp"
#include "tests/ephemerides/JugeEtoile.hpp"
#include "tests/ephemerides/OutilsEtoiles.hpp"

#include <erfa.h>
#include <erfam.h>

#include <algorithm>
#include <set>

/// Stars, planets and the Moon in the sight panel.
namespace velmaris::essais {
namespace {

class Astres : public QuatreDroites {
protected:
  Astres() {
    DemarreSansCarte();
    TapeVisee();
  }

  int RangEtoile(const std::string &nom) const {
    const auto &liste = d.Combo6.liste;
    return static_cast<int>(std::find(liste.begin(), liste.end(), nom) - liste.begin());
  }

  void ChoisitEtoile(const std::string &nom) {
    ClicOption(bureau, d.Option7[3]);
    ClicCase(bureau, d.Check3);
    ChoisitLigne(bureau, d.Combo6, RangEtoile(nom));
  }

  void ChoisitPlanete(int rang) {
    ClicOption(bureau, d.Option7[2]);
    ChoisitLigne(bureau, d.Combo7, rang);
  }

  void Moment(const char *jour, const char *mois, const char *annee, const char *heure) {
    Tape(d.TDate[0], jour);
    Tape(d.TDate[1], mois);
    Tape(d.TDate[2], annee);
    Tape(d.Text3, heure);
    Tape(d.Text4, "0");
    Tape(d.Text5, "0");
  }

  void AuPointZero() {
    for (Controle *champ : {&d.Text6, &d.Text7, &d.Text8, &d.Text9}) {
      Tape(*champ, "0");
    }
  }

  std::string Accents() const {
    std::string accents;
    for (const Controle &bord : d.Option6) {
      accents += bord.accent ? '1' : '0';
    }
    return accents;
  }

  std::size_t LignesDuJournal() const {
    const std::string texte = Contenu(dossier.chemin() / "utilisateur" / "journal.csv");
    return static_cast<std::size_t>(std::count(texte.begin(), texte.end(), '\n'));
  }

  void ToutEstMontre(const AffichageDroite &a) const {
    EXPECT_EQ(d.Affichage_Intercept.legende, a.intercept);
    EXPECT_EQ(d.Affichage_Azimuth.legende, a.azimut);
    EXPECT_EQ(d.Label14.infobulle, a.infobulle);
    for (std::size_t i = 0; i < a.details.size(); ++i) {
      EXPECT_EQ(d.Label70[i].legende, a.details[i]) << i;
    }
  }

  /// What the panel shows of the chosen body and its result.
  std::vector<std::string> Etat() const {
    return {d.Affichage_Intercept.legende,
            d.Affichage_Azimuth.legende,
            d.Combo6.texte,
            d.Combo7.texte,
            std::to_string(d.Combo6.rang),
            std::to_string(d.Combo7.rang),
            EcritLoP(LitPanneau(d)),
            d.Label70[6].legende,
            std::to_string(d.ImAstre[3].visible)};
  }
};

TEST_F(Astres, TheListsHoldTheNamedStarsAndFourPlanets) {
  ASSERT_EQ(d.Combo6.liste.size(), 156U);
  EXPECT_EQ(kNombreEtoiles, 156);
  for (std::size_t i = 0; i < 156; ++i) {
    EXPECT_EQ(d.Combo6.liste[i], bureau.etoiles.EtoileNom[i + 1]);
  }
  EXPECT_EQ(d.Combo7.liste, (std::vector<std::string>{"Venus", "Mars", "Jupiter", "Saturne"}));
  EXPECT_EQ(d.Combo6.rang, -1);
  EXPECT_EQ(d.Combo7.rang, -1);
}

/// Height of a star of the table as its row means it, degrees.
double HauteurVoulue(int rang, double jd0, double jd, double latitude, double longitudeOuest) {
  const PlaceEtoile p = PlaceVoulue(Ligne(rang));
  return HorizonParErfa(p.ad, p.dec, jd0, jd, latitude, longitudeOuest).hauteur;
}

TEST_F(Astres, TheShortListHoldsTheBrightStarsThatStandAboveTheHorizon) {
  const TableLue table;
  for (int i = 0; i < 24; ++i) {
    const int latitude = 3 * i;
    Moment(std::to_string(1 + i).c_str(), std::to_string(1 + i % 12).c_str(), "2026", std::to_string(i).c_str());
    Tape(d.Text8, std::to_string(latitude));
    Tape(d.Text9, "0");
    Tape(d.Text6, std::to_string(7 * i));
    Tape(d.Text7, "0");
    ClicOption(bureau, d.OptN[i % 2]);
    ClicOption(bureau, d.OptE[i % 3 == 0 ? 0 : 1]);
    ClicOption(bureau, d.Option7[3]);
    EXPECT_TRUE(d.Combo8.visible);
    const std::set<std::string> visibles(d.Combo8.liste.begin(), d.Combo8.liste.end());
    EXPECT_EQ(visibles.size(), d.Combo8.liste.size()) << "each name once";
    double jd0 = 0;
    double jd = 0;
    eraCal2jd(2026, 1 + i % 12, 1 + i, &jd0, &jd);
    for (const auto &[nom, mouvement] : Mouvements()) {
      const int rang = table.rang(nom);
      if (rang == 0) {
        EXPECT_EQ(visibles.count(nom), 0U) << "no row has that spelling";
        continue;
      }
      const double h =
          HauteurVoulue(rang, jd0, jd + i / 24.0, i % 2 == 0 ? latitude : -latitude, i % 3 == 0 ? -7 * i : 7 * i);
      if (std::fabs(h) > 1) {
        EXPECT_EQ(visibles.count(nom), h > 0 ? 1U : 0U) << nom << " " << h << " " << i;
      }
    }
    for (const std::string &nom : visibles) {
      EXPECT_EQ(Mouvements().count(nom), 1U) << nom;
    }
  }
}

TEST_F(Astres, TickingVisibleMakesTheShortListAnewForTheMomentOfTheFields) {
  ClicOption(bureau, d.Option7[3]);
  const auto avant = d.Combo8.liste;
  Tape(d.Text3, "0");
  EXPECT_EQ(d.Combo8.liste, avant) << "typing does not";
  ClicCase(bureau, d.Check3);
  EXPECT_EQ(d.Check3.valeur, 0);
  EXPECT_TRUE(d.Combo6.visible);
  EXPECT_FALSE(d.Combo8.visible);
  ClicCase(bureau, d.Check3);
  EXPECT_FALSE(d.Combo6.visible);
  EXPECT_TRUE(d.Combo8.visible);
  EXPECT_NE(d.Combo8.liste, avant);
}

TEST_F(Astres, FieldsThatMakeNoMomentLeaveTheShortListEmpty) {
  Tape(d.TDate[1], "2");
  Tape(d.TDate[0], "31");
  ClicOption(bureau, d.Option7[3]);
  EXPECT_TRUE(d.Combo8.liste.empty());
  EXPECT_TRUE(d.Combo8.visible);
  EXPECT_TRUE(boites.empty());
}

TEST_F(Astres, AVisibleStarIsChosenInTheWholeListTooWithItsLetters) {
  ClicOption(bureau, d.Option7[3]);
  ASSERT_GT(d.Combo8.liste.size(), 3U);
  for (std::size_t i = 0; i < d.Combo8.liste.size(); ++i) {
    ChoisitLigne(bureau, d.Combo8, static_cast<int>(i));
    const std::string nom = d.Combo8.liste[i];
    EXPECT_EQ(d.Combo6.texte, nom);
    EXPECT_EQ(d.Combo6.rang, RangEtoile(nom));
    const LigneEtoile ligne = Ligne(d.Combo6.rang + 1);
    EXPECT_EQ(d.Bayer1.legende + " " + d.Bayer2.legende, ligne.bayer) << nom;
  }
}

TEST_F(Astres, TheLettersOfEveryStarAreThoseOfItsRow) {
  ClicOption(bureau, d.Option7[3]);
  ClicCase(bureau, d.Check3);
  for (int i = 0; i < kNombreEtoiles; ++i) {
    ChoisitLigne(bureau, d.Combo6, i);
    EXPECT_EQ(d.Bayer1.legende + " " + d.Bayer2.legende, Ligne(i + 1).bayer) << d.Combo6.texte;
  }
  ClicOption(bureau, d.Option7[0]);
  EXPECT_EQ(d.Bayer1.legende + d.Bayer2.legende, "");
}

TEST_F(Astres, TheLitLimbOfTheMoonStandsOutForTheHourAndTheDateOfTheFields) {
  AuPointZero();
  Moment("6", "4", "2024", "16"); // a waning Moon sets before the Sun
  EXPECT_EQ(Accents(), "000") << "the Sun is chosen";
  ClicOption(bureau, d.Option7[1]);
  EXPECT_EQ(Accents(), "100");
  EXPECT_TRUE(d.Option6[1].choisi) << "advice selects nothing";
  Tape(d.Text3, "8");
  EXPECT_EQ(Accents(), "010") << "it rose before the Sun";
  Tape(d.Text3, "16");
  EXPECT_EQ(Accents(), "100");
  SaisitTexte(bureau, d.TDate[0], "10");
  EXPECT_EQ(Accents(), "010") << "a young Moon sets after the Sun";
  SaisitTexte(bureau, d.TDate[0], "31");
  EXPECT_EQ(Accents(), "010") << "an impossible date asks for no advice";
  Tape(d.Text13, "0");
  Tape(d.Text10, "");
  EXPECT_EQ(Accents(), "010");
  ClicOption(bureau, d.Option7[0]);
  EXPECT_EQ(Accents(), "000");
  Tape(d.Text3, "12");
  EXPECT_EQ(Accents(), "000");
}

TEST_F(Astres, ARefusedHourEmptiesItsFieldAndAsksForNoAdvice) {
  ClicOption(bureau, d.Option7[1]);
  Tape(d.Text3, "16");
  const std::string conseil = Accents();
  const double heure = bureau.visee.HeureDecimale;
  const double hauteur = bureau.lune.LuneHauteur;
  for (const char *refusee : {"61", "-1"}) {
    Tape(d.Text3, refusee);
    EXPECT_EQ(d.Text3.texte, "");
    EXPECT_EQ(Accents(), conseil);
    EXPECT_EQ(bureau.visee.HeureDecimale, heure);
    EXPECT_EQ(bureau.lune.LuneHauteur, hauteur);
  }
  Tape(d.Text3, "60");
  EXPECT_NE(bureau.visee.HeureDecimale, heure) << "hour 60 is taken";
}

TEST_F(Astres, TheMoonLeavesTheLimbAsItWasAndAllowsBoth) {
  ClicOption(bureau, d.Option7[2]);
  EXPECT_TRUE(d.Option6[2].choisi);
  ClicOption(bureau, d.Option7[1]);
  EXPECT_TRUE(d.Option6[2].choisi);
  EXPECT_TRUE(d.Option6[0].actif && d.Option6[1].actif);
  ClicOption(bureau, d.Option6[0]);
  EXPECT_TRUE(d.Option6[0].choisi);
}

TEST_F(Astres, AStarIsReducedWithItsLabelsItsNameAndALineOfTheJournal) {
  ChoisitEtoile("Vega");
  Observation o = LitPanneau(d);
  ValeursVisee valeurs;
  LitEstime(o, valeurs);
  AffichageDroite a;
  Calcul_DroiteSTAR(o, valeurs, bureau.etoiles, a, bureau.messages);
  Calcule();
  ToutEstMontre(a);
  EXPECT_EQ(bureau.NomAstre, "Vega");
  EXPECT_EQ(bureau.visee.Intercept, valeurs.Intercept);
  EXPECT_EQ(LignesDuJournal(), 2U);
  EXPECT_NE(Contenu(dossier.chemin() / "utilisateur" / "journal.csv").find(",Etoiles,Vega,21,06,2026,"),
            std::string::npos);
}

TEST_F(Astres, EachPlanetIsReducedWithItsLabelsItsNameAndALineOfTheJournal) {
  for (int planete = 0; planete < kNombrePlanetes; ++planete) {
    ChoisitPlanete(planete);
    Observation o = LitPanneau(d);
    ValeursVisee valeurs;
    AffichageDroite a;
    Calcul_DroitePLA(o, valeurs, a, bureau.messages);
    Calcule();
    ToutEstMontre(a);
    EXPECT_EQ(bureau.NomAstre, d.Combo7.texte);
    EXPECT_EQ(LignesDuJournal(), static_cast<std::size_t>(planete) + 2);
  }
}

TEST_F(Astres, TheMoonIsReducedWithItsLabelsItsNameAndALineOfTheJournal) {
  ClicOption(bureau, d.Option7[1]);
  ClicOption(bureau, d.Option6[0]);
  Observation o = LitPanneau(d);
  ValeursVisee valeurs;
  Lune lune;
  AffichageDroite a;
  Calcul_DroiteLUN(o, valeurs, lune, a, bureau.messages);
  Calcule();
  ToutEstMontre(a);
  EXPECT_EQ(bureau.NomAstre, "Lune");
  EXPECT_EQ(d.Text11.texte, "-1");
  EXPECT_EQ(d.Text10.texte, "2,5");
  EXPECT_EQ(LignesDuJournal(), 2U);
}

TEST_F(Astres, WithoutAStarOrAPlanetAPlainBoxSaysSoAndTheSheetIsDrawnWithTheSightBefore) {
  Calcule();
  const AffichageDroite avant = bureau.affichage;
  const float intercept = bureau.visee.Intercept;
  for (const std::size_t corps : {2U, 3U}) {
    ClicOption(bureau, d.Option7[corps]);
    boites.clear();
    bureau.image1.traces.clear();
    Calcule();
    ASSERT_EQ(boites.size(), 1U);
    EXPECT_EQ(boites[0].texte, "sélectionnez un astre dans la liste");
    EXPECT_EQ(boites[0].icone, Icone::Aucune);
    EXPECT_FALSE(boites[0].question);
    ToutEstMontre(avant);
    EXPECT_EQ(bureau.visee.Intercept, intercept);
    EXPECT_EQ(bureau.NomAstre, "Soleil");
    EXPECT_FALSE(bureau.image1.traces.empty());
    EXPECT_EQ(LignesDuJournal(), 2U);
  }
}

TEST_F(Astres, WithoutAnyKindOfBodyNothingIsReducedAndTheSheetIsDrawnWithTheSightBefore) {
  Calcule();
  const AffichageDroite avant = bureau.affichage;
  const float intercept = bureau.visee.Intercept;
  for (Controle &corps : d.Option7) {
    corps.choisi = false;
  }
  bureau.image1.traces.clear();
  Calcule();
  EXPECT_TRUE(boites.empty());
  ToutEstMontre(avant);
  EXPECT_EQ(bureau.visee.Intercept, intercept);
  EXPECT_FALSE(bureau.image1.traces.empty());
  EXPECT_EQ(LignesDuJournal(), 2U);
}

TEST_F(Astres, AnEmptyEyeHeightOfAStarOrAPlanetReachesTheEdgeAndOfTheMoonDoesNot) {
  ClicOption(bureau, d.Option7[1]);
  Tape(d.Text10, "");
  Calcule();
  EXPECT_EQ(bureau.NomAstre, "Lune");
  ChoisitPlanete(1);
  EXPECT_EQ(NumeroErreur([this] { Calcule(); }), 13);
  ChoisitEtoile("Vega");
  EXPECT_EQ(NumeroErreur([this] { Calcule(); }), 13);
  EXPECT_EQ(bureau.NomAstre, "Lune");
  EXPECT_EQ(LignesDuJournal(), 2U);
}

TEST_F(Astres, AStoredLineOfEachBodyComesBackWithItsStarOrPlanetAndItsResult) {
  ChoisitEtoile("Vega");
  Calcule();
  Presse(ModeDroite::Enregistre, 0);
  const auto etoile = Etat();
  ChoisitPlanete(1);
  Calcule();
  Presse(ModeDroite::Enregistre, 1);
  const auto planete = Etat();
  ClicOption(bureau, d.Option7[1]);
  ClicOption(bureau, d.Option6[0]);
  Calcule();
  Presse(ModeDroite::Enregistre, 2);
  const auto lune = Etat();
  EXPECT_EQ(d.Droite[0].infobulle + d.Droite[1].infobulle + d.Droite[2].infobulle, "VegaMarsLune");
  PoseRang(bureau, d.Combo6, 3, kNombreEtoiles);
  PoseRang(bureau, d.Combo7, 3, kNombrePlanetes);
  const auto montre = [&](int ligne) {
    ClicControle(bureau, d.Command6);
    Montre(ligne);
    return Etat();
  };
  const auto e = montre(0);
  EXPECT_EQ(d.Combo6.texte, "Vega");
  EXPECT_EQ(e[0] + "/" + e[1], etoile[0] + "/" + etoile[1]);
  const auto p = montre(1);
  EXPECT_EQ(p, planete);
  EXPECT_EQ(montre(2), lune);
  EXPECT_TRUE(d.Option6[0].choisi);
}

TEST_F(Astres, ASightOfEachBodyComesBackFromItsFileReduced) {
  const auto essaie = [&](const char *nom) {
    Calcule();
    const auto attendu = Etat();
    const auto chemin = dossier.chemin() / nom;
    SauveLoP(chemin, LitPanneau(d));
    PoseRang(bureau, d.Combo6, 3, kNombreEtoiles);
    PoseRang(bureau, d.Combo7, 0, kNombrePlanetes);
    ClicOption(bureau, d.Option7[0]);
    Tape(d.Text13, "20");
    Calcule();
    EXPECT_NE(d.Affichage_Intercept.legende, attendu[0]) << nom;
    ChargeVisee(bureau, chemin);
    EXPECT_EQ(d.Affichage_Intercept.legende + d.Affichage_Azimuth.legende, attendu[0] + attendu[1]) << nom;
    EXPECT_EQ(d.Label70[6].legende, attendu[7]) << nom;
    EXPECT_EQ(EcritLoP(LitPanneau(d)), attendu[6]) << nom;
  };
  ChoisitEtoile("Vega");
  essaie("star.LoP");
  EXPECT_EQ(d.Combo6.texte, "Vega");
  EXPECT_EQ(bureau.NomAstre, "Vega");
  ChoisitPlanete(1);
  essaie("planet.LoP");
  EXPECT_EQ(d.Combo7.texte, "Mars");
  EXPECT_EQ(bureau.NomAstre, "Mars");
  ClicOption(bureau, d.Option7[1]);
  ClicOption(bureau, d.Option6[0]);
  essaie("moon.LoP");
  EXPECT_TRUE(d.Option7[1].choisi);
  EXPECT_TRUE(d.Option6[0].choisi);
}

TEST_F(Astres, AFileOfAStarThatCannotBeReducedIsLoadedAllTheSame) {
  ChoisitEtoile("Vega");
  Calcule();
  Observation o = LitPanneau(d);
  o.hauteurOeil = "2.5";
  const auto chemin = dossier.chemin() / "point.LoP";
  SauveLoP(chemin, o);
  EXPECT_EQ(NumeroErreur([&] { ChargeVisee(bureau, chemin); }), 0);
  EXPECT_EQ(d.Text10.texte, "2.5");
  EXPECT_EQ(d.Combo6.texte, "Vega");
}

} // namespace
} // namespace velmaris::essais
