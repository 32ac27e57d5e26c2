#include "shell/RepriseSeance.hpp"

#include "foundations/Fichiers.hpp"
#include "shell/bureau/Sauvegarde.hpp"
#include "shell/carte/Objets.hpp"
#include "tests/shell/bureau/OutilsBureau.hpp"

#include <algorithm>

/// The session as the recovery file keeps it.
namespace velmaris::essais {
namespace {

class Reprise : public Programme {
protected:
  std::filesystem::path fichier = bureau.dossiers.utilisateur / kFichierReprise;

  std::string ValeurDe(const Session &session, const std::string &nom, int indice = -1) {
    const auto c = std::find_if(session.controles.begin(), session.controles.end(),
                                [&](const EtatControle &e) { return e.nom == nom && e.indice == indice; });
    return c == session.controles.end() ? "absent" : c->valeur;
  }

  void AttendAutreDroite() {
    TapeVisee();
    ClicControle(bureau, d.Command2);
    ClicOption(bureau, d.Option1[0]);
    ClicControle(bureau, d.Droite[1]);
    ClicControle(bureau, d.Command6);
    ClicControle(bureau, d.Droite[1]);
  }
};

TEST_F(Reprise, HoldsWhatWasTypedAndChosen) {
  DemarreSansCarte();
  TapeVisee();
  Tape(d.Text13, "34");
  ClicOption(bureau, d.Option7[3]);
  PoseRang(bureau, d.Combo6, 7, kNombreEtoiles);
  PoseValeur(bureau, d.HScroll1, 1230);
  const Session session = PriseSession(bureau);
  EXPECT_EQ(ValeurDe(session, "Text13"), "34");
  EXPECT_EQ(ValeurDe(session, "TDate", 2), d.TDate[2].texte);
  EXPECT_EQ(ValeurDe(session, "Option7", 3), "1");
  EXPECT_EQ(ValeurDe(session, "Option7", 0), "0");
  EXPECT_EQ(ValeurDe(session, "Combo6"), "7 " + d.Combo6.liste[7]);
  EXPECT_EQ(ValeurDe(session, "HScroll1"), "1230");
}

TEST_F(Reprise, LeavesOutTheListThatIsMadeFromTheFields) {
  DemarreSansCarte();
  ClicOption(bureau, d.Option7[3]);
  PoseRang(bureau, d.Combo6, 7, kNombreEtoiles);
  const Session session = PriseSession(bureau);
  EXPECT_TRUE(std::none_of(session.controles.begin(), session.controles.end(),
                           [](const EtatControle &e) { return e.nom == "Combo8"; }));
}

TEST_F(Reprise, HoldsTheLinesOfTheSheet) {
  DemarreSansCarte();
  AttendAutreDroite();
  const EtatFeuille feuille = PriseSession(bureau).feuille;
  EXPECT_EQ(feuille.origine, bureau.feuille.OrigineFeuille);
  EXPECT_EQ(feuille.droites[1], kPremiereDroite);
  EXPECT_EQ(feuille.droites[0], kHorsFeuille);
}

TEST_F(Reprise, HoldsTheObjectsThatNoFileHasYet) {
  DemarreSansCarte();
  EXPECT_FALSE(PriseSession(bureau).objets.has_value());
  AjouteObjet("Roche\tnoire");
  const Utilisateur &u = bureau.utilisateur;
  ASSERT_NE(u.Modifie, 0);
  const std::optional<Session> lue = LitSession(TexteSession(PriseSession(bureau)));
  ASSERT_TRUE(lue.has_value());
  EXPECT_NE(lue->objets.value_or("").find("Roche\tnoire"), std::string::npos);
}

TEST_F(Reprise, IsReadBackAsItWas) {
  DemarreSansCarte();
  AttendAutreDroite();
  d.Text16.texte = "a\\b\tc\r\nd";
  Session session = PriseSession(bureau);
  session.objets = "+47.50 +05.00 3 Roche\n+48.00 +06.00 2 Autre\n";
  session.feuille.transportsDroite = "13";
  session.feuille.cible = "2";
  session.feuille.transportsEstime = "0";
  session.feuille.estime = {47.123456F, -0.1F};
  session.feuille.grille = true;
  session.feuille.carte = true;
  session.feuille.estimeDite = {"N 47° 10", "W 005° 02"};
  session.point = {{"0123456789abcdef", true, {}}, {"droite 2", false, 1.25}};
  ASSERT_TRUE(session.resultat.reduite.has_value());
  EXPECT_EQ(LitSession(TexteSession(session)), session);
}

TEST_F(Reprise, AFileCutAnywhereIsNoSession) {
  DemarreSansCarte();
  const std::string texte = TexteSession(PriseSession(bureau));
  ASSERT_TRUE(LitSession(texte).has_value());
  for (std::size_t n = 0; n + 1 < texte.size(); ++n) {
    EXPECT_FALSE(LitSession(texte.substr(0, n)).has_value()) << n;
  }
}

TEST_F(Reprise, WhatIsNoSessionIsNotRead) {
  for (const char *texte :
       {"", "\n", "fin\n", "velmaris reprise 1\nfin\n", "velmaris reprise 2\nautre\t1\nfin\n",
        "velmaris reprise 2\nfeuille\t1\tx\t0\t0\nfin\n", "velmaris reprise 2\ncontrole\tText3\nfin\n",
        "velmaris reprise 2\ndroites\t1\t2\t3\nfin\n", "velmaris reprise 2\nestime\t1e99\t0\t\t\nfin\n"}) {
    EXPECT_FALSE(LitSession(texte).has_value()) << texte;
  }
}

TEST_F(Reprise, IsWrittenAtAChangeAndNotAtATick) {
  DemarreSansCarte();
  OuvreReprise(bureau);
  Tape(d.Text13, "64");
  GardeSession(bureau);
  bureau.reprise->Attend();
  const auto avant = bureau.reprise->ecritures();
  temps.seconde = 32;
  Timer1_Tick(bureau);
  GardeSession(bureau);
  bureau.reprise->Attend();
  EXPECT_EQ(bureau.reprise->ecritures(), avant);
  Tape(d.Text13, "65");
  GardeSession(bureau);
  bureau.reprise->Attend();
  EXPECT_EQ(bureau.reprise->ecritures(), avant + 1);
  EXPECT_EQ(LitSession(LitFichier(fichier)), PriseSession(bureau));
}

TEST_F(Reprise, AnOrderlyEndLeavesNone) {
  DemarreSansCarte();
  OuvreReprise(bureau);
  Tape(d.Text13, "64");
  GardeSession(bureau);
  bureau.reprise->Attend();
  ASSERT_TRUE(std::filesystem::exists(fichier));
  reponse = true;
  Sortie_Click(bureau, -1);
  EXPECT_FALSE(std::filesystem::exists(fichier));
}

TEST_F(Reprise, AnEndThatIsRefusedKeepsIt) {
  DemarreSansCarte();
  OuvreReprise(bureau);
  Tape(d.Text13, "64");
  GardeSession(bureau);
  bureau.reprise->Attend();
  reponse = false;
  Sortie_Click(bureau, -1);
  EXPECT_TRUE(std::filesystem::exists(fichier));
}

TEST_F(Reprise, AFailureThatEndsTheProgramLeavesIt) {
  DemarreSansCarte();
  OuvreReprise(bureau);
  Tape(d.Text13, "12");
  Secours(bureau, std::runtime_error("panne"));
  bureau.reprise.reset();
  EXPECT_EQ(ValeurDe(LitSession(LitFichier(fichier)).value_or(Session{}), "Text13"), "12");
}

TEST_F(Reprise, TheOneBeforeIsSetAside) {
  DemarreSansCarte();
  OuvreReprise(bureau);
  Tape(d.Text13, "12");
  GardeSession(bureau);
  bureau.reprise.reset();
  OuvreReprise(bureau);
  reponse = false;
  ProposeReprise(bureau, false);
  Tape(d.Text13, "13");
  GardeSession(bureau);
  bureau.reprise.reset();
  const auto lit = [&](const char *nom) {
    return ValeurDe(LitSession(LitFichier(bureau.dossiers.utilisateur / nom)).value_or(Session{}), "Text13");
  };
  EXPECT_EQ(lit(kDerniereReprise), "12");
  EXPECT_EQ(lit(kFichierReprise), "13");
}

} // namespace
} // namespace velmaris::essais
