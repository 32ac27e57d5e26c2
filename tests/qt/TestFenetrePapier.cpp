#include "OutilsFenetre.hpp"

#include "shell/papier/Papier.hpp"
#include "shell/papier/SourcesPapier.hpp"
#include "shell/qt/peinture/FeuilletQt.hpp"
#include "shell/qt/systeme/Imprimante.hpp"
#include "shell/qt/widgets/Papier.hpp"

#include <QDialog>
#include <QImage>
#include <QPageRanges>
#include <QPdfWriter>
#include <QPrinter>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>

/// The window of printed pages on the screen, and the pages with real fonts.
namespace velmaris::essais {
namespace {

constexpr double kPoints = 1200 / 1440.0;

/// What a support of a PDF file measures texts by.
struct Mesure {
  Mesure() { pdf.setResolution(1200); }
  QTemporaryDir dossier;
  QPdfWriter pdf{dossier.filePath("mesure.pdf")};
};

/// No text of a page leaves it, and no two that stand level overprint each other.
void RienNeDeborde(const Feuillet &page) {
  static const Mesure mesure;
  std::vector<std::pair<QRectF, std::string>> zones;
  for (const ElementFeuillet &e : page.elements) {
    const auto *mot = std::get_if<MotFeuillet>(&e);
    if (mot == nullptr || mot->graphie.angle != 0 || mot->texte.empty()) {
      continue;
    }
    QRectF zone = qt::ZoneDuMot(*mot, mesure.pdf, kPoints);
    EXPECT_GE(zone.left(), 200) << page.titre << " : " << mot->texte;
    EXPECT_LE(zone.right(), page.largeur - 200) << page.titre << " : " << mot->texte;
    EXPECT_LE(zone.bottom(), page.hauteur - 200) << page.titre << " : " << mot->texte;
    zone.adjust(5, zone.height() * 0.25, -5, -zone.height() * 0.25); // letters, not their line's whole height
    zones.emplace_back(zone, mot->texte);
  }
  for (std::size_t i = 0; i < zones.size(); ++i) {
    for (std::size_t j = i + 1; j < zones.size(); ++j) {
      EXPECT_FALSE(zones[i].first.intersects(zones[j].first))
          << page.titre << " : " << zones[i].second << " / " << zones[j].second;
    }
  }
}

class FenetreDesPages : public FenetreOuverte {
protected:
  void OuvrePages(const Ecran &ecran, bool anglais) {
    Ouvre(ecran, anglais);
    Joue([this] { TapeVisee(); });
    Joue([this] { Calcule(); });
    Joue([this] { ClicControle(bureau, d.PU_Papier); });
    papier = fenetre->findChild<QDialog *>("Papier");
    ASSERT_NE(papier, nullptr);
    feuille = papier->findChild<qt::Papier *>("Feuille");
    ASSERT_NE(feuille, nullptr);
  }
  void Vers(OngletPapier onglet) {
    Joue([this, onglet] { ChoisitLigne(bureau, bureau.fenetrePapier.Onglets1, static_cast<int>(onglet)); });
  }

