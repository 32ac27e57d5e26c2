#include "shell/ecran/Presentation.hpp"

#include "foundations/Horloge.hpp"
#include "shell/bureau/Identite.hpp"
#include "shell/bureau/Langage.hpp"
#include "shell/ecran/Modules.hpp"

#include <cmath>
#include <string_view>
#include <utility>

namespace velmaris {
namespace {

constexpr double kEcartImages = 0.00001; ///< days between two swaps of the pictures

/// An address as one would write it down: that of a letter without its scheme and its subject.
std::string_view AdresseLisible(std::string_view adresse) {
  constexpr std::string_view kLettre = "mailto:";
  return adresse.starts_with(kLettre) ? adresse.substr(kLettre.size(), adresse.find('?') - kLettre.size()) : adresse;
}

} // namespace

void PU_Apropos_Click(Bureau &bureau, int /*indice*/) {
  PU_Clear_Click(bureau, -1);
  Apropos &a = bureau.apropos;
  InitialiseApropos(a);
  ChargeLangue(bureau, kFenetreApropos);
  const Version version = VersionProgramme();
  a.Label2[3].legende = "Version : " + std::to_string(version.majeure) + "." + std::to_string(version.mineure);
  a.cadre.titre = bureau.donnees.PU_Apropos.legende;
  a.cadre.visible = true;
  bureau.ports.modale(a.cadre);
}

void OuvreAdresse(Bureau &bureau, const std::string &adresse) {
  bureau.ports.ouvre(adresse, [&bureau, adresse] {
    bureau.ports.boite({.texte = bureau.donnees.TexteAdresse.legende,
                        .icone = Icone::Information,
                        .adresse = std::string(AdresseLisible(adresse))});
  });
}

namespace apropos {

void Label3_Click(Bureau &bureau, int /*indice*/) {
  const Version v = VersionProgramme();
  OuvreAdresse(bureau, "mailto:" + std::string(Courriel()) + "?subject=Velmaris%20V" + std::to_string(v.majeure) + "." +
                           std::to_string(v.mineure) + "." + std::to_string(v.revision));
}

void Label4_Click(Bureau &bureau, int /*indice*/) {
  bureau.ports.boite({.texte = bureau.messages[23], .icone = Icone::Information});
}

void Label5_Click(Bureau &bureau, int /*indice*/) { OuvreAdresse(bureau, std::string(Site())); }

void Image1_MouseMove(Bureau &bureau, int /*indice*/) {
  Apropos &a = bureau.apropos;
  const double maintenant = MomentUTC(bureau.horloge.source());
  if (std::fabs(maintenant - a.momentImage) < kEcartImages) { // also once the clock has been set back
    return;
  }
  a.momentImage = maintenant;
  std::swap(a.Image1[0].visible, a.Image1[1].visible);
}

void Command1_Click(Bureau &bureau, int /*indice*/) {
  bureau.apropos.cadre.visible = false;
  bureau.premierPlan = kFenetreDonnees;
}

} // namespace apropos
} // namespace velmaris
