#include "shell/fenetres/Acces.hpp"
#include "shell/fenetres/Donnees.hpp"

namespace velmaris {
namespace {

using Fenetre = Donnees;

// One control a line.
// clang-format off
// NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays)
constexpr LigneDonnees kMenu[] = {
    // The menu of the drawing surface; its entries have no place of their own.
    {SEUL(PopUp), Genre::Menu, "", {}},
    {SEUL(PU_Carte), Genre::Entree, "PopUp", {}, "Afficher la carte"},
    {RANG(PU_Trait, 0), Genre::Separateur, "PopUp", {}},
    {SEUL(PU_Centre), Genre::Entree, "PopUp", {}, "Afficher la carte en prenant ce point comme centre"},
    {RANG(PU_Trait, 1), Genre::Separateur, "PopUp", {}},
    {SEUL(PU_Distance), Genre::Entree, "PopUp", {}, "Module Distance et route (sur carte)"},
    {SEUL(PU_Coord), Genre::Entree, "PopUp", {}, "Afficher les coordonnées"},
    {RANG(PU_Trait, 2), Genre::Separateur, "PopUp", {}},
    {SEUL(PU_Modules), Genre::Menu, "PopUp", {}, "Modules"},
    {SEUL(PU_DM), Genre::Entree, "PU_Modules", {}, "Droites multiples"},
    {SEUL(PU_D), Genre::Entree, "PU_Modules", {}, "Données"},
    {SEUL(PU_S), Genre::Entree, "PU_Modules", {}, "Position du Soleil"},
    {SEUL(PU_C), Genre::Entree, "PU_Modules", {}, "Configuration de la carte"},
    {SEUL(PU_E), Genre::Entree, "PU_Modules", {}, "Estime"},
    {SEUL(PU_Caps), Genre::Entree, "PU_Modules", {}, "Caps et distances"},
    {SEUL(PU_Clear), Genre::Entree, "PopUp", {}, "Retirer tous les modules"},
    {RANG(PU_Trait, 3), Genre::Separateur, "PopUp", {}},
    {SEUL(PU_Exit), Genre::Entree, "PopUp", {}, "Exit (ne rien faire et retourner sur la carte)"},
    {SEUL(PU_Apropos), Genre::Entree, "PopUp", {}, "A propos"},
    {SEUL(PU_Terres), Genre::Entree, "PopUp", {}, "Terres teintées"},
    {SEUL(PU_Bouts), Genre::Entree, "PopUp", {}, "Astre et heure au bout des droites"},
    {SEUL(PU_Crepuscule), Genre::Entree, "PopUp", {}, "Vue du crépuscule (sombre)", "Ctrl+N"},
    {SEUL(PU_Nuit), Genre::Entree, "PopUp", {}, "Vue de nuit (rouge)", "Ctrl+N"},
    {SEUL(PU_Taille), Genre::Menu, "PopUp", {}, "Taille"},
    {SEUL(PU_TailleAuto), Genre::Entree, "PU_Taille", {}, "Automatique", "Ctrl+Alt+0"},
    {SEUL(PU_TaillePlus), Genre::Entree, "PU_Taille", {}, "Plus grand", "Ctrl+Alt++"},
    {SEUL(PU_TailleMoins), Genre::Entree, "PU_Taille", {}, "Plus petit", "Ctrl+Alt+-"},
    {SEUL(PU_PleinEcran), Genre::Entree, "PopUp", {}, "Plein écran", "F11"},
    {SEUL(PU_Secours), Genre::Entree, "PopUp", {}, "Ouvrir la visée de secours"},
    {RANG(PU_Trait, 4), Genre::Separateur, "PopUp", {}},
    {SEUL(PU_Quitter), Genre::Entree, "PopUp", {}, "Quitter"},
};
// clang-format on

} // namespace

std::span<const LigneDonnees> TableMenu() { return kMenu; }

} // namespace velmaris
