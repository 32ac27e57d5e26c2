#include "shell/fenetres/Acces.hpp"
#include "shell/fenetres/complements/Registre.hpp"

namespace velmaris {
namespace {

using Fenetre = Registre;

// One control a line.
// clang-format off
// NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays)
constexpr LigneRegistre kRegistre[] = {
    {RANG(Label1, 0), Genre::Etiquette, "", {180, 180, 720, 255}, "Texte :"},
    {RANG(Text1, 0), Genre::Champ, "", {930, 150, 2700, 315}, "", "Mots de la ligne ou de sa note", {.par = "Label1", .parIndice = 0}},
    {RANG(Label1, 1), Genre::Etiquette, "", {3780, 180, 720, 255}, "Astre :"},
    {RANG(Text1, 1), Genre::Champ, "", {4530, 150, 1800, 315}, "", "Nom : Vega, Venus, Soleil", {.par = "Label1", .parIndice = 1}},
    {RANG(Label1, 2), Genre::Etiquette, "", {6480, 180, 690, 255}, "Jour :"},
    {RANG(Text1, 2), Genre::Champ, "", {7200, 150, 1500, 315}, "", "21/6/2026, 6/2026 ou 2026", {.par = "Label1", .parIndice = 2}},
    {SEUL(Check1), Genre::Case, "", {8880, 150, 1500, 315}, "Masquées", "Montre aussi les visées masquées"},
    {SEUL(Label2), Genre::Etiquette, "", {10440, 180, 3780, 255}, "", "", {.cote = Cote::Droite, .etire = {1, 0, 0, 0}}},
    {SEUL(Table1), Genre::Table, "", {180, 600, 14040, 4920}, "", "Visées, la plus récente d'abord : Entrée reprend, espace coche pour le point", {.etire = {0, 0, 1, 1}}},
    {SEUL(Label3), Genre::Etiquette, "", {180, 5670, 720, 255}, "Note :", "", {.etire = {0, 1, 0, 0}}},
    {SEUL(Text2), Genre::Champ, "", {930, 5640, 13290, 315}, "", "", {.par = "Label3", .etire = {0, 1, 1, 0}}},
    {SEUL(Command1), Genre::Bouton, "", {180, 6120, 1500, 390}, "Reprendre", "Remet la visée dans le panneau et la réduit (Entrée)", {.etire = {0, 1, 0, 0}}},
    {RANG(Command2, 0), Genre::Bouton, "", {1770, 6120, 1140, 390}, "Droite 1", "Reprend la visée et l'enregistre dans cette droite", {.etire = {0, 1, 0, 0}}},
    {RANG(Command2, 1), Genre::Bouton, "", {2970, 6120, 1140, 390}, "Droite 2", "Reprend la visée et l'enregistre dans cette droite", {.etire = {0, 1, 0, 0}}},
    {RANG(Command2, 2), Genre::Bouton, "", {4170, 6120, 1140, 390}, "Droite 3", "Reprend la visée et l'enregistre dans cette droite", {.etire = {0, 1, 0, 0}}},
    {RANG(Command2, 3), Genre::Bouton, "", {5370, 6120, 1140, 390}, "Droite 4", "Reprend la visée et l'enregistre dans cette droite", {.etire = {0, 1, 0, 0}}},
    {RANG(Command3, 0), Genre::Bouton, "", {6690, 6120, 1260, 390}, "Masquer", "Range les visées choisies ; rien n'est effacé", {.etire = {0, 1, 0, 0}}},
    {RANG(Command3, 1), Genre::Bouton, "", {6690, 6120, 1260, 390}, "Montrer", "Montre de nouveau les visées choisies", {.visible = false, .etire = {0, 1, 0, 0}}},
    {SEUL(Command4), Genre::Bouton, "", {8040, 6120, 1140, 390}, "CSV...", "Ecrit les visées choisies dans un fichier de la forme du journal", {.etire = {0, 1, 0, 0}}},
    {SEUL(Command5), Genre::Bouton, "", {9270, 6120, 1140, 390}, ".LoP...", "Ecrit chaque visée choisie dans un fichier", {.etire = {0, 1, 0, 0}}},
    {SEUL(Command6), Genre::Bouton, "", {10500, 6120, 1260, 390}, "Au point", "Retient les visées choisies pour le point", {.etire = {0, 1, 0, 0}}},
    {SEUL(Frame1), Genre::Groupe, "", {180, 6630, 14040, 2520}, "Montre", "", {.etire = {0, 1, 1, 0}}},
    {SEUL(List1), Genre::ListeBoite, "Frame1", {180, 420, 6600, 1920}, "", "Comparaisons de la montre, la plus récente d'abord"},
    {RANG(Label4, 0), Genre::Etiquette, "Frame1", {7020, 390, 3300, 255}, "Date et heure (UTC) :"},
    {RANG(Text3, 0), Genre::Champ, "Frame1", {10440, 360, 2400, 315}, "", "21/6/2026 12:05:30 ; vide, maintenant", {.par = "Label4", .parIndice = 0}},
    {RANG(Label4, 1), Genre::Etiquette, "Frame1", {7020, 810, 3300, 255}, "Avance (s) ; un retard, négative :"},
    {RANG(Text3, 1), Genre::Champ, "Frame1", {10440, 780, 1200, 315}, "", "-86400 à 86400", {.par = "Label4", .parIndice = 1}},
    {RANG(Label4, 2), Genre::Etiquette, "Frame1", {7020, 1230, 3300, 255}, "Marche (s par jour) :"},
    {RANG(Text3, 2), Genre::Champ, "Frame1", {10440, 1200, 1200, 315}, "", "-3600 à 3600 ; vide, 0", {.par = "Label4", .parIndice = 2}},
    {SEUL(Command8), Genre::Bouton, "Frame1", {10440, 1740, 1500, 390}, "Ajouter", "Ajoute cette comparaison ; le point seul s'en sert, jamais le panneau"},
    {SEUL(Command7), Genre::Bouton, "", {12720, 6120, 1500, 390}, "Fermer", "", {.role = Role::Annule, .etire = {1, 1, 0, 0}}},
    // Words that no control shows.
    {RANG(Colonne, 0), Genre::Texte, "", {}, "Date (UTC)"},
    {RANG(Colonne, 1), Genre::Texte, "", {}, "Astre"},
    {RANG(Colonne, 2), Genre::Texte, "", {}, "Lecture"},
    {RANG(Colonne, 3), Genre::Texte, "", {}, "Intercept"},
    {RANG(Colonne, 4), Genre::Texte, "", {}, "Azimut"},
    {RANG(Colonne, 5), Genre::Texte, "", {}, "Contrôle"},
    {RANG(Colonne, 6), Genre::Texte, "", {}, "Note"},
    {SEUL(TexteLecture), Genre::Texte, "", {}, "lecture des journaux..."},
    {SEUL(TexteVisees), Genre::Texte, "", {}, " visées"},
    {SEUL(TexteSur), Genre::Texte, "", {}, " sur "},
    {SEUL(TexteCassees), Genre::Texte, "", {}, " illisibles"},
    {SEUL(TexteIllisible), Genre::Texte, "", {}, "Ce journal ne peut pas être lu :"},
    {SEUL(TexteMasquee), Genre::Texte, "", {}, "(masquée) "},
    {SEUL(TexteJourRefuse), Genre::Texte, "", {}, "Un jour s'écrit "},
    {SEUL(TexteSansChoix), Genre::Texte, "", {}, "Choisissez d'abord une visée dans le registre"},
    {SEUL(TexteSansAstre), Genre::Texte, "", {}, "L'astre de cette visée n'est pas dans les listes : "},
    {SEUL(TexteAuPoint), Genre::Texte, "", {}, "Visées retenues pour le point : "},
    {SEUL(TexteMuet), Genre::Texte, "", {}, "Ce fichier ne peut pas être écrit ; ce que vous avez changé n'est pas gardé :"},
    {SEUL(TexteExportees), Genre::Texte, "", {}, "Visées écrites : "},
    {SEUL(TexteEntrees), Genre::Texte, "", {}, "Visées entrées dans le journal : "},
    {SEUL(TexteNonEntrees), Genre::Texte, "", {}, "Ces fichiers ne font pas une visée :"},
    {SEUL(TexteCsv), Genre::Texte, "", {}, "Ecrire les visées dans un fichier CSV"},
    {SEUL(TexteLoP), Genre::Texte, "", {}, "Ecrire les visées dans des fichiers .LoP"},
    {SEUL(TexteReleveRefuse), Genre::Texte, "", {}, "hors limites. Admis : "},
    {SEUL(TexteParJour), Genre::Texte, "", {}, " s/jour"},
};
// clang-format on

} // namespace

std::span<const LigneRegistre> TableRegistre() { return kRegistre; }

void InitialiseRegistre(Registre &fenetre) {
  PourChaque(fenetre, [](const LigneRegistre &ligne, Controle &c) { c = ControleNeuf(ligne, kFenetreRegistre); });
}

} // namespace velmaris
