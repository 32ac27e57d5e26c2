#include "complements/papier/Canevas.hpp"

#include "complements/papier/Nombres.hpp"
#include "foundations/TexteNombre.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <optional>
#include <utility>

namespace velmaris {
namespace {

constexpr double kRadian = std::numbers::pi / 180;
constexpr double kMinutes = 60;
constexpr double kTour = 360;
constexpr double kEcartLignes = 1000; ///< from one line of the graticule to the next, 1/1440 inch, at least
constexpr double kEcartTraits = 80;   ///< from one mark of the frame to the next, at least
constexpr double kMarque = 90;        ///< length of a mark
constexpr double kChiffres = 8;       ///< points
constexpr std::array<int, 10> kPas = {1, 2, 5, 10, 20, 30, 60, 120, 300, 600};
constexpr Encre kFin{.largeur = 0.35, .gris = 0.35};
constexpr Encre kGros{.largeur = 0.9};

Point SurLaRose(Point centre, double rayon, double azimut) {
  return {centre.x + rayon * std::sin(azimut * kRadian), centre.y - rayon * std::cos(azimut * kRadian)};
}

/// A degree with its minutes where it isn't whole: "47°", "47° 10'".
std::string DegreEcrit(int minutes) {
  const int entiers = std::abs(minutes) / 60;
  const int reste = std::abs(minutes) % 60;
  return Format(entiers, "0") + "°" + (reste == 0 ? "" : " " + Format(reste, "00") + "'");
}

/// The part of one segment that lies in a rectangle.
/// Source: Liang and Barsky, 1984.
std::optional<std::pair<Point, Point>> CoupeSegment(Point a, Point b, const CadrePage &cadre) {
  double debut = 0;
  double fin = 1;
  const double dx = b.x - a.x;
  const double dy = b.y - a.y;
  const std::array<std::pair<double, double>, 4> bords = {
      {{-dx, a.x - cadre.coin.x}, {dx, cadre.oppose.x - a.x}, {-dy, a.y - cadre.coin.y}, {dy, cadre.oppose.y - a.y}}};
  for (const auto &[pente, distance] : bords) {
    if (pente == 0) {
      if (distance < 0) {
        return std::nullopt;
      }
    } else if (pente < 0) {
      debut = std::max(debut, distance / pente);
    } else {
      fin = std::min(fin, distance / pente);
    }
  }
  if (debut > fin) {
    return std::nullopt;
  }
  return std::make_pair(Point{a.x + debut * dx, a.y + debut * dy}, Point{a.x + fin * dx, a.y + fin * dy});
}

/// The marks of one direction of the graticule.
struct Marques {
  double origine = 0;  ///< minutes of arc in the middle
  double longueur = 0; ///< of a minute of arc, 1/1440 inch
  double avant = 0;    ///< minutes before and after the middle
  double apres = 0;
};

template <class Fait> void PourChaqueMarque(const Marques &marques, int pas, const Fait &fait) {
  const int premiere = static_cast<int>(std::ceil((marques.origine - marques.avant) / pas - 1e-9));
  const int derniere = static_cast<int>(std::floor((marques.origine + marques.apres) / pas + 1e-9));
  for (int i = premiere; i <= derniere; ++i) {
    fait(i * pas, (i * pas - marques.origine) * marques.longueur);
  }
}

/// Minutes from one mark of the frame to the next.
int PasDesMarques(double longueur, int pasLignes) {
  for (const int pas : kPas) {
    if (pasLignes % pas == 0 && pas * longueur >= kEcartTraits) {
      return pas;
    }
  }
  return pasLignes;
}

/// Draws one sheet.
class Dessin {
public:
  Dessin(Feuillet &page, const Canevas &canevas, const MotsCanevas &mots)
      : page_(page), c_(canevas), mots_(mots), minuteEst_(c_.plan.mille * std::cos(c_.plan.milieu.latitude * kRadian)) {
  }

