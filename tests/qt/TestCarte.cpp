#include "OutilsFenetre.hpp"

#include "shell/qt/peinture/Bandes.hpp"
#include "shell/qt/peinture/Toile.hpp"
#include "shell/qt/peinture/Traces.hpp"

#include <QMenu>
#include <QPainter>
#include <QWheelEvent>

#include <cmath>

namespace velmaris::essais {
namespace {

/// The window with a sheet on its surface, and the mouse over it.
class CarteOuverte : public FenetreOuverte {
protected:
  void OuvreFeuille() {
    Ouvre(kPetitEcran);
    fenetre->activateWindow();
    d.Check2.valeur = 0;
    Joue([this] {
      TapeVisee();
      Calcule();
    });
    toile = Trouve<qt::Toile>("Image1");
  }

  void Souris(QEvent::Type genre, QPointF place, Qt::MouseButton bouton, Qt::MouseButtons boutons) {
    QMouseEvent event(genre, place, toile->mapToGlobal(place), bouton, boutons, Qt::NoModifier);
    QApplication::sendEvent(toile, &event);
    QApplication::processEvents();
  }
  void Bouge(QPointF place, Qt::MouseButtons boutons = Qt::NoButton) {
    Souris(QEvent::MouseMove, place, Qt::NoButton, boutons);
  }
  void Presse(QPointF place, Qt::MouseButton bouton) { Souris(QEvent::MouseButtonPress, place, bouton, bouton); }
  void Lache(QPointF place, Qt::MouseButton bouton) { Souris(QEvent::MouseButtonRelease, place, bouton, Qt::NoButton); }
  void ClicDroit(QPointF place) {
    Bouge(place);
    Presse(place, Qt::RightButton);
    Lache(place, Qt::RightButton);
  }

