#include "OutilsFenetre.hpp"

#include "shell/qt/peinture/Icones.hpp"
#include "shell/qt/peinture/Toile.hpp"

#include <QImage>
#include <QPainter>

#include <cmath>
#include <limits>

namespace velmaris::essais {
namespace {

/// Ink on an image: how much it differs from its background.
int Encre(const QImage &image) {
  int encre = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      encre += image.pixelColor(x, y) != QColor(Qt::white) ? 1 : 0;
    }
  }
  return encre;
}

TEST_F(FenetreOuverte, ASurfaceIsPaintedAtAnyDensityWithTheSameDrawing) {
  Ouvre(kPetitEcran);
  Joue([this] {
    TapeVisee();
    Calcule();
  });
  const auto peint = [&](int densite) {
    QImage image(1014 * densite, 658 * densite, QImage::Format_RGB32);
    image.setDevicePixelRatio(densite);
    image.fill(Qt::white);
    QPainter painter(&image);
    qt::PeintTraces(painter, bureau.image1, 96 / 1440.0);
    painter.end();
    return image;
  };
  const QImage fine = peint(2);
  fine.save(QString(VELMARIS_IMAGES) + "/feuille-double.png");
  const double rapport = Encre(fine) / static_cast<double>(Encre(peint(1)));
  EXPECT_GT(rapport, 2.0);
  EXPECT_LT(rapport, 4.5);
}

TEST_F(FenetreOuverte, WhatIsAppendedIsPaintedWithoutClearingTheRest) {
  Ouvre(kPetitEcran);
  auto *toile = dynamic_cast<qt::Toile *>(Trouve<QWidget>("Image1"));
  Joue([this] { Ligne(bureau.image1, {4000, 4000}, {9000, 4000}, kNoir); });
  Joue([this] { Ligne(bureau.image1, {9000, 4000}, {9000, 8000}, kNoir); });
  Joue([this] { EcritEn(bureau.image1, {5000, 5000}, "texte"); });
  const QImage image = toile->grab().toImage().convertToFormat(QImage::Format_RGB32);
  EXPECT_NE(image.pixelColor(6000 / 15, 4000 / 15), QColor(Qt::white));
  EXPECT_NE(image.pixelColor(9000 / 15, 6000 / 15), QColor(Qt::white));
}

TEST_F(FenetreOuverte, PlacesOutOfAllMeasureAreLeftOut) {
  Ouvre(kPetitEcran);
  const double infini = std::numeric_limits<double>::infinity();
  Joue([&] {
    bureau.image1.style = Style::TiretPoint;
    for (const double loin : {1e300, -1e12, infini, std::nan("")}) {
      Ligne(bureau.image1, {100, 100}, {loin, 200}, kNoir);
      Cercle(bureau.image1, {0, loin}, 10, kNoir);
      EcritEn(bureau.image1, {loin, loin}, "loin");
    }
    bureau.image1.style = Style::Plein;
    Ligne(bureau.image1, {4000, 4000}, {9000, 4000}, kNoir);
  });
  const QImage image = Trouve<QWidget>("Image1")->grab().toImage().convertToFormat(QImage::Format_RGB32);
  EXPECT_NE(image.pixelColor(6000 / 15, 4000 / 15), QColor(Qt::white));
}

TEST_F(FenetreOuverte, FiguresOfAFineGridDoNotOverprintEachOther) {
  Ouvre(kGrandEcran);
  Joue([this] {
    TapeVisee();
    Calcule();
    ClicControle(bureau, d.Command14);
    BougeCurseur(bureau, d.HScroll1, 30000);
  });
  QImage image(1900, 900, QImage::Format_RGB32);
  QPainter painter(&image);
  const std::vector<TextePlace> figures = qt::PeintTraces(painter, bureau.image1, 96 / 1440.0);
  EXPECT_GT(figures.size(), 50U);
  for (std::size_t i = 0; i < figures.size(); ++i) {
    for (std::size_t j = i + 1; j < figures.size(); ++j) {
      EXPECT_FALSE(SeCoupent(figures[i].zone, figures[j].zone));
    }
  }
}

TEST_F(FenetreOuverte, EveryPictureNamedByAControlIsDrawn) {
  Ouvre(kPetitEcran);
  for (const qt::Lien &lien : fenetre->rendu().liens()) {
    if (!lien.controle->image.empty()) {
      const QIcon icone = qt::Icone(lien.controle->image);
      ASSERT_FALSE(icone.isNull()) << lien.controle->nom;
      QImage image(64, 64, QImage::Format_RGB32);
      image.fill(Qt::white);
      QPainter painter(&image);
      icone.paint(&painter, image.rect());
      painter.end();
      EXPECT_GT(Encre(image), 100) << lien.controle->nom;
    }
  }
}

} // namespace
} // namespace velmaris::essais
