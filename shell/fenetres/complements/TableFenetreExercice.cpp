#include "shell/fenetres/Acces.hpp"
#include "shell/fenetres/complements/FenetreExercice.hpp"

namespace velmaris {
namespace {

using Fenetre = FenetreExercice;

// One control a line.
// clang-format off
// NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays)
constexpr LigneFenetreExercice kExercice[] = {
    {RANG(Label1, 0), Genre::Etiquette, "", {180, 165, 1020, 255}, "Exercice"},
    {SEUL(Combo1), Genre::Liste, "", {1230, 120, 7350, 330}, "", "", {.par = "Label1", .parIndice = 0}},
    {RANG(Command1, 0), Genre::Bouton, "", {8730, 105, 1860, 360}, "Commencer", "Fait le voyage de la graine, avec ces conditions"},
    {RANG(Label1, 1), Genre::Etiquette, "", {10710, 165, 780, 255}, "Graine"},
    {SEUL(Text1), Genre::Champ, "", {11520, 120, 1050, 330}, "", "0 à 999999 : la même graine, le même voyage", {.par = "Label1", .parIndice = 1}},
    {RANG(Command1, 1), Genre::Bouton, "", {12660, 105, 1560, 360}, "Au hasard", "Une autre graine"},
    {RANG(Label1, 2), Genre::Etiquette, "", {180, 585, 1020, 255}, "Sujet"},
    {SEUL(Combo2), Genre::Liste, "", {1230, 540, 3900, 330}, "", "", {.par = "Label1", .parIndice = 2}},
    {RANG(Label2, 0), Genre::Etiquette, "", {5250, 585, 1350, 255}, "Visées"},
    {RANG(Text2, 0), Genre::Champ, "", {6630, 540, 720, 330}, "", "1 à 10", {.par = "Label2", .parIndice = 0}},
    {RANG(Label2, 1), Genre::Etiquette, "", {7500, 585, 1350, 255}, "Bruit (')"},
    {RANG(Text2, 1), Genre::Champ, "", {8880, 540, 720, 330}, "", "0 à 10 : écart type d'une lecture", {.par = "Label2", .parIndice = 1}},
    {RANG(Label2, 2), Genre::Etiquette, "", {9750, 585, 1350, 255}, "Collim. (')"},
    {RANG(Text2, 2), Genre::Champ, "", {11130, 540, 720, 330}, "", "0 à 10 : tirée entre les deux signes", {.par = "Label2", .parIndice = 2}},
    {RANG(Label2, 3), Genre::Etiquette, "", {12000, 585, 1350, 255}, "Nuages (%)"},
    {RANG(Text2, 3), Genre::Champ, "", {13380, 540, 720, 330}, "", "0 à 90 pour cent du ciel", {.par = "Label2", .parIndice = 3}},
    {RANG(Label2, 4), Genre::Etiquette, "", {5250, 975, 1350, 255}, "Vitesse (nds)"},
    {RANG(Text2, 4), Genre::Champ, "", {6630, 930, 720, 330}, "", "0 à 30 : au plus", {.par = "Label2", .parIndice = 4}},
    {RANG(Label2, 5), Genre::Etiquette, "", {7500, 975, 1350, 255}, "Estime (M)"},
    {RANG(Text2, 5), Genre::Champ, "", {8880, 930, 720, 330}, "", "0 à 60 : écart type de l'estime", {.par = "Label2", .parIndice = 5}},
    {RANG(Label2, 6), Genre::Etiquette, "", {9750, 975, 1350, 255}, "Lat. (°)"},
    {RANG(Text2, 6), Genre::Champ, "", {11130, 930, 720, 330}, "", "1 à 70 : au plus", {.par = "Label2", .parIndice = 6}},
    {SEUL(Label3), Genre::Etiquette, "", {180, 975, 5000, 270}, "", "", {.titre = true}},
    {RANG(Label4, 0), Genre::Etiquette, "", {180, 1440, 1500, 255}, "Point estimé"},
    {RANG(Donne, 0), Genre::Etiquette, "", {1710, 1440, 5000, 255}, "", "", {.par = "Label4", .parIndice = 0}},
    {RANG(Label4, 1), Genre::Etiquette, "", {180, 1800, 1500, 255}, "Cap, vitesse"},
    {RANG(Donne, 1), Genre::Etiquette, "", {1710, 1800, 5000, 255}, "", "", {.par = "Label4", .parIndice = 1}},
    {RANG(Label4, 2), Genre::Etiquette, "", {7350, 1800, 1500, 255}, "Œil"},
    {RANG(Donne, 2), Genre::Etiquette, "", {8880, 1800, 1950, 255}, "", "", {.par = "Label4", .parIndice = 2}},
    {RANG(Label4, 3), Genre::Etiquette, "", {10950, 1800, 1350, 255}, "Collimation"},
    {RANG(Donne, 3), Genre::Etiquette, "", {12330, 1800, 1900, 255}, "", "", {.par = "Label4", .parIndice = 3}},
    {RANG(Label4, 4), Genre::Etiquette, "", {7350, 1440, 1500, 255}, "Point voulu à"},
    {RANG(Donne, 4), Genre::Etiquette, "", {8880, 1440, 5300, 255}, "", "", {.par = "Label4", .parIndice = 4}},
    {RANG(Label4, 5), Genre::Etiquette, "", {180, 2160, 1500, 255}, "Cachés"},
    {RANG(Donne, 5), Genre::Etiquette, "", {1710, 2160, 12500, 255}, "", "", {.par = "Label4", .parIndice = 5, .etire = {0, 0, 1, 0}}},
    {SEUL(Visees), Genre::Table, "", {180, 2520, 14040, 2340}, "", "Ce que le sextant a montré ; Entrée ou double clic met la visée dans le panneau", {.etire = {0, 0, 1, 1}}},
    {RANG(Detail, 0), Genre::Etiquette, "", {180, 4950, 11700, 255}, "", "", {.etire = {0, 1, 1, 0}}},
    {RANG(Detail, 1), Genre::Etiquette, "", {180, 5220, 11700, 255}, "", "", {.etire = {0, 1, 1, 0}}},
    {RANG(Detail, 2), Genre::Etiquette, "", {180, 5490, 11700, 255}, "", "", {.etire = {0, 1, 1, 0}}},
    {SEUL(Prend), Genre::Bouton, "", {12150, 4980, 2070, 390}, "Au panneau", "Tape la visée dans le panneau ; Ctrl+Z la reprend", {.etire = {1, 1, 0, 0}}},
    {RANG(Label5, 0), Genre::Etiquette, "", {180, 5895, 1860, 255}, "Votre point : latitude", "", {.etire = {0, 1, 0, 0}}},
    {RANG(Text3, 0), Genre::Champ, "", {2070, 5850, 1500, 330}, "", "47 10,3 N ; degrés, minutes et côté", {.par = "Label5", .parIndice = 0, .etire = {0, 1, 0, 0}}},
    {RANG(Label5, 1), Genre::Etiquette, "", {3750, 5895, 1020, 255}, "Longitude", "", {.etire = {0, 1, 0, 0}}},
    {RANG(Text3, 1), Genre::Champ, "", {4800, 5850, 1500, 330}, "", "4 44,1 W ; degrés, minutes et côté", {.par = "Label5", .parIndice = 1, .etire = {0, 1, 0, 0}}},
    {SEUL(Corrige), Genre::Bouton, "", {6510, 5835, 2070, 360}, "Corriger", "Montre le vrai point, et ce qui n'a pas été", {.etire = {0, 1, 0, 0}}},
    {RANG(Label6, 0), Genre::Etiquette, "", {180, 6360, 1860, 255}, "Vrai point", "", {.etire = {0, 1, 0, 0}}},
    {RANG(Resultat, 0), Genre::Etiquette, "", {2070, 6285, 11900, 330}, "", "", {.taille = 12, .par = "Label6", .parIndice = 0, .etire = {0, 1, 1, 0}}},
    {RANG(Label6, 1), Genre::Etiquette, "", {180, 6630, 1860, 255}, "Votre point", "", {.etire = {0, 1, 0, 0}}},
    {RANG(Resultat, 1), Genre::Etiquette, "", {2070, 6630, 11900, 255}, "", "", {.par = "Label6", .parIndice = 1, .etire = {0, 1, 1, 0}}},
    {RANG(Label6, 2), Genre::Etiquette, "", {180, 6945, 1860, 255}, "L'estime", "", {.etire = {0, 1, 0, 0}}},
    {RANG(Resultat, 2), Genre::Etiquette, "", {2070, 6945, 11900, 255}, "", "", {.par = "Label6", .parIndice = 2, .etire = {0, 1, 1, 0}}},
    {SEUL(LabAvis), Genre::Etiquette, "", {180, 7335, 11700, 255}, "", "", {.etire = {0, 1, 1, 0}}},
    {SEUL(Ferme), Genre::Bouton, "", {12150, 7260, 2070, 405}, "Fermer", "", {.role = Role::Annule, .etire = {1, 1, 0, 0}}},
    {RANG(MotSujet, 0), Genre::Texte, "", {}, "Soleil à midi"},
    {RANG(MotSujet, 1), Genre::Texte, "", {}, "Soleil en route"},
    {RANG(MotSujet, 2), Genre::Texte, "", {}, "Soleil et Lune"},
    {RANG(MotSujet, 3), Genre::Texte, "", {}, "Étoiles et planètes"},
    {RANG(MotColonne, 0), Genre::Texte, "", {}, "Astre"},
    {RANG(MotColonne, 1), Genre::Texte, "", {}, "Jour"},
    {RANG(MotColonne, 2), Genre::Texte, "", {}, "UTC"},
    {RANG(MotColonne, 3), Genre::Texte, "", {}, "Au sextant"},
    {RANG(MotColonne, 4), Genre::Texte, "", {}, "Bord"},
    {RANG(MotColonne, 5), Genre::Texte, "", {}, "Azimut"},
    {RANG(MotColonne, 6), Genre::Texte, "", {}, "Point estimé"},
    {RANG(MotColonne, 7), Genre::Texte, "", {}, "Votre droite"},
    {RANG(MotAvis, 0), Genre::Texte, "", {}, "aucune visée de cet astre ici"},
    {RANG(MotAvis, 1), Genre::Texte, "", {}, "illisible"},
    {RANG(MotAvis, 2), Genre::Texte, "", {}, "l'heure n'est pas la bonne"},
    {RANG(MotAvis, 3), Genre::Texte, "", {}, "la lecture n'est pas celle qui est montrée"},
    {RANG(MotAvis, 4), Genre::Texte, "", {}, "la collimation n'est pas la bonne"},
    {RANG(MotAvis, 5), Genre::Texte, "", {}, "la hauteur de l'œil n'est pas la bonne"},
    {RANG(MotAvis, 6), Genre::Texte, "", {}, "un autre bord"},
    {RANG(MotAvis, 7), Genre::Texte, "", {}, "la droite passe loin du vrai point"},
    {RANG(MotBord, 0), Genre::Texte, "", {}, "inférieur"},
    {RANG(MotBord, 1), Genre::Texte, "", {}, "centre"},
    {RANG(MotBord, 2), Genre::Texte, "", {}, "supérieur"},
    {SEUL(TexteHors), Genre::Texte, "", {}, "hors limites. Le champ prend : "},
    {SEUL(TexteVisee), Genre::Texte, "", {}, " visée"},
    {SEUL(TexteVisees), Genre::Texte, "", {}, " visées"},
    {SEUL(TexteBruit), Genre::Texte, "", {}, "bruit "},
    {SEUL(TexteCollimation), Genre::Texte, "", {}, "collimation "},
    {SEUL(TexteNuages), Genre::Texte, "", {}, "nuages "},
    {SEUL(TexteNoeuds), Genre::Texte, "", {}, " nds"},
    {SEUL(TexteHorsRegistre), Genre::Texte, "", {}, "Exercice : hors registre"},
    {SEUL(TexteImpossible), Genre::Texte, "", {}, "Aucun jour n'offre cela : changez la graine ou les conditions"},
    {SEUL(TexteTypee), Genre::Texte, "", {}, "réduite"},
    {SEUL(TexteNonTypee), Genre::Texte, "", {}, "pas réduite"},
    {SEUL(TexteBonne), Genre::Texte, "", {}, "bonne"},
    {SEUL(TexteGeste), Genre::Texte, "", {}, "Exercice"},
    {SEUL(TexteSansChoix), Genre::Texte, "", {}, "Choisissez d'abord une visée"},
    {SEUL(TexteSansExercice), Genre::Texte, "", {}, "Commencez d'abord un exercice"},
    {SEUL(TexteSansPoint), Genre::Texte, "", {}, "Sans votre point : montrer quand même le vrai ?"},
    {SEUL(TexteVers), Genre::Texte, "", {}, " M du vrai, au "},
    {SEUL(TexteAttendu), Genre::Texte, "", {}, " ; 95 points sur 100 sont à moins de "},
    {SEUL(TexteEstime), Genre::Texte, "", {}, " M du vrai point"},
    {SEUL(TexteMilles), Genre::Texte, "", {}, " M"},
    {SEUL(TexteArret), Genre::Texte, "", {}, "arrêté"},
};
// clang-format on

} // namespace

std::span<const LigneFenetreExercice> TableFenetreExercice() { return kExercice; }

void InitialiseFenetreExercice(FenetreExercice &fenetre) {
  PourChaque(fenetre,
             [](const LigneFenetreExercice &ligne, Controle &c) { c = ControleNeuf(ligne, kFenetreExercice); });
}

} // namespace velmaris
