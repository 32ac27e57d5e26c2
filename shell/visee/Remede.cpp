#include "shell/visee/Remede.hpp"

#include "sights/ChampFautif.hpp"

#include <string_view>

namespace velmaris {
namespace {

constexpr int kArgumentIncorrect = 5;
constexpr int kPasUneValeur = 13;

/// A caption without its colon, its blanks and its unit in brackets.
std::string Nu(std::string_view legende) {
  constexpr std::string_view kBords = " :";
  legende = legende.substr(0, legende.find('('));
  const std::size_t debut = legende.find_first_not_of(kBords);
  return debut == std::string_view::npos
             ? ""
             : std::string(legende.substr(debut, legende.find_last_not_of(kBords) - debut + 1));
}

std::string NomDuChamp(const Donnees &d, ChampVisee champ) {
  const auto heure = [&](const Controle &unite) { return Nu(d.Label4.legende) + ", " + Nu(unite.legende); };
  switch (champ) {
  case ChampVisee::HauteurOeil:
    return Nu(d.Label22.legende);
  case ChampVisee::Collimation:
    return Nu(d.Label21.legende);
  case ChampVisee::Jour:
    return Nu(d.Label1.texte); // the caption itself shows the weekday
  case ChampVisee::Mois:
    return Nu(d.Label2.legende);
  case ChampVisee::Annee:
    return Nu(d.Label3.legende);
  case ChampVisee::Heure:
    return heure(d.Label5);
  case ChampVisee::Minute:
    return heure(d.Label6);
  case ChampVisee::Seconde:
    break;
  }
  return heure(d.Label7);
}

} // namespace

std::string MotsRemede(const Donnees &d, const Observation &observation, int numero) {
  const auto fautif = TrouveChampFautif(observation);
  if (!fautif || numero != (fautif->defaut == Defaut::SousLaMer ? kArgumentIncorrect : kPasUneValeur)) {
    return "";
  }
  if (fautif->defaut == Defaut::DateImpossible) {
    return d.TexteSansDate.legende;
  }
  const std::string nom = NomDuChamp(d, fautif->champ) + " ";
  if (fautif->defaut == Defaut::Vide) {
    return nom + d.TexteVide[observation.corps == Corps::Planetes ? 0 : 1].legende;
  }
  return nom + d.TexteDefaut[static_cast<std::size_t>(fautif->defaut) - 1].legende;
}

} // namespace velmaris