  void Tout() {
    Paralleles();
    Meridiens();
    page_.Cadre(c_.cadre.coin, c_.cadre.oppose, kGros);
    if (c_.rayonRose > 0) {
      Rose();
    }
    Echelle();
    Note();
  }

private:
  void Paralleles() {
    const double centre = c_.plan.centre.y;
    const Marques marques{c_.plan.milieu.latitude * kMinutes, c_.plan.mille,
                          (c_.cadre.oppose.y - centre) / c_.plan.mille, (centre - c_.cadre.coin.y) / c_.plan.mille};
    const int pas = PasDuCanevas(c_.plan.mille);
    const double gauche = c_.cadre.coin.x;
    const double droite = c_.cadre.oppose.x;
    PourChaqueMarque(marques, PasDesMarques(c_.plan.mille, pas), [&](int /*minutes*/, double haut) {
      page_.Trait({gauche, centre - haut}, {gauche + kMarque, centre - haut});
      page_.Trait({droite - kMarque, centre - haut}, {droite, centre - haut});
    });
    PourChaqueMarque(marques, pas, [&](int minutes, double haut) {
      const double y = centre - haut;
      page_.Trait({gauche, y}, {droite, y}, kFin);
      if (std::abs(minutes) < kChiffresMax && Loin(y, c_.cadre.coin.y, c_.cadre.oppose.y)) {
        page_.Mot({gauche - 60, y + 60},
                  DegreEcrit(minutes) + (minutes < 0   ? " S"
                                         : minutes > 0 ? " N"
                                                       : ""),
                  {.taille = kChiffres, .ancrage = Ancrage::Droite});
      }
    });
  }

  void Meridiens() {
    const double centre = c_.plan.centre.x;
    const Marques marques{c_.longitudesVides ? 0 : c_.plan.milieu.longitude * kMinutes, minuteEst_,
                          (centre - c_.cadre.coin.x) / minuteEst_, (c_.cadre.oppose.x - centre) / minuteEst_};
    const int pas = PasDuCanevas(minuteEst_);
    const double haut = c_.cadre.coin.y;
    const double bas = c_.cadre.oppose.y;
    PourChaqueMarque(marques, PasDesMarques(minuteEst_, pas), [&](int /*minutes*/, double est) {
      page_.Trait({centre + est, bas - kMarque}, {centre + est, bas});
      page_.Trait({centre + est, haut}, {centre + est, haut + kMarque});
    });
    PourChaqueMarque(marques, pas, [&](int minutes, double est) {
      const double x = centre + est;
      page_.Trait({x, haut}, {x, bas}, kFin);
      if (!c_.longitudesVides) {
        page_.Mot({x, bas + 190}, LongitudeEcrite(minutes), {.taille = kChiffres, .ancrage = Ancrage::Milieu});
      } else {
        page_.Trait({x - 280, bas + 230}, {x + 280, bas + 230}, {.largeur = 0.5, .tiret = 1.5});
      }
    });
  }

  /// A meridian's figures, in [-180, 180].
  static std::string LongitudeEcrite(int minutes) {
    const int tour = static_cast<int>(kTour * kMinutes);
    int dans = minutes % tour;
    dans -= dans > tour / 2 ? tour : dans < -tour / 2 ? -tour : 0;
    return DegreEcrit(dans) + (dans == 0 || std::abs(dans) == tour / 2 ? "" : dans < 0 ? " W" : " E");
  }

  /// Whether figures beside a line have room between two ends.
  static bool Loin(double y, double haut, double bas) { return y > haut - 1 && y < bas + 1; }

  void Rose() {
    const Point centre = c_.rose;
    const double rayon = c_.rayonRose;
    const int pas = rayon > 1500 ? 1 : 5;
    page_.Rond(centre, rayon, {.largeur = 0.6});
    for (int azimut = 0; azimut < 360; azimut += pas) {
      const double longueur = rayon * (azimut % 30 == 0   ? 0.12
                                       : azimut % 10 == 0 ? 0.09
                                       : azimut % 5 == 0  ? 0.06
                                                          : 0.035);
      page_.Trait(SurLaRose(centre, rayon - longueur, azimut), SurLaRose(centre, rayon, azimut), {.largeur = 0.4});
      if (azimut % 30 == 0) {
        const Point pied = SurLaRose(centre, rayon * 0.8, azimut);
        page_.Mot({pied.x, pied.y + 55}, Format(azimut, "000"), {.taille = 7, .ancrage = Ancrage::Milieu});
      }
    }
    page_.Trait({centre.x - rayon * 0.06, centre.y}, {centre.x + rayon * 0.06, centre.y});
    page_.Trait({centre.x, centre.y - rayon * 0.06}, {centre.x, centre.y + rayon * 0.06});
  }