  void Molette(int angle, Qt::KeyboardModifiers touches) {
    const QPointF place(400, 400);
    QWheelEvent event(place, toile->mapToGlobal(place), {}, {0, angle}, Qt::NoButton, touches, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(toile, &event);
    QApplication::processEvents();
  }

  QMenu *Menu() { return fenetre->findChild<QMenu *>("PopUp"); }
  QAction *Entree(const char *nom) { return Menu()->findChild<QAction *>(nom); }

  qt::Toile *toile = nullptr;
};

TEST_F(CarteOuverte, ANameThatChangesAtALinesEndIsPaintedAnew) {
  OuvreFeuille();
  ASSERT_EQ(bureau.image1.etiquettes.size(), 1U);
  const QImage avant = toile->grab().toImage();
  Joue([this] { bureau.image1.etiquettes[0].texte.texte = "Sun 12:05"; });
  EXPECT_NE(toile->grab().toImage(), avant);
}

TEST_F(CarteOuverte, PaintedInBandsItLooksAsPaintedAtOnce) {
  OuvreFeuille();
  PoseValeur(bureau, d.HScroll1, 20000);
  Joue([this] {
    Calcule();
    ClicControle(bureau, d.Command17);
  });
  ASSERT_FALSE(bureau.image1.aires.empty());
  const double facteur = qt::PixelsParTwip(*toile);
  const auto peint = [&](QPainter &painter) {
    painter.fillRect(toile->rect(), Qt::white);
    qt::PeintAires(painter, bureau.image1, facteur, {});
    qt::PeintLignes(painter, bureau.image1, facteur, 0, {});
  };
  QImage entiere(toile->size(), QImage::Format_RGB32);
  QImage bandes(toile->size(), QImage::Format_RGB32);
  QPainter painter(&entiere);
  peint(painter);
  qt::PeintEnBandes(bandes, peint, 3);
  int autres = 0;
  for (int y = 0; y < entiere.height(); ++y) {
    for (int x = 0; x < entiere.width(); ++x) {
      const QRgb a = entiere.pixel(x, y);
      const QRgb b = bandes.pixel(x, y);
      autres += std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b)) > 6;
    }
  }
  EXPECT_LE(autres, entiere.width() / 50) << "pixels, along two seams";
}

TEST_F(CarteOuverte, TheLayerLiesOverTheLinesAndGoesWithoutATrace) {
  OuvreFeuille();
  Surface surface = bureau.image1;
  qt::Toile seule(surface, nullptr);
  seule.resize(toile->size());
  seule.Accorde();
  const QImage avant = seule.grab().toImage();
  surface.calque.traces.emplace_back(CercleTrace{{kRouge, 2}, {6000, 5000}, 500});
  seule.Accorde();
  EXPECT_NE(seule.grab().toImage(), avant);
  surface.calque = {};
  seule.Accorde();
  EXPECT_EQ(seule.grab().toImage(), avant);
}

TEST_F(CarteOuverte, TheLeftButtonOpensTheMenuAtThePointer) {
  OuvreFeuille();
  Presse({400, 300}, Qt::LeftButton);
  ASSERT_NE(Menu(), nullptr);
  EXPECT_TRUE(Menu()->isVisible());
  EXPECT_TRUE(Entree("PU_D")->isChecked()) << "the module of the sight shows";
  EXPECT_FALSE(Entree("PU_C")->isChecked());
  EXPECT_TRUE(Entree("PU_Apropos")->isEnabled());
  Image("menu-carte");
  Entree("PU_C")->trigger();
  QApplication::processEvents();
  EXPECT_TRUE(d.FOptionCarte.visible);
  EXPECT_TRUE(Trouve<QWidget>("FOptionCarte")->isVisible());
}

TEST_F(CarteOuverte, TheMenuIsInTheLanguageOfTheWindow) {
  OuvreFeuille();
  Joue([this] { ClicControle(bureau, d.Image10[1]); });
  Presse({400, 300}, Qt::LeftButton);
  EXPECT_EQ(Entree("PU_Carte")->text(), "Show the chart");
}

TEST_F(CarteOuverte, TheMenuTellsTheKeysThatDoTheSame) {
  OuvreFeuille();
  Presse({400, 300}, Qt::LeftButton);
  EXPECT_EQ(Entree("PU_Annule")->text(), "Annuler\tCtrl+Z");
  EXPECT_EQ(Entree("PU_PleinEcran")->text(), "Plein écran\tF11");
  EXPECT_TRUE(Entree("PU_Annule")->shortcut().isEmpty()) << "the window listens to its keys itself";
  EXPECT_EQ(Entree("PU_Image")->text(), "Enregistrer l'image...");
  EXPECT_EQ(Entree("PU_Image")->toolTip(), "PNG, SVG ou PDF");
}

TEST_F(CarteOuverte, TheMenuGoesWithItsEntryAndOpensAgain) {
  OuvreFeuille();
  for (int tour = 0; tour < 3; ++tour) {
    Presse({400, 300}, Qt::LeftButton);
    ASSERT_NE(Menu(), nullptr);
    Menu()->close();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(Menu(), nullptr);
  }
}

TEST_F(CarteOuverte, TheKeyOfTheMenuOpensItInTheMiddleOfTheSurface) {
  OuvreFeuille();
  Touche(Trouve<QWidget>("Command2"), Qt::Key_Menu);
  ASSERT_NE(Menu(), nullptr);
  EXPECT_NEAR(bureau.souris.ClicX, bureau.image1.largeur / 2, 1);
  EXPECT_NEAR(bureau.souris.ClicY, bureau.image1.hauteur / 2, 1);
}

TEST_F(CarteOuverte, TheWheelWithTheControlKeyTurnsTheZoomByWholeNotches) {
  OuvreFeuille();
  Molette(120, Qt::NoModifier);
  EXPECT_EQ(d.HScroll1.valeur, 2000);
  Molette(-120, Qt::ControlModifier);
  EXPECT_EQ(d.HScroll1.valeur, 2500);
  Molette(60, Qt::ControlModifier);
  EXPECT_EQ(d.HScroll1.valeur, 2500) << "half a notch";
  Molette(60, Qt::ControlModifier);
  EXPECT_EQ(d.HScroll1.valeur, 2000);
}

TEST_F(CarteOuverte, PlusAndMinusTurnTheZoomOnTheSurfaceAndAreTypedInAField) {
  OuvreFeuille();
  Touche(toile, Qt::Key_Minus, "-");
  EXPECT_EQ(d.HScroll1.valeur, 2500);
  Touche(toile, Qt::Key_Plus, "+");
  EXPECT_EQ(d.HScroll1.valeur, 2000);
  auto *champ = Trouve<QLineEdit>("Text11");
  champ->setFocus();
  champ->selectAll();
  Touche(champ, Qt::Key_Minus, "-");
  EXPECT_EQ(d.HScroll1.valeur, 2000);
  EXPECT_EQ(d.Text11.texte, "-");
}

TEST_F(CarteOuverte, TheCrossIsThePointerWhileLegsAreMeasured) {
  OuvreFeuille();
  Joue([this] { ClicControle(bureau, d.PU_Distance); });
  EXPECT_EQ(toile->cursor().shape(), Qt::CrossCursor);
  Joue([this] { ClicControle(bureau, d.PU_Distance); });
  EXPECT_EQ(toile->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(CarteOuverte, LegsAreMeasuredByTheMouseAndATremblingHandLosesNone) {
  OuvreFeuille();
  Joue([this] { ClicControle(bureau, d.PU_Distance); });
  ClicDroit({300, 300});
  const QPointF bout(500, 300);
  Bouge(bout);
  const std::string milles = d.Label56.legende;
  EXPECT_NE(milles, "0");
  Presse(bout, Qt::RightButton);
  Bouge(bout + QPointF(2, 1), Qt::RightButton);
  Lache(bout + QPointF(2, 1), Qt::RightButton);
  ASSERT_EQ(d.List1.liste.size(), 1U);
  EXPECT_EQ(d.Label15.legende, milles);
  EXPECT_EQ(std::stoi(d.List1.liste[0]), std::stoi(milles));
}

TEST_F(CarteOuverte, AMiddleOrLeftClickInDistanceModeEndsNoLeg) {
  OuvreFeuille();
  Joue([this] { ClicControle(bureau, d.PU_Distance); });
  ClicDroit({300, 300});
  Bouge({500, 300});
  for (const Qt::MouseButton bouton : {Qt::MiddleButton, Qt::LeftButton}) {
    Presse({500, 300}, bouton);
    Lache({500, 300}, bouton);
    EXPECT_TRUE(d.List1.liste.empty());
  }
  ClicDroit({500, 300});
  EXPECT_EQ(d.List1.liste.size(), 1U);
}

TEST_F(CarteOuverte, ThePresentLegIsSeenWhileThePointerMovesAndIsNoPartOfTheSurface) {
  OuvreFeuille();
  Joue([this] { ClicControle(bureau, d.PU_Distance); });
  ClicDroit({300, 500});
  const std::size_t traces = bureau.image1.traces.size();
  Bouge({700, 560});
  EXPECT_EQ(bureau.image1.traces.size(), traces);
  const QImage image = toile->grab().toImage();
  int magenta = 0;
  for (int x = 310; x < 690; ++x) {
    const int y = 500 + (x - 300) * 60 / 400;
    for (int dy = -2; dy <= 2; ++dy) {
      const QColor c = image.pixelColor(x, y + dy);
      magenta += c.red() > 200 && c.blue() > 200 && c.green() < 200 ? 1 : 0;
    }
  }
  EXPECT_GT(magenta, 50);
}

TEST_F(CarteOuverte, TheCoordinateLabelFollowsThePointer) {
  OuvreFeuille();
  Joue([this] { ClicControle(bureau, d.PU_Coord); });
  Bouge({600, 300});
  auto *label = Trouve<QLabel>("LabC");
  EXPECT_TRUE(label->isVisible());
  EXPECT_EQ(label->text().toStdString(), d.LabC.legende);
  EXPECT_LE(label->fontMetrics().horizontalAdvance("N88.88   W188.88"), label->width());
  EXPECT_LT(label->geometry().right(), 600) << "in the right half it stands to the left";
  Bouge({300, 300});
  EXPECT_GT(label->geometry().left(), 300);
}

TEST_F(CarteOuverte, TheBusyPointerIsSeenWhileTheCoreSaysSoAndGoesAfterwards) {
  OuvreFeuille();
  bureau.pointeurOccupe = true;
  scene.AccordePointeur();
  ASSERT_NE(QApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  Joue([this] { bureau.pointeurOccupe = false; });
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

/// A place and what its chart must show.
struct Lieu {
  const char *nom;
  Origine centre;
  double milles;
};

class Bouts : public FenetreOuverte, public ::testing::WithParamInterface<Lieu> {};

TEST_P(Bouts, TheChartIsDrawnThereAndNothingRunsAcrossIt) {
  Ouvre(kGrandEcran);
  const Lieu &lieu = GetParam();
  Joue([&] {
    Feuille &f = bureau.feuille;
    f.OrigineFeuille = lieu.centre;
    f.Zoom = static_cast<std::int16_t>(lieu.milles);
    f.EchelleY = static_cast<float>(bureau.image1.hauteur / lieu.milles);
    f.EchelleX = static_cast<float>(f.EchelleY * std::cos(lieu.centre.latitude * 3.14159265 / 180));
    Donnees_KeyDown(bureau, 115);
  });
  EXPECT_TRUE(boites.empty());
  const double mille = bureau.feuille.EchelleY;
  std::size_t cotes = 0;
  for (const Segment &s : Segments(bureau.image1)) {
    EXPECT_LT(std::hypot(s.fin.x - s.debut.x, s.fin.y - s.debut.y), 62 * mille);
    ++cotes;
  }
  EXPECT_GT(cotes, 200U);
  Image(QString("carte-%1").arg(lieu.nom));
}

INSTANTIATE_TEST_SUITE_P(DuMonde, Bouts,
                         ::testing::Values(Lieu{"fidji", {-17.0F, -179.5F}, 400},
                                           Lieu{"groenland", {82.5F, 35.0F}, 600},
                                           Lieu{"tchoukotka", {66.0F, 178.0F}, 800},
                                           Lieu{"antilles", {15.0F, 61.5F}, 400}),
                         [](const auto &cas) { return std::string(cas.param.nom); });

/// What is recorded, painted at a number of pixels per 1/1440 inch.
QImage Peint(const Surface &surface, double facteur, QSize taille) {
  QImage image(taille, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  qt::PeintTraces(painter, surface, facteur);
  return image;
}

TEST(Peinture, PointsCloserThanAQuarterPixelMakeNoDifferenceThatCanBeSeen) {
  Surface dense = SurfaceNeuve(6000, 6000);
  Surface rare = SurfaceNeuve(6000, 6000);
  const auto place = [](double t) { return Point{3000 + 2500 * std::cos(t), 3000 + 2000 * std::sin(2 * t)}; };
  for (int i = 0; i < 50000; ++i) {
    Ligne(dense, place(i * 6.28 / 50000), place((i + 1) * 6.28 / 50000), kNoir);
  }
  for (int i = 0; i < 500; ++i) {
    Ligne(rare, place(i * 6.28 / 500), place((i + 1) * 6.28 / 500), kNoir);
  }
  const QImage a = Peint(dense, 1 / 15.0, {400, 400});
  const QImage b = Peint(rare, 1 / 15.0, {400, 400});
  int ecarts = 0;
  for (int y = 0; y < 400; ++y) {
    for (int x = 0; x < 400; ++x) {
      ecarts += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) > 96 ? 1 : 0;
    }
  }
  EXPECT_LT(ecarts, 20) << "of some 1500 pixels of the line";
}

TEST(Peinture, AnIsletUnderHalfAPixelIsNotPaintedAndIsSeenNearer) {
  Surface surface = SurfaceNeuve(6000, 6000);
  Ligne(surface, {3000, 3000}, {3001, 3001}, kNoir);
  Ligne(surface, {3001, 3001}, {3002, 3000}, kNoir);
  Ligne(surface, {3002, 3000}, {3000, 3000}, kNoir);
  QImage blanche(400, 400, QImage::Format_RGB32);
  blanche.fill(Qt::white);
  EXPECT_EQ(Peint(surface, 1 / 15.0, {400, 400}), blanche);
  EXPECT_NE(Peint(surface, 0.2667, {1600, 1600}), blanche.scaled(1600, 1600));
}

} // namespace
} // namespace velmaris::essais
