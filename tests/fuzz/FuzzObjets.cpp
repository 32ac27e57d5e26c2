#include "Attend.hpp"
#include "Banc.hpp"
#include "shell/carte/FichierObjets.hpp"

#include <algorithm>
#include <string>
#include <vector>

using namespace velmaris;

namespace {

/// A program whose data folder is a scratch one; the boxes that it shows are counted.
struct Editeur {
  Banc banc;
  Bureau bureau;
  int boites = 0;
  Editeur() {
    bureau.dossiers = {banc.chemin(), banc / "programme", banc / "partage", banc.chemin()};
    bureau.ports.boite = [this](const Boite &) {
      ++boites;
      return true;
    };
  }
};

} // namespace

/// The user's objects are read as far as they can be; written, they read back as they are, and what wasn't read whole
/// lies beside them untouched.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *octets, std::size_t taille) {
  static Editeur editeur;
  Bureau &bureau = editeur.bureau;
  Utilisateur &u = bureau.utilisateur;
  const std::string_view texte = Octets(octets, taille);
  const std::filesystem::path fichier = editeur.banc / kFichierObjets;
  editeur.banc.Vide();
  editeur.boites = 0;
  Pose(fichier, texte);
  LitFichier(bureau);
  Attend(editeur.boites <= 1, "one box at most");
  const bool fidele = u.fidele;
  const std::string ecrit = TexteObjets(u);
  EcritFichier(bureau);
  Attend(Contenu(fichier) == ecrit, "the file holds the tables");
  Attend(fidele || Contenu(editeur.banc / "Utilisateur.ancien.txt") == texte, "what wasn't read whole is kept");
  const std::vector<Objet> avant = u.tables;
  const std::vector<std::string> noms = u.List1.liste;
  editeur.boites = 0;
  LitFichier(bureau);
  Attend(editeur.boites == 0 && u.fidele, "what was written is read whole");
  Attend(TexteObjets(u) == ecrit, "and written alike");
  if (std::find(noms.begin(), noms.end(), "PlusRien") == noms.end()) {
    Attend(u.tables == avant && u.List1.liste == noms, "objects read back are the same");
  }
  return 0;
}