  void Echelle() {
    const double place = c_.cadre.largeur() / 3;
    int milles = 1;
    for (const int essai : {1, 2, 5, 10, 20, 50, 100, 200, 500}) {
      milles = essai * c_.plan.mille <= place ? essai : milles;
    }
    const int pas = milles % 5 == 0 ? milles / 5 : 1;
    const double y = c_.cadre.oppose.y + 560;
    const double gauche = c_.cadre.coin.x;
    for (int m = 0; m < milles; m += pas) {
      const Point coin{gauche + m * c_.plan.mille, y - 60};
      const Point oppose{gauche + (m + pas) * c_.plan.mille, y};
      (m / pas) % 2 == 0 ? page_.Fond(coin, oppose, 0) : page_.Cadre(coin, oppose, {.largeur = 0.4});
    }
    const double bout = gauche + milles * c_.plan.mille;
    page_.Mot({gauche, y - 90}, "0", {.taille = kChiffres, .ancrage = Ancrage::Milieu});
    page_.Mot({bout, y - 90}, Format(milles, "0"), {.taille = kChiffres, .ancrage = Ancrage::Milieu});
    page_.Mot({bout + 120, y}, mots_.milles, {.taille = kChiffres});
  }

  void Note() {
    const double cosinus = std::cos(c_.plan.milieu.latitude * kRadian);
    page_.Mot({c_.cadre.coin.x, c_.cadre.oppose.y + 860},
              mots_.plane + TexteLatitude(c_.plan.milieu.latitude) + mots_.minute + Format(cosinus, "0.000") + " M",
              {.taille = kChiffres});
  }

  static constexpr int kChiffresMax = 90 * 60 + 1; ///< minutes of a latitude
  Feuillet &page_;
  const Canevas &c_;
  const MotsCanevas &mots_;
  double minuteEst_;
};

} // namespace

Point PlanVrai::PointDe(const LieuNavire &lieu) const {
  const double est =
      std::remainder(lieu.longitude - milieu.longitude, kTour) * kMinutes * std::cos(milieu.latitude * kRadian);
  return Decale(centre, (lieu.latitude - milieu.latitude) * kMinutes, est);
}

void DessineCanevas(Feuillet &page, const Canevas &canevas, const MotsCanevas &mots) {
  Dessin(page, canevas, mots).Tout();
}

std::vector<std::vector<Point>> CoupeAuCadre(const std::vector<Point> &points, const CadrePage &cadre) {
  std::vector<std::vector<Point>> morceaux;
  for (std::size_t i = 1; i < points.size(); ++i) {
    const auto segment = CoupeSegment(points[i - 1], points[i], cadre);
    if (!segment) {
      continue;
    }
    if (morceaux.empty() || !(morceaux.back().back() == segment->first)) {
      morceaux.push_back({segment->first});
    }
    morceaux.back().push_back(segment->second);
  }
  return morceaux;
}

int PasDuCanevas(double mille) {
  const auto *const assez =
      std::find_if(kPas.begin(), kPas.end(), [&](int pas) { return pas * mille >= kEcartLignes; });
  return assez == kPas.end() ? kPas.back() : *assez;
}

Feuillet PageVierge(double latitude, double minutes, FormatPapier format, const std::string &titre,
                    const std::string &pied, const MotsCanevas &mots) {
  constexpr double kMarge = 900;
  constexpr double kGauche = 1500;
  constexpr double kHaut = 1500;
  constexpr double kBas = 2000;
  Feuillet page = FeuilletVide(format);
  page.titre = titre;
  const CadrePage cadre{{kGauche, kHaut}, {page.largeur - kMarge, page.hauteur - kBas}};
  const Point centre{(cadre.coin.x + cadre.oppose.x) / 2, (cadre.coin.y + cadre.oppose.y) / 2};
  const PlanVrai plan{{latitude, 0}, centre, cadre.hauteur() / minutes};
  page.Mot({kGauche, kHaut - 300}, titre, {.taille = 14, .gras = true});
  DessineCanevas(page, {plan, cadre, true, centre, std::min(cadre.largeur(), cadre.hauteur()) * 0.3}, mots);
  page.Mot({kGauche, page.hauteur - kMarge}, pied, {.taille = 7});
  return page;
}

} // namespace velmaris
