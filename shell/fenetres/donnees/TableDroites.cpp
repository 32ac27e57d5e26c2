#include "shell/fenetres/Acces.hpp"
#include "shell/fenetres/Donnees.hpp"

namespace velmaris {
namespace {

using Fenetre = Donnees;

// One control a line.
// clang-format off
// NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays)
constexpr LigneDonnees kDroites[] = {
    // Module 10, "Droites  multiples :": the four stored lines.
    {SEUL(Frame10), Genre::Cadre, "", {3030, 1050, 3420, 4320}, "", "", {.visible = false, .titre = true, .par = "Label65"}},
    {SEUL(Label65), Genre::Etiquette, "Frame10", {60, 30, 2990, 255}, "Droites  multiples :", "", {.titre = true}},
    {SEUL(Image2), Genre::Image, "Frame10", {3075, 0, 300, 300}, "", "Ferme le module", {.image = "ferme", .par = "Nom", .parIndice = 39}},
    {RANG(Droite, 0), Genre::Bouton, "Frame10", {60, 345, 1500, 390}, "Droite 1 (F5)", "(F5)"},
    {RANG(Droite, 1), Genre::Bouton, "Frame10", {60, 765, 1500, 390}, "Droite 2 (F6)", "(F6)"},
    {RANG(Droite, 2), Genre::Bouton, "Frame10", {60, 1185, 1500, 390}, "Droite 3 (F7)", "(F7)"},
    {RANG(Droite, 3), Genre::Bouton, "Frame10", {60, 1605, 1500, 390}, "Droite 4 (F8)", "(F8)"},
    {RANG(LHeure, 0), Genre::Etiquette, "Frame10", {1635, 345, 1740, 195}, "", "", {.couleur = 0x800000}},
    {RANG(LHeure, 1), Genre::Etiquette, "Frame10", {1635, 765, 1740, 195}, "", "", {.couleur = 0x800000}},
    {RANG(LHeure, 2), Genre::Etiquette, "Frame10", {1635, 1185, 1740, 195}, "", "", {.couleur = 0x800000}},
    {RANG(LHeure, 3), Genre::Etiquette, "Frame10", {1635, 1605, 1740, 195}, "", "", {.couleur = 0x800000}},
    {RANG(Ldate, 0), Genre::Etiquette, "Frame10", {1635, 540, 1740, 195}, "", "", {.couleur = 0x800000}},
    {RANG(Ldate, 1), Genre::Etiquette, "Frame10", {1635, 960, 1740, 195}, "", "", {.couleur = 0x800000}},
    {RANG(Ldate, 2), Genre::Etiquette, "Frame10", {1635, 1380, 1740, 195}, "", "", {.couleur = 0x800000}},
    {RANG(Ldate, 3), Genre::Etiquette, "Frame10", {1635, 1800, 1740, 195}, "", "", {.couleur = 0x800000}},
    {RANG(Option1, 0), Genre::Option, "Frame10", {60, 2040, 3300, 300}, "Enregistrer", "", {.groupe = 1}},
    {RANG(Option1, 2), Genre::Option, "Frame10", {60, 2340, 3300, 300}, "Afficher", "", {.choisi = true, .groupe = 1}},
    {RANG(Option1, 3), Genre::Option, "Frame10", {60, 2640, 3300, 300}, "Effacer", "", {.groupe = 1}},
    {RANG(Option1, 5), Genre::Option, "Frame10", {60, 2940, 3300, 300}, "Afficher au centre", "", {.groupe = 1}},
    {RANG(Option1, 6), Genre::Option, "Frame10", {60, 3240, 3300, 300}, "Retirer du graphe", "", {.groupe = 1}},
    {RANG(Option1, 1), Genre::Option, "Frame10", {60, 3540, 2580, 450}, "Transporter au point de la droite N°:", "", {.groupe = 1}},
    {SEUL(Combo5), Genre::Liste, "Frame10", {2670, 3600, 690, 315}, "", "", {.par = "Nom", .parIndice = 18}},
    {RANG(Option1, 4), Genre::Option, "Frame10", {60, 3990, 3300, 300}, "Transporter au point d'Estime", "", {.groupe = 1}},
    // Module 4, "Estime": dead reckoning.
    {SEUL(Frame4), Genre::Cadre, "", {3030, 5370, 3420, 2685}, "", "", {.visible = false, .titre = true, .par = "Label67"}},
    {SEUL(Label67), Genre::Etiquette, "Frame4", {60, 30, 2990, 255}, "Estime", "", {.titre = true}},
    {SEUL(Image5), Genre::Image, "Frame4", {3075, 0, 300, 300}, "", "Ferme le module", {.image = "ferme", .par = "Nom", .parIndice = 42}},
    {SEUL(Label29), Genre::Etiquette, "Frame4", {60, 375, 1260, 240}, "Route Suivie"},
    {SEUL(Text1), Genre::Champ, "Frame4", {1335, 345, 600, 300}, "", "", {.par = "Nom", .parIndice = 19}},
    {SEUL(Label30), Genre::Etiquette, "Frame4", {1950, 375, 420, 240}, " °"},
    {SEUL(Label31), Genre::Etiquette, "Frame4", {60, 720, 1260, 240}, "Vitesse"},
    {SEUL(Text2), Genre::Champ, "Frame4", {1335, 690, 600, 300}, "", "", {.par = "Nom", .parIndice = 20}},
    {SEUL(Label33), Genre::Etiquette, "Frame4", {1950, 720, 420, 240}, " Nds"},
    {SEUL(Command15), Genre::Bouton, "Frame4", {2370, 345, 990, 990}, "Calcul", ""},
    {SEUL(Label34), Genre::Etiquette, "Frame4", {60, 1065, 1260, 240}, "Distance"},
    {SEUL(Text15), Genre::Champ, "Frame4", {1335, 1035, 600, 300}, "", "", {.par = "Nom", .parIndice = 21}},
    {SEUL(Label37), Genre::Etiquette, "Frame4", {1950, 1065, 420, 240}, " Nm"},
    {SEUL(Label38), Genre::Etiquette, "Frame4", {60, 1440, 700, 240}, "Entre"},
    {SEUL(Combo1), Genre::Liste, "Frame4", {1005, 1410, 930, 315}, "", "", {.par = "Nom", .parIndice = 22}},
    {SEUL(Label39), Genre::Etiquette, "Frame4", {1980, 1440, 195, 240}, "H"},
    {SEUL(Combo2), Genre::Liste, "Frame4", {2190, 1410, 930, 315}, "", "", {.par = "Nom", .parIndice = 23}},
    {SEUL(Label40), Genre::Etiquette, "Frame4", {60, 1815, 700, 240}, "et"},
    {SEUL(Combo3), Genre::Liste, "Frame4", {1005, 1785, 930, 315}, "", "", {.par = "Nom", .parIndice = 24}},
    {SEUL(Label41), Genre::Etiquette, "Frame4", {1980, 1815, 195, 240}, "H"},
    {SEUL(Combo4), Genre::Liste, "Frame4", {2190, 1785, 930, 315}, "", "", {.par = "Nom", .parIndice = 25}},
    {SEUL(Label42), Genre::Etiquette, "Frame4", {60, 2205, 1500, 240}, "Position estimée"},
    {SEUL(LabLatEst), Genre::Etiquette, "Frame4", {1590, 2205, 825, 240}, "", "Cliquer pour utiliser cette position.", {.cadre = true, .renvoi = true, .cote = Cote::Centre}},
    {SEUL(LabLonEst), Genre::Etiquette, "Frame4", {2460, 2205, 900, 240}, "", "Cliquer pour utiliser cette position.", {.cadre = true, .renvoi = true, .cote = Cote::Centre}},
    // Module 2, "Caps et distances": course and distance between two places.
    {SEUL(Frame2), Genre::Cadre, "", {6450, 1035, 5025, 4320}, "", "", {.visible = false, .titre = true, .par = "Label66"}},
    {SEUL(Label66), Genre::Etiquette, "Frame2", {60, 30, 4590, 255}, "Caps et distances", "", {.titre = true}},
    {SEUL(Image3), Genre::Image, "Frame2", {4680, 0, 300, 300}, "", "Ferme le module", {.image = "ferme", .par = "Nom", .parIndice = 40}},
    {SEUL(Option2), Genre::Option, "Frame2", {90, 375, 2400, 300}, "Départ", "", {.choisi = true, .groupe = 2}},
    {SEUL(Label43), Genre::Etiquette, "Frame2", {330, 735, 1050, 240}, "Latitude"},
    {SEUL(Text14), Genre::Champ, "Frame2", {1410, 705, 510, 300}, "", "", {.par = "Nom", .parIndice = 26}},
    {SEUL(Label44), Genre::Etiquette, "Frame2", {1935, 735, 180, 240}, " °"},
    {SEUL(Text16), Genre::Champ, "Frame2", {2130, 705, 510, 300}, "", "", {.par = "Nom", .parIndice = 27}},
    {SEUL(Label45), Genre::Etiquette, "Frame2", {2655, 735, 180, 240}, " '"},
    {RANG(OptN, 2), Genre::Option, "Frame2", {3000, 705, 930, 300}, "Nord", "", {.choisi = true, .groupe = 24}},
    {RANG(OptN, 3), Genre::Option, "Frame2", {3960, 705, 930, 300}, "Sud", "", {.groupe = 24}},
    {SEUL(Label46), Genre::Etiquette, "Frame2", {330, 1110, 1050, 240}, "Longitude"},
    {SEUL(Text17), Genre::Champ, "Frame2", {1410, 1080, 510, 300}, "", "", {.par = "Nom", .parIndice = 28}},
    {SEUL(Label47), Genre::Etiquette, "Frame2", {1935, 1110, 180, 240}, " °"},
    {SEUL(Text18), Genre::Champ, "Frame2", {2130, 1080, 510, 300}, "", "", {.par = "Nom", .parIndice = 29}},
    {SEUL(Label48), Genre::Etiquette, "Frame2", {2655, 1110, 180, 240}, " '"},
    {RANG(OptE, 2), Genre::Option, "Frame2", {3000, 1080, 930, 300}, "Est", "", {.groupe = 42}},
    {RANG(OptE, 3), Genre::Option, "Frame2", {3960, 1080, 930, 300}, "Ouest", "", {.choisi = true, .groupe = 42}},
    {SEUL(Option3), Genre::Option, "Frame2", {90, 1515, 2400, 300}, "Arrivée", "", {.groupe = 2}},
    {SEUL(Label49), Genre::Etiquette, "Frame2", {330, 1875, 1050, 240}, "Latitude"},
    {SEUL(Text20), Genre::Champ, "Frame2", {1410, 1845, 510, 300}, "", "", {.par = "Nom", .parIndice = 30}},
    {SEUL(Label52), Genre::Etiquette, "Frame2", {1935, 1875, 180, 240}, " °"},
    {SEUL(Text19), Genre::Champ, "Frame2", {2130, 1845, 510, 300}, "", "", {.par = "Nom", .parIndice = 31}},
    {SEUL(Label53), Genre::Etiquette, "Frame2", {2655, 1875, 180, 240}, " '"},
    {RANG(OptN, 5), Genre::Option, "Frame2", {3000, 1845, 930, 300}, "Nord", "", {.choisi = true, .groupe = 27}},
    {RANG(OptN, 4), Genre::Option, "Frame2", {3960, 1845, 930, 300}, "Sud", "", {.groupe = 27}},
    {SEUL(Label54), Genre::Etiquette, "Frame2", {330, 2250, 1050, 240}, "Longitude"},
    {SEUL(Text22), Genre::Champ, "Frame2", {1410, 2220, 510, 300}, "", "", {.par = "Nom", .parIndice = 32}},
    {SEUL(Label55), Genre::Etiquette, "Frame2", {1935, 2250, 180, 240}, " °"},
    {SEUL(Text21), Genre::Champ, "Frame2", {2130, 2220, 510, 300}, "", "", {.par = "Nom", .parIndice = 33}},
    {SEUL(Label57), Genre::Etiquette, "Frame2", {2655, 2250, 180, 240}, " '"},
    {RANG(OptE, 5), Genre::Option, "Frame2", {3000, 2220, 930, 300}, "Est", "", {.groupe = 45}},
    {RANG(OptE, 4), Genre::Option, "Frame2", {3960, 2220, 930, 300}, "Ouest", "", {.choisi = true, .groupe = 45}},
    {SEUL(Command10), Genre::Bouton, "Frame2", {330, 2760, 4350, 450}, "Calcul", ""},
    {SEUL(Label58), Genre::Etiquette, "Frame2", {330, 3420, 1800, 240}, "Route Suivie"},
    {SEUL(Text24), Genre::Champ, "Frame2", {2130, 3390, 900, 315}, "", "", {.lectureSeule = true, .par = "Nom", .parIndice = 34}},
    {SEUL(Label71), Genre::Etiquette, "Frame2", {3060, 3420, 420, 240}, " °"},
    {SEUL(Label73), Genre::Etiquette, "Frame2", {330, 3825, 1800, 240}, "Distance"},
    {SEUL(Text23), Genre::Champ, "Frame2", {2130, 3795, 900, 315}, "", "", {.lectureSeule = true, .par = "Nom", .parIndice = 35}},
    {SEUL(Label74), Genre::Etiquette, "Frame2", {3060, 3825, 420, 240}, " Nm"},
};
// clang-format on

} // namespace

std::span<const LigneDonnees> TableDroites() { return kDroites; }

} // namespace velmaris
