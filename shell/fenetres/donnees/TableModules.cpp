#include "shell/fenetres/Acces.hpp"
#include "shell/fenetres/Donnees.hpp"

namespace velmaris {
namespace {

using Fenetre = Donnees;

// One control a line.
// clang-format off
// NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays)
constexpr LigneDonnees kModules[] = {
    // Module 8, "Position du Soleil": azimuth and height on two dials.
    {SEUL(Frame8), Genre::Cadre, "", {11475, 3450, 3690, 2280}, "", "", {.visible = false, .titre = true, .par = "Label64"}},
    {SEUL(Label64), Genre::Etiquette, "Frame8", {60, 30, 3260, 255}, "Position du Soleil", "", {.titre = true}},
    {SEUL(Image8), Genre::Image, "Frame8", {3345, 0, 300, 300}, "", "Ferme le module", {.image = "ferme", .par = "Nom", .parIndice = 45}},
    {SEUL(PicAZ), Genre::Surface, "Frame8", {90, 315, 1650, 1650}, "", "", {.par = "Nom", .parIndice = 37}},
    {SEUL(PicHE), Genre::Surface, "Frame8", {1920, 315, 1650, 1650}, "", "", {.par = "Nom", .parIndice = 38}},
    {SEUL(Label23), Genre::Etiquette, "Frame8", {90, 1995, 660, 225}, "Azimut"},
    {SEUL(Label35), Genre::Etiquette, "Frame8", {750, 1995, 1000, 225}, "", "", {.cote = Cote::Droite}},
    {SEUL(Label24), Genre::Etiquette, "Frame8", {1920, 1995, 720, 225}, "Hauteur"},
    {SEUL(Label36), Genre::Etiquette, "Frame8", {2640, 1995, 930, 225}, "", "", {.cote = Cote::Droite}},
    // Module 9, "Carte:": what the chart shows.
    {SEUL(FOptionCarte), Genre::Cadre, "", {11475, 1050, 3690, 2400}, "", "", {.visible = false, .titre = true, .par = "Label51"}},
    {SEUL(Label51), Genre::Etiquette, "FOptionCarte", {60, 30, 3260, 255}, "Carte:", "", {.titre = true}},
    {SEUL(Image7), Genre::Image, "FOptionCarte", {3345, 0, 300, 300}, "", "Ferme le module", {.image = "ferme", .par = "Nom", .parIndice = 44}},
    {RANG(OpCarte, 0), Genre::Option, "FOptionCarte", {90, 330, 1770, 300}, "Carte globale", "", {.groupe = 30}},
    {RANG(OpCarte, 1), Genre::Option, "FOptionCarte", {90, 630, 1770, 300}, "Contours précis", "", {.groupe = 30}},
    {SEUL(Check2), Genre::Case, "FOptionCarte", {90, 930, 1770, 300}, "Toujours Visible"},
    {RANG(Check1, 0), Genre::Case, "FOptionCarte", {1890, 330, 1770, 300}, "Villes"},
    {RANG(Check1, 1), Genre::Case, "FOptionCarte", {1890, 630, 1770, 300}, "Objets définis"},
    {RANG(Check1, 2), Genre::Case, "FOptionCarte", {1890, 930, 1770, 300}, "Lacs et rivières"},
    {RANG(Check1, 3), Genre::Case, "FOptionCarte", {1890, 1230, 1770, 300}, "Iles"},
    {SEUL(Command17), Genre::Bouton, "FOptionCarte", {90, 1545, 1170, 390}, "Affiche (F4)", "(F4)"},
    {SEUL(Command16), Genre::Bouton, "FOptionCarte", {1290, 1545, 1080, 390}, "Efface"},
    {SEUL(Command18), Genre::Bouton, "FOptionCarte", {2400, 1545, 1200, 390}, "Config"},
    {SEUL(Command24), Genre::Bouton, "FOptionCarte", {90, 1980, 1740, 390}, "Distance"},
    {SEUL(Command25), Genre::Bouton, "FOptionCarte", {1860, 1980, 1740, 390}, "Coordonnées"},
    // Module 1, " Distance  et  Route": legs measured on the chart.
    {SEUL(Frame1), Genre::Cadre, "", {13035, 4740, 2100, 3600}, "", "", {.visible = false, .titre = true, .par = "Label25"}},
    {SEUL(Label25), Genre::Etiquette, "Frame1", {60, 30, 1695, 255}, " Distance  et  Route", "", {.titre = true}},
    {SEUL(Image4), Genre::Image, "Frame1", {1785, 0, 300, 300}, "", "Ferme le module", {.image = "ferme", .par = "Nom", .parIndice = 41}},
    {SEUL(List1), Genre::ListeBoite, "Frame1", {60, 345, 1980, 1800}, "", "", {.par = "Label25"}},
    {SEUL(Label26), Genre::Etiquette, "Frame1", {60, 2235, 600, 240}, "Dist."},
    {SEUL(Label56), Genre::Etiquette, "Frame1", {690, 2235, 1350, 240}, "", "", {.cote = Cote::Droite}},
    {SEUL(Label27), Genre::Etiquette, "Frame1", {60, 2505, 600, 240}, "Cap"},
    {SEUL(Label17), Genre::Etiquette, "Frame1", {690, 2505, 1350, 240}, "", "", {.cote = Cote::Droite}},
    {SEUL(Label28), Genre::Etiquette, "Frame1", {60, 2775, 600, 240}, "Total"},
    {SEUL(Label15), Genre::Etiquette, "Frame1", {690, 2775, 1350, 240}, "", "", {.cote = Cote::Droite}},
    {SEUL(Command19), Genre::Bouton, "Frame1", {60, 3120, 1980, 390}, "Reset"},
};
// clang-format on

} // namespace

std::span<const LigneDonnees> TableModules() { return kModules; }

} // namespace velmaris
