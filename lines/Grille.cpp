#include "lines/Grille.hpp"

#include "foundations/TexteNombre.hpp"

#include <algorithm>
#include <cmath>
#include <functional>

namespace velmaris {
namespace {

constexpr Couleur kGrilleForte = Rvb(150, 150, 150);
constexpr double kBordGauche = 800.0; ///< where parallels and their minute figures start
constexpr int kZoomMinutes = 250;     ///< last zoom with figures of minutes
constexpr int kZoomEpais = 800;       ///< zoom from which on degree lines are thin
constexpr int kMeridiensParCote = 180;

/// The step of the fine grid in minutes, and every how many steps a line is darker.
struct Pas {
  int minutes;
  int fort;
};

Pas PasDeGrille(int zoom) {
  if (zoom >= 1000) {
    return {60, 100};
  }
  if (zoom >= 300) {
    return {30, 100};
  }
  if (zoom >= 90) {
    return {10, 100};
  }
  return zoom >= 30 ? Pas{5, 2} : Pas{1, 5};
}

/// What the drawing steps share: one axis of the position, its whole degrees and its signed minutes past them.
struct Axe {
  double degres;  ///< whole degrees of the field
  double minutes; ///< of the field
  double signe;   ///< side of the position: +1 for north and west, -1 for south and east
};

struct Cadre {
  const Feuille &feuille;
  Surface &surface;
  Axe latitude;
  Axe longitude;
  double haut; ///< upper end of the meridians
  double bas;  ///< their lower end
  /// Abscissa of a meridian.
  /// @param minutes  of longitude, west positive
  double X(double minutes) const {
    const double lieu = longitude.signe * (longitude.degres * 60 + longitude.minutes);
    return feuille.CentreX + (lieu - minutes) * feuille.EchelleX;
  }
  /// Ordinate of a parallel.
  /// @param minutes  of latitude, north positive
  double Y(double minutes) const {
    const double lieu = latitude.signe * (latitude.degres * 60 + latitude.minutes);
    return feuille.CentreY + (lieu - minutes) * feuille.EchelleY;
  }
};

/// A line of the fine grid.
/// @param v     its step from the position
/// @param fort  every how many steps a line is darker
void TraceFine(const Cadre &c, Point debut, Point fin, int v, int fort) {
  const bool forte = v % fort == 0;
  c.surface.genre = forte ? GenreLigne::Grille : GenreLigne::GrilleFine;
  Ligne(c.surface, debut, fin, forte ? kGrilleForte : static_cast<Couleur>(c.feuille.CouleurGrille));
}

void TraceMeridiens(const Cadre &c, Pas pas) {
  for (int v = -80; v <= 80; ++v) {
    const double x = c.X(c.longitude.signe * c.longitude.degres * 60 + v * pas.minutes);
    TraceFine(c, {x, c.bas}, {x, c.haut}, v, pas.fort);
  }
}

void TraceParalleles(const Cadre &c, Pas pas) {
  for (int v = -60; v <= 60; ++v) {
    const double y = c.Y(c.latitude.signe * c.latitude.degres * 60 + v * pas.minutes);
    TraceFine(c, {kBordGauche, y}, {c.surface.largeur, y}, v, pas.fort);
  }
}

/// Tens of minutes of a coordinate between whole degrees, as its figure is read on the sheet.
/// Past `tour` degrees (the pole, the 180th meridian) the coordinate runs back.
/// @param minutes  a multiple of ten
std::string FigureMinutes(int minutes, int tour) {
  const int pliees = minutes > tour * 60 ? 2 * tour * 60 - minutes : std::abs(minutes);
  return TexteGeneral(static_cast<double>(pliees % 60));
}

/// Prints the figures of a run of tens of minutes, leaving out whole degrees.
/// @param debut  first value, minutes of the coordinate without its side
/// @param nombre  last step of the run
/// @param place  prints a figure beside its line
void EcritMinutes(int debut, int sens, int nombre, int tour,
                  const std::function<void(int minutes, const std::string &figure)> &place) {
  for (int v = 0; v <= nombre; ++v) {
    const int minutes = debut + sens * 10 * v;
    if (minutes % 60 != 0) {
      place(minutes, FigureMinutes(minutes, tour));
    }
  }
}

/// Figures between the meridians: both ways from Greenwich or from the 180th meridian when the sheet lies near it,
/// else away from Greenwich from two degrees short of the position.
void EcritMinutesLongitude(const Cadre &c) {
  const auto place = [&](int minutes, const std::string &figure) {
    EcritEn(c.surface, {c.X(c.longitude.signe * minutes) - 160, c.surface.hauteur / 15.8}, figure,
            {GenreTexte::Minute});
  };
  const int degres = static_cast<int>(std::clamp(c.longitude.degres, 0.0, 360.0));
  if (c.longitude.degres <= 10) {
    EcritMinutes(0, 1, 100, 180, place);
    EcritMinutes(0, -1, 100, 180, place);
  } else if (c.longitude.degres >= 170) {
    EcritMinutes(180 * 60, 1, 100, 180, place);
    EcritMinutes(180 * 60, -1, 100, 180, place);
  } else {
    EcritMinutes(degres * 60 - 120, 1, 240, 180, place);
  }
}

/// Figures between the parallels: both ways from the equator when the sheet lies near it, else towards the pole from
/// two degrees short of the position.
void EcritMinutesLatitude(const Cadre &c) {
  const auto place = [&](int minutes, const std::string &figure) {
    EcritEn(c.surface, {kBordGauche, c.Y(c.latitude.signe * minutes) - 170}, figure, {GenreTexte::Minute});
  };
  if (c.latitude.degres <= 10) {
    EcritMinutes(0, 1, 100, 90, place);
    EcritMinutes(0, -1, 100, 90, place);
  } else {
    EcritMinutes(static_cast<int>(std::min(c.latitude.degres, 360.0)) * 60 - 120, 1, 250, 90, place);
  }
}

/// Figure of a whole degree: past the end of its axis it folds back.
std::string FigureDegre(double degre, double fin) {
  const double valeur = std::fabs(degre);
  return TexteGeneral(valeur > fin ? fin - (valeur - fin) : valeur);
}

void TraceDegresLatitude(const Cadre &c) {
  const double demiHauteur = c.feuille.Zoom / 2.0 / 60.0;
  const int nombre = static_cast<int>(std::ceil(demiHauteur / 2.0)) * 2;
  for (int n = -nombre; n <= nombre; ++n) {
    const double degre = c.latitude.degres + n;
    const double y = c.Y(c.latitude.signe * degre * 60);
    c.surface.encre = kBleu;
    Ligne(c.surface, {c.surface.largeur, y}, {kBordGauche, y}, kNoir);
    EcritEn(c.surface, {500, y - 100}, FigureDegre(degre, 90), {GenreTexte::DegreLatitude});
  }
}

void TraceDegresLongitude(const Cadre &c) {
  const double demiLargeur = c.surface.largeur / 2.0 / (60.0 * std::fabs(c.feuille.EchelleX));
  const int nombre = static_cast<int>(std::min(std::ceil(demiLargeur), double{kMeridiensParCote}));
  for (int n = -nombre; n <= nombre; ++n) {
    const double degre = c.longitude.degres + n;
    const double x = c.X(c.longitude.signe * degre * 60);
    c.surface.encre = kRouge;
    Ligne(c.surface, {x, c.bas}, {x, c.haut}, kNoir);
    EcritEn(c.surface, {x - 70, c.haut - 200}, FigureDegre(degre, 180), {GenreTexte::DegreLongitude});
  }
}

} // namespace

void TraceGrille(const Feuille &feuille, Surface &surface, const Observation &observation) {
  const Cadre c{feuille,
                surface,
                {Val(observation.latitudeDegres), Val(observation.latitudeMinutes), observation.sud ? -1.0 : 1.0},
                {Val(observation.longitudeDegres), Val(observation.longitudeMinutes), observation.est ? -1.0 : 1.0},
                surface.hauteur / 14.4,
                surface.hauteur / 1.1};
  const Pas pas = PasDeGrille(feuille.Zoom);
  const bool minutes = feuille.Zoom <= kZoomMinutes;
  TraceMeridiens(c, pas);
  if (minutes) {
    surface.encre = kGris;
    EcritMinutesLongitude(c);
  }
  surface.encre = kNoir;
  TraceParalleles(c, pas);
  surface.epaisseur = feuille.Zoom < kZoomEpais ? 2 : 1;
  surface.genre = GenreLigne::Grille;
  TraceDegresLatitude(c);
  TraceDegresLongitude(c);
  surface.genre = GenreLigne::Libre;
  surface.epaisseur = 1;
  if (minutes) {
    surface.encre = kGris;
    EcritMinutesLatitude(c);
  }
  surface.encre = kNoir;
}

} // namespace velmaris
