#include "OutilsFenetre.hpp"

#include "chart/Lieux.hpp"
#include "foundations/Fichiers.hpp"
#include "shell/qt/peinture/Palette.hpp"
#include "shell/qt/peinture/Toile.hpp"

#include <QImage>
#include <QPainter>

#include <cmath>
#include <map>
#include <random>
#include <set>

namespace velmaris::essais {
namespace {

constexpr double kPixel = 15; ///< 1/1440 inch
constexpr std::string_view kObjets =
    "+48.05 +004.85 3 Ile de Sein\n+48.04 +004.84 1 Raz de Sein\n+36.10 +005.35 9 Detroit\n";

/// A sheet as the program draws it, with its lines, all towns of the data and some of a user's objects.
struct FeuilleAuHasard {
  Feuille feuille;
  Surface surface = SurfaceNeuve(21000, 10400);

  FeuilleAuHasard(std::mt19937 &hasard, std::string_view villes) {
    const auto entier = [&](int min, int max) { return std::uniform_int_distribution<int>(min, max)(hasard); };
    const auto reel = [&](double min, double max) { return std::uniform_real_distribution<double>(min, max)(hasard); };
    feuille.Zoom = static_cast<std::int16_t>(std::exp(reel(std::log(12), std::log(2500))));
    feuille.Grille = static_cast<std::int16_t>(entier(0, 3) == 0);
    feuille.CouleurGrille = static_cast<float>(Rvb(220, 220, 220));
    const int latitude = entier(0, 74);
    const int longitude = entier(0, 179);
    Observation o;
    const auto pose = [&](int ecart) {
      o.latitudeDegres = std::to_string(latitude);
      o.latitudeMinutes = std::to_string(entier(0, 59));
      o.longitudeDegres = std::to_string(longitude);
      o.longitudeMinutes = std::to_string(std::min(59, entier(0, 59) / ecart));
    };
    o.sud = entier(0, 2) == 0;
    o.est = entier(0, 1) == 0;
    const int droites = entier(1, 4);
    for (int n = 0; n < droites; ++n) {
      pose(n + 1);
      o.corps = static_cast<Corps>(entier(0, 3));
      ValeursVisee valeurs;
      valeurs.Azimut = static_cast<float>(reel(0, 360));
      valeurs.Intercept = static_cast<float>(reel(-1, 1) * feuille.Zoom / 3.0);
      if (n == 0) {
        LitEstime(o, valeurs);
        TraceDroites(feuille, surface, o, valeurs);
      } else {
        AjouDroites(feuille, surface, o, valeurs);
      }
    }
    NommeDroites();
    TraceVilles(feuille, surface, villes);
    TraceObjets(feuille, surface, kObjets);
  }

