#include "shell/complements/LignesLoin.hpp"

#include "complements/controle/LignesEtoiles.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/bureau/Avis.hpp"

#include <algorithm>
#include <string_view>

namespace velmaris {
namespace {

constexpr const char *kSigne = "!";
constexpr double kParDegre = 60; ///< minutes of arc

std::vector<bool> MesureLignes(const Etoiles &etoiles) {
  std::vector<bool> loin(kNombreEtoilesIcrs + 1);
  for (std::size_t rang = 1; rang < loin.size(); ++rang) {
    loin[rang] = EcartDeLigne(etoiles, static_cast<int>(rang)).value_or(0) > kLigneMarquee;
  }
  return loin;
}

/// The row of a name; 0 for none.
std::size_t RangDe(const Controle &toutes, const std::string &nom) {
  const auto ligne = std::find(toutes.liste.begin(), toutes.liste.end(), nom);
  return ligne == toutes.liste.end() ? 0 : static_cast<std::size_t>(ligne - toutes.liste.begin()) + 1;
}

} // namespace

bool EstLoin(Bureau &bureau, std::size_t rang) {
  if (bureau.lignesLoin.empty()) {
    bureau.lignesLoin = MesureLignes(bureau.etoiles);
  }
  return rang < bureau.lignesLoin.size() && bureau.lignesLoin[rang];
}

void MarqueListes(Bureau &bureau) {
  Donnees &d = bureau.donnees;
  d.Combo6.loin.resize(d.Combo6.liste.size());
  for (std::size_t i = 0; i < d.Combo6.loin.size(); ++i) {
    d.Combo6.loin[i] = EstLoin(bureau, i + 1);
  }
  d.Combo8.loin.clear();
  for (const std::string &nom : d.Combo8.liste) {
    d.Combo8.loin.push_back(EstLoin(bureau, RangDe(d.Combo6, nom)));
  }
}

void MarqueCiel(Bureau &bureau) {
  Ciel &c = bureau.ciel;
  for (std::size_t rang = 1; rang <= kEtoilesCiel; ++rang) {
    const char *const signe = EstLoin(bureau, rang) ? kSigne : "";
    c.Laet.at(rang).marque = signe;
    c.Shet.at(rang).marque = signe;
  }
}

void AviseLigneLoin(Bureau &bureau, std::size_t rang) {
  if (!EstLoin(bureau, rang)) {
    return;
  }
  const double minutes = EcartDeLigne(bureau.etoiles, static_cast<int>(rang)).value_or(0);
  const std::string ecart =
      minutes < kParDegre ? Format(minutes, "0") + " '" : Format(minutes / kParDegre, "0.0") + "°";
  const std::string_view nom = SansBlancs(bureau.etoiles.EtoileNom.at(rang));
  Avise(bureau, std::string(nom.empty() ? bureau.etoiles.EtoileBayer.at(rang) : nom) +
                    bureau.fiche.TexteLigneLoin.legende + ecart);
}

} // namespace velmaris
