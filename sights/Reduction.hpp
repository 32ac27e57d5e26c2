#pragma once

#include "foundations/ValeurDate.hpp"
#include "sights/Affichage.hpp"
#include "sights/Corrections.hpp"
#include "sights/Observation.hpp"

#include <cstdint>
#include <string>
#include <string_view>

namespace velmaris {

/// How far a reduction of a star, a planet or the Moon went.
enum class EtatReduction : std::uint8_t {
  SansLecture, ///< the reading was 0: nothing changed
  SansAstre,   ///< no star or planet is chosen: nothing changed
  Faite
};

/// What such a reduction tells besides the shared azimuth, height and intercept.
struct Reduction {
  EtatReduction etat = EtatReduction::SansLecture;
  HauteurObservee<double> lue; ///< the reading and its corrections
};

/// Date and time of a sight of a star or a planet, from its fields: hours over 23, minutes or seconds over 59, a
/// fraction or an empty field make none.
/// @throws Erreur 13 when the fields make no date and time
ValeurDate DateDeVisee(const Observation &observation);

/// Corrects the reading of a star or a planet: dip and refraction, eye height and collimation as they stand in their
/// fields, no limb. The detail lines 0 and 1 are written.
/// @param h  its reading is there; the rest is filled
/// @throws Erreur 13 when eye height or collimation is no number with a comma, 5 for an eye below the sea, 11 or 6 when
///         a step has no value
void CorrigeAstre(const Observation &observation, HauteurObservee<double> &h, AffichageDroite &affichage,
                  const TexteMsg &messages);

/// Takes azimuth and height from their text: the sight keeps 32 bits of each.
/// @param texte  azimuth "X" height, degrees
void PrendHorizon(std::string_view texte, ValeursVisee &valeurs);

/// The end of a star's or a planet's sight: intercept, labels and detail lines 3 to 7.
/// @param AD   right ascension, degrees
/// @param Dec  declination, radians
void ConclutAstre(ValeursVisee &valeurs, const HauteurObservee<double> &h, double AD, double Dec,
                  AffichageDroite &affichage, const TexteMsg &messages);

} // namespace velmaris
