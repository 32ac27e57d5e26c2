#include "shell/serie/DessinSerie.hpp"

#include "foundations/TexteNombre.hpp"
#include "shell/complements/Formes.hpp"
#include "shell/complements/Mots.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

namespace velmaris {
namespace {

constexpr Couleur kGrille = Rvb(205, 215, 225);
constexpr Couleur kEncre = Rvb(25, 40, 60);
constexpr Couleur kCourse = Rvb(150, 165, 180);
constexpr Couleur kMarque = Rvb(200, 30, 30);
constexpr double kGauche = 900;    ///< room for heights, 1/1440 inch
constexpr double kDroite = 240;    ///< margin
constexpr double kHaut = 150;      ///< margin
constexpr double kBas = 330;       ///< room for times
constexpr double kEntre = 210;     ///< between heights and residuals
constexpr double kPart = 0.34;     ///< of the residuals
constexpr double kDemiTexte = 110; ///< half the height of a line of words
constexpr double kSoixante = 60;

/// A stretch of numbers and the room that it has on the surface.
struct Axe {
  double moins = 0;
  double plus = 1;
  double debut = 0; ///< where the lesser end stands, 1/1440 inch
  double fin = 1;
  double place(double valeur) const { return debut + (fin - debut) * (valeur - moins) / (plus - moins); }
};

void Elargit(Axe &axe, double part, double moindre) {
  const double largeur = std::max(axe.plus - axe.moins, moindre);
  const double milieu = (axe.plus + axe.moins) / 2;
  axe.moins = milieu - largeur * (0.5 + part);
  axe.plus = milieu + largeur * (0.5 + part);
}

double Milieu(const Surface &s) { return kHaut + (s.hauteur - kHaut - kBas - kEntre) * (1 - kPart); }

Axe AxeDesTemps(const Surface &s, const TraceLectures &t) {
  constexpr double kMarge = 0.04;
  constexpr double kMoindre = 1; // minutes
  Axe axe{t.course.front().x, t.course.back().x, kGauche, s.largeur - kDroite};
  for (const PointDuDessin &l : t.lectures) {
    axe.moins = std::min(axe.moins, l.minutes);
    axe.plus = std::max(axe.plus, l.minutes);
  }
  Elargit(axe, kMarge, kMoindre);
  return axe;
}

Axe AxeDesHauteurs(const Surface &s, const TraceLectures &t) {
  constexpr double kMarge = 0.08;
  constexpr double kMoindre = 2 / kSoixante; // degrees
  Axe axe{t.course.front().y, t.course.front().y, Milieu(s), kHaut};
  const auto etend = [&](double y) {
    axe.moins = std::min(axe.moins, y);
    axe.plus = std::max(axe.plus, y);
  };
  for (const Point &p : t.course) {
    etend(p.y);
  }
  for (const PointDuDessin &l : t.lectures) {
    etend(l.hauteur);
  }
  Elargit(axe, kMarge, kMoindre);
  return axe;
}

Axe AxeDesResidus(const Surface &s, const TraceLectures &t) {
  constexpr double kMarge = 1.2;
  double plus = 2 * t.ecartType;
  for (const PointDuDessin &l : t.lectures) {
    plus = std::max(plus, std::fabs(l.residu));
  }
  return {-plus * kMarge, plus * kMarge, s.hauteur - kBas, Milieu(s) + kEntre};
}

/// The least of usual steps that cuts a stretch into four at most.
template <std::size_t N> double Pas(double largeur, const std::array<double, N> &pas) {
  constexpr double kParts = 5;
  const auto assez = std::find_if(pas.begin(), pas.end(), [&](double p) { return largeur / p < kParts; });
  return assez == pas.end() ? pas.back() : *assez;
}

void GraduesTemps(Surface &s, const TraceLectures &t, const Axe &temps) {
  constexpr std::array<double, 10> kPas = {0.25, 0.5, 1, 2, 5, 10, 15, 30, 60, 120};
  constexpr double kDemiHeure = 210; // half the width of a time's words
  const double pas = Pas(temps.plus - temps.moins, kPas);
  const DateCivile origine = CivileDe(t.origine);
  // Lines stand at whole steps of the clock.
  const double decalage = origine.minute + origine.seconde / kSoixante;
  for (int k = static_cast<int>(std::ceil((temps.moins + decalage) / pas)); k * pas - decalage <= temps.plus; ++k) {
    const double minutes = k * pas - decalage;
    const double x = temps.place(minutes);
    const InstantUTC utc = PlusTard(t.origine, minutes * kSoixante);
    const std::string mots = pas < 1 ? TexteHeureUtc(utc) : TexteHeureMinute(utc);
    Segment(s, {x, kHaut}, {x, s.hauteur - kBas}, {kGrille, 1, Style::Plein});
    EcritEnCouleur(s, {x - kDemiHeure * (pas < 1 ? 1.5 : 1), s.hauteur - kBas + 60}, kEncre, mots,
                   {GenreTexte::Ville, 0});
  }
}

/// Observed heights: the readings corrected, which is why they aren't those of the list.
void GradueHauteurs(Surface &s, const Axe &hauteurs) {
  EcritEnCouleur(s, {kGauche + 60, kHaut + 40}, kEncre, "Ho", {GenreTexte::Libre, 0});
  constexpr std::array<double, 10> kPas = {0.5, 1, 2, 5, 10, 20, 30, 60, 120, 300};
  const double pas = Pas((hauteurs.plus - hauteurs.moins) * kSoixante, kPas) / kSoixante;
  for (int k = static_cast<int>(std::ceil(hauteurs.moins / pas)); k * pas <= hauteurs.plus; ++k) {
    const double y = hauteurs.place(k * pas);
    Segment(s, {kGauche, y}, {s.largeur - kDroite, y}, {kGrille, 1, Style::Plein});
    EcritEnCouleur(s, {60, y - kDemiTexte}, kEncre, TexteAngleSigne(k * pas), {GenreTexte::Libre, 0});
  }
}

void GradueResidus(Surface &s, const TraceLectures &t, const Axe &residus) {
  const double fin = s.largeur - kDroite;
  Segment(s, {kGauche, residus.place(0)}, {fin, residus.place(0)}, {kCourse, 2, Style::Plein});
  for (const double borne : {-2 * t.ecartType, 2 * t.ecartType}) {
    const double y = residus.place(borne);
    Segment(s, {kGauche, y}, {fin, y}, {kCourse, 1, Style::Tirets});
    EcritEnCouleur(s, {60, y - kDemiTexte}, kEncre, DixiemesSignes(borne) + "'", {GenreTexte::Ville, 1});
  }
  EcritEnCouleur(s, {60, residus.place(0) - kDemiTexte}, kEncre, "0.0'", {GenreTexte::Ville, 0});
}

void PoseLecture(Surface &s, Point p, const PointDuDessin &lecture) {
  constexpr double kCreux = 55;
  constexpr double kAnneau = 130;
  constexpr int kPlein = 5;
  if (lecture.compte) {
    Disque(s, p, kPlein, kEncre);
  } else {
    Rond(s, p, kCreux, kEncre, 1);
  }
  if (lecture.marque) {
    Rond(s, p, kAnneau, kMarque, 2);
  }
}

} // namespace

Point PlaceDeLecture(const Surface &surface, const TraceLectures &trace, const PointDuDessin &lecture) {
  return {AxeDesTemps(surface, trace).place(lecture.minutes), AxeDesHauteurs(surface, trace).place(lecture.hauteur)};
}

Point PlaceDuResidu(const Surface &surface, const TraceLectures &trace, const PointDuDessin &lecture) {
  return {AxeDesTemps(surface, trace).place(lecture.minutes), AxeDesResidus(surface, trace).place(lecture.residu)};
}

void DessineLectures(Surface &surface, const TraceLectures &trace) {
  Efface(surface);
  if (trace.course.size() < 2) {
    return;
  }
  const Axe temps = AxeDesTemps(surface, trace);
  const Axe hauteurs = AxeDesHauteurs(surface, trace);
  GraduesTemps(surface, trace, temps);
  GradueHauteurs(surface, hauteurs);
  GradueResidus(surface, trace, AxeDesResidus(surface, trace));
  if (trace.passage) {
    const double x = temps.place(*trace.passage);
    Segment(surface, {x, kHaut}, {x, surface.hauteur - kBas}, {kCourse, 1, Style::TiretPoint});
  }
  Polyligne ligne{{kCourse, 2, Style::Plein}, {}, GenreLigne::Libre};
  for (const Point &p : trace.course) {
    ligne.points.push_back({temps.place(p.x), hauteurs.place(p.y)});
  }
  surface.traces.emplace_back(std::move(ligne));
  for (const PointDuDessin &lecture : trace.lectures) {
    PoseLecture(surface, PlaceDeLecture(surface, trace, lecture), lecture);
    PoseLecture(surface, PlaceDuResidu(surface, trace, lecture), lecture);
  }
}

} // namespace velmaris
