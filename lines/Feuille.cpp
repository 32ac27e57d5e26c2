#include "lines/Feuille.hpp"

#include "foundations/Angles.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"
#include "lines/Echelle.hpp"
#include "lines/Grille.hpp"
#include "lines/Intercept.hpp"

#include <cmath>

namespace velmaris {
namespace {

constexpr float kJauneDroite = 65535.0F;
constexpr float kRougeDroite = 255.0F;
constexpr int kZoomRose = 100; ///< miles under which the rose is drawn over the grid too
constexpr Couleur kCercleRose = Rvb(220, 220, 220);

/// Scales of a new sheet, all through the intercept.
void CalculeEchelles(Feuille &feuille, const Surface &surface, const ValeursVisee &valeurs) {
  Passe([&] { feuille.AngleDroite = Simple(EnRadiansCourt(90.0 - valeurs.Azimut)); });
  Passe([&] { feuille.LongueurIntercept = Simple(Divise(surface.hauteur, feuille.Zoom) * valeurs.Intercept); });
  Passe([&] { feuille.EchelleY = Simple(Divise(feuille.LongueurIntercept, valeurs.Intercept)); });
  Passe([&] { feuille.EchelleX = Simple(feuille.EchelleY * std::cos(valeurs.LatEstimee * kRadCourt)); });
}

void EcritTitres(Feuille &feuille, const Observation &observation) {
  feuille.LabLon = observation.est ? "L O N G I T U D E   E S T" : "L O N G I T U D E   O U E S T";
  feuille.LabLat = "L\nA\nT\nI\nT\nU\nD\nE\n \n";
  feuille.LabLat += observation.sud ? "S\nU\nD" : "N\nO\nR\nD";
}

/// Four strokes from the centre, down and up, left and right.
void TraceCroix(const Feuille &feuille, Surface &surface, double vertical, double horizontal) {
  const Point centre{feuille.CentreX, feuille.CentreY};
  surface.style = Style::TiretPoint;
  Ligne(surface, centre, {centre.x, centre.y + vertical}, kNoir);
  Ligne(surface, centre, {centre.x, centre.y - vertical}, kNoir);
  Ligne(surface, centre, {centre.x - horizontal, centre.y}, kNoir);
  Ligne(surface, centre, {centre.x + horizontal, centre.y}, kNoir);
  surface.style = Style::Plein;
}

/// The position in words, its circle of twelve points and its long cross.
void TraceRose(const Feuille &feuille, Surface &surface, const Observation &o) {
  const double W = surface.largeur;
  const double H = surface.hauteur;
  const Point centre{feuille.CentreX, feuille.CentreY};
  EcritEn(surface, {centre.x, centre.y - H / 5.0},
          o.longitudeDegres + "° " + o.longitudeMinutes + (o.est ? "' E" : "' W"), {GenreTexte::Position});
  EcritEn(surface, {centre.x - W / 6.0, centre.y},
          o.latitudeDegres + "° " + o.latitudeMinutes + (o.sud ? "' S" : "' N"), {GenreTexte::Position});
  Cercle(surface, centre, W / 15.0, kCercleRose);
  TraceCroix(feuille, surface, H / 5.0, W / 6.0);
  for (int n = 0; n <= 12; ++n) {
    const double angle = 2 * kPiCourt * n / 12;
    Cercle(surface, {centre.x + std::sin(angle) * W / 15.0, centre.y + std::cos(angle) * W / 15.0}, W / 250.0,
           surface.encre);
  }
}

/// Length of the arrow's head by zoom; the tests run in this order with both ends included.
float LongueurTete(int zoom, float derniere) {
  if (zoom >= 0 && zoom <= 20) {
    return -900.0F;
  }
  if (zoom >= 20 && zoom <= 700) {
    return -800.0F;
  }
  if (zoom >= 700 && zoom <= 2000) {
    return -500.0F;
  }
  return zoom > 2000 ? -300.0F : derniere;
}

/// The azimuth arrow with its figure and its tail, from a start point, in the body's colour.
/// `AngleDroite` is the direction of the azimuth on the surface.
void TraceFleche(Feuille &feuille, Surface &surface, const ValeursVisee &valeurs, Point depart) {
  const auto couleur = static_cast<Couleur>(feuille.CouleurAstre);
  const double L = surface.largeur / feuille.PasFleche;
  const double direction = feuille.AngleDroite; // widened: sine and cosine are those of 64 bits
  const Point corps{L * std::cos(direction), L * std::sin(direction)};
  const Point pointe{depart.x + corps.x, depart.y + corps.y};
  feuille.LongueurTete = LongueurTete(feuille.Zoom, feuille.LongueurTete);
  const auto tete = [&](double ecart) {
    const double r = EnRadiansCourt(valeurs.Azimut - ecart);
    return Point{pointe.x + feuille.LongueurTete * std::cos(r), pointe.y + feuille.LongueurTete * std::sin(r)};
  };
  surface.epaisseur = 2;
  Ligne(surface, depart, pointe, couleur);
  Ligne(surface, pointe, tete(85.0), couleur);
  Ligne(surface, tete(95.0), pointe, couleur);
  Ecrit(surface, Format(valeurs.Azimut, "###.##") + " °", {GenreTexte::Droite});
  Ligne(surface, depart, {depart.x - corps.x, depart.y - corps.y}, couleur);
  surface.epaisseur = 1;
}

/// What both drawings of a sight take anew: the surface's centre, the body's colour and the arrow's direction.
void PrepareFleche(Feuille &feuille, const Surface &surface, const Observation &observation, ValeursVisee &valeurs) {
  feuille.CentreX = static_cast<float>(surface.largeur / 2);
  feuille.CentreY = static_cast<float>(surface.hauteur / 2);
  Passe([&] { feuille.AngleDroite = Simple(EnRadiansCourt(valeurs.Azimut - 90.0)); });
  Passe([&] { LitEstime(observation, valeurs); });
}

} // namespace

Couleur CouleurDroite(Corps corps) {
  switch (corps) {
  case Corps::Lune:
    return Rvb(130, 130, 130);
  case Corps::Planetes:
    return kMagenta;
  case Corps::Etoiles:
    return 0x00C000;
  case Corps::Soleil:
  default:
    return kBleu;
  }
}

Point PointAutour(const Feuille &feuille, double latitudeMilieu, double longitudeMilieu, double latitude,
                  double longitude) {
  return {feuille.CentreX + (longitudeMilieu - longitude) * feuille.EchelleX * 60,
          feuille.CentreY + (latitudeMilieu - latitude) * feuille.EchelleY * 60};
}

Point PlaceSurFeuille(const Feuille &feuille, double latitude, double longitude) {
  return PointAutour(feuille, feuille.OrigineFeuille.latitude, feuille.OrigineFeuille.longitude, latitude, longitude);
}

void TraceDroites(Feuille &feuille, Surface &surface, const Observation &observation, ValeursVisee &valeurs) {
  if (valeurs.Intercept == 0.0F) {
    return;
  }
  feuille.CouleurAstre = static_cast<float>(CouleurDroite(observation.corps));
  feuille.CentreX = static_cast<float>(surface.largeur / 2);
  feuille.CentreY = static_cast<float>(surface.hauteur / 2);
  Efface(surface);
  CalculeEchelles(feuille, surface, valeurs);
  if (feuille.Grille == 0) {
    TraceGrille(feuille, surface, observation);
  }
  EcritTitres(feuille, observation);
  Cercle(surface, {feuille.CentreX, feuille.CentreY}, surface.largeur / 200.0, surface.encre);
  TraceCroix(feuille, surface, surface.hauteur / 25.0, surface.largeur / 30.0);
  if (feuille.Grille == 1 || feuille.Zoom < kZoomRose) {
    TraceRose(feuille, surface, observation);
  }
  std::int16_t drapeau = 0;
  AffIntercept(feuille, surface, valeurs, feuille.CentreX, feuille.CentreY, kJauneDroite, drapeau);
  TraceEchelle(feuille, surface);
  PrepareFleche(feuille, surface, observation, valeurs);
  feuille.OrigineFeuille = {valeurs.LatEstimee, valeurs.LonEstimee};
  feuille.PasFleche = static_cast<float>(feuille.Zoom / 100.0 + 5.0);
  TraceFleche(feuille, surface, valeurs, {feuille.CentreX, feuille.CentreY});
}

void AjouDroites(Feuille &feuille, Surface &surface, const Observation &observation, ValeursVisee &valeurs) {
  feuille.CouleurAstre = static_cast<float>(CouleurDroite(observation.corps));
  PrepareFleche(feuille, surface, observation, valeurs);
  const Point depart = PlaceSurFeuille(feuille, valeurs.LatEstimee, valeurs.LonEstimee);
  Cercle(surface, depart, surface.largeur / 200.0, surface.encre);
  surface.style = Style::Plein;
  feuille.PasFleche = static_cast<float>(feuille.Zoom / 100.0 + 5.0);
  TraceFleche(feuille, surface, valeurs, depart);
  Passe([&] { feuille.AngleDroite = Simple(EnRadiansCourt(90.0 - valeurs.Azimut)); });
  Passe([&] { feuille.LongueurIntercept = Simple(Divise(surface.hauteur, feuille.Zoom) * valeurs.Intercept); });
  std::int16_t drapeau = 0;
  AffIntercept(feuille, surface, valeurs, depart.x, depart.y, kRougeDroite, drapeau);
}

} // namespace velmaris
