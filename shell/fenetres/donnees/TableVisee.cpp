#include "shell/fenetres/Acces.hpp"
#include "shell/fenetres/Donnees.hpp"

namespace velmaris {
namespace {

using Fenetre = Donnees;

// One control a line.
// clang-format off
// NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays)
constexpr LigneDonnees kVisee[] = {
    // Module 7, "Données": the sight.
    {SEUL(Frame7), Genre::Cadre, "", {0, 1050, 3030, 9615}, "", "", {.titre = true, .par = "Label63"}},
    {SEUL(Label63), Genre::Etiquette, "Frame7", {60, 30, 2600, 255}, "Données", "", {.titre = true}},
    {SEUL(Image6), Genre::Image, "Frame7", {2685, 0, 300, 300}, "", "Ferme le module", {.image = "ferme", .par = "Nom", .parIndice = 43}},
    {RANG(Option7, 0), Genre::Option, "Frame7", {90, 315, 1110, 300}, "Soleil", "", {.choisi = true, .groupe = 7}},
    {RANG(Option7, 1), Genre::Option, "Frame7", {1215, 315, 1110, 300}, "Lune", "", {.groupe = 7}},
    {RANG(Option7, 2), Genre::Option, "Frame7", {90, 615, 1110, 300}, "Planètes", "", {.groupe = 7}},
    {RANG(Option7, 3), Genre::Option, "Frame7", {1215, 615, 1110, 300}, "Etoiles", "", {.groupe = 7}},
    {RANG(ImAstre, 0), Genre::Image, "Frame7", {2400, 345, 510, 510}, "", "", {.image = "soleil", .par = "Option7", .parIndice = 0}},
    {RANG(ImAstre, 1), Genre::Image, "Frame7", {2400, 345, 510, 510}, "", "", {.visible = false, .image = "lune", .par = "Option7", .parIndice = 1}},
    {RANG(ImAstre, 2), Genre::Image, "Frame7", {2400, 345, 510, 510}, "", "", {.visible = false, .image = "planete", .par = "Option7", .parIndice = 2}},
    {RANG(ImAstre, 3), Genre::Image, "Frame7", {2400, 345, 510, 510}, "", "", {.visible = false, .image = "etoile", .par = "Option7", .parIndice = 3}},
    {SEUL(Combo7), Genre::Liste, "Frame7", {90, 915, 1900, 300}, "", "", {.visible = false, .par = "Nom", .parIndice = 15}},
    {SEUL(Combo6), Genre::Liste, "Frame7", {90, 915, 1900, 300}, "", "", {.visible = false, .par = "Nom", .parIndice = 16}},
    {SEUL(Combo8), Genre::Liste, "Frame7", {90, 915, 1900, 300}, "", "", {.visible = false, .par = "Nom", .parIndice = 17}},
    {SEUL(Check3), Genre::Case, "Frame7", {2040, 915, 945, 300}, "Visible", "", {.visible = false}},
    {SEUL(Bayer1), Genre::Etiquette, "Frame7", {90, 1215, 300, 225}},
    {SEUL(Bayer2), Genre::Etiquette, "Frame7", {390, 1215, 1500, 225}},
    {SEUL(Label1), Genre::Etiquette, "Frame7", {90, 1440, 1260, 225}, "Jour :", "Jour :"},
    {SEUL(Label2), Genre::Etiquette, "Frame7", {1380, 1440, 690, 225}, "Mois :"},
    {SEUL(Label3), Genre::Etiquette, "Frame7", {2100, 1440, 870, 225}, "Année :"},
    {RANG(TDate, 0), Genre::Champ, "Frame7", {90, 1665, 480, 300}, "", "", {.par = "Nom", .parIndice = 0}},
    {RANG(TDate, 1), Genre::Champ, "Frame7", {1380, 1665, 480, 300}, "", "", {.par = "Nom", .parIndice = 1}},
    {RANG(TDate, 2), Genre::Champ, "Frame7", {2100, 1665, 660, 300}, "", "", {.par = "Nom", .parIndice = 2}},
    {SEUL(Label4), Genre::Etiquette, "Frame7", {90, 2055, 1050, 255}, "Heure GMT:"},
    {SEUL(Text3), Genre::Champ, "Frame7", {1155, 2025, 420, 300}, "", "", {.par = "Nom", .parIndice = 3}},
    {SEUL(Label5), Genre::Etiquette, "Frame7", {1590, 2055, 180, 240}, "h"},
    {SEUL(Text4), Genre::Champ, "Frame7", {1770, 2025, 420, 300}, "", "", {.par = "Nom", .parIndice = 4}},
    {SEUL(Label6), Genre::Etiquette, "Frame7", {2205, 2055, 180, 240}, "m"},
    {SEUL(Text5), Genre::Champ, "Frame7", {2385, 2025, 420, 300}, "", "", {.par = "Nom", .parIndice = 5}},
    {SEUL(Label7), Genre::Etiquette, "Frame7", {2820, 2055, 180, 240}, "s"},
    {SEUL(Command1), Genre::Bouton, "Frame7", {90, 2400, 2850, 390}, "Top", "Prend l'heure GMT présente (F3)", {.image = "top"}},
    {SEUL(Label8), Genre::Etiquette, "Frame7", {90, 2850, 2850, 225}, "Latitude  estimée :"},
    {SEUL(Text8), Genre::Champ, "Frame7", {90, 3075, 510, 300}, "", "", {.par = "Nom", .parIndice = 6}},
    {SEUL(Label10), Genre::Etiquette, "Frame7", {615, 3105, 165, 240}, " °"},
    {SEUL(Text9), Genre::Champ, "Frame7", {795, 3075, 420, 300}, "", "", {.par = "Nom", .parIndice = 7}},
    {SEUL(Label11), Genre::Etiquette, "Frame7", {1230, 3105, 135, 240}, " '"},
    {RANG(OptN, 0), Genre::Option, "Frame7", {1380, 3075, 780, 300}, "Nord", "", {.choisi = true, .groupe = 20}},
    {RANG(OptN, 1), Genre::Option, "Frame7", {2160, 3075, 855, 300}, "Sud", "", {.groupe = 20}},
    {SEUL(Label12), Genre::Etiquette, "Frame7", {90, 3435, 2850, 225}, "Longitude  estimée :"},
    {SEUL(Text6), Genre::Champ, "Frame7", {90, 3660, 510, 300}, "", "", {.par = "Nom", .parIndice = 8}},
    {SEUL(Label13), Genre::Etiquette, "Frame7", {615, 3690, 165, 240}, " °"},
    {SEUL(Text7), Genre::Champ, "Frame7", {795, 3660, 420, 300}, "", "", {.par = "Nom", .parIndice = 9}},
    {SEUL(Label16), Genre::Etiquette, "Frame7", {1230, 3690, 135, 240}, " '"},
    {RANG(OptE, 0), Genre::Option, "Frame7", {1380, 3660, 780, 300}, "Est", "", {.groupe = 21}},
    {RANG(OptE, 1), Genre::Option, "Frame7", {2160, 3660, 855, 300}, "Ouest", "", {.choisi = true, .groupe = 21}},
    {SEUL(Frame17), Genre::Groupe, "Frame7", {30, 4080, 2970, 1785}},
    {SEUL(Label14), Genre::Etiquette, "Frame17", {60, 30, 2800, 225}, "Hauteur lue"},
    {SEUL(Text13), Genre::Champ, "Frame17", {60, 255, 480, 300}, "", "", {.par = "Nom", .parIndice = 10}},
    {SEUL(Label19), Genre::Etiquette, "Frame17", {555, 285, 165, 240}, " °"},
    {SEUL(Text12), Genre::Champ, "Frame17", {735, 255, 420, 300}, "", "", {.par = "Nom", .parIndice = 11}},
    {SEUL(Label9), Genre::Etiquette, "Frame17", {1170, 285, 135, 240}, "'"},
    {SEUL(Label69), Genre::Etiquette, "Frame17", {1185, 315, 135, 240}, ".", "", {.visible = false}},
    {SEUL(Text25), Genre::Champ, "Frame17", {1320, 255, 420, 300}, "", "", {.par = "Nom", .parIndice = 12}},
    {SEUL(Label68), Genre::Etiquette, "Frame17", {1755, 285, 180, 240}, "''"},
    {RANG(Option4, 0), Genre::Option, "Frame17", {60, 570, 1350, 300}, "Secondes", "", {.groupe = 4}},
    {RANG(Option4, 1), Genre::Option, "Frame17", {1410, 570, 1350, 300}, "1/100", "", {.groupe = 4}},
    {RANG(Option6, 0), Genre::Option, "Frame17", {60, 870, 1215, 300}, "Bord Sup", "", {.groupe = 6}},
    {RANG(Option6, 1), Genre::Option, "Frame17", {60, 1170, 1215, 300}, "Bord Inf", "", {.choisi = true, .groupe = 6}},
    {RANG(Option6, 2), Genre::Option, "Frame17", {60, 1470, 1215, 300}, "Centre", "", {.groupe = 6}},
    {RANG(Option5, 0), Genre::Option, "Frame17", {1290, 870, 1680, 300}, "Horizon Normal", "", {.choisi = true, .groupe = 5}},
    {RANG(Option5, 1), Genre::Option, "Frame17", {1290, 1170, 1680, 300}, "Horizon Artificiel", "", {.groupe = 5}},
    {SEUL(Frame6), Genre::Groupe, "Frame7", {30, 5910, 2970, 780}},
    {SEUL(Label21), Genre::Etiquette, "Frame6", {60, 75, 2130, 240}, "Collimation (Minutes)"},
    {SEUL(Text11), Genre::Champ, "Frame6", {2190, 45, 690, 300}, "", "", {.par = "Nom", .parIndice = 13}},
    {SEUL(Label22), Genre::Etiquette, "Frame6", {60, 435, 2130, 240}, "Hauteur oeil (Mètres)"},
    {SEUL(Text10), Genre::Champ, "Frame6", {2190, 405, 690, 300}, "", "", {.par = "Nom", .parIndice = 14}},
    {SEUL(Command2), Genre::Bouton, "Frame7", {90, 6810, 1740, 480}, "Calcul", "Réduit la visée et trace la droite", {.image = "calcul"}},
    {SEUL(Command26), Genre::Bouton, "Frame7", {1890, 6810, 1050, 480}, "Détails", "Affiche ou efface les détails du calcul"},
    {SEUL(Label18), Genre::Etiquette, "Frame7", {90, 7350, 2850, 240}, " Intercept en milles :"},
    {SEUL(Affichage_Intercept), Genre::Etiquette, "Frame7", {90, 7590, 2850, 480}, "", "", {.cadre = true, .taille = 18, .cote = Cote::Centre, .par = "Label18"}},
    {SEUL(Label20), Genre::Etiquette, "Frame7", {90, 8130, 2850, 240}, " Azimut en degrés :"},
    {SEUL(Affichage_Azimuth), Genre::Etiquette, "Frame7", {90, 8370, 2850, 480}, "", "", {.cadre = true, .taille = 18, .cote = Cote::Centre, .par = "Label20"}},
    {RANG(LabControle, 0), Genre::Etiquette, "Frame7", {90, 8925, 2850, 330}, "", "Par le ciel d'aujourd'hui, et de combien la droite en diffère (Ctrl+I : fiche de contrôle)", {.visible = false, .renvoi = true, .taille = 10}},
    {RANG(LabControle, 1), Genre::Etiquette, "Frame7", {90, 9240, 2850, 315}, "", "Par le ciel d'aujourd'hui, et de combien la droite en diffère (Ctrl+I : fiche de contrôle)", {.visible = false, .renvoi = true, .taille = 10}},
    {SEUL(Label72), Genre::Etiquette, "Frame7", {60, 7000, 300, 600}, "", "", {.visible = false}},
    // Module 3: the eight detail lines of a sight.
    {SEUL(Frame9), Genre::Cadre, "", {9270, 8310, 2610, 1890}, "", "", {.visible = false, .par = "Nom", .parIndice = 47}},
    {SEUL(Image9), Genre::Image, "Frame9", {2295, 0, 300, 300}, "", "Ferme le module", {.image = "ferme", .par = "Nom", .parIndice = 46}},
    {RANG(Label70, 0), Genre::Etiquette, "Frame9", {60, 30, 2220, 225}},
    {RANG(Label70, 1), Genre::Etiquette, "Frame9", {60, 258, 2220, 225}},
    {RANG(Label70, 2), Genre::Etiquette, "Frame9", {60, 486, 2490, 225}},
    {RANG(Label70, 3), Genre::Etiquette, "Frame9", {60, 714, 2490, 225}},
    {RANG(Label70, 4), Genre::Etiquette, "Frame9", {60, 942, 2490, 225}},
    {RANG(Label70, 5), Genre::Etiquette, "Frame9", {60, 1170, 2490, 225}},
    {RANG(Label70, 6), Genre::Etiquette, "Frame9", {60, 1398, 2490, 225}},
    {RANG(Label70, 7), Genre::Etiquette, "Frame9", {60, 1626, 2490, 225}},
};
// clang-format on

} // namespace

std::span<const LigneDonnees> TableVisee() { return kVisee; }

} // namespace velmaris
