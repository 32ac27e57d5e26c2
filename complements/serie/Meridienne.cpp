#include "complements/serie/Meridienne.hpp"

#include "complements/point/Epreuve.hpp"
#include "complements/point/Lois.hpp"
#include "complements/point/Sphere.hpp"
#include "complements/serie/Ajustement.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace velmaris {
namespace {

constexpr double kMinutes = 60;
constexpr double kLatitudeVague = 10;  ///< minutes
constexpr double kLongitudeVague = 60; ///< minutes of arc
constexpr double kPresDuZenith = 87;   ///< degrees
constexpr double kChanceDesaccord = 0.01;
constexpr std::size_t kLecturesEpreuve = 5;
constexpr double kDouteParDefaut = 20; ///< minutes of arc

/// A noon under way.
struct Midi {
  BaseLectures base;
  std::vector<LecturePrete> lectures;
  LongitudeTenue tenue;
  InstantUTC milieu;
};

/// The base of a ship that is known to be somewhere at a time.
BaseLectures BaseDepuis(BaseLectures base, const LieuNavire &lieu, const InstantUTC &utc) {
  base.lieu = lieu;
  base.heureLieu = utc;
  return base;
}

/// How far from the passage readings are, as the root of the mean square, minutes of time.
double EtendueDe(const Midi &midi, const InstantUTC &passage) {
  double carres = 0;
  int nombre = 0;
  for (const LecturePrete &l : midi.lectures) {
    const double t = SecondesEntre(passage, l.utc) / kMinutes;
    carres += l.compte ? t * t : 0;
    nombre += l.compte ? 1 : 0;
  }
  return std::sqrt(carres / nombre);
}

/// Whether readings tell a longitude: within a degree, and within half of the time that they span, beyond which their
/// curve isn't a straight matter any more.
bool DitLongitude(const Midi &midi, const LieuAjuste &ajuste, const InstantUTC &passage) {
  constexpr double kMinutesDArc = 15; ///< a minute of time
  const double doute = std::sqrt(ajuste.varianceEst);
  return doute < kLongitudeVague && doute / kMinutesDArc < EtendueDe(midi, passage) / 2;
}

/// The place by all readings: with its longitude where they tell it, else with the estimated one.
std::optional<LieuAjuste> AjusteMidi(const Midi &midi, const PassageMeridien &passage, FicheMeridienne &fiche) {
  const auto comptees =
      std::count_if(midi.lectures.begin(), midi.lectures.end(), [](const LecturePrete &l) { return l.compte; });
  std::optional<LieuAjuste> tenu = AjusteLieu(midi.base, midi.lectures, passage.heure, passage.lieu, midi.tenue);
  if (comptees < 2 || !tenu) {
    if (tenu) {
      fiche.avis.push_back(AvisMeridienne::LongitudeSeule);
    }
    return tenu;
  }
  std::optional<LieuAjuste> libre = AjusteLieu(midi.base, midi.lectures, passage.heure, tenu->lieu, {});
  if (libre && DitLongitude(midi, *libre, passage.heure)) {
    const double tour = std::sqrt(libre->varianceEst);
    fiche.longitude = LongitudeMidi{libre->lieu.longitude, tour};
    return libre;
  }
  fiche.avis.push_back(AvisMeridienne::LongitudeVague);
  return tenu;
}

/// The test of one reading at a time, and how well all agree.
void Eprouve(const Midi &midi, const LieuAjuste &a, FicheMeridienne &fiche) {
  const std::size_t n = a.ecarts.size();
  fiche.surplus = static_cast<int>(n) - (fiche.longitude ? 2 : 1);
  fiche.chance = ChanceKhi2(a.khi2, fiche.surplus);
  if (n < kLecturesEpreuve) {
    return;
  }
  std::vector<double> partages(n * n);
  for (std::size_t i = 0; i < n; ++i) {
    const double x = a.pentes[i][0] * a.varianceNord + a.pentes[i][1] * a.covariance;
    const double y = a.pentes[i][0] * a.covariance + a.pentes[i][1] * a.varianceEst;
    for (std::size_t j = 0; j < n; ++j) {
      partages[i * n + j] = x * a.pentes[j][0] + y * a.pentes[j][1];
    }
  }
  const EpreuveMesures e = EprouveMesures(a.ecarts, partages, fiche.surplus, midi.base.chanceAlarme);
  fiche.seuil = e.seuil;
  std::size_t k = 0;
  for (std::size_t i = 0; i < midi.lectures.size(); ++i) {
    if (midi.lectures[i].compte) {
      fiche.residus[i].statistique = e.statistiques[k];
      fiche.improbable = e.improbable == k ? std::optional(i) : fiche.improbable;
      ++k;
    }
  }
  if (e.improbable || e.sansNom) {
    fiche.avis.push_back(e.improbable ? AvisMeridienne::LectureImprobable : AvisMeridienne::ErreurSansNom);
  }
}

/// Figures of all readings, by the time of the passage.
void PoseResidus(const Midi &midi, const LieuAjuste &ajuste, FicheMeridienne &fiche) {
  for (std::size_t i = 0; i < midi.lectures.size(); ++i) {
    ResiduMidi r;
    r.residu = ajuste.residus[i];
    r.azimut = ajuste.azimuts[i];
    r.minutes = SecondesEntre(fiche.passage->heure, midi.lectures[i].utc) / kMinutes;
    fiche.residus.push_back(r);
  }
}

bool DUnCote(const Midi &midi, const InstantUTC &passage) {
  bool avant = false;
  bool apres = false;
  for (const LecturePrete &l : midi.lectures) {
    (SecondesEntre(passage, l.utc) < 0 ? avant : apres) |= l.compte;
  }
  return avant != apres;
}

/// Whether a reading stands at the top of those that count: with others before and after it, or within two minutes.
bool EstAuSommet(const Midi &midi, std::size_t lequel, const InstantUTC &sommet) {
  constexpr double kPres = 120; ///< seconds
  bool avant = false;
  bool apres = false;
  for (const LecturePrete &l : midi.lectures) {
    const double plusTard = SecondesEntre(midi.lectures[lequel].utc, l.utc);
    avant = avant || (l.compte && plusTard < 0);
    apres = apres || (l.compte && plusTard > 0);
  }
  return (avant && apres) || std::fabs(SecondesEntre(sommet, midi.lectures[lequel].utc)) < kPres;
}

/// The latitude for which the top is as high as the highest reading.
void PoseParPlusHaute(const Midi &midi, FicheMeridienne &fiche) {
  constexpr int kTours = 3;
  const double sens = fiche.passage->inferieur ? -1 : 1;
  for (std::size_t i = 0; i < midi.lectures.size(); ++i) {
    const LecturePrete &l = midi.lectures[i];
    if (l.compte && (!fiche.plusHaute || sens * (l.observee - midi.lectures[*fiche.plusHaute].observee) > 0)) {
      fiche.plusHaute = i;
    }
  }
  PassageMeridien passage = *fiche.passage;
  if (!EstAuSommet(midi, *fiche.plusHaute, passage.sommet)) {
    return;
  }
  const double vers = passage.versNord ? 1 : -1;
  for (int tour = 0; tour < kTours; ++tour) {
    const double ecart = midi.lectures[*fiche.plusHaute].observee - passage.hauteurSommet;
    LieuNavire lieu = passage.lieu;
    lieu.latitude = std::clamp(lieu.latitude + vers * ecart, -kLatitudeMax, kLatitudeMax);
    passage = PassagePresDe(BaseDepuis(midi.base, lieu, passage.heure), passage.heure, passage.inferieur);
  }
  fiche.parPlusHaute = LatitudeMidi{passage.lieu.latitude, midi.base.ecartType};
}

void AjouteAvis(FicheMeridienne &fiche, AvisMeridienne avis) { fiche.avis.push_back(avis); }

/// What the place found says.
void PosePlace(const Midi &midi, const LieuAjuste &ajuste, FicheMeridienne &fiche) {
  const InstantUTC reference = fiche.passage->heure;
  if (fiche.longitude) {
    fiche.passage = PassagePresDe(BaseDepuis(midi.base, ajuste.lieu, reference), reference, fiche.passage->inferieur);
    fiche.longitude->longitude = fiche.passage->lieu.longitude;
    fiche.correlation = ajuste.covariance / std::sqrt(ajuste.varianceNord * ajuste.varianceEst);
    fiche.latitude = LatitudeMidi{fiche.passage->lieu.latitude, std::sqrt(ajuste.varianceNord)};
  } else {
    fiche.latitude = LatitudeMidi{ajuste.lieu.latitude, std::sqrt(ajuste.varianceNord)};
  }
  PoseResidus(midi, ajuste, fiche);
}

void Reduit(const Midi &midi, FicheMeridienne &fiche) {
  const PassageMeridien passage = PassagePresDe(midi.base, midi.milieu);
  fiche.passage = passage;
  Midi tenu = midi;
  tenu.tenue.longitude = passage.lieu.longitude;
  const std::optional<LieuAjuste> ajuste = AjusteMidi(tenu, passage, fiche);
  if (!ajuste) {
    AjouteAvis(fiche, AvisMeridienne::SansSolution);
    return;
  }
  if (!(std::sqrt(ajuste->varianceNord) < kLatitudeVague)) {
    fiche.longitude.reset();
    fiche.avis = {AvisMeridienne::HorsMeridien};
    return;
  }
  PosePlace(midi, *ajuste, fiche);
  PoseParPlusHaute(midi, fiche);
  if (fiche.passage->hauteur > kPresDuZenith) {
    AjouteAvis(fiche, AvisMeridienne::PresDuZenith);
  }
  if (fiche.longitude && DUnCote(midi, fiche.passage->heure)) {
    AjouteAvis(fiche, AvisMeridienne::UnCote);
  }
  Eprouve(midi, *ajuste, fiche);
  if (fiche.chance < kChanceDesaccord) {
    AjouteAvis(fiche, AvisMeridienne::Desaccord);
  }
  std::sort(fiche.avis.begin(), fiche.avis.end());
}

/// The base with its longitude turned.
BaseLectures BaseTournee(BaseLectures base, double degres) {
  base.lieu.longitude = LongitudeUnTour(base.lieu.longitude + degres);
  return base;
}

} // namespace

