#pragma once

#include "foundations/Surface.hpp"
#include "sights/Observation.hpp"

#include <cstdint>
#include <string>

namespace velmaris {

/// A place on the sheet, degrees, north and west positive.
struct Origine {
  float latitude = 100.0F;
  float longitude = 300.0F;
  bool operator==(const Origine &) const = default;
};

/// The pair that stands for "no sheet".
inline constexpr Origine kSansFeuille{100.0F, 300.0F};

/// The plotting sheet: a locally flat grid around the estimated position of its first line.
/// A place is drawn at X = CentreX + (origin - longitude) * EchelleX * 60, Y = CentreY + (origin - latitude) *
/// EchelleY * 60. East is right because west longitudes are positive.
struct Feuille {
  Origine OrigineFeuille;            ///< centre of the surface
  std::int16_t Zoom = 0;             ///< nautical miles over the height of the surface
  float CentreX = 0.0F;              ///< half the surface's width
  float CentreY = 0.0F;              ///< half its height
  float EchelleX = 0.0F;             ///< surface units per minute of longitude
  float EchelleY = 0.0F;             ///< surface units per mile
  float AngleDroite = 0.0F;          ///< drawing direction, radians
  float LongueurIntercept = 0.0F;    ///< surface units
  float PasFleche = 0.0F;            ///< what the surface's width is divided by for the azimuth arrow
  float LongueurTete = 0.0F;         ///< length of the arrow's head, negative; the last one stays
  float CouleurAstre = 0.0F;         ///< colour of the body
  float CouleurGrille = 0.0F;        ///< colour of the fine grid
  std::int16_t Grille = 1;           ///< 0 draws the grid, 1 leaves it out
  std::uint8_t TransportEnCours = 0; ///< 1 while a line is drawn without its mile ticks
  std::string LabLon;                ///< caption under the sheet
  std::string LabLat;                ///< caption beside it, one letter a line
  bool operator==(const Feuille &) const = default;
};

/// Colour of a body: Sun blue, Moon grey, planets magenta, stars green.
Couleur CouleurDroite(Corps corps);

/// Clears the surface and draws a new sheet around the estimated position, with the line of the sight just reduced.
/// It is the one place that sets `OrigineFeuille`, `EchelleX` and `EchelleY`. An intercept of exactly 0 can't set the
/// scale: the sheet then stays as it is. A statement that fails is passed over.
/// @param valeurs  azimuth, intercept and estimated position; the position is read again from the fields
void TraceDroites(Feuille &feuille, Surface &surface, const Observation &observation, ValeursVisee &valeurs);

/// Adds the sight just reduced to the sheet, on the sheet's own scales.
/// @param valeurs  as for TraceDroites
void AjouDroites(Feuille &feuille, Surface &surface, const Observation &observation, ValeursVisee &valeurs);

/// Point of the surface under a place, by the scales in force.
/// @param latitudeMilieu, longitudeMilieu  place under the sheet's centre, degrees, north and west positive
/// @param latitude, longitude              degrees, north and west positive
Point PointAutour(const Feuille &feuille, double latitudeMilieu, double longitudeMilieu, double latitude,
                  double longitude);

/// A geographic place on the surface.
/// @param latitude, longitude  degrees, north and west positive
Point PlaceSurFeuille(const Feuille &feuille, double latitude, double longitude);

} // namespace velmaris
