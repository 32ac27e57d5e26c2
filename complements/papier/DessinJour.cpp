#include "complements/papier/DessinJour.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>

namespace velmaris {
namespace {

constexpr double kRadian = std::numbers::pi / 180;
constexpr double kMinutesRayon = 60 / kRadian; ///< of the sphere
constexpr double kMillesMax = 300;             ///< either way, as far as a line's curve is one of the second order
constexpr int kCotes = 72;                     ///< of an ellipse
constexpr int kPasDroite = 16;                 ///< of half a line
constexpr double kTailleNom = 7.5;             ///< points
constexpr double kTailleHeure = 7;             ///< points
constexpr double kParOctet = 80;               ///< a guess of a letter's width, 1/1440 inch
constexpr double kDemiMot = 60;                ///< from the base of a word to its middle
constexpr double kPasPris = 90;                ///< between the points that a word takes
constexpr double kLibre = 170;                 ///< that words keep from what stands there
constexpr Encre kTraitDroite{.largeur = 0.9};
constexpr Encre kTraitOte{.largeur = 0.7, .tiret = 3};
constexpr Encre kTraitRoute{.largeur = 0.6, .tiret = 1.5};

double Distance(Point a, Point b) { return std::hypot(a.x - b.x, a.y - b.y); }

Point Plus(Point p, Point sens, double loin) { return {p.x + sens.x * loin, p.y + sens.y * loin}; }

double LargeurDe(const std::string &mots) { return kParOctet * static_cast<double>(mots.size()); }

/// The points that a word takes.
std::vector<Point> PointsPris(Point debut, Point sens, double largeur) {
  std::vector<Point> points;
  const int pas = static_cast<int>(largeur / kPasPris);
  for (int i = 0; i <= pas; ++i) {
    points.push_back(Plus(debut, sens, i * kPasPris));
  }
  return points;
}

bool Contient(const CadrePage &cadre, Point p) {
  return p.x > cadre.coin.x && p.x < cadre.oppose.x && p.y > cadre.coin.y && p.y < cadre.oppose.y;
}

} // namespace

Point SurDroite(const PlanVrai &plan, const DroiteDuJour &droite, double loin) {
  const double azimut = droite.azimut * kRadian;
  const double vers = droite.vers + loin * loin * std::tan(droite.hauteur * kRadian) / (2 * kMinutesRayon);
  return plan.Decale(plan.PointDe(droite.appui), vers * std::cos(azimut) - loin * std::sin(azimut),
                     vers * std::sin(azimut) + loin * std::cos(azimut));
}

Point PlaceDeLaRose(const DonneesJour &jour, const PlanVrai &plan, const CadrePage &cadre, double rayon) {
  constexpr double kDuBord = 120;
  std::vector<Point> places;
  places.reserve(jour.route.size());
  for (const LieuNavire &lieu : jour.route) {
    places.push_back(plan.PointDe(lieu));
  }
  for (const DroiteDuJour &droite : jour.droites) {
    places.push_back(SurDroite(plan, droite, 0));
  }
  if (jour.point) {
    places.push_back(plan.PointDe(jour.point->lieu));
  }
  const double gauche = cadre.coin.x + rayon + kDuBord;
  const double droite = cadre.oppose.x - rayon - kDuBord;
  const double haut = cadre.coin.y + rayon + kDuBord;
  const double bas = cadre.oppose.y - rayon - kDuBord;
  const std::array<Point, 4> coins = {{{droite, haut}, {gauche, haut}, {droite, bas}, {gauche, bas}}};
  const auto couvre = [&](Point coin) {
    return std::count_if(places.begin(), places.end(),
                         [&](Point p) { return Distance(p, coin) < rayon + kDuBord + kLibre; });
  };
  return *std::min_element(coins.begin(), coins.end(), [&](Point a, Point b) { return couvre(a) < couvre(b); });
}

DessinJour::DessinJour(Feuillet &page, const PlanVrai &plan, const CadrePage &cadre, Point rose, double rayonRose)
    : page_(page), plan_(plan), cadre_(cadre), rose_(rose), rayonRose_(rayonRose) {}

void DessinJour::Trace(const DonneesJour &jour) {
  Route(jour.route);
  for (const DroiteDuJour &droite : jour.droites) {
    if (!jour.point) {
      Depart(droite);
    }
  }
  std::vector<std::vector<std::vector<Point>>> droites;
  droites.reserve(jour.droites.size());
  for (const DroiteDuJour &droite : jour.droites) {
    droites.push_back(Droite(droite));
  }
  if (jour.point) {
    Fixe(*jour.point);
  }
  for (std::size_t i = 0; i < droites.size(); ++i) {
    Nomme(droites[i], jour.droites[i].nom);
  }
  DateRoute(jour);
}

void DessinJour::Ligne(const std::vector<Point> &points, const Encre &encre) {
  for (const std::vector<Point> &morceau : CoupeAuCadre(points, cadre_)) {
    page_.Traits(morceau, encre);
  }
}

void DessinJour::Route(const std::vector<LieuNavire> &route) {
  std::vector<Point> points;
  for (const LieuNavire &lieu : route) {
    points.push_back(plan_.PointDe(lieu));
    page_.Rond(points.back(), 35, {.largeur = 0.5});
  }
  Prend(points);
  Ligne(points, kTraitRoute);
}

void DessinJour::Fixe(const PointDuJour &point) {
  constexpr double kTaille = 9; // points
  const Point ici = plan_.PointDe(point.lieu);
  const double direction = point.ellipse.direction * kRadian;
  std::vector<Point> points;
  for (int i = 0; i <= kCotes && point.ellipse.a > 0; ++i) {
    const double angle = 2 * std::numbers::pi * i / kCotes;
    const double grand = point.ellipse.a * std::cos(angle);
    const double petit = point.ellipse.b * std::sin(angle);
    points.push_back(plan_.Decale(ici, grand * std::cos(direction) - petit * std::sin(direction),
                                  grand * std::sin(direction) + petit * std::cos(direction)));
  }
  Prend(points);
  Ligne(points, {.largeur = 1.2});
  page_.Rond(ici, 22, {}, true);
  page_.Rond(ici, 95, {.largeur = 1});
  const Point pied{ici.x + 130, ici.y + 220};
  page_.Mot(pied, point.heure, {.taille = kTaille, .gras = true});
  Prend({ici});
  Prend(PointsPris({pied.x, pied.y - kDemiMot}, {1, 0}, LargeurDe(point.heure) * kTaille / kTailleNom));
}

/// Without a fix each line is laid off from a place of its own: a cross there, and an arrow along the azimuth to the
/// line, or from it where the line lies away from the body.
void DessinJour::Depart(const DroiteDuJour &droite) {
  constexpr double kBras = 70;
  constexpr double kPointe = 110;
  constexpr double kOuverture = 25; // degrees
  const Point ici = plan_.PointDe(droite.appui);
  const Point bout = SurDroite(plan_, droite, 0);
  page_.Trait({ici.x - kBras, ici.y}, {ici.x + kBras, ici.y});
  page_.Trait({ici.x, ici.y - kBras}, {ici.x, ici.y + kBras});
  Ligne({ici, bout}, {.largeur = 0.6, .tiret = 1});
  const Point vers = droite.vers < 0 ? ici : bout; // the arrow shows to the body
  if (Contient(cadre_, vers)) {
    for (const double cote : {-kOuverture, kOuverture}) {
      const double angle = (droite.azimut + 180 + cote) * kRadian;
      page_.Trait(vers, {vers.x + kPointe * std::sin(angle), vers.y - kPointe * std::cos(angle)});
    }
  }
  Prend({ici, bout});
}

/// @return its pieces on the sheet
std::vector<std::vector<Point>> DessinJour::Droite(const DroiteDuJour &droite) {
  const double demie = std::min(std::hypot(cadre_.largeur(), cadre_.hauteur()) / plan_.mille, kMillesMax);
  std::vector<Point> points;
  for (int i = -kPasDroite; i <= kPasDroite; ++i) {
    points.push_back(SurDroite(plan_, droite, demie * i / kPasDroite));
  }
  auto morceaux = CoupeAuCadre(points, cadre_);
  for (const std::vector<Point> &morceau : morceaux) {
    page_.Traits(morceau, droite.comptee ? kTraitDroite : kTraitOte);
  }
  return morceaux;
}

/// Places of a name along a piece of a line: from its ends inwards, in turns.
std::vector<DessinJour::Nom> DessinJour::PlacesLeLong(const std::vector<Point> &morceau, double largeur) {
  constexpr double kDuBout = 150;
  constexpr double kPas = 450;
  constexpr double kAuDessus = 45;
  const double longueur = Distance(morceau.front(), morceau.back());
  std::vector<Nom> places;
  const int pas = static_cast<int>(std::max(0.0, longueur - largeur - kDuBout) / kPas);
  for (int i = 0; i <= pas; ++i) {
    const double loin = kDuBout + i * kPas;
    for (const bool debut : {true, false}) {
      const Point bout = debut ? morceau.front() : morceau.back();
      const Point autre = debut ? morceau.back() : morceau.front();
      const Point sens =
          longueur > 0 ? Point{(autre.x - bout.x) / longueur, (autre.y - bout.y) / longueur} : Point{1, 0};
      const Point lu = sens.x >= 0 ? sens : Point{-sens.x, -sens.y}; // as it is read, from the page's left
      const Point haut{lu.y, -lu.x};
      const Point pied = Plus(Plus(bout, sens, loin), haut, kAuDessus);
      places.push_back({pied, sens, PointsPris(Plus(pied, haut, kDemiMot), sens, largeur)});
    }
  }
  return places;
}

/// Writes a name along a line, readable from the foot of the page or from its right side: at the first place that is
/// free, else where it has the most room.
void DessinJour::Nomme(const std::vector<std::vector<Point>> &morceaux, const std::string &nom) {
  const Nom *choisie = nullptr;
  double jeu = -1;
  std::vector<Nom> places;
  for (const std::vector<Point> &morceau : morceaux) {
    const std::vector<Nom> la = PlacesLeLong(morceau, LargeurDe(nom));
    places.insert(places.end(), la.begin(), la.end());
  }
  for (const Nom &place : places) {
    if (const double ici = std::min(Jeu(place.pris), kLibre); ici > jeu) {
      jeu = ici;
      choisie = &place;
    }
  }
  if (choisie == nullptr) {
    return;
  }
  const bool endroit = choisie->sens.x >= 0;
  const double angle = std::atan2(choisie->sens.y, choisie->sens.x) + (endroit ? 0 : std::numbers::pi);
  page_.Mot(choisie->pied, nom,
            {.taille = kTailleNom, .ancrage = endroit ? Ancrage::Gauche : Ancrage::Droite, .angle = angle / kRadian});
  Prend(choisie->pris);
}

/// The times of the track, where they have room.
void DessinJour::DateRoute(const DonneesJour &jour) {
  constexpr double kBas = 190;
  constexpr double kHaut = 90;
  for (std::size_t i = 0; i < std::min(jour.route.size(), jour.heures.size()); ++i) {
    const Point ici = plan_.PointDe(jour.route[i]);
    const std::string &heure = jour.heures[i];
    const bool dite = (jour.point && jour.point->heure == heure) || (i > 0 && jour.heures[i - 1] == heure);
    if (dite) {
      continue;
    }
    const double largeur = LargeurDe(heure) * kTailleHeure / kTailleNom;
    for (const Point pied : {Point{ici.x + kHaut, ici.y + kBas}, Point{ici.x - kHaut - largeur, ici.y + kBas},
                             Point{ici.x + kHaut, ici.y - kHaut}, Point{ici.x - kHaut - largeur, ici.y - kHaut}}) {
      std::vector<Point> pris = PointsPris({pied.x, pied.y - kDemiMot}, {1, 0}, largeur);
      if (Jeu(pris) >= kHaut) {
        page_.Mot(pied, heure, {.taille = kTailleHeure});
        Prend(pris);
        break;
      }
    }
  }
}

/// How far some points keep from what stands on the sheet; 0 where one lies outside, or on the rose.
double DessinJour::Jeu(const std::vector<Point> &points) const {
  double jeu = std::numeric_limits<double>::infinity();
  for (const Point &p : points) {
    if (!Contient(cadre_, p) || Distance(p, rose_) < rayonRose_) {
      return 0;
    }
    for (const Point &pris : pris_) {
      jeu = std::min(jeu, Distance(p, pris));
    }
  }
  return jeu;
}

void DessinJour::Prend(const std::vector<Point> &points) { pris_.insert(pris_.end(), points.begin(), points.end()); }

} // namespace velmaris
