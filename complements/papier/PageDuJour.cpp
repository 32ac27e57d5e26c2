#include "complements/papier/PageDuJour.hpp"

#include "complements/papier/DessinJour.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <sstream>

namespace velmaris {
namespace {

constexpr double kMinutes = 60;
constexpr double kMarge = 720;
constexpr double kGauche = 1400;       ///< left edge of the sheet
constexpr double kHautFeuille = 1350;  ///< its upper edge
constexpr double kPartFeuille = 0.535; ///< of the page's height that it takes
constexpr double kPas = 255;           ///< from line to line
constexpr double kMots = 8.5;          ///< points
constexpr double kTete = 8;            ///< points
constexpr double kPied = 7;            ///< points
constexpr double kRayonRose = 800;
constexpr double kDemiMilles = 1.5; ///< miles that a chart shows either way, at least
constexpr double kMilesMax = 1200;  ///< either way, at most: a plain chart of more is none
constexpr double kJeu = 1.25;       ///< more than the farthest place
/// Left edge of a text's column, right edge of a figure's, from the margin.
constexpr std::array<double, kColonnesJour> kColonnes = {0, 2350, 3600, 4800, 6000, 6750, 7850, 8950, 10050};

/// Where a line passes nearest to the place that it is laid off from, as a place.
LieuNavire PiedDe(const DroiteDuJour &droite) {
  constexpr double kRadian = std::numbers::pi / 180;
  const double azimut = droite.azimut * kRadian;
  const double departement = std::max(0.1, std::cos(droite.appui.latitude * kRadian)); // of a mile east
  return {droite.appui.latitude + droite.vers / kMinutes * std::cos(azimut),
          droite.appui.longitude + droite.vers / kMinutes * std::sin(azimut) / departement};
}

/// All places that a chart has to show.
std::vector<LieuNavire> LieuxMontres(const DonneesJour &jour) {
  std::vector<LieuNavire> lieux = jour.route;
  if (jour.point) {
    lieux.push_back(jour.point->lieu);
  }
  for (const DroiteDuJour &droite : jour.droites) {
    lieux.push_back(droite.appui);
    if (!jour.point) {
      lieux.push_back(PiedDe(droite));
    }
  }
  return lieux;
}

/// Letters of a text in UTF-8.
std::size_t Lettres(const std::string &texte) {
  return static_cast<std::size_t>(std::count_if(
      texte.begin(), texte.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

/// A text in lines of so many letters at most, parted between words; a longer word has a line of its own. One line at
/// least.
std::vector<std::string> EnLignes(const std::string &texte, std::size_t lettres) {
  std::vector<std::string> lignes(1);
  std::istringstream mots(texte);
  for (std::string mot; mots >> mot;) {
    std::string &derniere = lignes.back();
    if (derniere.empty()) {
      derniere = mot;
    } else if (Lettres(derniere) + 1 + Lettres(mot) <= lettres) {
      derniere += ' ' + mot;
    } else {
      lignes.push_back(mot);
    }
  }
  return lignes;
}

/// Writes what stands under the sheet, and further pages where the table is long.
class Texte {
public:
  Texte(std::vector<Feuillet> &pages, FormatPapier format, const MotsJour &mots)
      : pages_(pages), format_(format), mots_(mots) {}

  void Commence(const std::string &titre) {
    Feuillet &page = pages_.emplace_back(FeuilletVide(format_));
    page.titre = titre;
    page.Mot({kMarge, kMarge + 250}, titre, {.taille = 14, .gras = true});
    const double bas = page.hauteur - kMarge;
    page.Trait({kMarge, bas - 200}, {page.largeur - kMarge, bas - 200}, {.largeur = 0.4, .gris = 0.45});
    page.Mot({kMarge, bas}, mots_.pied, {.taille = kPied});
    y_ = kMarge + 650;
  }

  Feuillet &Ici() { return pages_.back(); }
  void Descend(double y) { y_ = y; }

  void Ligne(const std::string &texte, bool gras) {
    y_ += kPas;
    Ici().Mot({kMarge, y_}, texte, {.taille = kMots, .gras = gras});
  }

  void Meteo(const std::vector<std::string> &valeurs) {
    constexpr std::size_t kParLigne = 2;
    const double moitie = (Ici().largeur - 2 * kMarge) / kParLigne;
    y_ += kPas / 2;
    double bas = y_; // of the line above, however many lines its longer text has
    for (std::size_t i = 0; i < mots_.meteo.size(); ++i) {
      const bool seule = i + 1 == mots_.meteo.size(); // the last takes the whole width
      const double gauche = kMarge + (seule ? 0 : static_cast<double>(i % kParLigne) * moitie);
      if (i % kParLigne == 0 || seule) {
        y_ = bas + kPasMeteo;
      }
      const double droite = seule ? Ici().largeur - kMarge : gauche + moitie - 250;
      Ici().Mot({gauche, y_}, mots_.meteo[i], {.taille = kMots, .gras = true});
      bas = std::max(bas, Valeur({gauche + kValeur, y_}, droite, i < valeurs.size() ? valeurs[i] : std::string()));
    }
    y_ = bas + kPas / 2;
  }

  void Table(const std::vector<std::array<std::string, kColonnesJour>> &visees) {
    Tete();
    for (const auto &rangee : visees) {
      if (y_ + kPas > Ici().hauteur - kMarge - 300) {
        Commence(mots_.titre + mots_.suite);
        Tete();
      }
      Rangee(rangee, false, kMots);
    }
  }

private:
  static constexpr double kValeur = 1250;         ///< from a word of the weather to what is typed
  static constexpr double kPasMeteo = kPas * 1.2; ///< from line to line of it

  /// Writes what was typed on as many dotted lines as it takes. @return the base of the last one
  double Valeur(Point pied, double droite, const std::string &texte) {
    constexpr double kParLettre = 95; // of a wide text, 1/1440 inch
    for (const std::string &ligne : EnLignes(texte, static_cast<std::size_t>((droite - pied.x) / kParLettre))) {
      Ici().Mot(pied, ligne, {.taille = kMots});
      Ici().Trait({pied.x, pied.y + 45}, {droite, pied.y + 45}, {.largeur = 0.4, .tiret = 1.5});
      pied.y += kPasMeteo;
    }
    return pied.y - kPasMeteo;
  }

  void Tete() {
    y_ += kPas / 2;
    Rangee(mots_.colonnes, true, kTete);
    Ici().Trait({kMarge, y_ + 60}, {Ici().largeur - kMarge, y_ + 60});
    y_ += 60;
  }

  void Rangee(const std::array<std::string, kColonnesJour> &mots, bool gras, double taille) {
    y_ += kPas;
    const double part = (Ici().largeur - 2 * kMarge) / kColonnes.back();
    for (std::size_t i = 0; i < kColonnesJour; ++i) {
      Ici().Mot({kMarge + kColonnes.at(i) * part, y_}, mots.at(i),
                {.taille = taille, .gras = gras, .ancrage = i == 0 ? Ancrage::Gauche : Ancrage::Droite});
    }
  }

  std::vector<Feuillet> &pages_;
  FormatPapier format_;
  const MotsJour &mots_;
  double y_ = 0;
};

} // namespace

PlanVrai PlanDuJour(const DonneesJour &jour, const CadrePage &cadre) {
  const std::vector<LieuNavire> lieux = LieuxMontres(jour);
  PlanVrai plan;
  plan.centre = {(cadre.coin.x + cadre.oppose.x) / 2, (cadre.coin.y + cadre.oppose.y) / 2};
  plan.mille = 1;
  if (lieux.empty()) {
    plan.mille = cadre.hauteur() / (2 * kMinutes);
    return plan;
  }
  // Longitudes are reckoned from the first place, so that a day on the date line is no journey round the world.
  const LieuNavire premier = lieux.front();
  std::array<double, 4> bords = {premier.latitude, premier.latitude, 0, 0};
  for (const LieuNavire &lieu : lieux) {
    const double est = std::remainder(lieu.longitude - premier.longitude, 360.0);
    bords = {std::min(bords[0], lieu.latitude), std::max(bords[1], lieu.latitude), std::min(bords[2], est),
             std::max(bords[3], est)};
  }
  plan.milieu = {(bords[0] + bords[1]) / 2, std::remainder(premier.longitude + (bords[2] + bords[3]) / 2, 360.0)};
  double nord = kDemiMilles;
  double est = kDemiMilles;
  const auto montre = [&](Point p) {
    nord = std::max(nord, std::fabs(p.y - plan.centre.y));
    est = std::max(est, std::fabs(p.x - plan.centre.x));
  };
  std::for_each(lieux.begin(), lieux.end(), [&](const LieuNavire &lieu) { montre(plan.PointDe(lieu)); });
  for (const DroiteDuJour &droite : jour.droites) {
    montre(SurDroite(plan, droite, 0));
  }
  const double axe = jour.point ? jour.point->ellipse.a : 0;
  const double demiNord = std::min(std::max(nord, axe) * kJeu, kMilesMax);
  const double demiEst = std::min(std::max(est, axe) * kJeu, kMilesMax);
  plan.mille = std::min(cadre.hauteur() / 2 / demiNord, cadre.largeur() / 2 / demiEst);
  return plan;
}

namespace {

/// The pages, with a sheet of a part of its full height.
std::vector<Feuillet> PagesAvecFeuille(const DonneesJour &jour, FormatPapier format, const MotsJour &mots,
                                       double part) {
  std::vector<Feuillet> pages;
  Texte texte(pages, format, mots);
  texte.Commence(mots.titre);
  Feuillet &page = texte.Ici();
  const double hauteur = part * kPartFeuille * TailleDuPapier(FormatPapier::Lettre).y;
  const CadrePage cadre{{kGauche, kHautFeuille}, {page.largeur - kMarge, kHautFeuille + hauteur}};
  const PlanVrai plan = PlanDuJour(jour, cadre);
  const Point rose = PlaceDeLaRose(jour, plan, cadre, kRayonRose);
  DessineCanevas(page, {plan, cadre, false, rose, kRayonRose}, mots.canevas);
  DessinJour(page, plan, cadre, rose, kRayonRose).Trace(jour);
  texte.Descend(cadre.oppose.y + 1000);
  for (std::size_t i = 0; i < jour.lignes.size(); ++i) {
    texte.Ligne(jour.lignes[i], i == 0);
  }
  texte.Meteo(jour.meteo);
  texte.Table(jour.visees);
  return pages;
}

} // namespace

std::vector<Feuillet> PagesDuJour(const DonneesJour &jour, FormatPapier format, const MotsJour &mots) {
  for (const double part : {1.0, 0.92, 0.84, 0.76, 0.68}) {
    std::vector<Feuillet> pages = PagesAvecFeuille(jour, format, mots, part);
    if (pages.size() == 1) {
      return pages;
    }
  }
  return PagesAvecFeuille(jour, format, mots, 1);
}

} // namespace velmaris
