#include "sights/ChampFautif.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"
#include "foundations/ValeurDate.hpp"

#include <array>
#include <utility>

namespace velmaris {
namespace {

std::optional<Defaut> DefautVirgule(const std::string &texte) {
  if (texte.empty()) {
    return Defaut::Vide;
  }
  return Passe([&] { LitVirgule(texte); }) ? std::nullopt : std::optional(Defaut::PasUnNombre);
}

std::optional<Defaut> DefautOeil(const std::string &texte) {
  const std::optional<Defaut> defaut = DefautVirgule(texte);
  return !defaut && LitVirgule(texte) < 0 ? std::optional(Defaut::SousLaMer) : defaut;
}

/// The first of date and time that is empty. Each is a text that is read as a number, and an empty one is none.
std::optional<ChampFautif> ChampVide(const Observation &o) {
  const std::array<std::pair<ChampVisee, const std::string *>, 6> champs = {{{ChampVisee::Jour, &o.jour},
                                                                             {ChampVisee::Mois, &o.mois},
                                                                             {ChampVisee::Annee, &o.annee},
                                                                             {ChampVisee::Heure, &o.heure},
                                                                             {ChampVisee::Minute, &o.minute},
                                                                             {ChampVisee::Seconde, &o.seconde}}};
  for (const auto &[champ, texte] : champs) {
    if (texte->empty()) {
      return ChampFautif{champ, Defaut::Vide};
    }
  }
  return std::nullopt;
}

/// Whether a date and a time are read as the sight reads them.
bool EstDateHeure(const std::string &date, const std::string &heure) {
  return Passe([&] { LitDateHeure(date + "   " + heure); });
}

} // namespace

std::optional<ChampFautif> TrouveChampFautif(const Observation &o) {
  if (o.corps != Corps::Planetes && o.corps != Corps::Etoiles) {
    return std::nullopt;
  }
  if (const auto defaut = DefautOeil(o.hauteurOeil)) {
    return ChampFautif{ChampVisee::HauteurOeil, *defaut};
  }
  if (const auto defaut = DefautVirgule(o.collimation)) {
    return ChampFautif{ChampVisee::Collimation, *defaut};
  }
  if (const auto vide = ChampVide(o)) {
    return vide;
  }
  const auto nombre = [](const std::string &texte) { return TexteGeneral(Val(texte)); };
  if (!EstDateHeure(nombre(o.jour) + "/" + nombre(o.mois) + "/" + nombre(o.annee), "0:0:0")) {
    return ChampFautif{ChampVisee::Jour, Defaut::DateImpossible};
  }
  const std::string unJour = "1/1/2000";
  if (!EstDateHeure(unJour, nombre(o.heure) + ":0:0")) {
    return ChampFautif{ChampVisee::Heure, Defaut::HorsDuJour};
  }
  if (!EstDateHeure(unJour, "0:" + o.minute + ":0")) {
    return ChampFautif{ChampVisee::Minute, Defaut::HorsDeLHeure};
  }
  if (!EstDateHeure(unJour, "0:0:" + o.seconde)) {
    return ChampFautif{ChampVisee::Seconde, Defaut::HorsDeLHeure};
  }
  return std::nullopt;
}

} // namespace velmaris
