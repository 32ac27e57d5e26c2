#include "shell/Aide.hpp"

#include "shell/ecran/Presentation.hpp"

#include <filesystem>
#include <system_error>

namespace velmaris {
namespace {

constexpr const char *kTypeAide = "application/vnd.ms-htmlhelp";

bool Existe(const std::filesystem::path &fichier) {
  std::error_code sansErreur;
  return std::filesystem::is_regular_file(fichier, sansErreur);
}

} // namespace

void OuvreAide(Bureau &bureau) {
  const bool anglais = bureau.FichierLangue == "\\EN.txt";
  const auto aide = TrouveFichier(bureau.dossiers, anglais ? "velmaris-EN.chm" : "velmaris.chm");
  const auto pages = TrouveFichier(bureau.dossiers, anglais ? "aide/en/index.html" : "aide/fr/index.html");
  if (Existe(aide) && bureau.ports.lecteur(kTypeAide)) {
    OuvreAdresse(bureau, aide.string());
  } else if (Existe(pages)) {
    OuvreAdresse(bureau, pages.string());
  } else {
    bureau.ports.boite(
        {.texte = bureau.donnees.TexteSansAide.legende + "\n" + pages.string(), .icone = Icone::Attention});
  }
}

} // namespace velmaris