  QDialog *papier = nullptr;
  qt::Papier *feuille = nullptr;
};

TEST_F(FenetreDesPages, ItHasRoomForItsWordsInBothLanguages) {
  for (const bool anglais : {false, true}) {
    OuvrePages(kPetitEcran, anglais);
    for (int onglet = 0; onglet < 4; ++onglet) {
      Vers(static_cast<OngletPapier>(onglet));
      RienDeCoupe(*papier, nullptr);
      EXPECT_EQ(scene.Ecart(), nullptr);
    }
    fenetre.reset();
    bureau.fenetrePapier.cadre.visible = false;
  }
}

TEST_F(FenetreDesPages, EveryWarningHasRoomInItsLine) {
  FenetrePapier &f = bureau.fenetrePapier;
  for (const bool anglais : {false, true}) {
    OuvrePages(kPetitEcran, anglais);
    const auto tape = [&](Controle &champ, const char *texte) {
      const std::string avant = champ.texte;
      Joue([&] { SaisitTexte(bureau, champ, texte); });
      EXPECT_FALSE(f.LabAvis.legende.empty()) << texte;
      RienDeCoupe(*papier, nullptr);
      Joue([&] { SaisitTexte(bureau, champ, avant); });
    };
    tape(f.Text1[0], "31/02/2026");
    tape(f.Text1[0], "01/01/1850");
    tape(f.Text1[1], "31/12/2099");
    tape(f.Text1[2], "65 N, 60 N, 55 N, 50 N, 45, 40 N, 35 N, 30 N");
    Vers(OngletPapier::Vierge);
    tape(f.Text3[0], "84 30 N");
    tape(f.Text3[1], "12000");
    fenetre.reset();
    f.cadre.visible = false;
    f.Onglets1.rang = 0;
  }
}

TEST(PagesAImprimer, OnlyThePagesOfTheDialogsRangeArePrinted) {
  std::vector<Feuillet> pages(5);
  for (std::size_t i = 0; i < pages.size(); ++i) {
    pages[i].titre = std::to_string(i + 1);
  }
  const auto choisis = [&](const QPrinter &imprimante) {
    std::string titres;
    for (const Feuillet &page : qt::FeuilletsChoisis(pages, imprimante)) {
      titres += page.titre;
    }
    return titres;
  };
  QPrinter toutes;
  EXPECT_EQ(choisis(toutes), "12345");
  QPrinter deDeuxATrois;
  deDeuxATrois.setPrintRange(QPrinter::PageRange);
  deDeuxATrois.setFromTo(2, 3);
  EXPECT_EQ(choisis(deDeuxATrois), "23");
  QPrinter plages;
  plages.setPrintRange(QPrinter::PageRange);
  plages.setPageRanges(QPageRanges::fromString("1,4-9"));
  EXPECT_EQ(choisis(plages), "145");
}

TEST_F(FenetreDesPages, PagesKeepTheirWordsApartAndInside) {
  for (const bool anglais : {false, true}) {
    OuvrePages(kPetitEcran, anglais);
    for (const FormatPapier format : {FormatPapier::A4, FormatPapier::Lettre}) {
      for (const Feuillet &page : FichesVoulues(bureau, false, true, format).pages) {
        RienNeDeborde(page);
      }
      Vers(OngletPapier::Jour);
      for (const Feuillet &page : JourVoulu(bureau, format).pages) {
        RienNeDeborde(page);
      }
    }
    Vers(OngletPapier::Vierge);
    RienNeDeborde(*bureau.fenetrePapier.Feuille.feuillet);
    fenetre.reset();
    bureau.fenetrePapier.cadre.visible = false;
  }
}

TEST_F(FenetreDesPages, AClickShowsThePageLargerAndWholeAgainAndTheMouseDrawsItAlong) {
  OuvrePages(kPetitEcran, false);
  Vers(OngletPapier::Fiche);
  const QImage entiere = feuille->grab().toImage();
  const auto clic = [&](QPointF de, QPointF a) {
    for (const auto &[genre, place] : {std::pair(QEvent::MouseButtonPress, de), std::pair(QEvent::MouseMove, a),
                                       std::pair(QEvent::MouseButtonRelease, a)}) {
      QMouseEvent event(genre, place, feuille->mapToGlobal(place), Qt::LeftButton,
                        genre == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
      QApplication::sendEvent(feuille, &event);
    }
  };
  clic({100, 100}, {100, 100});
  EXPECT_TRUE(feuille->gros());
  const QImage grosse = feuille->grab().toImage();
  EXPECT_NE(grosse, entiere);
  clic({100, 100}, {160, 190});
  EXPECT_TRUE(feuille->gros()) << "a page that is drawn along stays large";
  EXPECT_NE(feuille->grab().toImage(), grosse);
  Touche(feuille, Qt::Key_Space);
  EXPECT_FALSE(feuille->gros());
  EXPECT_EQ(feuille->grab().toImage(), entiere);
}

TEST_F(FenetreDesPages, ByNightAPageIsRedOnBlack) {
  OuvrePages(kPetitEcran, false);
  Vers(OngletPapier::Fiche);
  Joue([this] { ClicControle(bureau, d.PU_Nuit); });
  const QImage image = feuille->grab().toImage();
  int bleus = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QRgb c = image.pixel(x, y);
      bleus += qBlue(c) > qRed(c) + 8 || qGreen(c) > qRed(c) + 8 || qRed(c) > 200 ? 1 : 0;
    }
  }
  EXPECT_EQ(bleus, 0);
}

/// The words of a PDF file as another program reads them.
QString MotsDuPdf(const std::string &octets) {
  QTemporaryDir dossier;
  QFile fichier(dossier.filePath("essai.pdf"));
  EXPECT_TRUE(fichier.open(QIODevice::WriteOnly));
  fichier.write(octets.data(), static_cast<qint64>(octets.size()));
  fichier.close();
  QProcess lecteur;
  lecteur.start("pdftotext", {"-layout", fichier.fileName(), "-"});
  EXPECT_TRUE(lecteur.waitForFinished(20000));
  return QString::fromUtf8(lecteur.readAllStandardOutput());
}

TEST_F(FenetreDesPages, AWrittenFileHasEveryWordOfItsPagesAndOnePageForEach) {
  OuvrePages(kPetitEcran, false);
  const std::vector<Feuillet> pages = FichesVoulues(bureau, false, true, FormatPapier::A4).pages;
  ASSERT_EQ(pages.size(), 2U);
  const QString mots = MotsDuPdf(qt::OctetsPdf(pages, {}));
  EXPECT_EQ(mots.count('\f'), 2);
  const QString serre = QString(mots).remove(' ');
  for (const Feuillet &page : pages) {
    for (const ElementFeuillet &e : page.elements) {
      if (const auto *mot = std::get_if<MotFeuillet>(&e)) {
        EXPECT_TRUE(serre.contains(QString::fromStdString(mot->texte).remove(' '))) << mot->texte;
      }
    }
  }
}

TEST_F(FenetreDesPages, AWorkThatIsToStopWritesNothing) {
  OuvrePages(kPetitEcran, false);
  std::stop_source arret;
  arret.request_stop();
  EXPECT_TRUE(
      qt::OctetsPdf(FichesVoulues(bureau, false, false, FormatPapier::A4).pages, {arret.get_token(), {}}).empty());
}

} // namespace
} // namespace velmaris::essais
