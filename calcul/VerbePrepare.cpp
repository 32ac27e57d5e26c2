#include "calcul/VerbePrepare.hpp"

#include "calcul/outils/Arguments.hpp"

namespace velmaris {
namespace {

/// The ship's way during the day.
void AjouteCapVitesse(CLI::App &verbe, const Langue &dit, DemandePrepare &prepare) {
  CLI::Option *cap =
      AjouteNombreLibre(verbe, dit, "--cap", dit("Cap vrai, degrés", "True course, degrees"), [&prepare](double lue) {
        prepare.cap = lue;
      })->type_name("C");
  CLI::Option *vitesse =
      AjouteNombreLibre(verbe, dit, "--vitesse", dit("Vitesse, nœuds", "Speed, knots"), [&prepare](double lue) {
        prepare.vitesse = lue;
      })->type_name("V");
  verbe.parse_complete_callback([cap, vitesse] {
    if (cap->empty() != vitesse->empty()) {
      throw CLI::RequiredError(cap->empty() ? "--cap" : "--vitesse");
    }
  });
}

/// The time, the eye and the sextant.
void AjouteSextant(CLI::App &verbe, const Langue &dit, DemandePrepare &prepare) {
  verbe
      .add_option("--heure", prepare.heure,
                  dit("Heure UTC des hauteurs, HH:MM:SS ; à défaut le milieu du crépuscule du soir",
                      "Time of the altitudes, UTC, HH:MM:SS; by default the middle of the evening twilight"))
      ->type_name("H");
  AjouteNombreLibre(verbe, dit, "--oeil", dit("Hauteur de l'œil, mètres", "Height of the eye, metres"),
                    [&prepare](double lue) { prepare.oeil = lue; })
      ->type_name("M");
  AjouteNombreLibre(verbe, dit, "--collimation",
                    dit("Correction d'index, minutes, à ajouter à la lecture",
                        "Index correction, minutes, to be added to the reading"),
                    [&prepare](double lue) { prepare.collimation = lue; })
      ->type_name("M");
}

} // namespace

CLI::App *DeclarePrepare(CLI::App &programme, const Langue &dit, DemandePrepare &prepare) {
  CLI::App *verbe = programme.add_subcommand(
      "prepare", dit("Un jour de visées : crépuscules, Soleil, Lune, astres à prendre et leurs préréglages",
                     "A day of sights: twilights, Sun, Moon, bodies to take and their presets"));
  verbe->group(dit("Verbes", "Commands"));
  verbe->add_option(dit("JJ/MM/AAAA", "DD/MM/YYYY"), prepare.date, dit("Date du bord", "Date aboard"))
      ->required()
      ->type_name("");
  AjouteNombreLu(*verbe, dit, "LAT", prepare.latitude,
                 dit("Latitude, degrés, nord positif", "Latitude, degrees, north positive"));
  AjouteNombreLu(*verbe, dit, dit("LON_EST", "LON_EAST"), prepare.longitude,
                 dit("Longitude, degrés, est positif", "Longitude, degrees, east positive"));
  AjouteSextant(*verbe, dit, prepare);
  AjouteCapVitesse(*verbe, dit, prepare);
  AjouteDut1(*verbe, dit, prepare.dut1);
  return verbe;
}

} // namespace velmaris
