#include "shell/Ports.hpp"

#include <cstdlib>
#include <system_error>

namespace velmaris {
namespace {

std::filesystem::path DossierUtilisateur() {
  if (const char *xdg = std::getenv("XDG_DATA_HOME"); xdg != nullptr && *xdg == '/') {
    return std::filesystem::path(xdg) / "velmaris";
  }
  const char *maison = std::getenv("HOME");
  return std::filesystem::path(maison != nullptr && *maison != '\0' ? maison : "/tmp") / ".local/share/velmaris";
}

} // namespace

Dossiers TrouveDossiers(const std::filesystem::path &programme) {
  return {DossierUtilisateur(), programme, VELMARIS_PARTAGE};
}

std::filesystem::path TrouveFichier(const Dossiers &dossiers, const std::string &nom) {
  std::error_code sansErreur;
  for (const auto *dossier : {&dossiers.utilisateur, &dossiers.programme}) {
    if (std::filesystem::exists(*dossier / nom, sansErreur)) {
      return *dossier / nom;
    }
  }
  return dossiers.partage / nom;
}

} // namespace velmaris
