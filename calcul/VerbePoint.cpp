#include "calcul/VerbePoint.hpp"

#include "calcul/outils/Arguments.hpp"

namespace velmaris {
namespace {

/// The ship's run between the sights.
void AjouteRoute(CLI::App &verbe, const Langue &dit, DemandePointDit &point) {
  CLI::Option *cap =
      AjouteNombreLibre(verbe, dit, "--cap", dit("Cap vrai, degrés", "True course, degrees"), [&point](double lue) {
        point.cap = lue;
      })->type_name("C");
  CLI::Option *vitesse =
      AjouteNombreLibre(verbe, dit, "--vitesse", dit("Vitesse, nœuds", "Speed, knots"), [&point](double lue) {
        point.vitesse = lue;
      })->type_name("V");
  const CLI::Option *route =
      verbe
          .add_option("--route", point.route,
                      dit("Lignes JJ/MM/AAAA HH:MM:SS CAP VITESSE, chacune en vigueur dès son heure",
                          "Lines DD/MM/YYYY HH:MM:SS COURSE SPEED, each in force from its time on"))
          ->type_name(dit("FICHIER", "FILE"));
  verbe.parse_complete_callback([cap, vitesse, route, &dit] {
    if (cap->empty() != vitesse->empty()) {
      throw CLI::RequiredError(cap->empty() ? "--cap" : "--vitesse");
    }
    if (!cap->empty() && !route->empty()) {
      throw CLI::ValidationError("--route", dit("pas avec --cap", "not along with --cap"));
    }
  });
}

bool EstTheorie(const std::string &mot) { return mot == "dite" || mot == "actuelle"; }

/// The time of the fix, the theory and the assumed error.
void AjouteReglages(CLI::App &verbe, const Langue &dit, DemandePointDit &point) {
  verbe
      .add_option("--heure", point.heure,
                  dit("Heure UTC du point, \"JJ/MM/AAAA HH:MM:SS\" ; à défaut celle de la dernière visée",
                      "Time of the fix, UTC, \"DD/MM/YYYY HH:MM:SS\"; by default that of the last sight"))
      ->type_name(dit("\"DATE HEURE\"", "\"DATE TIME\""));
  verbe
      .add_option("--theorie", point.theorie,
                  dit("dite : les droites du programme ; actuelle : le ciel d'aujourd'hui",
                      "dite: the program's own lines; actuelle: the sky of today"))
      ->check(CLI::Validator(
          [&dit](const std::string &mot) {
            return EstTheorie(mot) ? "" : mot + dit(" n'en est pas une", " isn't one");
          },
          ""))
      ->type_name("T")
      ->capture_default_str();
  AjouteEcartType(verbe, dit, point.ecartType,
                  dit("Erreur supposée d'une hauteur, minutes (0.7 à défaut)",
                      "Assumed error of an altitude, minutes (0.7 by default)"));
}

} // namespace

CLI::App *DeclarePoint(CLI::App &programme, const Langue &dit, DemandePointDit &point) {
  CLI::App *verbe = programme.add_subcommand(
      "point", dit("Point de visées enregistrées, par moindres carrés, avec son ellipse de 95 %",
                   "The fix of saved sights by least squares, with its ellipse of 95 %"));
  verbe->group(dit("Verbes", "Commands"));
  AjouteFichiersLoP(*verbe, dit, point.fichiers);
  AjouteRoute(*verbe, dit, point);
  AjouteReglages(*verbe, dit, point);
  AjouteDut1(*verbe, dit, point.dut1);
  return verbe;
}

} // namespace velmaris
