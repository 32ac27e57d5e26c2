#include "shell/bureau/Ports.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <pwd.h>
#include <system_error>
#include <unistd.h>

namespace velmaris {
namespace {

/// The home that the system has on record for the account; where it has none, one that isn't there, as for accounts
/// without a home: a folder that anyone may make would be no home.
std::string AccueilDuCompte() {
  constexpr std::size_t kTampon = 16384;
  std::vector<char> tampon(kTampon);
  passwd compte{};
  passwd *trouve = nullptr;
  const int refus = ::getpwuid_r(::getuid(), &compte, tampon.data(), tampon.size(), &trouve);
  return refus == 0 && trouve != nullptr && *trouve->pw_dir == '/' ? trouve->pw_dir : "/nonexistent";
}

std::filesystem::path Accueil() {
  const char *maison = std::getenv("HOME");
  const std::filesystem::path dossier =
      std::filesystem::path(maison != nullptr && *maison == '/' ? maison : AccueilDuCompte()).lexically_normal();
  return dossier.has_filename() || dossier == dossier.root_path() ? dossier : dossier.parent_path();
}

std::filesystem::path DossierUtilisateur() {
  if (const char *xdg = std::getenv("XDG_DATA_HOME"); xdg != nullptr && *xdg == '/') {
    return std::filesystem::path(xdg) / "velmaris";
  }
  return Accueil() / ".local/share/velmaris";
}

/// Adds the folders of a folder, in the order of their names.
void AjouteDossiers(const std::filesystem::path &racine, std::vector<std::filesystem::path> &dossiers) {
  std::error_code refus;
  const auto debut = static_cast<std::ptrdiff_t>(dossiers.size());
  for (std::filesystem::directory_iterator i(racine, refus), fin; !refus && i != fin; i.increment(refus)) {
    std::error_code inconnu;
    if (i->is_directory(inconnu)) {
      dossiers.push_back(i->path());
    }
  }
  std::sort(dossiers.begin() + debut, dossiers.end());
}

} // namespace

std::filesystem::path DossierPartage(const std::filesystem::path &programme) {
  std::error_code inconnu;
  const std::filesystem::path voisin = (programme / VELMARIS_PARTAGE_RELATIF).lexically_normal();
  return std::filesystem::is_directory(voisin, inconnu) ? voisin : VELMARIS_PARTAGE;
}

Dossiers TrouveDossiers(const std::filesystem::path &programme) {
  return {DossierUtilisateur(), programme, DossierPartage(programme), Accueil()};
}

std::vector<std::filesystem::path> Volumes(const std::filesystem::path &accueil) {
  std::vector<std::filesystem::path> volumes = {accueil, "/"};
  // A desktop mounts what is plugged in under the user's name.
  for (const char *racine : {"/media", "/run/media"}) {
    std::vector<std::filesystem::path> utilisateurs;
    AjouteDossiers(racine, utilisateurs);
    for (const std::filesystem::path &utilisateur : utilisateurs) {
      AjouteDossiers(utilisateur, volumes);
    }
  }
  AjouteDossiers("/mnt", volumes);
  return volumes;
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
