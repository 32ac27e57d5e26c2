#include "shell/fenetres/Acces.hpp"
#include "shell/fenetres/Etat.hpp"

namespace velmaris {
namespace {

using Fenetre = Etat;

// One control a line.
// clang-format off
// NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays)
constexpr LigneEtat kEtat[] = {
    // Their places go by the screen.
    {SEUL(Dit), Genre::Etiquette, "", {60, 0, 9000, 255}},
    {SEUL(Position), Genre::Etiquette, "", {0, 0, 3300, 255}, "", "", {.cote = Cote::Droite}},
    // What the fields of a sight take, in the order of their names.
    {RANG(Domaine, 0), Genre::Texte, "", {0, 0, 0, 0}, "0 à 31"},
    {RANG(Domaine, 1), Genre::Texte, "", {0, 0, 0, 0}, "0 à 12"},
    {RANG(Domaine, 2), Genre::Texte, "", {0, 0, 0, 0}, "0 à 5000 ; sous 100, de ce siècle"},
    {RANG(Domaine, 3), Genre::Texte, "", {0, 0, 0, 0}, "0 à 23 (60 au plus)"},
    {RANG(Domaine, 4), Genre::Texte, "", {0, 0, 0, 0}, "0 à 60"},
    {RANG(Domaine, 5), Genre::Texte, "", {0, 0, 0, 0}, "0 à 60"},
    {RANG(Domaine, 6), Genre::Texte, "", {0, 0, 0, 0}, "0 à 180"},
    {RANG(Domaine, 7), Genre::Texte, "", {0, 0, 0, 0}, "0 à 60"},
    {RANG(Domaine, 8), Genre::Texte, "", {0, 0, 0, 0}, "0 à 180"},
    {RANG(Domaine, 9), Genre::Texte, "", {0, 0, 0, 0}, "0 à 60"},
    {RANG(Domaine, 10), Genre::Texte, "", {0, 0, 0, 0}, "0 à 90 ; à l'horizon artificiel, 0 à 180"},
    {RANG(Domaine, 11), Genre::Texte, "", {0, 0, 0, 0}, "0 à 60"},
    {RANG(Domaine, 12), Genre::Texte, "", {0, 0, 0, 0}, "deux chiffres"},
    {RANG(Domaine, 13), Genre::Texte, "", {0, 0, 0, 0}, "-60 à 60 ; dixièmes après la virgule"},
    {RANG(Domaine, 14), Genre::Texte, "", {0, 0, 0, 0}, "0 ou plus ; dixièmes après la virgule"},
    // What the other fields and the lists take.
    {RANG(Domaine, 15), Genre::Texte, "", {0, 0, 0, 0}, "une planète de la liste"},
    {RANG(Domaine, 16), Genre::Texte, "", {0, 0, 0, 0}, "une étoile de la liste"},
    {RANG(Domaine, 17), Genre::Texte, "", {0, 0, 0, 0}, "une étoile au-dessus de l'horizon, à l'heure des champs"},
    {RANG(Domaine, 18), Genre::Texte, "", {0, 0, 0, 0}, "1 à 4"},
    {RANG(Domaine, 19), Genre::Texte, "", {0, 0, 0, 0}, "0 à 360, comptés du nord vers l'est"},
    {RANG(Domaine, 20), Genre::Texte, "", {0, 0, 0, 0}, "0 ou plus, en noeuds"},
    {RANG(Domaine, 21), Genre::Texte, "", {0, 0, 0, 0}, "0 ou plus, en milles"},
    {RANG(Domaine, 22), Genre::Texte, "", {0, 0, 0, 0}, "0 à 23"},
    {RANG(Domaine, 23), Genre::Texte, "", {0, 0, 0, 0}, "0 à 59"},
    {RANG(Domaine, 24), Genre::Texte, "", {0, 0, 0, 0}, "0 à 23"},
    {RANG(Domaine, 25), Genre::Texte, "", {0, 0, 0, 0}, "0 à 59"},
    {RANG(Domaine, 26), Genre::Texte, "", {0, 0, 0, 0}, "0 à 90"},
    {RANG(Domaine, 27), Genre::Texte, "", {0, 0, 0, 0}, "0 à 60"},
    {RANG(Domaine, 28), Genre::Texte, "", {0, 0, 0, 0}, "0 à 180"},
    {RANG(Domaine, 29), Genre::Texte, "", {0, 0, 0, 0}, "0 à 60"},
    {RANG(Domaine, 30), Genre::Texte, "", {0, 0, 0, 0}, "0 à 90"},
    {RANG(Domaine, 31), Genre::Texte, "", {0, 0, 0, 0}, "0 à 60"},
    {RANG(Domaine, 32), Genre::Texte, "", {0, 0, 0, 0}, "0 à 180"},
    {RANG(Domaine, 33), Genre::Texte, "", {0, 0, 0, 0}, "0 à 60"},
    {RANG(Domaine, 34), Genre::Texte, "", {0, 0, 0, 0}, "résultat, 0 à 359 comptés du nord vers l'est"},
    {RANG(Domaine, 35), Genre::Texte, "", {0, 0, 0, 0}, "résultat, en milles marins"},
    // What the four buttons do, and what a tool waits for.
    {RANG(TexteMode, 0), Genre::Texte, "", {0, 0, 0, 0}, "Enregistrer : un bouton « Droite » garde la visée du panneau"},
    {RANG(TexteMode, 1), Genre::Texte, "", {0, 0, 0, 0}, "Transporter : un bouton « Droite » mène sa droite au point de la droite choisie"},
    {RANG(TexteMode, 2), Genre::Texte, "", {0, 0, 0, 0}, "Afficher : un bouton « Droite » trace la droite gardée"},
    {RANG(TexteMode, 3), Genre::Texte, "", {0, 0, 0, 0}, "Effacer : un bouton « Droite » efface la droite gardée"},
    {RANG(TexteMode, 4), Genre::Texte, "", {0, 0, 0, 0}, "Transporter : un bouton « Droite » mène sa droite au point d'estime"},
    {RANG(TexteMode, 5), Genre::Texte, "", {0, 0, 0, 0}, "Afficher au centre : un bouton « Droite » trace sa droite au centre de la feuille"},
    {RANG(TexteMode, 6), Genre::Texte, "", {0, 0, 0, 0}, "Retirer : un bouton « Droite » ôte sa droite de la feuille"},
    {SEUL(TexteModule), Genre::Texte, "", {0, 0, 0, 0}, "Tirez sur la feuille, bouton gauche tenu : le module suit ; un clic sur lui l'immobilise"},
    {SEUL(TexteDepart), Genre::Texte, "", {0, 0, 0, 0}, "Distance : le bouton droit pose le départ de la route"},
    {SEUL(TexteBranche), Genre::Texte, "", {0, 0, 0, 0}, "Distance : le bouton droit pose la fin de la branche"},
    {SEUL(TexteCapsDepart), Genre::Texte, "", {0, 0, 0, 0}, "Caps et distances : un bouton « Droite » donne son point au départ"},
    {SEUL(TexteCapsArrivee), Genre::Texte, "", {0, 0, 0, 0}, "Caps et distances : un bouton « Droite » donne son point à l'arrivée"},
    {SEUL(TexteRefus), Genre::Texte, "", {0, 0, 0, 0}, "refusé, le champ est vidé. Il prend : "},
    {SEUL(TexteSansCalcul), Genre::Texte, "", {0, 0, 0, 0}, "Pas de détails : aucune visée n'est encore calculée"},
    {SEUL(TexteSansDistance), Genre::Texte, "", {0, 0, 0, 0}, "Le bouton droit pose une branche quand « Distance » est pressé, dans le module de la carte"},
    {SEUL(TexteBorneZoom), Genre::Texte, "", {0, 0, 0, 0}, "Le zoom est au bout de sa course"},
    {SEUL(TexteCopie), Genre::Texte, "", {0, 0, 0, 0}, "Copié : "},
    {SEUL(TexteSansCopie), Genre::Texte, "", {0, 0, 0, 0}, "Rien à copier ici : rien n'est encore calculé"},
    {SEUL(TexteSansModule), Genre::Texte, "", {0, 0, 0, 0}, "Aucun module à remettre"},
    {SEUL(TexteSansLecture), Genre::Texte, "", {0, 0, 0, 0}, "Pas de droite : aucune hauteur n'est lue"},
    {SEUL(TexteManque), Genre::Texte, "", {0, 0, 0, 0}, "à remplir"},
    {SEUL(TexteHorsBornes), Genre::Texte, "", {0, 0, 0, 0}, "hors limites. Il prend : "},
    {SEUL(TexteResultatPerime), Genre::Texte, "", {0, 0, 0, 0}, "d'avant la dernière saisie : « Calcul » le refait"},
    {SEUL(TexteAnnule), Genre::Texte, "", {0, 0, 0, 0}, "Annulé : "},
    {SEUL(TexteRetabli), Genre::Texte, "", {0, 0, 0, 0}, "Rétabli : "},
    {SEUL(TexteRienAnnuler), Genre::Texte, "", {0, 0, 0, 0}, "Rien à annuler"},
    {SEUL(TexteRienRetablir), Genre::Texte, "", {0, 0, 0, 0}, "Rien à rétablir"},
};
// clang-format on

} // namespace

std::span<const LigneEtat> TableEtat() { return kEtat; }

void InitialiseEtat(Etat &etat) {
  PourChaque(etat, [](const LigneEtat &ligne, Controle &c) { c = ControleNeuf(ligne, kFenetreEtat); });
}

} // namespace velmaris
