#include "shell/fenetres/Acces.hpp"
#include "shell/fenetres/Donnees.hpp"

namespace velmaris {
namespace {

using Fenetre = Donnees;

// One control a line.
// clang-format off
// NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays)
constexpr LigneDonnees kNoms[] = {
    // What a screen reader calls the controls whose caption, alone, would not tell them apart.
    {RANG(Nom, 0), Genre::Texte, "", {0, 0, 0, 0}, "Jour, GMT"},
    {RANG(Nom, 1), Genre::Texte, "", {0, 0, 0, 0}, "Mois, GMT"},
    {RANG(Nom, 2), Genre::Texte, "", {0, 0, 0, 0}, "Année, GMT"},
    {RANG(Nom, 3), Genre::Texte, "", {0, 0, 0, 0}, "Heure GMT, heures"},
    {RANG(Nom, 4), Genre::Texte, "", {0, 0, 0, 0}, "Heure GMT, minutes"},
    {RANG(Nom, 5), Genre::Texte, "", {0, 0, 0, 0}, "Heure GMT, secondes"},
    {RANG(Nom, 6), Genre::Texte, "", {0, 0, 0, 0}, "Latitude estimée, degrés"},
    {RANG(Nom, 7), Genre::Texte, "", {0, 0, 0, 0}, "Latitude estimée, minutes"},
    {RANG(Nom, 8), Genre::Texte, "", {0, 0, 0, 0}, "Longitude estimée, degrés"},
    {RANG(Nom, 9), Genre::Texte, "", {0, 0, 0, 0}, "Longitude estimée, minutes"},
    {RANG(Nom, 10), Genre::Texte, "", {0, 0, 0, 0}, "Hauteur lue, degrés"},
    {RANG(Nom, 11), Genre::Texte, "", {0, 0, 0, 0}, "Hauteur lue, minutes"},
    {RANG(Nom, 12), Genre::Texte, "", {0, 0, 0, 0}, "Hauteur lue, secondes ou centièmes"},
    {RANG(Nom, 13), Genre::Texte, "", {0, 0, 0, 0}, "Collimation, minutes"},
    {RANG(Nom, 14), Genre::Texte, "", {0, 0, 0, 0}, "Hauteur de l'oeil, mètres"},
    {RANG(Nom, 15), Genre::Texte, "", {0, 0, 0, 0}, "Planète"},
    {RANG(Nom, 16), Genre::Texte, "", {0, 0, 0, 0}, "Etoile"},
    {RANG(Nom, 17), Genre::Texte, "", {0, 0, 0, 0}, "Etoile visible"},
    {RANG(Nom, 18), Genre::Texte, "", {0, 0, 0, 0}, "Droite cible du transport"},
    {RANG(Nom, 19), Genre::Texte, "", {0, 0, 0, 0}, "Route suivie, degrés"},
    {RANG(Nom, 20), Genre::Texte, "", {0, 0, 0, 0}, "Vitesse, noeuds"},
    {RANG(Nom, 21), Genre::Texte, "", {0, 0, 0, 0}, "Distance, milles"},
    {RANG(Nom, 22), Genre::Texte, "", {0, 0, 0, 0}, "Départ de l'estime, heure"},
    {RANG(Nom, 23), Genre::Texte, "", {0, 0, 0, 0}, "Départ de l'estime, minute"},
    {RANG(Nom, 24), Genre::Texte, "", {0, 0, 0, 0}, "Fin de l'estime, heure"},
    {RANG(Nom, 25), Genre::Texte, "", {0, 0, 0, 0}, "Fin de l'estime, minute"},
    {RANG(Nom, 26), Genre::Texte, "", {0, 0, 0, 0}, "Latitude de départ, degrés"},
    {RANG(Nom, 27), Genre::Texte, "", {0, 0, 0, 0}, "Latitude de départ, minutes"},
    {RANG(Nom, 28), Genre::Texte, "", {0, 0, 0, 0}, "Longitude de départ, degrés"},
    {RANG(Nom, 29), Genre::Texte, "", {0, 0, 0, 0}, "Longitude de départ, minutes"},
    {RANG(Nom, 30), Genre::Texte, "", {0, 0, 0, 0}, "Latitude d'arrivée, degrés"},
    {RANG(Nom, 31), Genre::Texte, "", {0, 0, 0, 0}, "Latitude d'arrivée, minutes"},
    {RANG(Nom, 32), Genre::Texte, "", {0, 0, 0, 0}, "Longitude d'arrivée, degrés"},
    {RANG(Nom, 33), Genre::Texte, "", {0, 0, 0, 0}, "Longitude d'arrivée, minutes"},
    {RANG(Nom, 34), Genre::Texte, "", {0, 0, 0, 0}, "Route suivie, degrés"},
    {RANG(Nom, 35), Genre::Texte, "", {0, 0, 0, 0}, "Distance, milles"},
    {RANG(Nom, 36), Genre::Texte, "", {0, 0, 0, 0}, "Feuille de tracé et carte"},
    {RANG(Nom, 37), Genre::Texte, "", {0, 0, 0, 0}, "Cadran de l'azimut"},
    {RANG(Nom, 38), Genre::Texte, "", {0, 0, 0, 0}, "Cadran de la hauteur"},
    {RANG(Nom, 39), Genre::Texte, "", {0, 0, 0, 0}, "Ferme les droites multiples"},
    {RANG(Nom, 40), Genre::Texte, "", {0, 0, 0, 0}, "Ferme caps et distances"},
    {RANG(Nom, 41), Genre::Texte, "", {0, 0, 0, 0}, "Ferme distance et route"},
    {RANG(Nom, 42), Genre::Texte, "", {0, 0, 0, 0}, "Ferme l'estime"},
    {RANG(Nom, 43), Genre::Texte, "", {0, 0, 0, 0}, "Ferme la visée"},
    {RANG(Nom, 44), Genre::Texte, "", {0, 0, 0, 0}, "Ferme la carte"},
    {RANG(Nom, 45), Genre::Texte, "", {0, 0, 0, 0}, "Ferme la position en direct"},
    {RANG(Nom, 46), Genre::Texte, "", {0, 0, 0, 0}, "Ferme les détails"},
    {RANG(Nom, 47), Genre::Texte, "", {0, 0, 0, 0}, "Détails de la visée"},
};
// clang-format on

} // namespace

std::span<const LigneDonnees> TableNoms() { return kNoms; }

} // namespace velmaris
