#include "OutilsDisquePlein.hpp"

#include "complements/registre/Annotations.hpp"
#include "complements/registre/PointsGardes.hpp"
#include "foundations/Fichiers.hpp"
#include "shell/Reprise.hpp"
#include "shell/bureau/Sauvegarde.hpp"
#include "shell/ecran/Copie.hpp"
#include "shell/papier/Papier.hpp"
#include "shell/point/Point.hpp"
#include "shell/registre/LectureRegistre.hpp"
#include "shell/registre/Registre.hpp"
#include "shell/serie/Serie.hpp"

#include <gmock/gmock.h>

#include <functional>

/// What the complements write, on a disk without room: each refusal is told, what was there stays whole, nothing half
/// written lies about, and the same gesture writes once there is room.
namespace velmaris::essais {
namespace {

using testing::EndsWith;
using testing::IsEmpty;

class ComplementsSansPlace : public DisquePlein {
protected:
  /// Two sights of the log, which is open.
  void OuvreLog() {
    TapePremiere();
    Calcule();
    TapeSeconde();
    Calcule();
    ClicControle(bureau, d.PU_Registre);
    AccordeRegistre(bureau);
    ChoisitLignes(bureau, bureau.registre.Table1, {0, 1}, 1);
    AccordeRegistre(bureau);
  }

  /// A window's "write" onto a file of the small disk, over an older one.
  void EcritSur(const std::string &nom, const std::function<void()> &geste) {
    const fs::path fichier = disque / nom;
    Libere();
    Pose(fichier, "ancien");
    Remplit();
    boites.clear();
    reponse = true; // the older one may go
    Jouera([this, fichier] { Donne(fichier.string()); });
    geste();
    EXPECT_EQ(Contenu(fichier), "ancien") << nom;
    EXPECT_GE(BoitesQuiDisent(nom), 1U) << nom << " is told";
    SansProvisoire();
    Libere();
    boites.clear();
    Jouera([this, fichier] { Donne(fichier.string()); });
    geste();
    EXPECT_NE(Contenu(fichier), "ancien") << nom;
    EXPECT_NE(Contenu(fichier), "") << nom;
  }

