#include "shell/ecran/ChoixSortie.hpp"

#include "shell/ecran/ChoixFichier.hpp"

#include <system_error>
#include <utility>

namespace velmaris {

namespace fs = std::filesystem;

fs::path ChoisitSansTitre(Bureau &bureau, const std::string &titre, const std::string &nom, const std::string &motif,
                          std::string_view fenetre) {
  const std::string titreFichier = bureau.TitreFichier;
  fs::path chemin = ChoisitFichier(bureau, titre, nom, motif, DitRefus::DansUneBoite);
  bureau.TitreFichier = titreFichier;
  bureau.premierPlan = fenetre;
  return chemin;
}

fs::path ChoisitSortie(Bureau &bureau, const std::string &titre, const std::string &nom, const std::string &motif,
                       std::string_view fenetre) {
  const std::string suffixe = fs::path(nom).extension().string();
  std::string propose = nom;
  fs::path chemin;
  for (bool demande = true; demande;) {
    bureau.fselect.suffixe = suffixe;
    chemin = ChoisitSansTitre(bureau, titre, propose, motif, fenetre);
    bureau.fselect.suffixe.clear();
    if (!chemin.empty() && !chemin.has_extension()) {
      chemin += suffixe;
    }
    std::error_code inconnu;
    demande = !chemin.empty() && fs::is_regular_file(chemin, inconnu) &&
              !bureau.ports.boite({.texte = bureau.fselect.TexteExiste.legende + "\n" + chemin.string(),
                                   .titre = titre,
                                   .icone = Icone::Attention,
                                   .question = true,
                                   .nonParDefaut = true,
                                   .fenetre = fenetre});
    propose = chemin.filename().string();
  }
  return chemin;
}

} // namespace velmaris
