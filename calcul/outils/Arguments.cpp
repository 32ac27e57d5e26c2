#include "calcul/outils/Arguments.hpp"

#include <charconv>
#include <cmath>
#include <string_view>

namespace velmaris {
namespace {

/// A whole argument as a number, "." being the decimal point; an infinity is none.
/// @param valeur  left alone when the argument is not a number
bool LitFigure(std::string_view texte, double &valeur) {
  if (texte.starts_with('+') && !texte.starts_with("+-")) {
    texte.remove_prefix(1);
  }
  double lu = 0.0;
  const auto [fin, code] = std::from_chars(texte.data(), texte.data() + texte.size(), lu);
  if (code != std::errc() || fin != texte.data() + texte.size() || !std::isfinite(lu)) {
    return false;
  }
  valeur = lu;
  return true;
}

} // namespace

CLI::Option *AjouteNombreLibre(CLI::App &verbe, const Langue &dit, const std::string &nom, const std::string &aide,
                               const std::function<void(double)> &pose) {
  return verbe
      .add_option_function<std::string>(
          nom,
          [pose, &dit, nom](const std::string &texte) {
            double valeur = 0;
            if (!LitFigure(texte, valeur)) {
              throw CLI::ValidationError(nom, texte + dit(" n'est pas un nombre", " isn't a number"));
            }
            pose(valeur);
          },
          aide)
      ->type_name("");
}

void AjouteNombreLu(CLI::App &verbe, const Langue &dit, const std::string &nom, double &valeur,
                    const std::string &aide) {
  AjouteNombreLibre(verbe, dit, nom, aide, [&valeur](double lue) { valeur = lue; })->required();
}

void AjouteFichiersLoP(CLI::App &verbe, const Langue &dit, std::vector<std::string> &fichiers) {
  verbe.add_option(dit("FICHIER.LoP", "FILE.LoP"), fichiers, dit("Fichiers de visée", "Files of sights"))
      ->required()
      ->type_name("");
}

void AjouteEcartType(CLI::App &verbe, const Langue &dit, std::optional<double> &ecartType, const std::string &aide) {
  const auto pose = [&ecartType, &dit](double lue) {
    if (!(lue > 0)) {
      throw CLI::ValidationError("--ecart-type", dit("plus grand que 0", "greater than 0"));
    }
    ecartType = lue;
  };
  AjouteNombreLibre(verbe, dit, "--ecart-type", aide, pose)->type_name("M");
}

void AjouteDut1(CLI::App &verbe, const Langue &dit, double &dut1) {
  AjouteNombreLibre(verbe, dit, "--dut1", dit("UT1 moins UTC, secondes", "UT1 less UTC, seconds"), [&dut1](double lue) {
    dut1 = lue;
  })->type_name("S");
}

} // namespace velmaris
