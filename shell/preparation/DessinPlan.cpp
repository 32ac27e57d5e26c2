#include "shell/preparation/DessinPlan.hpp"

#include "foundations/PlaceTextes.hpp"
#include "shell/complements/Formes.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>
#include <variant>

namespace velmaris {
namespace {

constexpr double kRadian = std::numbers::pi / 180;
constexpr double kQuart = 90;
constexpr Couleur kCercle = Rvb(150, 165, 180);
constexpr Couleur kEncre = Rvb(25, 40, 60);
constexpr Couleur kPale = Rvb(150, 150, 150);
constexpr Couleur kSoleilEncre = Rvb(200, 140, 0);
constexpr Couleur kChoisi = Rvb(200, 30, 30);
constexpr double kMarge = 330;     ///< around the horizon, for the letters
constexpr double kDemiTexte = 110; ///< half the height of a line of words
constexpr double kDisque = 95;     ///< radius of the Sun's and the Moon's disks, 1/1440 inch
constexpr double kAnneau = 150;    ///< of the ring around the chosen body
constexpr double kBrillante = 1.5; ///< magnitude of a star of the first order
constexpr double kNommee = 3.5;    ///< magnitude from which on a star has no name
constexpr double kDemiMagnitude = 0.5;
constexpr double kToucher = 300; ///< how near a click has to be

Point Centre(const Surface &s) { return {s.largeur / 2, s.hauteur / 2}; }

double Rayon(const Surface &s) { return std::max(kMarge, std::min(s.largeur, s.hauteur) / 2 - kMarge); }

/// The size of a body's dot: the brighter the larger.
int Pixels(double magnitude) { return std::clamp(static_cast<int>(std::lround(3.6 - magnitude)), 1, 5); }

/// Horizon, heights, directions.
void Fond(Surface &s, const CarteDuPlan &carte) {
  constexpr std::array<double, 2> kHauteurs = {30, 60};
  const Point c = Centre(s);
  const double r = Rayon(s);
  Rond(s, c, r, kEncre, 2);
  for (const double hauteur : kHauteurs) {
    Rond(s, c, r * (kQuart - hauteur) / kQuart, kCercle);
    EcritEnCouleur(s, {c.x + 40, c.y - r * (kQuart - hauteur) / kQuart}, kCercle,
                   std::to_string(static_cast<int>(hauteur)) + "°", {GenreTexte::Minute, 0});
  }
  for (int i = 0; i < 12; ++i) {
    const double azimut = i * 30;
    const Point dehors = PlaceSurCarte(s, 0, azimut, carte.haut);
    const Point debut = PlaceSurCarte(s, i % 3 == 0 ? 84 : 3, azimut, carte.haut);
    s.traces.emplace_back(Polyligne{{kCercle, 1, Style::Plein}, {debut, dehors}, GenreLigne::Libre});
    if (i % 3 == 0) {
      const double angle = (azimut - carte.haut) * kRadian;
      const Point lettre{c.x + (r + 170) * std::sin(angle) - 80, c.y - (r + 170) * std::cos(angle) - kDemiTexte};
      EcritEnCouleur(s, lettre, kEncre, carte.cardinaux.at(static_cast<std::size_t>(i / 3)), {GenreTexte::Libre, 0});
    }
  }
}

/// The Moon's face: her disk, what isn't lit filled by lines along its edge, which is half an ellipse.
void DessineLune(Surface &s, Point p, const PhaseLune &lune, double azimut, double haut, Couleur couleur) {
  constexpr int kCotes = 24;
  Rond(s, p, kDisque, couleur, 2);
  // The zenith is towards the middle, and the chart shows the sky as a compass does, not as it is seen: what lies to
  // the right of the zenith's direction there lies to its left here.
  const double axe = (azimut - haut + 180 - lune.bord) * kRadian;
  const double k = std::cos(lune.phase * kRadian);
  for (int pas = 1; pas <= 8; ++pas) {
    Polyligne hachure{{couleur, 1, Style::Plein}, {}, GenreLigne::Libre};
    for (int i = 0; i <= kCotes; ++i) {
      const double t = -kQuart + 180.0 * i / kCotes;
      const double u = std::sin(t * kRadian);
      const double v = std::cos(t * kRadian) * (-1 + (1 - k) * pas / 8.0);
      hachure.points.push_back({p.x + kDisque * (v * std::sin(axe) + u * std::cos(axe)),
                                p.y - kDisque * (v * std::cos(axe) - u * std::sin(axe))});
    }
    s.traces.emplace_back(std::move(hachure));
  }
}

void DessineAstre(Surface &s, const CielDuPlan &ciel, const CarteDuPlan &carte, std::size_t rang) {
  const AstreDuPlan &astre = ciel.astres.at(rang);
  const Point p = PlaceSurCarte(s, astre.apparente, astre.azimut, carte.haut);
  const bool pale = astre.raisons.any();
  if (astre.astre.genre == GenreAstre::Soleil) {
    for (int i = 1; i <= 6; ++i) {
      Rond(s, p, kDisque * i / 6, kSoleilEncre, 2);
    }
  } else if (astre.astre.genre == GenreAstre::Lune && ciel.lune) {
    DessineLune(s, p, *ciel.lune, astre.azimut, carte.haut, pale ? kPale : kEncre);
  } else {
    Disque(s, p, Pixels(astre.magnitude), pale ? kPale : kEncre);
  }
  if (carte.choisi == rang) {
    Rond(s, p, kAnneau, kChoisi, 2);
  }
}

/// In which order a body's name takes its place.
/// @return nothing for one that has none
std::optional<int> ClasseDuNom(const CarteDuPlan &carte, const AstreDuPlan &astre, std::size_t rang) {
  constexpr int kPales = 3; ///< half magnitudes that a star left out counts as fainter
  const bool pale = astre.raisons.any();
  if (carte.choisi == rang) {
    return 0;
  }
  if (astre.astre.genre != GenreAstre::Etoile) {
    return 1;
  }
  if (astre.magnitude >= (pale ? kBrillante : kNommee)) {
    return std::nullopt;
  }
  return 2 + std::max(0, static_cast<int>(std::floor((astre.magnitude + 1.5) / kDemiMagnitude))) + (pale ? kPales : 0);
}

/// Whether a rectangle lies inside of the horizon.
bool EstDansLeCiel(const Surface &s, const ZoneTexte &zone) {
  constexpr double kTrait = 30;
  const Point c = Centre(s);
  const double x = std::max(std::fabs(zone.gauche - c.x), std::fabs(zone.droite() - c.x));
  const double y = std::max(std::fabs(zone.haut - c.y), std::fabs(zone.bas() - c.y));
  return std::hypot(x, y) < Rayon(s) - kTrait;
}

constexpr double kParOctet = 105; ///< a guess of a letter's width
constexpr double kCote = 80;      ///< from a point to its name

double LargeurDuNom(const Surface &s, const CarteDuPlan &carte, const std::string &nom) {
  return carte.largeur ? carte.largeur(nom, s.police) : kParOctet * static_cast<double>(nom.size());
}

/// The first free place beside a point that lies inside of the horizon.
/// @param cote  from the point to the name
std::optional<ZoneTexte> PlaceDuNom(const Surface &s, const PlanTextes &plan, Point p, double cote, double largeur) {
  const std::array<Point, 8> coins{{{cote, -kDemiTexte},
                                    {-cote - largeur, -kDemiTexte},
                                    {cote, 0},
                                    {cote, -2 * kDemiTexte},
                                    {-cote - largeur, 0},
                                    {-cote - largeur, -2 * kDemiTexte},
                                    {-largeur / 2, cote},
                                    {-largeur / 2, -cote - 2 * kDemiTexte}}};
  for (const Point &coin : coins) {
    const ZoneTexte zone{p.x + coin.x, p.y + coin.y, largeur, 2 * kDemiTexte};
    if (EstDansLeCiel(s, zone) && plan.EstLibre(zone)) {
      return zone;
    }
  }
  return std::nullopt;
}

/// The names of the bodies, the first classes first, of one class the brightest.
void EcritNoms(Surface &s, const CielDuPlan &ciel, const CarteDuPlan &carte) {
  std::vector<std::pair<int, std::size_t>> noms;
  for (const std::size_t rang : carte.astres) {
    if (const auto classe = ClasseDuNom(carte, ciel.astres.at(rang), rang)) {
      noms.emplace_back(*classe, rang);
    }
  }
  std::stable_sort(noms.begin(), noms.end(), [&](const auto &a, const auto &b) {
    return a.first != b.first ? a.first < b.first : ciel.astres[a.second].magnitude < ciel.astres[b.second].magnitude;
  });
  PlanTextes plan(s.largeur, s.hauteur);
  for (const Trace &trace : s.traces) {
    if (const auto *degres = std::get_if<TexteTrace>(&trace)) {
      plan.Prend({degres->position.x, degres->position.y, 4 * kParOctet, 2 * kDemiTexte});
    }
  }
  for (const auto &[classe, rang] : noms) {
    const AstreDuPlan &astre = ciel.astres[rang];
    const std::string nom = carte.nom(astre.astre);
    const double largeur = LargeurDuNom(s, carte, nom);
    const Point p = PlaceSurCarte(s, astre.apparente, astre.azimut, carte.haut);
    const bool disque = astre.astre.genre == GenreAstre::Soleil || astre.astre.genre == GenreAstre::Lune;
    if (const auto zone = PlaceDuNom(s, plan, p, disque ? kDisque + kCote : kCote, largeur)) {
      plan.Prend(*zone);
      EcritEnCouleur(s, {zone->gauche, zone->haut}, astre.raisons.any() ? kPale : kEncre, nom,
                     {GenreTexte::Minute, classe});
    }
  }
}

/// Whether a body's name takes the place of the letter of east or west.
bool NomPresDe(const std::vector<DirectionEsquissee> &astres, double direction) {
  constexpr double kPres = 15;
  return std::any_of(astres.begin(), astres.end(), [&](const DirectionEsquissee &astre) {
    return std::fabs(std::remainder(astre.azimut - direction, 4 * kQuart)) < kPres;
  });
}

} // namespace

Point PlaceSurCarte(const Surface &surface, double hauteur, double azimut, double haut) {
  const double r = Rayon(surface) * (kQuart - std::clamp(hauteur, 0.0, kQuart)) / kQuart;
  const double angle = (azimut - haut) * kRadian;
  const Point c = Centre(surface);
  return {c.x + r * std::sin(angle), c.y - r * std::cos(angle)};
}

void DessineCarte(Surface &surface, const CielDuPlan &ciel, const CarteDuPlan &carte) {
  Efface(surface);
  Fond(surface, carte);
  for (const std::size_t rang : carte.astres) {
    DessineAstre(surface, ciel, carte, rang);
  }
  EcritNoms(surface, ciel, carte);
}

std::optional<std::size_t> AstreSous(const Surface &surface, const CielDuPlan &ciel, const CarteDuPlan &carte,
                                     Point point) {
  std::optional<std::size_t> proche;
  double distance = kToucher;
  for (const std::size_t rang : carte.astres) {
    const AstreDuPlan &astre = ciel.astres.at(rang);
    const Point p = PlaceSurCarte(surface, astre.apparente, astre.azimut, carte.haut);
    const double ici = std::hypot(p.x - point.x, p.y - point.y);
    if (ici < distance) {
      proche = rang;
      distance = ici;
    }
  }
  return proche;
}

void DessineEsquisse(Surface &surface, const std::vector<DirectionEsquissee> &astres, const CarteDuPlan &carte) {
  Efface(surface);
  const Point c = Centre(surface);
  const double r = Rayon(surface) * 0.8;
  Rond(surface, c, r, kCercle);
  for (std::size_t i = 0; i < carte.cardinaux.size(); ++i) {
    const double direction = static_cast<double>(i) * kQuart;
    if (i % 2 == 1 && NomPresDe(astres, direction)) {
      continue;
    }
    const double angle = direction * kRadian;
    EcritEnCouleur(surface, {c.x + (r + 330) * std::sin(angle) - 80, c.y - (r + 330) * std::cos(angle) - kDemiTexte},
                   kEncre, carte.cardinaux.at(i), {GenreTexte::Libre, 0});
  }
  for (std::size_t i = 0; i < astres.size(); ++i) {
    const double angle = astres[i].azimut * kRadian;
    const Point u{std::sin(angle), -std::cos(angle)};
    const Point bout{c.x + r * u.x, c.y + r * u.y};
    const double l = r * 0.75;
    surface.traces.emplace_back(Polyligne{{kPale, 1, Style::Tirets}, {c, bout}, GenreLigne::Libre});
    surface.traces.emplace_back(Polyligne{{kEncre, 2, Style::Plein},
                                          {{c.x - u.y * l, c.y + u.x * l}, {c.x + u.y * l, c.y - u.x * l}},
                                          GenreLigne::Droite});
    Disque(surface, bout, 4, kEncre);
    const std::string nom = std::to_string(i + 1) + " " + astres[i].nom;
    const double cote = u.x < 0 ? -kCote - LargeurDuNom(surface, carte, nom) : kCote;
    EcritEnCouleur(surface, {bout.x + cote, bout.y - kDemiTexte}, kEncre, nom,
                   {GenreTexte::Ville, static_cast<int>(i)});
  }
}

} // namespace velmaris
