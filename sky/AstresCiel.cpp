#include "sky/AstresCiel.hpp"

#include "ephemerides/pLANETE.hpp"
#include "foundations/CelHor.hpp"
#include "foundations/Erreur.hpp"
#include "sights/DroitePLA.hpp"

#include <algorithm>
#include <cctype>
#include <cstdint>

namespace velmaris {
namespace {

constexpr Couleur kBleuNuit = 0x800000;

constexpr std::array<std::string_view, kNombreNavigables> kNavigables = {
    "Castor",    "Spica",  "Antares",    "Alpheratz", "Denebola", "Albireo", "Mirfak",          "Polaris", "Aldebaran",
    "Fomalhaut", "Deneb",  "Betelgeuse", "Acrux",     "Vega",     "Canopus", "Arcturus",        "Capella", "Regulus",
    "Dubhe",     "Altair", "Pollux",     "Achernar",  "Procyon",  "Rigel",   "Rigil Kentaurus", "Sirius"};

/// The same stars by their visual magnitude, the brightest first; the variable ones by their mean.
constexpr std::array<std::string_view, kNombreNavigables> kParEclat = {
    "Sirius",  "Canopus",  "Rigil Kentaurus", "Arcturus", "Vega",    "Capella",   "Rigel",
    "Procyon", "Achernar", "Betelgeuse",      "Altair",   "Acrux",   "Aldebaran", "Antares",
    "Spica",   "Pollux",   "Fomalhaut",       "Deneb",    "Regulus", "Castor",    "Mirfak",
    "Dubhe",   "Polaris",  "Alpheratz",       "Denebola", "Albireo"};

/// Azimuth and height of a place from where one stands; what the conversion leaves in radians is dropped.
void CalculeHorizon(AnglesCiel &angles, PlaceEquateur place, const RegardCiel &regard) {
  double latitude = regard.latitude;
  PrendHorizonCiel(angles, CelesteVersHorizon(regard.date, place.a, place.dec, latitude, -regard.longitude));
}

} // namespace

bool EstNavigable(std::string_view nom) {
  return std::find(kNavigables.begin(), kNavigables.end(), nom) != kNavigables.end();
}

int RangEclat(std::string_view nom) {
  return static_cast<int>(std::find(kParEclat.begin(), kParEclat.end(), nom) - kParEclat.begin());
}

Couleur CouleurEtoile(float hauteur) { return hauteur <= 0 ? kBleu : kBlanc; }

Couleur FondCiel(float hauteur) { return hauteur <= 0 ? kBleuNuit : kBleu; }

void PrendHorizonCiel(AnglesCiel &angles, std::string_view texte) {
  const PaireX horizon = LitPaireX(texte);
  angles.AngleAz = Simple(horizon.gauche);
  angles.AngleHaut = Simple(horizon.droite);
}

void CalculeEtoile(AnglesCiel &angles, const Etoiles &etoiles, std::size_t rang, const DateEtoile &jour,
                   const RegardCiel &regard) {
  const PaireX place = LitPaireX(CoordEtoile(etoiles, static_cast<std::int16_t>(rang), -1, jour));
  angles.AngleAD = Simple(place.gauche);
  angles.AngleDec = Simple(place.droite + 90.0);
  CalculeHorizon(angles, {place.gauche, place.droite}, regard);
}

PlaceEquateur CalculePlanete(AnglesCiel &angles, std::string_view nom, Horloge &horloge, const RegardCiel &regard) {
  std::string demande(nom);
  const PlacePlanete planete = LitPlacePlanete(PositionPlanete(demande, horloge));
  const PlaceEquateur place{planete.AD, planete.Dec};
  CalculeHorizon(angles, place, regard);
  return place;
}

std::string NomSurCarte(std::string_view nom) {
  std::string legende(nom);
  for (std::size_t i = 1; i < legende.size(); ++i) {
    legende[i] = static_cast<char>(std::tolower(static_cast<unsigned char>(legende[i])));
  }
  return legende;
}

} // namespace velmaris
