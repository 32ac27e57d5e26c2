#include "Attend.hpp"
#include "complements/serie/FichierSerie.hpp"
#include "complements/serie/Meridienne.hpp"
#include "complements/serie/Serie.hpp"

#include <cmath>

using namespace velmaris;

/// A file of readings of any bytes: readings in their limits, whose run and noon end in numbers or in a reason.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *octets, std::size_t taille) {
  const SerieLue lue = LitSerie(Octets(octets, taille));
  for (const LectureSerie &lecture : lue.lectures) {
    Attend(lecture.lecture >= 0 && lecture.lecture <= 121, "a reading keeps its limits");
    Attend(std::isfinite(lecture.utc.jour + lecture.utc.fraction), "its time is a number");
  }
  if (lue.lectures.empty()) {
    return 0;
  }
  BaseLectures base;
  base.lieu = {40, -30};
  base.heureLieu = lue.lectures.front().utc;
  const FicheSerie serie = ReduitSerie(base, lue.lectures);
  Attend(serie.faite ? std::isfinite(serie.lecture) : !serie.avis.empty(), "a run is reduced or refused");
  Attend(!serie.faite || serie.residus.size() == lue.lectures.size(), "each reading has its residual");
  const FicheMeridienne midi = ReduitMeridienne(base, lue.lectures);
  Attend(midi.latitude ? std::isfinite(midi.latitude->latitude) : !midi.avis.empty(), "a noon is found or refused");
  return 0;
}
