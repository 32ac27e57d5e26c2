#pragma once

#include "complements/ciel/Astre.hpp"
#include "shell/bureau/Bureau.hpp"

namespace velmaris {

/// Reads the sight from the fields and choices of the panel.
Observation LitPanneau(const Donnees &donnees);

/// Puts the texts and the sides of a sight into the panel, field by field, each with what its change sets in motion.
void PoseChamps(Bureau &bureau, const Observation &observation);

/// Chooses the star or the planet of a kind of body by its place in the list; for another kind, or a place that doesn't
/// exist, nothing.
void PoseListeDuCorps(Bureau &bureau, int corps, int rang);

/// Chooses a body in the panel as a user does; its limb becomes the usual one.
/// @return false for a body that the panel's lists don't have: nothing has changed
bool PoseAstre(Bureau &bureau, const Astre &astre);

/// The sight's estimated latitude or longitude, whole minutes.
/// @param degres  north and east positive
/// @{
void PoseLatitudeEstimee(Bureau &bureau, double degres);
void PoseLongitudeEstimee(Bureau &bureau, double degres);
/// @}

/// Writes back what a reduction may change: eye height, collimation, the reading's texts and the fraction's colour.
void PoseReduction(Bureau &bureau, const Observation &observation);

/// Leaving a field. A value outside its limits empties the field, silently; else its text takes the field's form.
/// @{
void TDate_Quitte(Bureau &bureau, int indice);
void Text3_Quitte(Bureau &bureau, int indice);
void Text10_Quitte(Bureau &bureau, int indice);
void Text11_Quitte(Bureau &bureau, int indice);
void Text13_Quitte(Bureau &bureau, int indice);
/// Minutes and seconds: 0 to 60, as "00".
/// @return whether the value was accepted
bool QuitteMinutes(Bureau &bureau, Controle &champ);
/// Degrees of the position: 0 to 180 for the latitude too, as "#00".
void QuitteDegres(Bureau &bureau, Controle &champ);
template <Controle Donnees::*Membre> void QuitteMinutes(Bureau &bureau, int /*indice*/) {
  QuitteMinutes(bureau, bureau.donnees.*Membre);
}
template <Controle Donnees::*Membre> void QuitteDegres(Bureau &bureau, int /*indice*/) {
  QuitteDegres(bureau, bureau.donnees.*Membre);
}
/// @}

/// Shows the weekday of the date over the day's field, or the plain caption when the date is impossible.
void TDate_Change(Bureau &bureau, int indice);

/// Cuts the fraction to two characters.
void Text25_Change(Bureau &bureau, int indice);

/// Chooses seconds (0) or hundredths of a minute (1), and keeps the choice under "Prec".
void Option4_Click(Bureau &bureau, int indice);

/// Chooses the horizon: off an artificial one the centre is shot and the reading turns red, being a double angle.
void Option5_Relache(Bureau &bureau, int indice);

/// "Top": the sight's date and time take the present GMT, and the reading takes the focus.
void Command1_Click(Bureau &bureau, int indice);

/// Puts the present GMT of the clock's texts into the sight's date and time.
void PoseHeureGMT(Bureau &bureau);

} // namespace velmaris
