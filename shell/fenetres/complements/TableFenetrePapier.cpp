#include "shell/fenetres/Acces.hpp"
#include "shell/fenetres/complements/FenetrePapier.hpp"

namespace velmaris {
namespace {

using Fenetre = FenetrePapier;

// One control a line.
// clang-format off
// NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays)
constexpr LigneFenetrePapier kPapier[] = {
    {SEUL(Onglets1), Genre::Onglets, "", {180, 105, 13000, 390}, "", "Ce que les pages sont"},
    {SEUL(PageAlmanach), Genre::Groupe, "", {180, 690, 4200, 6300}},
    {RANG(Label1, 0), Genre::Etiquette, "PageAlmanach", {0, 60, 1500, 255}, "Du"},
    {RANG(Text1, 0), Genre::Champ, "PageAlmanach", {1560, 0, 1680, 330}, "", "Jour, mois et année", {.par = "Label1", .parIndice = 0}},
    {RANG(Label1, 1), Genre::Etiquette, "PageAlmanach", {0, 480, 1500, 255}, "Au"},
    {RANG(Text1, 1), Genre::Champ, "PageAlmanach", {1560, 420, 1680, 330}, "", "Jour, mois et année ; 400 jours au plus", {.par = "Label1", .parIndice = 1}},
    {RANG(Label1, 2), Genre::Etiquette, "PageAlmanach", {0, 900, 4200, 255}, "Latitudes des levers et crépuscules"},
    {RANG(Text1, 2), Genre::Champ, "PageAlmanach", {0, 1170, 4200, 330}, "", "50 N, 45,5 N, 10 S ; 24 au plus", {.par = "Label1", .parIndice = 2}},
    {RANG(Label1, 3), Genre::Etiquette, "PageAlmanach", {0, 1680, 1500, 255}, "Étoiles par"},
    {SEUL(Combo2), Genre::Liste, "PageAlmanach", {1560, 1620, 2640, 330}, "", "", {.par = "Label1", .parIndice = 3}},
    {RANG(Check1, 0), Genre::Case, "PageAlmanach", {0, 2130, 4200, 300}, "Pages des jours"},
    {RANG(Check1, 1), Genre::Case, "PageAlmanach", {0, 2490, 4200, 300}, "Corrections, Polaire, formules"},
    {RANG(Check1, 2), Genre::Case, "PageAlmanach", {0, 2850, 4200, 300}, "Incréments des minutes"},
    {RANG(Command1, 0), Genre::Bouton, "PageAlmanach", {0, 3360, 2010, 390}, "Calculer", "Fait les pages de ces jours"},
    {RANG(Command1, 1), Genre::Bouton, "PageAlmanach", {2190, 3360, 2010, 390}, "Arrêter", "Arrête le calcul"},
    {SEUL(Avance), Genre::Jauge, "PageAlmanach", {0, 3930, 4200, 300}, "", "Avancement du calcul", {.visible = false}},
    {SEUL(Label2), Genre::Etiquette, "PageAlmanach", {0, 4350, 4200, 255}},
    {SEUL(PageFiche), Genre::Groupe, "", {180, 690, 4200, 6300}, "", "", {.visible = false}},
    {RANG(Option1, 0), Genre::Option, "PageFiche", {0, 0, 4200, 300}, "La visée du panneau", "", {.choisi = true, .groupe = 1}},
    {RANG(Option1, 1), Genre::Option, "PageFiche", {0, 360, 4200, 300}, "Les visées choisies du registre", "Les lignes choisies dans la fenêtre du registre, 60 au plus", {.groupe = 1}},
    {SEUL(Check2), Genre::Case, "PageFiche", {0, 840, 4200, 300}, "Des blancs, les réponses à part", "Pour s'exercer : les réponses sur une deuxième page"},
    {SEUL(Label3), Genre::Etiquette, "PageFiche", {0, 1320, 4200, 255}},
    {SEUL(PageJour), Genre::Groupe, "", {180, 690, 4200, 6300}, "", "", {.visible = false}},
    {RANG(Label4, 0), Genre::Etiquette, "PageJour", {0, 60, 1500, 255}, "Vent"},
    {RANG(Text2, 0), Genre::Champ, "PageJour", {1560, 0, 2640, 330}, "", "Ce que la page porte ; vide, une ligne à remplir à la main", {.par = "Label4", .parIndice = 0}},
    {RANG(Label4, 1), Genre::Etiquette, "PageJour", {0, 480, 1500, 255}, "Mer"},
    {RANG(Text2, 1), Genre::Champ, "PageJour", {1560, 420, 2640, 330}, "", "Ce que la page porte ; vide, une ligne à remplir à la main", {.par = "Label4", .parIndice = 1}},
    {RANG(Label4, 2), Genre::Etiquette, "PageJour", {0, 900, 1500, 255}, "Ciel"},
    {RANG(Text2, 2), Genre::Champ, "PageJour", {1560, 840, 2640, 330}, "", "Ce que la page porte ; vide, une ligne à remplir à la main", {.par = "Label4", .parIndice = 2}},
    {RANG(Label4, 3), Genre::Etiquette, "PageJour", {0, 1320, 1500, 255}, "Baromètre"},
    {RANG(Text2, 3), Genre::Champ, "PageJour", {1560, 1260, 2640, 330}, "", "Ce que la page porte ; vide, une ligne à remplir à la main", {.par = "Label4", .parIndice = 3}},
    {RANG(Label4, 4), Genre::Etiquette, "PageJour", {0, 1740, 1500, 255}, "Visibilité"},
    {RANG(Text2, 4), Genre::Champ, "PageJour", {1560, 1680, 2640, 330}, "", "Ce que la page porte ; vide, une ligne à remplir à la main", {.par = "Label4", .parIndice = 4}},
    {RANG(Label4, 5), Genre::Etiquette, "PageJour", {0, 2160, 1500, 255}, "Remarques"},
    {RANG(Text2, 5), Genre::Champ, "PageJour", {1560, 2100, 2640, 330}, "", "Ce que la page porte ; vide, une ligne à remplir à la main", {.par = "Label4", .parIndice = 5}},
    {SEUL(Label5), Genre::Etiquette, "PageJour", {0, 2640, 4200, 255}},
    {SEUL(PageVierge), Genre::Groupe, "", {180, 690, 4200, 6300}, "", "", {.visible = false}},
    {RANG(Label6, 0), Genre::Etiquette, "PageVierge", {0, 60, 2400, 255}, "Latitude moyenne"},
    {RANG(Text3, 0), Genre::Champ, "PageVierge", {2520, 0, 1680, 330}, "", "Degrés, minutes et côté ; 84 au plus", {.par = "Label6", .parIndice = 0}},
    {RANG(Label6, 1), Genre::Etiquette, "PageVierge", {0, 480, 2400, 255}, "Hauteur en milles"},
    {RANG(Text3, 1), Genre::Champ, "PageVierge", {2520, 420, 1680, 330}, "", "5 à 1200 milles, moins près du pôle", {.par = "Label6", .parIndice = 1}},
    {SEUL(Label7), Genre::Etiquette, "", {180, 7110, 1500, 255}, "Papier", "", {.etire = {0, 1, 0, 0}}},
    {SEUL(Combo1), Genre::Liste, "", {1740, 7050, 2640, 330}, "", "", {.par = "Label7", .etire = {0, 1, 0, 0}}},
    {SEUL(Feuille), Genre::Papier, "", {4560, 600, 9660, 7320}, "", "La page telle qu'elle sera : un clic ou la barre d'espace la grossit, la souris et les flèches la font glisser", {.etire = {0, 0, 1, 1}}},
    {RANG(Page, 0), Genre::Bouton, "", {4560, 8010, 1200, 360}, "<", "Page précédente", {.etire = {0, 1, 0, 0}}},
    {RANG(Page, 1), Genre::Bouton, "", {5880, 8010, 1200, 360}, ">", "Page suivante", {.etire = {0, 1, 0, 0}}},
    {SEUL(LabPage), Genre::Etiquette, "", {7200, 8070, 7020, 255}, "", "", {.etire = {0, 1, 1, 0}}},
    {SEUL(LabAvis), Genre::Etiquette, "", {180, 8535, 6840, 255}, "", "", {.etire = {0, 1, 1, 0}}},
    {RANG(Command2, 0), Genre::Bouton, "", {7140, 8460, 1680, 405}, "PDF...", "Écrit les pages dans un fichier PDF", {.etire = {1, 1, 0, 0}}},
    {RANG(Command2, 1), Genre::Bouton, "", {8940, 8460, 1680, 405}, "Imprimer...", "Imprime les pages", {.etire = {1, 1, 0, 0}}},
    {RANG(Command2, 2), Genre::Bouton, "", {10740, 8460, 1680, 405}, "CSV...", "Écrit les chiffres de l'almanach dans un fichier CSV", {.etire = {1, 1, 0, 0}}},
    {RANG(Command2, 3), Genre::Bouton, "", {12540, 8460, 1680, 405}, "Fermer", "", {.role = Role::Annule, .etire = {1, 1, 0, 0}}},
    {RANG(MotOnglet, 0), Genre::Texte, "", {}, "Almanach"},
    {RANG(MotOnglet, 1), Genre::Texte, "", {}, "Fiche de calcul"},
    {RANG(MotOnglet, 2), Genre::Texte, "", {}, "Page du jour"},
    {RANG(MotOnglet, 3), Genre::Texte, "", {}, "Feuille de tracé"},
    {RANG(MotFichier, 0), Genre::Texte, "", {}, "almanach"},
    {RANG(MotFichier, 1), Genre::Texte, "", {}, "fiche"},
    {RANG(MotFichier, 2), Genre::Texte, "", {}, "journee"},
    {RANG(MotFichier, 3), Genre::Texte, "", {}, "feuille"},
    {RANG(MotFormat, 0), Genre::Texte, "", {}, "A4"},
    {RANG(MotFormat, 1), Genre::Texte, "", {}, "Lettre"},
    {RANG(MotOrdre, 0), Genre::Texte, "", {}, "nom"},
    {RANG(MotOrdre, 1), Genre::Texte, "", {}, "ascension verse"},
    {RANG(MotDefaut, 0), Genre::Texte, "", {}, "une date qui n'est pas, ou hors de 1901 à 2099"},
    {RANG(MotDefaut, 1), Genre::Texte, "", {}, "la fin avant le début"},
    {RANG(MotDefaut, 2), Genre::Texte, "", {}, "plus de 400 jours"},
    {RANG(MotDefaut, 3), Genre::Texte, "", {}, "latitude sans N ni S, ou qui n'en est pas une"},
    {RANG(MotDefaut, 4), Genre::Texte, "", {}, "plus de 24 latitudes"},
    {SEUL(TexteHors), Genre::Texte, "", {}, "hors limites. Le champ prend : "},
    {SEUL(TexteAttend), Genre::Texte, "", {}, "« Calculer » fait les pages de ces jours"},
    {SEUL(TexteAutres), Genre::Texte, "", {}, "D'autres champs : « Calculer » refait les pages"},
    {SEUL(TexteCalcul), Genre::Texte, "", {}, "Calcul en cours..."},
    {SEUL(TexteArrete), Genre::Texte, "", {}, "Arrêté"},
    {SEUL(TexteJours), Genre::Texte, "", {}, " jours"},
    {SEUL(TextePages), Genre::Texte, "", {}, " pages"},
    {SEUL(TextePage), Genre::Texte, "", {}, "page "},
    {SEUL(TexteSansVisee), Genre::Texte, "", {}, "Le panneau ne tient pas de visée entière : "},
    {SEUL(TexteSansChoix), Genre::Texte, "", {}, "Aucune visée n'est choisie dans le registre"},
    {SEUL(TexteVisees), Genre::Texte, "", {}, " visées"},
    {SEUL(TexteVisee), Genre::Texte, "", {}, " visée"},
    {SEUL(TexteSur), Genre::Texte, "", {}, " sur "},
    {SEUL(TexteSansPoint), Genre::Texte, "", {}, "Sans point : Ctrl+G en fait un des visées"},
    {SEUL(TextePoint), Genre::Texte, "", {}, ", point de "},
    {SEUL(TexteSansPage), Genre::Texte, "", {}, "Il n'y a pas encore de page"},
    {SEUL(TexteEcrit), Genre::Texte, "", {}, "Écrit : "},
    {SEUL(TexteRefusees), Genre::Texte, "", {}, " sans figure : "},
    {SEUL(TexteEcriture), Genre::Texte, "", {}, "Écriture en cours..."},
    {SEUL(TexteEchec), Genre::Texte, "", {}, "Impossible d'écrire : "},
    {SEUL(TexteImpression), Genre::Texte, "", {}, "L'impression a échoué"},
    {SEUL(TexteImprimees), Genre::Texte, "", {}, "Pages imprimées : "},
};
// clang-format on

} // namespace

std::span<const LigneFenetrePapier> TableFenetrePapier() { return kPapier; }

void InitialiseFenetrePapier(FenetrePapier &fenetre) {
  PourChaque(fenetre, [](const LigneFenetrePapier &ligne, Controle &c) { c = ControleNeuf(ligne, kFenetrePapier); });
}

} // namespace velmaris