  /// A name at the ends of each line of position.
  void NommeDroites() {
    for (const Trace &trace : surface.traces) {
      const auto *ligne = std::get_if<Polyligne>(&trace);
      if (ligne != nullptr && ligne->genre == GenreLigne::Droite) {
        const TexteTrace nom{
            kNoir, {surface.police.famille, 8, false}, ligne->points.back(), "Vega 05:31", {GenreTexte::Bout}};
        surface.etiquettes.push_back({nom, ligne->points.front()});
      }
    }
  }
};

/// The ink of a text, pixels of the picture, from what the font says of its outlines.
QRectF EncreDe(const Surface &surface, const TextePlace &place) {
  const TexteTrace &texte = TexteDe(surface, place);
  const QImage image(1, 1, QImage::Format_RGB32);
  const QFontMetricsF metrique(qt::PoliceQt(texte.police, 1 / kPixel, image), &image);
  return metrique.tightBoundingRect(QString::fromStdString(texte.texte))
      .translated(place.zone.gauche / kPixel, place.zone.haut / kPixel + metrique.ascent());
}

bool EstPremier(GenreTexte genre) { return genre > GenreTexte::Libre && genre < GenreTexte::Minute; }

/// Whether the figures of a sheet's degrees have room side by side.
bool DegresAuLarge(const FeuilleAuHasard &f, GenreTexte axe) {
  return axe == GenreTexte::DegreLongitude ? std::fabs(f.feuille.EchelleX) * 60 > 32 * kPixel
                                           : f.feuille.EchelleY * 60 > 16 * kPixel;
}

TEST(TextesDeLaFeuille, OverTwoThousandSheetsNoneOverprintsAnotherAndNoFigureOfLineDegreePositionOrScaleIsMissing) {
  const std::string villes = LitFichier(std::filesystem::path(VELMARIS_DONNEES) / "Villes.txt");
  std::mt19937 hasard(2000);
  std::map<GenreTexte, std::size_t> montres;
  for (int essai = 0; essai < 2000; ++essai) {
    const FeuilleAuHasard f(hasard, villes);
    QImage image(1400, 694, QImage::Format_RGB32);
    QPainter painter(&image);
    qt::MesuresTextes mesures;
    const std::vector<TextePlace> places = qt::TextesPeints(painter, f.surface, 1 / kPixel, mesures);
    std::vector<QRectF> encres;
    std::set<std::string> vus; // a text may stand elsewhere than recorded: it is known by its words
    for (const TextePlace &place : places) {
      encres.push_back(EncreDe(f.surface, place));
      vus.insert(TexteDe(f.surface, place).texte);
      ++montres[TexteDe(f.surface, place).role.genre];
    }
    for (std::size_t i = 0; i < encres.size(); ++i) {
      for (std::size_t j = i + 1; j < encres.size(); ++j) {
        ASSERT_FALSE(encres[i].intersects(encres[j]))
            << essai << ": " << TexteDe(f.surface, places[i]).texte << ", " << TexteDe(f.surface, places[j]).texte;
      }
    }
    for (const TexteTrace &texte : Textes(f.surface)) {
      const bool degre = texte.role.genre <= GenreTexte::DegreLatitude;
      const bool dessus = texte.position.x >= 0 && texte.position.x <= f.surface.largeur && texte.position.y >= 0 &&
                          texte.position.y <= f.surface.hauteur;
      if (dessus && EstPremier(texte.role.genre) && (!degre || DegresAuLarge(f, texte.role.genre))) {
        ASSERT_TRUE(vus.contains(texte.texte)) << essai << ": " << texte.texte << ", zoom " << f.feuille.Zoom;
      }
    }
  }
  for (int genre = 1; genre <= static_cast<int>(GenreTexte::Ville); ++genre) {
    EXPECT_GT(montres[static_cast<GenreTexte>(genre)], 0U) << genre;
  }
}

/// Whether every text that is told to be shown has its colour on the picture, within its ink.
void EstPeint(const QImage &image, const Surface &surface, const std::vector<TextePlace> &places) {
  for (const TextePlace &place : places) {
    const TexteTrace &trace = TexteDe(surface, place);
    const QColor couleur = qt::EncreDeTexte(Eclairage::Jour, trace.couleur, trace.role.genre, Qt::white);
    const QRect encre = EncreDe(surface, place).toAlignedRect() & image.rect();
    int teints = 0;
    for (int y = encre.top(); y <= encre.bottom(); ++y) {
      for (int x = encre.left(); x <= encre.right(); ++x) {
        const QColor c = image.pixelColor(x, y);
        teints += std::abs(c.red() - couleur.red()) + std::abs(c.green() - couleur.green()) +
                              std::abs(c.blue() - couleur.blue()) <
                          120
                      ? 1
                      : 0;
      }
    }
    EXPECT_GE(teints, 2) << TexteDe(surface, place).texte;
  }
}

TEST(TextesDeLaFeuille, WhatIsToldToBeShownIsOnThePictureInItsColour) {
  const std::string villes = LitFichier(std::filesystem::path(VELMARIS_DONNEES) / "Villes.txt");
  std::mt19937 hasard(20);
  for (int essai = 0; essai < 20; ++essai) {
    const FeuilleAuHasard f(hasard, villes);
    QImage image(1400, 694, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    const std::vector<TextePlace> places = qt::PeintTraces(painter, f.surface, 1 / kPixel);
    painter.end();
    EstPeint(image, f.surface, places);
  }
}

TEST_F(FenetreOuverte, AFigureThatComesAfterTheNamesOfCitiesMakesThemGiveWayOnTheScreen) {
  Ouvre(kPetitEcran);
  auto *toile = dynamic_cast<qt::Toile *>(Trouve<QWidget>("Image1"));
  const auto rouges = [&] {
    const QImage image = toile->grab().toImage();
    const qreal f = qt::PixelsParTwip(*toile);
    int pixels = 0;
    for (int y = static_cast<int>(6000 * f); y < static_cast<int>(6180 * f); ++y) {
      for (int x = static_cast<int>(6000 * f); x < static_cast<int>(6400 * f); ++x) {
        const QColor c = image.pixelColor(x, y);
        pixels += c.red() > 200 && c.blue() < 100 ? 1 : 0;
      }
    }
    return pixels;
  };
  Joue([this] {
    bureau.image1.encre = kRouge;
    EcritEn(bureau.image1, {6000, 6000}, "Brest", {GenreTexte::Ville, 1});
  });
  EXPECT_GT(rouges(), 10);
  Joue([this] {
    bureau.image1.encre = kNoir;
    EcritEn(bureau.image1, {6000, 6000}, "120 °", {GenreTexte::Droite});
  });
  EXPECT_EQ(rouges(), 0) << "the name stands above its point now";
}

} // namespace
} // namespace velmaris::essais
