#include "shell/droites/Recentes.hpp"

#include "foundations/Fichiers.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/droites/FichierVisee.hpp"

#include <string>
#include <string_view>
#include <system_error>

namespace velmaris {
namespace {

constexpr std::string_view kCle = "Recentes"; ///< setting: the files' paths, one a line

std::vector<std::filesystem::path> Notees(const Bureau &bureau) {
  const std::string texte = LitReglage(bureau, kCle);
  std::vector<std::filesystem::path> chemins;
  for (const std::string_view ligne : Lignes(texte)) {
    if (!ligne.empty()) {
      chemins.emplace_back(ligne);
    }
  }
  return chemins;
}

} // namespace

std::vector<std::filesystem::path> ViseesRecentes(const Bureau &bureau) {
  std::vector<std::filesystem::path> chemins = Notees(bureau);
  std::erase_if(chemins, [](const std::filesystem::path &chemin) {
    std::error_code refus;
    return !std::filesystem::is_regular_file(chemin, refus);
  });
  return chemins;
}

void NoteRecente(Bureau &bureau, const std::filesystem::path &chemin) {
  std::error_code refus;
  const std::filesystem::path entier = std::filesystem::absolute(chemin, refus).lexically_normal();
  const std::string &nom = entier.native();
  if (refus || EnUtf8(nom) != nom || nom.find_first_of("\n\r") != std::string::npos) {
    return;
  }
  std::string texte = nom + "\n";
  std::size_t place = bureau.donnees.Recente.size() - 1;
  for (const std::filesystem::path &garde : ViseesRecentes(bureau)) {
    if (garde != entier && place > 0) {
      texte += garde.native() + "\n";
      --place;
    }
  }
  EcritReglage(bureau, kCle, texte);
}

void OuvreRecentes(Bureau &bureau, int /*indice*/) {
  Donnees &d = bureau.donnees;
  const std::vector<std::filesystem::path> chemins = ViseesRecentes(bureau);
  for (std::size_t i = 0; i < d.Recente.size(); ++i) {
    Controle &entree = d.Recente[i];
    entree.visible = i < chemins.size();
    entree.actif = entree.visible;
    entree.etiquette = entree.visible ? chemins[i].string() : std::string();
    entree.legende = entree.visible ? SansExtension(chemins[i].filename().string()) : std::string();
    entree.infobulle = entree.etiquette;
  }
  if (chemins.empty()) {
    d.Recente[0].visible = true;
    d.Recente[0].legende = d.TexteSansRecente.legende;
  }
  bureau.menu = &d.Recentes;
  bureau.menuSous = &d.Command4;
}

void Recente_Click(Bureau &bureau, int indice) {
  const std::string chemin = bureau.donnees.Recente.at(static_cast<std::size_t>(indice)).etiquette;
  if (!chemin.empty()) {
    OuvreVisee(bureau, chemin);
  }
}

bool EstNomDeVisee(const std::filesystem::path &chemin) { return EnCapitales(chemin.extension().string()) == ".LOP"; }

} // namespace velmaris
