#include "complements/lunaire/Essai.hpp"

#include "complements/ciel/CielDuMoment.hpp"
#include "complements/lunaire/LieuParHauteurs.hpp"
#include "complements/point/Sphere.hpp"

#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

constexpr double kMinutes = 60;

/// The centre's height without air, from that of a limb in air, dip and index taken off already.
/// @param pres  about where; it only augments the semidiameter
AstreVu VuDe(const PlaceGeocentrique &place, double apparente, Contact contact, const LieuNavire &pres,
             const ReglagesLunaire &reglages) {
  LectureSextant lecture;
  lecture.lecture = apparente;
  lecture.contact = contact;
  lecture.pression = reglages.air.pression;
  lecture.temperature = reglages.air.temperature;
  return {place, CorrigeLecture(lecture, place, {pres.latitude, pres.longitude, 0}).topocentrique};
}

LieuNavire Deplacee(LieuNavire lieu, const Decalage &d) {
  const double cosinus = std::max(std::cos(lieu.latitude * kRadian), 0.01);
  lieu.latitude = std::clamp(lieu.latitude + d.nord / kMinutes, -90.0, 90.0);
  lieu.longitude += d.est / kMinutes / cosinus;
  return lieu;
}

} // namespace

bool AHauteurs(const MesureLunaire &mesure) { return mesure.hauteurLune && mesure.hauteurAstre; }

EssaiDistance EssaieDistance(const MesurePrete &prete, const ReglagesLunaire &reglages, double retard,
                             const Decalage &decalage) {
  const MesureLunaire &m = *prete.mesure;
  const InstantUTC utc = PlusTard(m.montre, retard);
  const CielDuMoment ciel = PrepareCiel({TTDe(utc), UT1De(utc, reglages.dut1)});
  EssaiDistance essai;
  essai.lune = PlaceDe(ciel, {GenreAstre::Lune, 0});
  essai.astre = PlaceDe(ciel, m.astre);
  if (AHauteurs(m)) {
    const double hauteurLune = *m.hauteurLune + decalage.hauteurLune / kMinutes;
    const double hauteurAstre = *m.hauteurAstre + decalage.hauteurAstre / kMinutes;
    essai.lieu = LieuParHauteurs(VuDe(essai.lune, hauteurLune, m.contactLune, prete.lieu, reglages),
                                 VuDe(essai.astre, hauteurAstre, m.contactAstre, prete.lieu, reglages), prete.lieu,
                                 reglages.hauteurOeil);
  } else {
    essai.lieu = Deplacee(prete.lieu, decalage);
  }
  essai.vue = VoitDistance(essai.lune, m.bordLune, essai.astre, m.bordAstre,
                           {essai.lieu.latitude, essai.lieu.longitude, reglages.hauteurOeil}, reglages.air);
  return essai;
}

} // namespace velmaris