FicheMeridienne ReduitMeridienne(const BaseLectures &base, std::span<const LectureSerie> lectures,
                                 double douteLongitude) {
  FicheMeridienne fiche;
  const auto compte = [](const LectureSerie &l) { return !l.ecartee; };
  const auto comptees = static_cast<std::size_t>(std::count_if(lectures.begin(), lectures.end(), compte));
  if (comptees == 0 || comptees > kLecturesMidiMax) {
    AjouteAvis(fiche, comptees == 0 ? AvisMeridienne::SansLecture : AvisMeridienne::Trop);
    return fiche;
  }
  const double doute = douteLongitude > 0 && std::isfinite(douteLongitude) ? douteLongitude : kDouteParDefaut;
  try {
    const BaseLectures saine = BaseSaine(base);
    Reduit({saine, PrepareLectures(saine, lectures), {0, doute}, MilieuDe(lectures, compte)}, fiche);
  } catch (const Refus &refus) {
    fiche = {};
    fiche.refus = refus.raison;
    AjouteAvis(fiche, AvisMeridienne::SansCiel);
  }
  return fiche;
}

std::optional<LongitudeParHeures> LongitudeDuSommet(const BaseLectures &base, const InstantUTC &sommet,
                                                    double douteHeure) {
  constexpr int kTours = 8;
  constexpr double kSecondesParDegre = 240;
  constexpr double kAssezPres = 1E-3; ///< seconds
  BaseLectures ici = base;
  PassageMeridien passage = PassagePresDe(ici, sommet, false);
  for (int tour = 0; tour < kTours && !passage.sansSommet; ++tour) {
    const double retard = SecondesEntre(sommet, passage.sommet);
    if (std::fabs(retard) < kAssezPres) {
      const double ecart = douteHeure * kMinutes / kSecondesParDegre;
      return LongitudeParHeures{{passage.lieu.longitude, ecart}, passage};
    }
    ici = BaseTournee(ici, retard / kSecondesParDegre);
    passage = PassagePresDe(ici, sommet, false);
  }
  return std::nullopt;
}

