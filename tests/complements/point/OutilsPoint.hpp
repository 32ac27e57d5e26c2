#pragma once

#include "complements/point/Point.hpp"
#include "complements/point/Sphere.hpp"

#include <algorithm>
#include <optional>
#include <random>
#include <vector>

/// What the tests of the fix share: sights of closed form on the sphere, and whole voyages made by another road.
namespace velmaris::essais {

inline const InstantUTC kMidi{2461213.5, 0.5}; ///< a day of June 2026

inline InstantUTC Heure(double heures) { return PlusTard(kMidi, heures * 3600); }

/// A told height of a body that stands in a direction from a place.
/// @param faute  minutes, added to the height
inline ViseePoint Vers(const LieuNavire &lieu, double azimut, double heures = 0, double hauteur = 40,
                       double faute = 0) {
  ViseePoint v;
  v.hauteur.utc = Heure(heures);
  v.hauteur.estime = lieu;
  v.hauteur.apparente = hauteur;
  v.hauteur.dite = HauteurDite{hauteur + faute / 60, GrandCercle(lieu, azimut, 90 - hauteur)};
  return v;
}

/// A fix of told lines at noon, of a ship that lies still and is sure of it.
inline ReglagesPoint Immobile() {
  ReglagesPoint r;
  r.heure = kMidi;
  r.theorie = TheoriePoint::Dite;
  r.doutes = {1, 0, 0, 0};
  return r;
}

inline bool Dit(const FichePoint &fiche, AvisPoint avis) {
  return std::find(fiche.avis.begin(), fiche.avis.end(), avis) != fiche.avis.end();
}

/// Miles between two places.
inline double Milles(const LieuNavire &a, const LieuNavire &b) { return EcartLieux(a, b) * 60; }

/// What a ship's log is off by, in truth.
using Verite = EcartRoute;

/// What a voyage is made with.
struct Bruit {
  bool hauteurs = false; ///< heights are off by their assumed errors
  bool route = false;    ///< the run is off by its assumed doubts
  double commune = 0;    ///< minutes, on every height
};

/// What kind of voyage.
struct Genre {
  int moins = 3, plus = 9; ///< sights
  double heures = 6;       ///< from the first to the last at most
  double latitudeDe = 0;   ///< without sign, degrees
  double latitudeA = 70;
  bool autour = false; ///< bodies spread around the horizon
};

/// A voyage: what the ship's book has of it, and where she was.
struct Voyage {
  std::vector<ViseePoint> visees;
  ReglagesPoint reglages;
  LieuNavire vrai; ///< at the time of the fix
};

/// An even draw.
double Sort(std::mt19937_64 &alea, double de, double a);

/// A normal of mean 0; 0 without a deviation.
double Normale(std::mt19937_64 &alea, double ecart);

/// Any body that has a place: the near ones one time in three.
Astre AstreAuHasard(std::mt19937_64 &alea);

/// The reading that a height without air makes, by bisection.
double LectureDe(LectureSextant lecture, const PlaceGeocentrique &place, const Station &station, double hauteur);

/// A voyage at random.
Voyage VoyageAuHasard(std::mt19937_64 &alea, const Genre &genre, const Bruit &bruit);

/// The ship's place along a track, by many small steps of its speed over the ground.
LieuNavire Navigue(const RouteNavire &route, const Verite &verite, LieuNavire lieu, const InstantUTC &de,
                   const InstantUTC &a);

/// Height of a body from a place without air, by ERFA's vectors alone, degrees.
double HauteurJugee(const PlaceGeocentrique &place, const LieuNavire &lieu, double oeil);

/// Where the ship was on the axes of an ellipse: under 1 inside it.
double DansEllipse(const EllipsePoint &ellipse, const LieuNavire &point, const LieuNavire &vrai);

} // namespace velmaris::essais
