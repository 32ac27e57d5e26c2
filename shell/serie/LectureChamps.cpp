#include "shell/serie/LectureChamps.hpp"

#include "complements/ciel/Refus.hpp"
#include "complements/controle/ViseeTypee.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/complements/Mots.hpp"
#include "shell/complements/ReglagesLus.hpp"
#include "shell/complements/Saisies.hpp"
#include "shell/serie/AstresListe.hpp"
#include "shell/visee/Saisie.hpp"

#include <cmath>
#include <string>

namespace velmaris {
namespace {

constexpr double kTour = 360;
constexpr double kVitesseMax = 100;    ///< knots
constexpr double kOeilMax = 100;       ///< metres
constexpr double kCollimationMax = 60; ///< minutes
constexpr double kErreurMin = 0.1;     ///< minutes
constexpr double kErreurPlus = 60;     ///< minutes
constexpr double kDouteMax = 300;      ///< miles
constexpr double kLectureMax = 140;    ///< degrees, of a sextant's arc
constexpr double kJour = 86400;        ///< seconds

/// A reading as it is typed: "47 10.3".
std::string LectureTapee(const std::optional<double> &degres) {
  const std::string angle = degres ? AngleTape(*degres, 2, ' ', ' ') : std::string();
  return std::string(SansBlancs(angle));
}

/// The panel's moment; what isn't typed, or is none, is the present one.
InstantUTC MomentDuPanneau(const Bureau &bureau, const Observation &o) {
  try {
    return o.jour.empty() || o.mois.empty() || o.annee.empty() || o.heure.empty()
               ? PresentUTC(bureau)
               : UTCDe(LitVisee(o, bureau.verification.reglages).date);
  } catch (const Refus &) {
    return PresentUTC(bureau);
  }
}

Contact ContactDe(Bord bord) {
  return bord == Bord::Superieur ? Contact::Superieur : bord == Bord::Inferieur ? Contact::Inferieur : Contact::Centre;
}

/// The body of a sight; the Sun where none is chosen.
Astre AstreDuPanneau(const Bureau &bureau, Observation o) {
  o.jour = o.mois = "1";
  o.annee = "2026";
  o.heure = o.minute = o.seconde = "0";
  try {
    return LitVisee(o, bureau.verification.reglages).astre;
  } catch (const Refus &) {
    return {};
  }
}

/// Course and speed as the only leg; none where either is missing.
RouteNavire LitRouteSerie(FenetreSerie &f, const InstantUTC &heure) {
  const std::string &hors = f.TexteHors.legende;
  const auto cap = LitChampBorne(f.Text2[0], 0, kTour, hors);
  const auto vitesse = LitChampBorne(f.Text2[1], 0, kVitesseMax, hors);
  RouteNavire route;
  if (cap && vitesse && *vitesse > 0) {
    route.jambes = {{heure, *cap, *vitesse}};
  }
  return route;
}

/// Whether a body shows a disk whose limb is shot.
bool ADisque(const Astre &astre) { return astre.genre == GenreAstre::Soleil || astre.genre == GenreAstre::Lune; }

void LitCorrections(Bureau &bureau, BaseLectures &base) {
  FenetreSerie &f = bureau.fenetreSerie;
  const std::string &hors = f.TexteHors.legende;
  const ReglagesControle &reglages = bureau.verification.reglages;
  LectureSextant &sextant = base.corrections;
  sextant.pression = reglages.pression;
  sextant.temperature = reglages.temperature;
  sextant.distanceHorizon = reglages.distanceHorizon;
  sextant.erreursArc = reglages.erreursArc;
  sextant.hauteurOeil = LitChampBorne(f.Text2[2], 0, kOeilMax, hors).value_or(0);
  sextant.collimation = LitChampBorne(f.Text2[3], -kCollimationMax, kCollimationMax, hors).value_or(0);
  sextant.horizonArtificiel = f.Check1.valeur == 1;
  sextant.contact = ADisque(base.astre) ? static_cast<Contact>(std::max(0, f.Combo2.rang)) : Contact::Centre;
}

/// An angle in a field; an empty one has none.
std::optional<double> LitLectureDuChamp(FenetreSerie &f, Controle &champ, bool voulue) {
  const auto angle = LitAngleTape(champ.texte, kLectureMax);
  const bool vide = SansBlancs(champ.texte).empty();
  MarqueChamp(champ, (angle && *angle >= 0) || (vide && !voulue), f.TexteHors.legende);
  return angle && *angle >= 0 ? angle : std::nullopt;
}

} // namespace

void ReprendPanneauSerie(Bureau &bureau) {
  FenetreSerie &f = bureau.fenetreSerie;
  const Donnees &d = bureau.donnees;
  const Observation o = LitPanneau(d);
  const double latitude = LatitudeEstimee(o);
  const InstantUTC moment = MomentDuPanneau(bureau, o);
  f.Text1[0].texte = TexteDate(moment);
  f.Text1[1].texte = TexteHeureMinute(moment);
  f.Text1[2].texte = AngleTape(std::fabs(latitude) <= kTour / 4 ? latitude : 0, 2, 'N', 'S');
  f.Text1[3].texte = AngleTape(std::remainder(-LongitudeEstimee(o), kTour), 3, 'E', 'W');
  f.Text2[0].texte = d.Text1.texte;
  f.Text2[1].texte = d.Text2.texte;
  f.Text2[2].texte = o.hauteurOeil;
  f.Text2[3].texte = o.collimation;
  PoseChoisi(f.Combo1, PlaceDansLaListe(AstreDuPanneau(bureau, o), true));
  PoseChoisi(f.Combo2, static_cast<std::size_t>(ContactDe(o.bord)));
  f.Check1.valeur = o.horizon == Horizon::Artificiel ? 1 : 0;
}

std::optional<BaseLectures> LitBase(Bureau &bureau) {
  constexpr double kDouteMin = 0.1;
  FenetreSerie &f = bureau.fenetreSerie;
  const std::string &hors = f.TexteHors.legende;
  const auto heure = LitMomentTape(f.Text1[0].texte, f.Text1[1].texte);
  const auto latitude = LitLatitudeTapee(f.Text1[2].texte);
  const auto longitude = LitLongitudeTapee(f.Text1[3].texte);
  MarqueChamp(f.Text1[0], LitMomentTape(f.Text1[0].texte, "00:00").has_value(), hors);
  MarqueChamp(f.Text1[1], LitMomentTape("01/01/2000", f.Text1[1].texte).has_value(), hors);
  MarqueChamp(f.Text1[2], latitude.has_value(), hors);
  MarqueChamp(f.Text1[3], longitude.has_value(), hors);
  BaseLectures base;
  base.astre = AstreDeLaListe(f.Combo1, true);
  LitCorrections(bureau, base);
  base.dut1 = bureau.verification.reglages.dut1;
  base.ecartType = LitChampBorne(f.Text3[0], kErreurMin, kErreurPlus, hors).value_or(base.ecartType);
  base.douteLieu = LitChampBorne(f.Text2[4], kDouteMin, kDouteMax, hors).value_or(base.douteLieu);
  base.route = LitRouteSerie(f, heure.value_or(InstantUTC{}));
  if (!heure || !latitude || !longitude) {
    return std::nullopt;
  }
  base.heureLieu = *heure;
  base.lieu = {*latitude, *longitude};
  return base;
}

ReglagesLunaire LitReglagesLunaire(Bureau &bureau, const BaseLectures &base) {
  FenetreSerie &f = bureau.fenetreSerie;
  ReglagesLunaire r;
  r.lieu = base.lieu;
  r.heureLieu = base.heureLieu;
  r.route = base.route;
  r.hauteurOeil = base.corrections.hauteurOeil;
  r.air = {base.corrections.pression, base.corrections.temperature};
  r.dut1 = base.dut1;
  r.ecartType = LitChampBorne(f.Text3[1], kErreurMin, kErreurPlus, f.TexteHors.legende).value_or(r.ecartType);
  r.douteLieu = base.douteLieu;
  return r;
}

std::optional<InstantUTC> LitHeureProche(std::string_view texte, const InstantUTC &proche) {
  const auto heure = LitMomentTape("01/01/2000", texte);
  if (!heure) {
    return std::nullopt;
  }
  const InstantUTC ceJour{proche.jour, heure->fraction};
  return PlusTard(ceJour, std::round(SecondesEntre(ceJour, proche) / kJour) * kJour);
}

std::optional<LectureListee> LitLectureTapee(Bureau &bureau, const InstantUTC &proche) {
  FenetreSerie &f = bureau.fenetreSerie;
  const auto heure = LitHeureProche(f.Text4[0].texte, proche);
  MarqueChamp(f.Text4[0], heure.has_value(), f.TexteHors.legende);
  const auto angle = LitLectureDuChamp(f, f.Text4[1], true);
  return heure && angle ? std::optional(LectureListee{*heure, angle, false}) : std::nullopt;
}

std::optional<DistanceListee> LitDistanceTapee(Bureau &bureau, const InstantUTC &proche) {
  FenetreSerie &f = bureau.fenetreSerie;
  const auto montre = LitHeureProche(f.Text5[0].texte, proche);
  MarqueChamp(f.Text5[0], montre.has_value(), f.TexteHors.legende);
  const auto angle = LitLectureDuChamp(f, f.Text5[1], true);
  DistanceListee distance;
  distance.hauteurLune = LitLectureDuChamp(f, f.Text5[2], !SansBlancs(f.Text5[3].texte).empty());
  distance.hauteurAstre = LitLectureDuChamp(f, f.Text5[3], !SansBlancs(f.Text5[2].texte).empty());
  if (!montre || !angle || !f.Text5[2].alerte.empty() || !f.Text5[3].alerte.empty()) {
    return std::nullopt;
  }
  MesureLunaire &m = distance.mesure;
  m.montre = *montre;
  m.lecture = *angle;
  m.astre = AstreDeLaListe(f.Combo3, false);
  m.bordLune = static_cast<BordDistance>(std::max(0, f.Combo4.rang));
  m.bordAstre = static_cast<BordDistance>(std::max(0, f.Combo5.rang));
  m.contactLune = static_cast<Contact>(std::max(0, f.Combo6.rang));
  m.contactAstre = static_cast<Contact>(std::max(0, f.Combo7.rang));
  return distance;
}

void MontreLecture(Bureau &bureau, const LectureListee &lecture) {
  FenetreSerie &f = bureau.fenetreSerie;
  f.Text4[0].texte = TexteHeureUtc(lecture.utc);
  f.Text4[1].texte = LectureTapee(lecture.lecture);
  f.Text4[0].alerte.clear();
  f.Text4[1].alerte.clear();
}

void MontreDistance(Bureau &bureau, const DistanceListee &distance) {
  FenetreSerie &f = bureau.fenetreSerie;
  const MesureLunaire &m = distance.mesure;
  f.Text5[0].texte = TexteHeureUtc(m.montre);
  f.Text5[1].texte = LectureTapee(m.lecture);
  f.Text5[2].texte = LectureTapee(distance.hauteurLune);
  f.Text5[3].texte = LectureTapee(distance.hauteurAstre);
  for (Controle &champ : f.Text5) {
    champ.alerte.clear();
  }
  PoseChoisi(f.Combo3, PlaceDansLaListe(m.astre, false));
  PoseChoisi(f.Combo4, static_cast<std::size_t>(m.bordLune));
  PoseChoisi(f.Combo5, static_cast<std::size_t>(m.bordAstre));
  PoseChoisi(f.Combo6, static_cast<std::size_t>(m.contactLune));
  PoseChoisi(f.Combo7, static_cast<std::size_t>(m.contactAstre));
}

} // namespace velmaris
