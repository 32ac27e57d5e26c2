#include "shell/ecran/Copie.hpp"

#include "chart/Projection.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/Fichiers.hpp"
#include "foundations/TexteNombre.hpp"
#include "lines/FichierLoP.hpp"
#include "shell/bureau/Avis.hpp"
#include "shell/ecran/ChoixSortie.hpp"
#include "shell/ecran/Statut.hpp"
#include "shell/visee/Saisie.hpp"

#include <initializer_list>
#include <optional>
#include <string_view>
#include <utility>

namespace velmaris {
namespace {

constexpr const char *kMotifImages = "*.png;*.svg;*.pdf";

std::string Nu(const std::string &texte) { return std::string(SansBlancs(texte)); }

/// Lines of a caption, its result and its unit; a result that isn't there has none.
struct Rangee {
  std::string legende;
  std::string valeur;
  std::string unite = {};
};
std::string Range(std::initializer_list<Rangee> rangees) {
  std::string texte;
  for (const Rangee &r : rangees) {
    if (const std::string valeur = Nu(r.valeur); !valeur.empty()) {
      const std::string unite = Nu(r.unite);
      texte += (texte.empty() ? "" : "\n") + Nu(r.legende) + " " + valeur + (unite.empty() ? "" : " " + unite);
    }
  }
  return texte;
}

std::string Details(const Donnees &d) {
  std::string texte;
  for (const Controle &ligne : d.Label70) {
    if (!ligne.legende.empty()) {
      texte += (texte.empty() ? "" : "\n") + Nu(ligne.legende);
    }
  }
  return texte;
}

std::string Branches(const Donnees &d) {
  std::string texte;
  for (const std::string &branche : d.List1.liste) {
    texte += Nu(branche) + "\n";
  }
  return texte + Range({{d.Label28.legende, d.Label15.legende}});
}

/// The panel that a control lies in, itself for a panel.
const Controle *PanneauDe(const ListeControles &controles, const Controle &controle) {
  const Controle *panneau = &controle;
  while (panneau != nullptr && !panneau->parent.empty()) {
    panneau = Cherche(controles, panneau->parent);
  }
  return panneau;
}

/// Whether the pointer over it means its module: a field has a menu of its own, a button and the surface mean
/// themselves.
bool DitSonModule(const Controle &c) {
  return c.genre == Genre::Etiquette || c.genre == Genre::Cadre || c.genre == Genre::Groupe ||
         c.genre == Genre::ListeBoite || (c.genre == Genre::Surface && !c.parent.empty());
}

/// Puts a text on the clipboard and tells it in one line.
void CopieTexte(Bureau &bureau, const std::string &texte) {
  bureau.ports.copieTexte(texte);
  std::string ligne = texte;
  for (std::size_t p = ligne.find('\n'); p != std::string::npos; p = ligne.find('\n', p)) {
    ligne.replace(p, 1, "   ");
  }
  Avise(bureau, bureau.etat.TexteCopie.legende + ligne);
}

/// The form of a file by its suffix; none for an unknown one.
std::optional<FormeImage> Forme(const std::filesystem::path &chemin) {
  const std::string suffixe = EnCapitales(chemin.extension().string());
  constexpr std::pair<std::string_view, FormeImage> kFormes[] = {// NOLINT(*-c-arrays)
                                                                 {".PNG", FormeImage::Png},
                                                                 {".SVG", FormeImage::Svg},
                                                                 {".PDF", FormeImage::Pdf}};
  for (const auto &[nom, forme] : kFormes) {
    if (suffixe == nom) {
      return forme;
    }
  }
  return std::nullopt;
}

} // namespace

bool EcritImageDe(Bureau &bureau, const Surface &surface, const std::filesystem::path &chemin,
                  std::string_view fenetre) {
  constexpr int kErreurFichier = 75;
  const Donnees &d = bureau.donnees;
  const std::optional<FormeImage> forme = Forme(chemin);
  if (!forme) {
    bureau.ports.boite(
        {.texte = d.TexteImageForme.legende + "\n" + chemin.string(), .icone = Icone::Attention, .fenetre = fenetre});
    return false;
  }
  try {
    const std::string octets = bureau.ports.image(surface, *forme);
    if (octets.empty()) {
      throw Erreur(kErreurFichier);
    }
    EcritFichier(chemin, octets, bureau.dossiers.utilisateur);
    return true;
  } catch (const Erreur &erreur) {
    bureau.ports.boite(
        {.texte = MotsErreur(d, erreur.numero) + "\n\n" + d.TexteNonEcrit.legende + "\n" + chemin.string(),
         .icone = Icone::Erreur,
         .fenetre = fenetre});
    return false;
  }
}

std::string ResultatsDe(Bureau &bureau, const Controle &controle) {
  const Donnees &d = bureau.donnees;
  if (controle.fenetre == kFenetreEtat) {
    return Nu(controle.legende);
  }
  const Controle *panneau = PanneauDe(Liste(bureau.donnees), controle);
  if (panneau == &d.Frame7) {
    return Range(
        {{d.Label18.legende, d.Affichage_Intercept.legende}, {d.Label20.legende, d.Affichage_Azimuth.legende}});
  }
  if (panneau == &d.Frame9) {
    return Details(d);
  }
  if (panneau == &d.Frame8) {
    const std::string lieu = Range({{d.Label23.legende, d.Label35.legende}, {d.Label24.legende, d.Label36.legende}});
    return lieu.empty() ? lieu : Nu(d.Label64.legende) + "\n" + lieu;
  }
  if (panneau == &d.Frame4) {
    const std::string longitude = d.LabLonEst.legende;
    return Range({{d.Label42.legende, d.LabLatEst.legende, longitude}});
  }
  if (panneau == &d.Frame2) {
    return Range({{d.Label58.legende, d.Text24.texte, d.Label71.legende},
                  {d.Label73.legende, d.Text23.texte, d.Label74.legende}});
  }
  return panneau == &d.Frame1 ? Branches(d) : std::string();
}

void Copie(Bureau &bureau, const Controle *pointe, const Controle *clavier) {
  std::string texte = pointe != nullptr && DitSonModule(*pointe) ? ResultatsDe(bureau, *pointe) : std::string();
  if (texte.empty() && clavier == &bureau.donnees.Image1) {
    PU_CopieImage_Click(bureau, -1);
    return;
  }
  if (texte.empty() && clavier != nullptr) {
    texte = ResultatsDe(bureau, *clavier);
  }
  if (texte.empty()) {
    Avise(bureau, bureau.etat.TexteSansCopie.legende);
  } else {
    CopieTexte(bureau, texte);
  }
}

bool OuvreMenuCopie(Bureau &bureau, const Controle &pointe) {
  std::string texte = DitSonModule(pointe) ? ResultatsDe(bureau, pointe) : std::string();
  if (texte.empty()) {
    return false;
  }
  bureau.aCopier = std::move(texte);
  bureau.menu = &bureau.donnees.MenuCopie;
  bureau.menuSous = &pointe;
  return true;
}

void MC_Copier_Click(Bureau &bureau, int /*indice*/) { CopieTexte(bureau, bureau.aCopier); }

void PU_CopieImage_Click(Bureau &bureau, int /*indice*/) {
  bureau.ports.copieImage(bureau.image1);
  Avise(bureau, bureau.etat.TexteCopie.legende + bureau.donnees.PU_CopieImage.legende);
}

void PU_CopiePoint_Click(Bureau &bureau, int /*indice*/) {
  if (AUneEchelle(bureau.feuille)) {
    const PlaceCarte place = PlaceSousPoint(bureau.feuille, {bureau.souris.ClicX, bureau.souris.ClicY});
    CopieTexte(bureau, TexteTenue(place.latitude, place.longitude));
  }
}

void PU_Image_Click(Bureau &bureau, int /*indice*/) {
  const Donnees &d = bureau.donnees;
  const std::string nom = SansExtension(NomProposeLoP(LitPanneau(d))) + ".png";
  const std::filesystem::path chemin = ChoisitSortie(bureau, d.TexteImage.legende, nom, kMotifImages, kFenetreDonnees);
  if (chemin.empty()) {
    return;
  }
  EcritImageDe(bureau, bureau.image1, chemin);
}

} // namespace velmaris
