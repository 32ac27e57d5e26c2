#include "shell/fenetres/Acces.hpp"
#include "shell/fenetres/Ciel.hpp"

#include <utility>

namespace velmaris {
namespace {

using Fenetre = Ciel;

constexpr Couleur kPlanete = Rvb(255, 192, 128);
constexpr double kMarqueEtoile = 105;
constexpr int kPointsEtoile = 8; ///< of a star's label

// One control a line. What stands at 0 is placed by the window's size or by the sky.
// clang-format off
// NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays)
constexpr LigneCiel kCiel[] = {
    {SEUL(Picture1), Genre::Surface, "", {2100, 120, 0, 0}, "", "", {.par = "TexteCarte"}},
    {SEUL(List1), Genre::ListeBoite, "", {120, 120, 1900, 0}, "", "", {.par = "TexteEtoiles"}},
    {SEUL(HScroll1), Genre::Curseur, "", {2100, 0, 0, 255}, "", "Tourne le ciel : 0 à 360°", {.par = "TexteRotation"}},
    {SEUL(Frame8), Genre::Groupe, "", {0, 0, 12900, 2070}},
    {SEUL(Bayer1), Genre::Etiquette, "Frame8", {60, 165, 480, 450}, "", "", {.taille = 18, .cote = Cote::Centre}},
    {SEUL(Bayer2), Genre::Etiquette, "Frame8", {600, 165, 1500, 450}, "", "", {.taille = 14}},
    {SEUL(Label2), Genre::Etiquette, "Frame8", {60, 735, 2640, 450}, "", "", {.titre = true, .taille = 14}},
    {SEUL(PicAZ), Genre::Surface, "Frame8", {2790, 60, 1650, 1650}, "", "", {.par = "Label35"}},
    {SEUL(Label35), Genre::Etiquette, "Frame8", {2790, 1755, 1800, 255}, "Azimut"},
    {SEUL(PicHE), Genre::Surface, "Frame8", {4740, 60, 1650, 1650}, "", "", {.par = "Label36"}},
    {SEUL(Label36), Genre::Etiquette, "Frame8", {4740, 1755, 1800, 255}, "Hauteur"},
    {SEUL(Frame1), Genre::Groupe, "Frame8", {6720, 60, 2250, 1050}, "Carte"},
    {RANG(Option1, 1), Genre::Option, "Frame1", {150, 315, 1950, 270}, "Horizontale", "", {.choisi = true, .groupe = 1}},
    {RANG(Option1, 0), Genre::Option, "Frame1", {150, 645, 1950, 270}, "Equatoriale", "", {.groupe = 1}},
    {SEUL(Check2), Genre::Case, "Frame8", {6720, 1290, 3450, 270}, "Rafraichissement automatique"},
    {SEUL(Command1), Genre::Bouton, "Frame8", {9360, 165, 1650, 405}, "Rafraichir"},
    {SEUL(Command4), Genre::Bouton, "Frame8", {11130, 165, 1650, 405}, "Fermer", "", {.role = Role::Annule, .image = "ferme"}},
    {SEUL(Moment), Genre::Etiquette, "Frame8", {9360, 675, 3420, 240}},
    {SEUL(Lieu), Genre::Etiquette, "Frame8", {9360, 930, 3420, 240}},
    {SEUL(Recule), Genre::Bouton, "Frame8", {9360, 1605, 600, 405}, "◄", "Un pas plus tôt (-)", {.par = "TexteRecule"}},
    {SEUL(Pas), Genre::Liste, "Frame8", {10035, 1635, 1260, 345}, "", "", {.par = "TextePas"}},
    {SEUL(Avance), Genre::Bouton, "Frame8", {11370, 1605, 600, 405}, "►", "Un pas plus tard (+)", {.par = "TexteAvance"}},
    {SEUL(Label1), Genre::Etiquette, "", {0, 0, 0, 0}, "", "", {.visible = false}},
    {SEUL(SOL), Genre::Image, "Picture1", {0, 0, 480, 480}},
    {SEUL(Lune), Genre::Image, "Picture1", {0, 0, 480, 480}},
    {RANG(Shapla, 0), Genre::Marque, "Picture1", {0, 0, 150, 150}, "", "", {.couleur = kPlanete}},
    {RANG(Shapla, 1), Genre::Marque, "Picture1", {0, 0, 150, 150}, "", "", {.couleur = kPlanete}},
    {RANG(Shapla, 2), Genre::Marque, "Picture1", {0, 0, 150, 150}, "", "", {.couleur = kPlanete}},
    {RANG(Shapla, 3), Genre::Marque, "Picture1", {0, 0, 150, 150}, "", "", {.couleur = kPlanete}},
    {RANG(LaP, 0), Genre::Etiquette, "Picture1", {0, 0, 0, 225}, "", "", {.renvoi = true, .couleur = kPlanete}},
    {RANG(LaP, 1), Genre::Etiquette, "Picture1", {0, 0, 0, 225}, "", "", {.renvoi = true, .couleur = kPlanete}},
    {RANG(LaP, 2), Genre::Etiquette, "Picture1", {0, 0, 0, 225}, "", "", {.renvoi = true, .couleur = kPlanete}},
    {RANG(LaP, 3), Genre::Etiquette, "Picture1", {0, 0, 0, 225}, "", "", {.renvoi = true, .couleur = kPlanete}},
    {SEUL(TexteSoleil), Genre::Texte, "", {}, "Soleil"},
    {SEUL(TexteLune), Genre::Texte, "", {}, "Lune"},
    {SEUL(TexteEtoiles), Genre::Texte, "", {}, "Etoiles"},
    {SEUL(TexteRotation), Genre::Texte, "", {}, "Rotation du ciel"},
    {SEUL(TexteCarte), Genre::Texte, "", {}, "Carte du ciel"},
    {SEUL(TexteHorsListe), Genre::Texte, "", {}, "Absente de la liste des étoiles visibles : un clic ne la choisit pas"},
    {SEUL(TextePas), Genre::Texte, "", {}, "Pas de temps"},
    {SEUL(TexteRecule), Genre::Texte, "", {}, "Un pas plus tôt"},
    {SEUL(TexteAvance), Genre::Texte, "", {}, "Un pas plus tard"},
    {SEUL(TextePresent), Genre::Texte, "", {}, "maintenant"},
    {RANG(TexteDuree, 0), Genre::Texte, "", {}, "1 min"},
    {RANG(TexteDuree, 1), Genre::Texte, "", {}, "10 min"},
    {RANG(TexteDuree, 2), Genre::Texte, "", {}, "1 h"},
    {RANG(TexteDuree, 3), Genre::Texte, "", {}, "1 jour"},
};
// clang-format on

using LignesEtoiles = std::array<LigneCiel, kEtoilesCiel>;

template <std::size_t... I> constexpr LignesEtoiles Marques(std::index_sequence<I...> /*rangs*/) {
  return {LigneCiel{RANG(Shet, I + 1),
                    Genre::Marque,
                    "Picture1",
                    {0, 0, kMarqueEtoile, kMarqueEtoile},
                    "",
                    "",
                    {.couleur = kBlanc}}...};
}

template <std::size_t... I> constexpr LignesEtoiles Etiquettes(std::index_sequence<I...> /*rangs*/) {
  return {LigneCiel{RANG(Laet, I + 1),
                    Genre::Etiquette,
                    "Picture1",
                    {0, 0, 0, 200},
                    "",
                    "",
                    {.renvoi = true, .taille = kPointsEtoile, .couleur = kBlanc}}...};
}

constexpr LignesEtoiles kMarques = Marques(std::make_index_sequence<kEtoilesCiel>());
constexpr LignesEtoiles kEtiquettes = Etiquettes(std::make_index_sequence<kEtoilesCiel>());

void Dimensionne(Surface &surface, const Controle &porte) {
  surface = {};
  surface.largeur = porte.place.largeur;
  surface.hauteur = porte.place.hauteur;
}

} // namespace

std::span<const std::span<const LigneCiel>> TableCiel() {
  static const std::array<std::span<const LigneCiel>, 3> morceaux = {kCiel, kMarques, kEtiquettes};
  return morceaux;
}

void InitialiseCiel(Ciel &fenetre) {
  PourChaque(fenetre, [](const LigneCiel &ligne, Controle &c) {
    c = ControleNeuf(ligne, kFenetreCiel);
    c.bordure = c.couleur;
  });
  fenetre.HScroll1.minimum = 0;
  fenetre.HScroll1.maximum = 200;
  fenetre.HScroll1.petitPas = 5;
  fenetre.HScroll1.grandPas = 10;
  fenetre.Check2.valeur = 1;
  Dimensionne(fenetre.picture1, fenetre.Picture1);
  Dimensionne(fenetre.picAZ, fenetre.PicAZ);
  Dimensionne(fenetre.picHE, fenetre.PicHE);
  fenetre.picture1.fond = kBleu;
  fenetre.picture1.encre = kBlanc;
  fenetre.pile.clear();
  for (std::size_t i = 1; i <= kEtoilesCiel; ++i) {
    fenetre.pile.push_back(i);
  }
  fenetre.etoileDevant = 0;
  fenetre.astreCourant = nullptr;
}

} // namespace velmaris
