#include "complements/serie/LecturesPretes.hpp"

#include "complements/ciel/Refus.hpp"
#include "complements/ciel/Vue.hpp"

#include <cmath>

namespace velmaris {

std::vector<LecturePrete> PrepareLectures(const BaseLectures &base, std::span<const LectureSerie> lectures) {
  ExigeLieu(base);
  std::vector<LecturePrete> pretes;
  pretes.reserve(lectures.size());
  for (const LectureSerie &lecture : lectures) {
    LecturePrete prete;
    prete.utc = lecture.utc;
    prete.compte = !lecture.ecartee;
    prete.place = PlaceA(base.astre, lecture.utc, base.dut1);
    LectureSextant sextant = base.corrections;
    sextant.lecture = lecture.lecture;
    const Station station = StationDe(base, LieuDeLaBase(base, lecture.utc));
    prete.observee = CorrigeLecture(sextant, prete.place, station).topocentrique;
    if (!std::isfinite(prete.observee)) {
      throw Refus(RaisonRefus::LieuImpossible);
    }
    pretes.push_back(prete);
  }
  return pretes;
}

void ExigeLieu(const BaseLectures &base) { static_cast<void>(RepereDe(StationDe(base, base.lieu))); }

BaseLectures BaseSaine(BaseLectures base) {
  base.ecartType = base.ecartType > 0 && std::isfinite(base.ecartType) ? base.ecartType : BaseLectures{}.ecartType;
  return base;
}

LieuNavire LieuDeLaBase(const BaseLectures &base, const InstantUTC &utc) {
  return Deplace(base.route, base.lieu, base.heureLieu, utc).lieu;
}

Station StationDe(const BaseLectures &base, const LieuNavire &lieu) {
  return {lieu.latitude, lieu.longitude, base.corrections.hauteurOeil};
}

InstantUTC ALaSeconde(const InstantUTC &utc) {
  constexpr double kJour = 86400;
  return PlusTard({utc.jour, 0}, std::round(utc.fraction * kJour));
}

PlaceGeocentrique PlaceA(const Astre &astre, const InstantUTC &utc, double dut1) {
  ExigePlace(astre);
  return PlaceDe(PrepareCiel({TTDe(utc), UT1De(utc, dut1)}), astre);
}

} // namespace velmaris
