#include "shell/papier/MeteoPapier.hpp"

#include "complements/registre/TexteCsv.hpp"

#include <algorithm>
#include <string_view>
#include <utility>

namespace velmaris {
namespace {

constexpr std::string_view kCle = "Meteo";
constexpr std::size_t kJoursGardes = 30;

/// The days of an earlier start, once.
void Reprend(Bureau &bureau) {
  PapierOuvert &p = bureau.papier;
  if (std::exchange(p.meteoReprise, true)) {
    return;
  }
  const std::string garde = LitReglage(bureau, kCle);
  std::string_view texte = garde;
  while (!texte.empty()) {
    MeteoDuJour meteo;
    meteo.jour = PrendLigne(texte);
    for (std::string &champ : meteo.champs) {
      champ = PrendLigne(texte);
    }
    p.meteos.push_back(std::move(meteo));
  }
}

/// The fields into the list of days, as the last one of it. A day without a word leaves it.
void Range(Bureau &bureau) {
  PapierOuvert &p = bureau.papier;
  if (p.jourMeteo.empty()) {
    return;
  }
  std::erase_if(p.meteos, [&](const MeteoDuJour &m) { return m.jour == p.jourMeteo; });
  MeteoDuJour meteo{.jour = p.jourMeteo, .champs = {}};
  std::transform(bureau.fenetrePapier.Text2.begin(), bureau.fenetrePapier.Text2.end(), meteo.champs.begin(),
                 [](const Controle &champ) { return champ.texte; });
  if (std::any_of(meteo.champs.begin(), meteo.champs.end(), [](const std::string &c) { return !c.empty(); })) {
    p.meteos.push_back(std::move(meteo));
  }
  if (p.meteos.size() > kJoursGardes) {
    p.meteos.erase(p.meteos.begin());
  }
}

} // namespace

void SuitJourMeteo(Bureau &bureau, const std::string &jour) {
  PapierOuvert &p = bureau.papier;
  Reprend(bureau);
  if (jour.empty() || jour == p.jourMeteo) {
    return;
  }
  const bool premier = p.jourMeteo.empty();
  Range(bureau);
  p.jourMeteo = jour;
  const auto connu = std::find_if(p.meteos.begin(), p.meteos.end(), [&](const auto &m) { return m.jour == jour; });
  auto &champs = bureau.fenetrePapier.Text2;
  for (std::size_t i = 0; i < champs.size(); ++i) {
    if (connu != p.meteos.end()) {
      champs.at(i).texte = connu->champs.at(i);
    } else if (!premier) { // what was typed before there was a day is this one's
      champs.at(i).texte.clear();
    }
  }
}

void GardeMeteo(Bureau &bureau) {
  Reprend(bureau);
  Range(bureau);
  std::string texte;
  for (const MeteoDuJour &meteo : bureau.papier.meteos) {
    texte += meteo.jour + "\n";
    for (const std::string &champ : meteo.champs) {
      texte += champ + "\n";
    }
  }
  EcritReglage(bureau, kCle, texte);
}

} // namespace velmaris