std::optional<LongitudeParHeures> LongitudeDeHauteursEgales(const BaseLectures &base, const InstantUTC &avant,
                                                            const InstantUTC &apres) {
  constexpr int kTours = 20;
  constexpr double kPasDroit = 1.0 / 60;  ///< degrees, that slopes are taken over
  constexpr double kAssezPres = 1E-8;     ///< degrees
  constexpr double kPenteMin = 1.0 / 120; ///< minutes of height a minute of longitude
  const BaseLectures saine = BaseSaine(base);
  const PlaceGeocentrique places[] = {PlaceA(base.astre, avant, base.dut1), PlaceA(base.astre, apres, base.dut1)};
  const auto ecart = [&](double degres) {
    const BaseLectures la = BaseTournee(saine, degres);
    return VueDe(places[0], StationDe(la, LieuDeLaBase(la, avant))).hauteur -
           VueDe(places[1], StationDe(la, LieuDeLaBase(la, apres))).hauteur;
  };
  double tour = 0;
  for (int i = 0; i < kTours; ++i) {
    const double pente = (ecart(tour + kPasDroit) - ecart(tour - kPasDroit)) / (2 * kPasDroit);
    if (!(std::fabs(pente) > kPenteMin)) {
      return std::nullopt;
    }
    const double pas = -ecart(tour) / pente;
    tour += std::clamp(pas, -10.0, 10.0);
    if (std::fabs(pas) < kAssezPres) {
      const BaseLectures ici = BaseTournee(saine, tour);
      const InstantUTC milieu = PlusTard(avant, SecondesEntre(avant, apres) / 2);
      const PassageMeridien passage = PassagePresDe(ici, milieu);
      return LongitudeParHeures{{passage.lieu.longitude, std::numbers::sqrt2 * saine.ecartType / std::fabs(pente)},
                                passage};
    }
  }
  return std::nullopt;
}

} // namespace velmaris
