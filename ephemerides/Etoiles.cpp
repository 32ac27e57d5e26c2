#include "ephemerides/Etoiles.hpp"

#include "ephemerides/TableEtoiles.hpp"
#include "foundations/Angles.hpp"
#include "foundations/CelHor.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>

namespace velmaris {
namespace {

/// What the reading of every right ascension adds, seconds of time.
constexpr double kSecondesAjoutees = 0.3;

struct MouvementPropre {
  std::string_view nom;
  double ad;  ///< seconds of time a year
  double dec; ///< seconds of arc a year
};

// The table's own row spells "Achenar": that star has no motion and is never listed. Kept so.
constexpr std::array<MouvementPropre, 26> kMouvements = {{
    {"Regulus", -0.0171, 0.004},   {"Vega", 0.0173, 0.286},       {"Dubhe", -0.168, -0.066},
    {"Arcturus", -0.0771, -1.998}, {"Altair", 0.0363, 0.386},     {"Capella", 0.0073, -0.425},
    {"Canopus", 0.0024, 0.021},    {"Sirius", -0.0385, -1.205},   {"Rigil Kentaurus", -0.4983, 0.699},
    {"Rigel", 0, -0.001},          {"Procyon", -0.0475, -1.023},  {"Achernar", 0.0117, -0.035},
    {"Pollux", -0.0474, -0.046},   {"Fomalhaut", 0.0255, -0.165}, {"Deneb", 0.0003, 0.002},
    {"Acrux", -0.0052, -0.012},    {"Betelgeuse", 0.0017, 0.009}, {"Polaris", 0.1988, -0.015},
    {"Aldebaran", 0.0044, -0.19},  {"Mirfak", 0.0025, -0.025},    {"Albireo", 0.0002, -0.002},
    {"Denebola", -0.0342, -0.114}, {"Alpheratz", 0.0104, -0.163}, {"Antares", -0.0007, -0.002},
    {"Spica", -0.0028, -0.0028},   {"Castor", -0.0135, -0.099},
}};

/// The motion of a name, null for a name without one.
const MouvementPropre *Mouvement(std::string_view nom) {
  for (const MouvementPropre &mouvement : kMouvements) {
    if (mouvement.nom == nom) {
      return &mouvement;
    }
  }
  return nullptr;
}

/// At most `nombre` characters from a position counted from 1; empty past the end.
std::string_view Milieu(std::string_view texte, std::size_t position, std::size_t nombre = std::string_view::npos) {
  return texte.substr(std::min(position - 1, texte.size()), nombre);
}

/// A field that must be wholly a number.
/// @throws Erreur 13 when it isn't
double Champ(std::string_view texte) {
  const std::string_view chiffres = texte.starts_with('+') ? texte.substr(1) : texte;
  double valeur = 0.0;
  const auto [fin, code] = std::from_chars(chiffres.data(), chiffres.data() + chiffres.size(), valeur);
  if (code != std::errc() || fin != chiffres.data() + chiffres.size()) {
    throw Erreur(13);
  }
  return valeur;
}

/// Place of J2000.0 in a row's coordinates, degrees.
PaireX PlaceDeLigne(std::string_view coordonnees) {
  const std::size_t p = std::min(coordonnees.find('X'), coordonnees.size());
  const std::string_view ad = coordonnees.substr(0, p);
  const std::string_view dec = Milieu(coordonnees, p + 2);
  const double heures = Val(ad.substr(0, 2));
  const double minutes = Champ(Milieu(ad, 4, 2));
  std::optional<double> secondes = Champ(Milieu(ad, 7, 2)) + kSecondesAjoutees;
  PaireX place;
  place.gauche = HeuresEnDegres(heures, minutes, secondes);
  place.droite = SexaEnDegres(Champ(dec.substr(0, 3)), Champ(Milieu(dec, 5, 2)), Val(Milieu(dec, 8, 2)));
  return place;
}

/// Julian centuries from J2000.0 to 0 h of a date; before 1582 October 15 with two days too many.
/// @throws Erreur 6 when the date is beyond the range of numbers
double SieclesDepuisJ2000(const DateEtoile &date) {
  const double jour = Val(date.jour);
  double mois = Val(date.mois);
  double annee = Val(date.annee);
  if (mois < 3) {
    mois = mois + 12;
    annee = annee - 1;
  }
  double J = Fix(365.25 * annee) + Fix(30.6001 * (mois + 1)) + jour + 1720996.5;
  if (annee + mois / 100 + jour / 10000 > 1582.10145) {
    J = (J - Fix(annee / 100)) + Fix(Fix(annee / 100) / 4);
  }
  if (!std::isfinite(J)) {
    throw Erreur(6);
  }
  return (J - 2451545) / 36525;
}

/// Carries a place of J2000.0 to a date.
/// @param place  degrees
/// @param T      Julian centuries from J2000.0
void AppliquePrecession(PaireX &place, const MouvementPropre *mouvement, double T) {
  constexpr double k = kRadCourt;
  const double m = 3.07496 + 0.00186 * T; // seconds of time
  const double n = 1.33621 - 0.00057 * T; // seconds of time
  const double n2 = 20.0431 - 0.0085 * T; // seconds of arc
  double da = m + (n * std::sin(place.gauche * k)) * std::tan(place.droite * k);
  da = da + (mouvement != nullptr ? mouvement->ad : 0.0);
  da = da * (100 * T);
  double dd = n2 * std::cos(place.gauche * k);
  dd = dd + (mouvement != nullptr ? mouvement->dec : 0.0);
  dd = dd * (100 * T);
  place.gauche = place.gauche + (da / 3600) * 15;
  place.droite = place.droite + dd / 3600;
  if (!std::isfinite(place.gauche) || !std::isfinite(place.droite)) {
    throw Erreur(6);
  }
}

} // namespace

void ChargeEtoiles(Etoiles &etoiles, std::vector<std::string> &liste) {
  std::copy(kLignesEtoiles.begin(), kLignesEtoiles.end(), etoiles.EtoileLigne.begin() + 1);
  DecoupeEtoiles(etoiles, liste);
}

void DecoupeEtoiles(Etoiles &etoiles, std::vector<std::string> &liste) {
  for (std::size_t i = 1; i <= kNombreLignesEtoiles; ++i) {
    const std::string_view ligne = etoiles.EtoileLigne[i];
    etoiles.EtoileBayer[i] = Milieu(ligne, 2, 5);
    const std::size_t p = ligne.find('X') + 1;
    etoiles.EtoileNom[i] = Milieu(ligne, 8, p - 8);
    if (!etoiles.EtoileNom[i].empty()) {
      liste.emplace_back(etoiles.EtoileNom[i]);
    }
    etoiles.EtoileCoord[i] = Milieu(ligne, p + 1);
  }
}

std::string CoordEtoile(const Etoiles &etoiles, std::int16_t index, int selection, const DateEtoile &date) {
  const int rang = index == 0 ? selection + 1 : index;
  if (rang < 0 || rang > kRangEtoileMax) {
    throw Erreur(9);
  }
  const auto i = static_cast<std::size_t>(rang);
  PaireX place = PlaceDeLigne(etoiles.EtoileCoord[i]);
  AppliquePrecession(place, Mouvement(etoiles.EtoileNom[i]), SieclesDepuisJ2000(date));
  std::string texte = TexteGeneral(place.gauche);
  texte += 'X';
  texte += TexteGeneral(place.droite);
  return texte;
}

std::vector<std::string> ListeVisibles(const Etoiles &etoiles, const DateEtoile &champs, const ValeurDate &date,
                                       double latitude, double longitude) {
  std::vector<std::string> visibles;
  for (std::int16_t i = 1; i <= kNombreLignesEtoiles; ++i) {
    const std::string_view nom = etoiles.EtoileNom[static_cast<std::size_t>(i)];
    if (Mouvement(nom) == nullptr) {
      continue;
    }
    PaireX place = LitPaireX(CoordEtoile(etoiles, i, -1, champs));
    double lat = latitude;
    const std::string horizon = CelesteVersHorizon(date, place.gauche, place.droite, lat, -longitude);
    if (LitPaireX(horizon).droite > 0 && !nom.empty()) {
      visibles.emplace_back(nom);
    }
  }
  return visibles;
}

PaireX LitPaireX(std::string_view texte) {
  const std::size_t p = std::min(texte.find('X'), texte.size());
  return {Val(texte.substr(0, p)), Val(Milieu(texte, p + 2))};
}

} // namespace velmaris
