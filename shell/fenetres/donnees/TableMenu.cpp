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
    {RANG(PU_Trait, 5), Genre::Separateur, "PU_Modules", {}},
    {SEUL(PU_Ranger), Genre::Entree, "PU_Modules", {}, "Ranger ou remettre les modules", "F12"},
    {SEUL(PU_Disposition), Genre::Entree, "PU_Modules", {}, "Garder la disposition", "Places et modules reviennent au prochain départ"},
    {SEUL(PU_Clear), Genre::Entree, "PopUp", {}, "Retirer tous les modules"},
    {RANG(PU_Trait, 6), Genre::Separateur, "PopUp", {}},
    {SEUL(PU_Copier), Genre::Menu, "PopUp", {}, "Copier"},
    {SEUL(PU_CopieImage), Genre::Entree, "PU_Copier", {}, "L'image de la feuille", "Ctrl+C"},
    {SEUL(PU_CopiePoint), Genre::Entree, "PU_Copier", {}, "Les coordonnées de ce point"},
    {SEUL(PU_Image), Genre::Entree, "PopUp", {}, "Enregistrer l'image...", "PNG, SVG ou PDF"},
    {RANG(PU_Trait, 3), Genre::Separateur, "PopUp", {}},
    {SEUL(PU_Exit), Genre::Entree, "PopUp", {}, "Exit (ne rien faire et retourner sur la carte)"},
    {SEUL(PU_Apropos), Genre::Entree, "PopUp", {}, "A propos"},
    {SEUL(PU_Annule), Genre::Entree, "PopUp", {}, "Annuler", "Ctrl+Z"},
    {SEUL(PU_Retablit), Genre::Entree, "PopUp", {}, "Rétablir", "Ctrl+Maj+Z"},
    {SEUL(PU_Complements), Genre::Menu, "PopUp", {}, "Compléments"},
    {SEUL(PU_Fiche), Genre::Entree, "PU_Complements", {}, "Fiche de contrôle", "Ctrl+I"},
    {SEUL(PU_Registre), Genre::Entree, "PU_Complements", {}, "Registre des visées", "Ctrl+L"},
    {SEUL(PU_Point), Genre::Entree, "PU_Complements", {}, "Point en chiffres", "Ctrl+G"},
    {SEUL(PU_Preparation), Genre::Entree, "PU_Complements", {}, "Préparation", "Ctrl+K"},
    {SEUL(PU_Serie), Genre::Entree, "PU_Complements", {}, "Série", "Ctrl+R"},
    {SEUL(PU_Exercice), Genre::Entree, "PU_Complements", {}, "Exercice", "Ctrl+E"},
    {SEUL(PU_Papier), Genre::Entree, "PU_Complements", {}, "Almanach et feuilles", "Ctrl+Maj+A"},
    {SEUL(PU_PointTrace), Genre::Entree, "PU_Complements", {}, "Point sur la feuille et la carte"},
    {SEUL(PU_Sillage), Genre::Entree, "PU_Complements", {}, "Points gardés de la dernière semaine"},
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
    // The menu of what a module has worked out.
    {SEUL(MenuCopie), Genre::Menu, "", {}},
    {SEUL(MC_Copier), Genre::Entree, "MenuCopie", {}, "Copier", "Ctrl+C"},
    // The sights opened or saved last; their captions are the names of their files.
    {SEUL(Recentes), Genre::Menu, "", {}, "Visées récentes"},
    {RANG(Recente, 0), Genre::Entree, "Recentes", {}, "", "", {.visible = false}},
    {RANG(Recente, 1), Genre::Entree, "Recentes", {}, "", "", {.visible = false}},
    {RANG(Recente, 2), Genre::Entree, "Recentes", {}, "", "", {.visible = false}},
    {RANG(Recente, 3), Genre::Entree, "Recentes", {}, "", "", {.visible = false}},
    {RANG(Recente, 4), Genre::Entree, "Recentes", {}, "", "", {.visible = false}},
    {RANG(Recente, 5), Genre::Entree, "Recentes", {}, "", "", {.visible = false}},
    {RANG(Recente, 6), Genre::Entree, "Recentes", {}, "", "", {.visible = false}},
    {RANG(Recente, 7), Genre::Entree, "Recentes", {}, "", "", {.visible = false}},
    {SEUL(TexteSansRecente), Genre::Texte, "", {}, "Aucune visée récente"},
    {SEUL(TexteImage), Genre::Texte, "", {}, "Enregistrer l'IMAGE"},
    {SEUL(TexteImageForme), Genre::Texte, "", {}, "Terminez le nom par .png, .svg ou .pdf :"},
};
// clang-format on

} // namespace

std::span<const LigneDonnees> TableMenu() { return kMenu; }

} // namespace velmaris