  void SansProvisoire() const {
    for (const auto &entree : fs::directory_iterator(disque)) {
      const std::string nom = entree.path().filename().string();
      EXPECT_TRUE(nom.find(".ecrit") == std::string::npos && nom.front() != '.') << nom;
    }
  }
};

TEST_F(ComplementsSansPlace, WhatTheLogSaysOfASightIsKeptWholeOrTold) {
  OuvreLog();
  const fs::path masques = disque / "masques.csv";
  Tape(bureau.registre.Text2, "avant");
  const std::string avant = Contenu(masques);
  ASSERT_THAT(avant, EndsWith("\n"));
  Remplit();
  boites.clear();
  // A file's last block has room for some more lines.
  for (int n = 0; n < 200 && boites.empty(); ++n) {
    Tape(bureau.registre.Text2, "note " + std::to_string(n));
  }
  EXPECT_EQ(BoitesQuiDisent("masques.csv"), 1U);
  const std::string pleine = Contenu(masques);
  EXPECT_THAT(pleine, EndsWith("\n")) << "no line is cut";
  Tape(bureau.registre.Text2, "encore");
  EXPECT_EQ(boites.size(), 1U) << "told once";
  EXPECT_EQ(Contenu(masques), pleine);
  Libere();
  Tape(bureau.registre.Text2, "enfin");
  const Annotations lues = LitAnnotations(Contenu(masques));
  EXPECT_EQ(std::count_if(lues.begin(), lues.end(), [](const auto &a) { return a.second.note == "enfin"; }), 1);
}

TEST_F(ComplementsSansPlace, AKeptFixIsALineOfItsFileOrIsTold) {
  constexpr std::int64_t kDebut = 1'782'000'000; // June 2026
  const fs::path points = disque / "points.csv";
  const FenetrePoint &point = bureau.fenetrePoint;
  int gardes = 0;
  const auto garde = [&] {
    bureau.point.heure = UTCDeSecondes(kDebut + 60 * gardes++);
    bureau.point.actuelle.solution = SolutionPoint{};
    ClicControle(bureau, bureau.fenetrePoint.Command3[1]);
  };
  garde();
  Remplit();
  std::string avant;
  do {
    avant = Contenu(points);
    garde();
  } while (Contenu(points) != avant && gardes < 300);
  ASSERT_LT(gardes, 300);
  EXPECT_EQ(bureau.etat.avis, point.TexteGardeRefuse.legende);
  EXPECT_EQ(LitPoints(Contenu(points)).size(), static_cast<std::size_t>(gardes - 1)) << "those said to be kept";
  Libere();
  garde();
  EXPECT_EQ(LitPoints(Contenu(points)).size(), static_cast<std::size_t>(gardes - 1));
}

TEST_F(ComplementsSansPlace, RowsOfTheLogGoIntoAFileWhollyOrNotAtAll) {
  OuvreLog();
  EcritSur("sortie.csv", [this] { ClicControle(bureau, bureau.registre.Command4); });
  ChoisitLignes(bureau, bureau.registre.Table1, {0}, 0);
  AccordeRegistre(bureau);
  EcritSur("une.LoP", [this] { ClicControle(bureau, bureau.registre.Command5); });
}

TEST_F(ComplementsSansPlace, PagesAndTheirRowsGoIntoAFileWhollyOrNotAtAll) {
  bureau.ports.pdf = [](const std::vector<Feuillet> &, const Avancement &) { return std::string(9000, 'p'); };
  FenetrePapier &p = bureau.fenetrePapier;
  ClicControle(bureau, d.PU_Papier);
  AccordePapier(bureau);
  SaisitTexte(bureau, p.Text1[0], "01/01/2026");
  SaisitTexte(bureau, p.Text1[1], "01/01/2026");
  SaisitTexte(bureau, p.Text1[2], "45 N");
  ClicControle(bureau, p.Command1[0]);
  AccordePapier(bureau);
  EcritSur("almanach.pdf", [&] { ClicControle(bureau, p.Command2[0]); });
  EcritSur("almanach.csv", [&] { ClicControle(bureau, p.Command2[2]); });
}

TEST_F(ComplementsSansPlace, ReadingsOfARunGoIntoAFileWhollyOrNotAtAll) {
  ClicControle(bureau, d.PU_Serie);
  FenetreSerie &serie = bureau.fenetreSerie;
  SaisitTexte(bureau, serie.Text1[0], "21/06/2026");
  SaisitTexte(bureau, serie.Text1[1], "09:00");
  SaisitTexte(bureau, serie.Text4[0], "09:00:10");
  SaisitTexte(bureau, serie.Text4[1], "42 10.0");
  ClicControle(bureau, serie.Command3[0]);
  AccordeSerie(bureau);
  ASSERT_EQ(bureau.serie.lectures.size(), 1U);
  EcritSur("serie.txt", [&] { ClicControle(bureau, serie.Command3[6]); });
}

TEST_F(ComplementsSansPlace, APictureGoesIntoAFileWhollyOrNotAtAll) {
  bureau.ports.image = [](const Surface &, FormeImage) { return std::string(9000, 'i'); };
  for (const char *nom : {"feuille.png", "feuille.svg", "feuille.pdf"}) {
    EcritSur(nom, [&, nom] { EcritImageDe(bureau, bureau.image1, disque / nom, kFenetreDonnees); });
  }
}

TEST_F(ComplementsSansPlace, TheSessionThatWasKeptStaysWholeAndANewerOneFollowsOnceThereIsRoom) {
  OuvreReprise(bureau);
  const fs::path reprise = disque / kFichierReprise;
  const auto garde = [&](const std::string &longitude) {
    SaisitTexte(bureau, d.Text6, longitude);
    GardeSession(bureau);
    bureau.reprise->Attend();
  };
  garde("5");
  const std::string avant = Contenu(reprise);
  ASSERT_TRUE(LitSession(avant));
  Remplit();
  garde("6");
  EXPECT_EQ(Contenu(reprise), avant);
  SansProvisoire();
  EXPECT_THAT(boites, IsEmpty()) << "what only a death needs disturbs nobody";
  Libere();
  garde("7");
  ASSERT_TRUE(LitSession(Contenu(reprise)));
  EXPECT_NE(Contenu(reprise), avant);
  bureau.reprise.reset();
}

} // namespace
} // namespace velmaris::essais
