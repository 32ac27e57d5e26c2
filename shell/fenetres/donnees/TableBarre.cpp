#include "shell/fenetres/Acces.hpp"
#include "shell/fenetres/Donnees.hpp"

namespace velmaris {
namespace {

using Fenetre = Donnees;

// One control a line.
// clang-format off
// NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays)
constexpr LigneDonnees kBarre[] = {
    // The toolbar and what lies on the drawing surface.
    {SEUL(Image1), Genre::Surface, "", {50, 1040, 15200, 9867}, "", "", {.par = "Nom", .parIndice = 36}},
    {SEUL(LabLat), Genre::Etiquette, "Image1", {60, 3300, 240, 3900}, "", "", {.cote = Cote::Centre}},
    {SEUL(LabLon), Genre::Etiquette, "Image1", {8200, 9500, 3000, 225}},
    {SEUL(LabC), Genre::Etiquette, "Image1", {0, 0, 2300, 225}, "", "", {.visible = false}},
    {SEUL(Soleil), Genre::Image, "Image1", {-2000, 0, 480, 480}, "", "", {.image = "soleil", .par = "Option7", .parIndice = 0}},
    {SEUL(Label62), Genre::Etiquette, "", {8300, 5900, 3600, 240}, "Cliquer sur le module pour l'immobiliser", "", {.visible = false}},
    {SEUL(Frame3), Genre::Cadre, "", {20, 20, 15885, 1035}},
    {SEUL(Command3), Genre::Bouton, "Frame3", {60, 225, 720, 525}, "", "Sauvegarde le Fichier", {.image = "sauve"}},
    {RANG(Label50, 0), Genre::Etiquette, "Frame3", {45, 765, 750, 225}, "Sauve", "", {.cote = Cote::Centre}},
    {SEUL(Command4), Genre::Bouton, "Frame3", {810, 225, 435, 525}, "", "Ouvre le Fichier", {.image = "ouvre"}},
    {SEUL(FlecheOuvre), Genre::Bouton, "Frame3", {1245, 225, 285, 525}, "▼", "Visées récentes", {.taille = 7, .par = "Recentes"}},
    {RANG(Label50, 1), Genre::Etiquette, "Frame3", {795, 765, 750, 225}, "Ouvre", "", {.cote = Cote::Centre}},
    {SEUL(Command11), Genre::Bouton, "Frame3", {1560, 225, 720, 525}, "", "Imprime l'écran", {.image = "imprime"}},
    {RANG(Label50, 2), Genre::Etiquette, "Frame3", {1545, 765, 750, 225}, "Imprime", "", {.cote = Cote::Centre}},
    {SEUL(Label32), Genre::Etiquette, "Frame3", {2430, 30, 2490, 225}, "Zoom :", "", {.cote = Cote::Centre}},
    {SEUL(HScroll1), Genre::Curseur, "Frame3", {2430, 270, 2490, 435}, "", "Milles sur la hauteur de la feuille : 8 à 3000", {.par = "Label32"}},
    {SEUL(Command12), Genre::Bouton, "Frame3", {5040, 225, 720, 525}, "", "Affiche ou efface la grille Long./Lat.", {.visible = false, .image = "grille"}},
    {RANG(Label50, 3), Genre::Etiquette, "Frame3", {5025, 765, 750, 225}, "Lat/Lon", "", {.cote = Cote::Centre}},
    {SEUL(Command14), Genre::Bouton, "Frame3", {5040, 225, 720, 525}, "", "Affiche ou efface la grille Long./Lat.", {.image = "grille-sans"}},
    {SEUL(Label61), Genre::Etiquette, "Frame3", {5850, 15, 1500, 195}, "Efface", "", {.cote = Cote::Centre}},
    {SEUL(Command6), Genre::Bouton, "Frame3", {5880, 225, 720, 525}, "", "Efface l'écran", {.image = "ecran"}},
    {RANG(Label50, 4), Genre::Etiquette, "Frame3", {5865, 765, 750, 225}, "Ecran", "", {.cote = Cote::Centre}},
    {SEUL(Command8), Genre::Bouton, "Frame3", {6630, 225, 720, 525}, "", "Effacer les quatre droites", {.visible = false, .image = "memoire"}},
    {RANG(Label50, 5), Genre::Etiquette, "Frame3", {6615, 765, 750, 225}, "Mémoire", "", {.visible = false, .cote = Cote::Centre}},
    {SEUL(Label60), Genre::Etiquette, "Frame3", {7440, 15, 1500, 195}, "Droites", "", {.cote = Cote::Centre}},
    {SEUL(Command23), Genre::Bouton, "Frame3", {7470, 225, 720, 525}, "", "Affiche ou efface le module Droites Multiples", {.image = "multiples"}},
    {RANG(Label50, 6), Genre::Etiquette, "Frame3", {7410, 765, 825, 225}, " multiples", "", {.cote = Cote::Centre}},
    {SEUL(Command20), Genre::Bouton, "Frame3", {8220, 225, 720, 525}, "", "Affiche ou efface le module 1 Droite", {.image = "simples"}},
    {RANG(Label50, 7), Genre::Etiquette, "Frame3", {8235, 765, 690, 225}, "simples", "", {.cote = Cote::Centre}},
    {SEUL(Label59), Genre::Etiquette, "Frame3", {9030, 15, 2250, 195}, "Modules", "", {.cote = Cote::Centre}},
    {SEUL(Command7), Genre::Bouton, "Frame3", {9060, 225, 720, 525}, "", "Affiche ou efface le module Soleil.", {.image = "soleil"}},
    {RANG(Label50, 8), Genre::Etiquette, "Frame3", {9045, 765, 750, 225}, " Soleil", "", {.cote = Cote::Centre}},
    {SEUL(Command21), Genre::Bouton, "Frame3", {9810, 225, 720, 525}, "", "Affiche ou efface le module Carte.", {.image = "carte"}},
    {RANG(Label50, 9), Genre::Etiquette, "Frame3", {9795, 765, 750, 225}, " Carte", "", {.cote = Cote::Centre}},
    {SEUL(Command22), Genre::Bouton, "Frame3", {10560, 225, 720, 525}, "", "Affiche ou efface le module Estime.", {.image = "estime"}},
    {RANG(Label50, 10), Genre::Etiquette, "Frame3", {10545, 765, 750, 225}, "Estime", "", {.cote = Cote::Centre}},
    {SEUL(Command9), Genre::Bouton, "Frame3", {11310, 225, 720, 525}, "", "Affiche ou efface le module Caps et distances", {.image = "cap"}},
    {RANG(Label50, 11), Genre::Etiquette, "Frame3", {11295, 765, 750, 225}, "Cap", "", {.cote = Cote::Centre}},
    {SEUL(Command13), Genre::Bouton, "Frame3", {12060, 225, 720, 525}, "", "Ouvre la fenêtre du ciel", {.image = "astres"}},
    {RANG(Label50, 12), Genre::Etiquette, "Frame3", {12045, 765, 750, 225}, "Astres", "", {.cote = Cote::Centre}},
    {SEUL(Command5), Genre::Bouton, "Frame3", {12810, 225, 720, 525}, "", "Hot line", {.image = "aide"}},
    {RANG(Label50, 13), Genre::Etiquette, "Frame3", {12795, 765, 750, 225}, "Aide", "", {.cote = Cote::Centre}},
    {SEUL(Sortie), Genre::Bouton, "Frame3", {13560, 225, 720, 525}, "", "Sortie du logiciel (F2)", {.image = "quitter"}},
    {RANG(Label50, 14), Genre::Etiquette, "Frame3", {13545, 765, 750, 225}, "Quitter", "", {.cote = Cote::Centre}},
    {RANG(Image10, 0), Genre::Image, "Frame3", {14385, 285, 630, 420}, "", "Français", {.image = "drapeau-fr"}},
    {RANG(Image10, 1), Genre::Image, "Frame3", {14385, 285, 630, 420}, "", "English", {.image = "drapeau-en"}},
    // Words that no control shows: boxes and tool tips.
    {SEUL(TexteAdresse), Genre::Texte, "", {0, 0, 0, 0}, "Aucun programme ne s'est ouvert pour cette adresse. La voici :"},
    {SEUL(TexteCopier), Genre::Texte, "", {0, 0, 0, 0}, "Copier"},
    {SEUL(TexteSansAide), Genre::Texte, "", {0, 0, 0, 0}, "Le guide n'est pas installé :"},
    {SEUL(TexteOui), Genre::Texte, "", {0, 0, 0, 0}, "Oui"},
    {SEUL(TexteNon), Genre::Texte, "", {0, 0, 0, 0}, "Non"},
    {SEUL(TexteOk), Genre::Texte, "", {0, 0, 0, 0}, "OK"},
    {SEUL(TexteErreur), Genre::Texte, "", {0, 0, 0, 0}, "Erreur d'exécution"},
    {RANG(TexteSens, 0), Genre::Texte, "", {0, 0, 0, 0}, "Argument ou appel de procédure incorrect"},
    {RANG(TexteSens, 1), Genre::Texte, "", {0, 0, 0, 0}, "Dépassement de capacité"},
    {RANG(TexteSens, 2), Genre::Texte, "", {0, 0, 0, 0}, "L'indice n'appartient pas à la sélection"},
    {RANG(TexteSens, 3), Genre::Texte, "", {0, 0, 0, 0}, "Division par zéro"},
    {RANG(TexteSens, 4), Genre::Texte, "", {0, 0, 0, 0}, "Incompatibilité de type"},
    {RANG(TexteSens, 5), Genre::Texte, "", {0, 0, 0, 0}, "Nom ou numéro de fichier incorrect"},
    {RANG(TexteSens, 6), Genre::Texte, "", {0, 0, 0, 0}, "Fichier introuvable"},
    {RANG(TexteSens, 7), Genre::Texte, "", {0, 0, 0, 0}, "Erreur dans le chemin d'accès"},
    {RANG(TexteVide, 0), Genre::Texte, "", {0, 0, 0, 0}, "est vide : une planète en a besoin."},
    {RANG(TexteVide, 1), Genre::Texte, "", {0, 0, 0, 0}, "est vide : une étoile en a besoin."},
    {RANG(TexteDefaut, 0), Genre::Texte, "", {0, 0, 0, 0}, "n'est pas un nombre : écrivez-le ainsi, 2,5."},
    {RANG(TexteDefaut, 1), Genre::Texte, "", {0, 0, 0, 0}, "est sous la mer : écrivez zéro ou plus."},
    {RANG(TexteDefaut, 2), Genre::Texte, "", {0, 0, 0, 0}, "va de 0 à 23."},
    {RANG(TexteDefaut, 3), Genre::Texte, "", {0, 0, 0, 0}, "va de 0 à 59."},
    {SEUL(TexteSansDate), Genre::Texte, "", {0, 0, 0, 0}, "La date n'existe pas : corrigez le jour, le mois ou l'année."},
    {SEUL(TexteDeuxPoints), Genre::Texte, "", {0, 0, 0, 0}, "Le départ et l'arrivée se confondent presque, ou sont opposés : changez l'un des deux."},
    {SEUL(TexteSecours), Genre::Texte, "", {0, 0, 0, 0}, "La visée du module est conservée dans :"},
    {SEUL(TexteMagasinAbime), Genre::Texte, "", {0, 0, 0, 0}, "Les réglages conservés étaient abîmés. Ils sont mis de côté ici, et le programme repart des valeurs de premier démarrage :"},
    {SEUL(TexteMagasinMuet), Genre::Texte, "", {0, 0, 0, 0}, "Les réglages ne peuvent pas être conservés. Le programme fonctionne, mais ce qui change sera perdu en quittant :"},
    {SEUL(TexteMagasinRetenu), Genre::Texte, "", {0, 0, 0, 0}, "Un autre programme retient les réglages. Ce qui change est gardé en mémoire, et sera écrit dès qu'il les rend, au plus tard en quittant :"},
    {SEUL(TexteSansAstre), Genre::Texte, "", {0, 0, 0, 0}, "sélectionnez un astre dans la liste"},
    {SEUL(TexteAttention), Genre::Texte, "", {0, 0, 0, 0}, "Attention"},
    {SEUL(TexteTitreErreur), Genre::Texte, "", {0, 0, 0, 0}, "Erreur"},
    {SEUL(TexteTempsRoute), Genre::Texte, "", {0, 0, 0, 0}, "Temps route = "},
    {SEUL(TexteSauve), Genre::Texte, "", {0, 0, 0, 0}, "Sauvegarder le FICHIER"},
    {SEUL(TexteCharge), Genre::Texte, "", {0, 0, 0, 0}, "Charger un FICHIER "},
    {SEUL(TexteNonEcrit), Genre::Texte, "", {0, 0, 0, 0}, "Le fichier n'a pas pu être écrit. Un ancien fichier de ce nom est resté entier :"},
    {SEUL(TexteNonLu), Genre::Texte, "", {0, 0, 0, 0}, "Le fichier n'a pas pu être lu :"},
    {SEUL(TexteJournalMuet), Genre::Texte, "", {0, 0, 0, 0}, "La visée n'a pas pu être inscrite au journal :"},
    {SEUL(TexteJournalRetenu), Genre::Texte, "", {0, 0, 0, 0}, "Un autre programme retient le journal. La visée y sera inscrite dès qu'il le rend, au plus tard en quittant :"},
    {SEUL(TexteSansSecours), Genre::Texte, "", {0, 0, 0, 0}, "La visée du module n'a pas pu être conservée."},
    {SEUL(TexteRecommencer), Genre::Texte, "", {0, 0, 0, 0}, "Recommencer"},
    {SEUL(TexteTitreReprise), Genre::Texte, "", {0, 0, 0, 0}, "Dernière séance"},
    {SEUL(TexteReprise), Genre::Texte, "", {0, 0, 0, 0}, "La dernière séance n'a pas été quittée. La reprendre, avec sa visée, sa feuille, ses modules et son zoom ?"},
};
// clang-format on

} // namespace

std::span<const LigneDonnees> TableBarre() { return kBarre; }

} // namespace velmaris
