#include "shell/ecran/ChoixFichier.hpp"

#include "foundations/TexteNombre.hpp"
#include "shell/bureau/Evenements.hpp"
#include "shell/bureau/Langage.hpp"

#include <algorithm>
#include <system_error>
#include <utility>

namespace velmaris {
namespace {

namespace fs = std::filesystem;

constexpr const char *kCleDossier = "Dossier"; ///< setting: the folder that a file was last chosen in

/// A text in small letters, the accented ones of Latin-1 included.
std::string Minuscules(std::string_view texte) {
  constexpr int kEcart = 'a' - 'A';
  std::string petit(texte);
  bool latin = false; // the byte before opens the letters 0xC0 to 0xFF of Latin-1
  for (char &c : petit) {
    const auto octet = static_cast<unsigned char>(c);
    const bool accentuee = latin && octet >= 0x80 && octet <= 0x9E && octet != 0x97;
    if (accentuee || (c >= 'A' && c <= 'Z')) {
      c = static_cast<char>(octet + kEcart);
    }
    latin = octet == 0xC3;
  }
  return petit;
}

/// In the order of the alphabet, without regard to case.
void Range(std::vector<std::string> &noms) {
  std::vector<std::pair<std::string, std::string>> paires;
  paires.reserve(noms.size());
  for (std::string &nom : noms) {
    std::string cle = Minuscules(nom);
    paires.emplace_back(std::move(cle), std::move(nom));
  }
  std::sort(paires.begin(), paires.end());
  std::transform(paires.begin(), paires.end(), noms.begin(), [](auto &paire) { return std::move(paire.second); });
}

/// What a folder holds, hidden entries left out.
struct Contenu {
  std::vector<std::string> fichiers; ///< those that match the pattern
  std::vector<std::string> dossiers;
};

bool LitContenu(const fs::path &dossier, const std::string &motif, Contenu &contenu) {
  std::error_code refus;
  for (fs::directory_iterator i(dossier, refus), fin; !refus && i != fin; i.increment(refus)) {
    std::string nom = i->path().filename().string();
    std::error_code inconnu;
    if (nom.starts_with('.')) {
      continue;
    }
    if (i->is_directory(inconnu)) {
      contenu.dossiers.push_back(std::move(nom));
    } else if (CorrespondMotif(nom, motif) && i->is_regular_file(inconnu)) {
      contenu.fichiers.push_back(std::move(nom));
    }
  }
  Range(contenu.fichiers);
  Range(contenu.dossiers);
  return !refus;
}

/// The file chosen in the list, empty for none.
std::string FichierChoisi(const FSelect &f) {
  const int rang = f.File1.rang;
  return rang >= 0 && std::cmp_less(rang, f.File1.liste.size()) ? f.File1.liste[static_cast<std::size_t>(rang)]
                                                                : std::string();
}

/// The folder chosen in the list, which needs not be entered yet.
fs::path DossierChoisi(const FSelect &f) {
  const int rang = f.Dir1.rang;
  return rang >= 0 && std::cmp_less(rang, f.chemins.size()) ? f.chemins[static_cast<std::size_t>(rang)] : f.dossier;
}

/// The folders above the present one, itself and those in it, each a step further in.
void MontreDossiers(FSelect &f, const std::vector<std::string> &dedans) {
  f.chemins.clear();
  f.Dir1.liste.clear();
  const auto ajoute = [&](const fs::path &chemin, const std::string &nom, std::size_t niveau) {
    f.chemins.push_back(chemin);
    f.Dir1.liste.push_back(std::string(niveau * 2, ' ') + nom);
  };
  fs::path chemin;
  std::size_t niveau = 0;
  for (const fs::path &etape : f.dossier) {
    chemin /= etape;
    ajoute(chemin, etape.string(), niveau++);
  }
  f.Dir1.rang = static_cast<int>(niveau) - 1;
  for (const std::string &nom : dedans) {
    ajoute(f.dossier / nom, nom, niveau);
  }
}

/// The volume that the present folder lies on: the one with the longest path.
void MontreVolume(FSelect &f, const fs::path &accueil) {
  f.Drive1.liste.clear();
  std::size_t longueur = 0;
  for (const fs::path &volume : Volumes(accueil)) {
    const std::string nom = volume.string();
    f.Drive1.liste.push_back(nom);
    const auto [commun, reste] = std::mismatch(volume.begin(), volume.end(), f.dossier.begin(), f.dossier.end());
    if (commun == volume.end() && nom.size() > longueur) {
      longueur = nom.size();
      f.Drive1.rang = static_cast<int>(f.Drive1.liste.size()) - 1;
      f.Drive1.texte = nom;
    }
  }
}

/// Shows the files of the present folder; the chosen one stays chosen where it is still there.
void MontreFichiers(FSelect &f, std::vector<std::string> fichiers) {
  const std::string choisi = FichierChoisi(f);
  f.File1.liste = std::move(fichiers);
  const auto reste = std::find(f.File1.liste.begin(), f.File1.liste.end(), choisi);
  f.File1.rang = reste == f.File1.liste.end() ? -1 : static_cast<int>(reste - f.File1.liste.begin());
}

/// Goes to a folder: its files and its neighbours.
/// @return false when it can't be read; the dialog then stays where it is
bool Entre(Bureau &bureau, const fs::path &dossier) {
  FSelect &f = bureau.fselect;
  Contenu contenu;
  if (!LitContenu(dossier, f.motif, contenu)) {
    return false;
  }
  if (dossier != f.dossier) {
    f.File1.rang = -1;
  }
  f.dossier = dossier;
  MontreFichiers(f, std::move(contenu.fichiers));
  MontreDossiers(f, contenu.dossiers);
  MontreVolume(f, bureau.dossiers.accueil);
  return true;
}

/// Goes to a folder, or where it can't be shown to the user's own, or to the root.
void EntreOuAccueil(Bureau &bureau, const fs::path &dossier) {
  if (!Entre(bureau, dossier) && !Entre(bureau, bureau.dossiers.accueil)) {
    Entre(bureau, "/");
  }
}

/// Shows what has been written since; a folder that is chosen without having been entered stays so.
/// @return false when the folder has gone
bool Rafraichit(FSelect &f) {
  Contenu contenu;
  if (!LitContenu(f.dossier, f.motif, contenu)) {
    return false;
  }
  const fs::path choisi = DossierChoisi(f);
  MontreFichiers(f, std::move(contenu.fichiers));
  MontreDossiers(f, contenu.dossiers);
  const auto reste = std::find(f.chemins.begin(), f.chemins.end(), choisi);
  f.Dir1.rang = reste == f.chemins.end() ? f.Dir1.rang : static_cast<int>(reste - f.chemins.begin());
  return true;
}

/// A typed path as a folder: from the present one, or from the user's own after a tilde.
fs::path Absolu(const Bureau &bureau, const std::string &texte) {
  const fs::path chemin = texte == "~" || texte.starts_with("~/")
                              ? bureau.dossiers.accueil / texte.substr(std::min<std::size_t>(texte.size(), 2))
                              : bureau.fselect.dossier / texte;
  fs::path normal = chemin.lexically_normal();
  if (normal.native().starts_with("//")) {
    normal = normal.native().substr(1);
  }
  return normal.has_filename() ? normal : normal == normal.root_path() ? normal : normal.parent_path();
}

/// The pattern comes back into the name field.
void RetourAuMotif(FSelect &f) {
  f.FName.texte = f.motif;
  f.FName.toutSelectionne = true;
}

/// Follows a path in the name field; what stands after its last separator is left there when it is a name.
/// @return false when the folder can't be shown
bool SuitChemin(Bureau &bureau, std::string &nom) {
  if (nom.find_first_of(".?*") == std::string::npos) {
    return Entre(bureau, Absolu(bureau, nom));
  }
  const std::size_t p = nom.rfind('/');
  if (!Entre(bureau, Absolu(bureau, p == 0 ? "/" : nom.substr(0, p)))) {
    return false;
  }
  nom = nom.substr(p + 1);
  bureau.fselect.FName.texte = nom;
  return true;
}

void Accepte(Bureau &bureau) {
  FSelect &f = bureau.fselect;
  f.etiquette = f.dossier.string();
  if (!f.etiquette.ends_with('/')) {
    f.etiquette += '/';
  }
  Rafraichit(f);
  f.cadre.visible = false;
  f.accepte = true;
  bureau.TitreFichier = SansExtension(f.FName.texte);
  EcritReglage(bureau, kCleDossier, f.dossier.string());
}

/// First use: the language, and the last folder that a file was chosen in, or the user's own.
void Charge(Bureau &bureau) {
  ChargeLangue(bureau, kFenetreFSelect);
  bureau.fselect.chargee = true;
  EntreOuAccueil(bureau, LitReglage(bureau, kCleDossier));
}

/// One pattern against one name, both in small letters.
bool Correspond(std::string_view nom, std::string_view motif) {
  std::size_t n = 0;
  std::size_t m = 0;
  std::size_t etoile = std::string_view::npos;
  std::size_t reprise = 0;
  const auto suivant = [&](std::size_t i) {
    do {
      ++i;
    } while (i < nom.size() && (static_cast<unsigned char>(nom[i]) & 0xC0U) == 0x80U);
    return i;
  };
  while (n < nom.size()) {
    if (m < motif.size() && motif[m] == '*') {
      etoile = m++;
      reprise = n;
    } else if (m < motif.size() && motif[m] == '?') {
      n = suivant(n);
      ++m;
    } else if (m < motif.size() && motif[m] == nom[n]) {
      ++n;
      ++m;
    } else if (etoile != std::string_view::npos) {
      m = etoile + 1;
      n = reprise = suivant(reprise);
    } else {
      return false;
    }
  }
  return motif.find_first_not_of('*', m) == std::string_view::npos;
}

/// Whether a typed path is that of a file to write, without its extension: no folder is there.
bool EstFichierSansSuffixe(const Bureau &bureau, const std::string &nom) {
  std::error_code inconnu;
  const fs::path chemin(nom);
  return !bureau.fselect.suffixe.empty() && nom.find_first_of("?*") == std::string::npos && chemin.has_filename() &&
         chemin.filename() != "~" && chemin.filename() != "." && chemin.filename() != ".." && !chemin.has_extension() &&
         !fs::is_directory(Absolu(bureau, nom), inconnu) &&
         fs::is_directory(Absolu(bureau, nom).parent_path(), inconnu);
}

/// The typed folder can't be shown; the keyboard comes back to its name.
void DitSansDossier(Bureau &bureau, const std::string &nom) {
  FSelect &f = bureau.fselect;
  if (f.ditRefus) {
    bureau.ports.boite({.texte = f.TexteSansDossier.legende + "\n" + nom,
                        .titre = f.cadre.titre,
                        .icone = Icone::Attention,
                        .fenetre = kFenetreFSelect});
    f.FName.toutSelectionne = true;
    bureau.focus = &f.FName;
  }
}

} // namespace

bool CorrespondMotif(std::string_view nom, std::string_view motif) {
  const std::string petit = Minuscules(nom);
  while (true) {
    const std::size_t fin = motif.find(';');
    const std::string un = Minuscules(SansBlancs(motif.substr(0, fin)));
    if (un == "*.*" || Correspond(petit, un)) {
      return true;
    }
    if (fin == std::string_view::npos) {
      return false;
    }
    motif.remove_prefix(fin + 1);
  }
}

fs::path ChoisitFichier(Bureau &bureau, const std::string &titre, const std::string &nom, const std::string &motif,
                        DitRefus refus) {
  FSelect &f = bureau.fselect;
  f.cadre.titre = titre;
  f.motif = motif;
  f.nomPropose = nom != motif;
  f.FName.texte = nom;
  f.FName.toutSelectionne = true;
  f.OK.actif = true;
  f.File1.rang = -1;
  f.accepte = false;
  f.ditRefus = refus == DitRefus::DansUneBoite;
  if (f.chargee) {
    EntreOuAccueil(bureau, fs::path(f.dossier));
  } else {
    Charge(bureau);
  }
  f.FName.infobulle = f.TexteNom.legende;
  bureau.focus = &f.FName;
  f.cadre.visible = true;
  bureau.ports.modale(f.cadre);
  f.cadre.visible = false;
  if (!f.accepte) {
    f.FName.texte.clear();
  }
  return f.FName.texte.empty() ? fs::path() : fs::path(f.etiquette + f.FName.texte);
}

void FSelect_Activate(Bureau &bureau) {
  if (!Rafraichit(bureau.fselect)) {
    EntreOuAccueil(bureau, bureau.dossiers.accueil);
  }
}

void File1_Click(Bureau &bureau, int /*indice*/) {
  FSelect &f = bureau.fselect;
  if (const std::string nom = FichierChoisi(f); !nom.empty()) {
    f.FName.texte = nom;
    f.OK.actif = true;
  }
}

void File1_DblClick(Bureau &bureau, int /*indice*/) { ClicControle(bureau, bureau.fselect.OK); }

void File1_Entre(Bureau &bureau, int indice) { File1_Click(bureau, indice); }

void Dir1_DblClick(Bureau &bureau, int /*indice*/) { Entre(bureau, DossierChoisi(bureau.fselect)); }

void Dir1_Valide(Bureau &bureau, int /*indice*/) {
  FSelect &f = bureau.fselect;
  if (!Entre(bureau, DossierChoisi(f))) {
    return;
  }
  if (!f.nomPropose) {
    RetourAuMotif(f);
  }
  f.FName.toutSelectionne = true;
  bureau.focus = &f.FName;
}

void Drive1_Click(Bureau &bureau, int /*indice*/) {
  FSelect &f = bureau.fselect;
  if (!Entre(bureau, fs::path(f.Drive1.texte))) {
    MontreVolume(f, bureau.dossiers.accueil);
  }
}

void FName_Change(Bureau &bureau, int /*indice*/) { bureau.fselect.OK.actif = true; }

void OK_Click(Bureau &bureau, int /*indice*/) {
  FSelect &f = bureau.fselect;
  if (const fs::path choisi = DossierChoisi(f); choisi != f.dossier) {
    if (Entre(bureau, choisi)) {
      RetourAuMotif(f);
    }
    return;
  }
  bool navigation = false;
  std::string nom = f.FName.texte;
  if (nom == "~" || nom.find('/') != std::string::npos) {
    if (EstFichierSansSuffixe(bureau, nom)) {
      nom += f.suffixe;
    }
    if (!SuitChemin(bureau, nom)) {
      DitSansDossier(bureau, nom);
      return;
    }
    navigation = true;
  }
  if (nom.find_first_of("?*") != std::string::npos) {
    f.motif = nom;
    navigation = true;
  }
  const bool unNom = nom.find('.') != std::string::npos && nom != f.motif;
  if (navigation && !unNom) {
    Rafraichit(f);
    RetourAuMotif(f);
    return;
  }
  Accepte(bureau);
}

void Quitter_Click(Bureau &bureau, int /*indice*/) {
  bureau.fselect.FName.texte.clear();
  bureau.fselect.cadre.visible = false;
}

void Supprime_Click(Bureau &bureau, int /*indice*/) {
  FSelect &f = bureau.fselect;
  if (const std::string nom = FichierChoisi(f); !nom.empty()) {
    bureau.ports.jette(f.dossier / nom);
  }
  f.File1.rang = -1;
  Rafraichit(f);
  f.OK.actif = false;
}

} // namespace velmaris
