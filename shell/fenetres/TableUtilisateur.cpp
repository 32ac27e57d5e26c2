#include "foundations/TexteNombre.hpp"
#include "shell/fenetres/Acces.hpp"
#include "shell/fenetres/Utilisateur.hpp"

namespace velmaris {
namespace {

using Fenetre = Utilisateur;

// One control a line.
// clang-format off
// NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays)
constexpr LigneUtilisateur kUtilisateur[] = {
    {SEUL(Label3), Genre::Etiquette, "", {150, 120, 3000, 240}, "Objets"},
    {SEUL(List1), Genre::ListeBoite, "", {150, 375, 3000, 5115}, "", "", {.par = "Label3"}},
    {SEUL(Label1), Genre::Etiquette, "", {3300, 120, 4650, 240}, "Nom"},
    {SEUL(Text4), Genre::Champ, "", {3300, 375, 4650, 330}, "", "L'objet porte ce nom sur la carte", {.par = "Label1"}},
    {SEUL(Label2), Genre::Etiquette, "", {3300, 855, 2400, 240}, "Rayon du cercle (Nm) "},
    {SEUL(Text3), Genre::Champ, "", {5730, 810, 600, 330}, "", "Entre  2  et  4", {.cote = Cote::Droite, .par = "Label2"}},
    {RANG(Option1, 0), Genre::Option, "", {3300, 1245, 2250, 270}, "Degrés Minutes", "", {.choisi = true, .groupe = 3}},
    {RANG(Option1, 1), Genre::Option, "", {5730, 1245, 2220, 270}, "Degrés Centièmes", "", {.groupe = 3}},
    {SEUL(Frame5), Genre::Groupe, "", {3300, 1605, 4650, 1230}, "Latitude:"},
    {SEUL(Text8), Genre::Champ, "Frame5", {150, 345, 600, 330}, "", "Latitude : 0 à 90 degrés", {.cote = Cote::Droite, .par = "TexteChamp", .parIndice = 0}},
    {SEUL(Label23), Genre::Etiquette, "Frame5", {780, 390, 150, 240}},
    {SEUL(Text9), Genre::Champ, "Frame5", {960, 345, 600, 330}, "", "Latitude : 0 à 60 minutes, ou centièmes de degré", {.cote = Cote::Droite, .par = "TexteChamp", .parIndice = 1}},
    {SEUL(Label11), Genre::Etiquette, "Frame5", {1590, 390, 150, 240}},
    {RANG(OptN, 0), Genre::Option, "Frame5", {2430, 375, 1050, 270}, "Nord", "", {.choisi = true, .groupe = 1}},
    {RANG(OptN, 1), Genre::Option, "Frame5", {3510, 375, 1050, 270}, "Sud", "", {.groupe = 1}},
    {SEUL(Frame6), Genre::Groupe, "", {3300, 2925, 4650, 1230}, "Longitude:"},
    {SEUL(Text6), Genre::Champ, "Frame6", {150, 345, 600, 330}, "", "Longitude : 0 à 180 degrés", {.cote = Cote::Droite, .par = "TexteChamp", .parIndice = 3}},
    {SEUL(Label25), Genre::Etiquette, "Frame6", {780, 390, 150, 240}},
    {SEUL(Text7), Genre::Champ, "Frame6", {960, 345, 600, 330}, "", "Longitude : 0 à 60 minutes, ou centièmes de degré", {.cote = Cote::Droite, .par = "TexteChamp", .parIndice = 4}},
    {SEUL(Label19), Genre::Etiquette, "Frame6", {1590, 390, 150, 240}},
    {RANG(OptE, 0), Genre::Option, "Frame6", {2430, 375, 1050, 270}, "Est", "", {.choisi = true, .groupe = 2}},
    {RANG(OptE, 1), Genre::Option, "Frame6", {3510, 375, 1050, 270}, "Ouest", "", {.groupe = 2}},
    {SEUL(Command1), Genre::Bouton, "", {3300, 4350, 1470, 405}, "Nouveau", "Ajoute l'objet à la fin de la liste"},
    {SEUL(Command3), Genre::Bouton, "", {4890, 4350, 1470, 405}, "Modifier", "Remplace l'objet choisi dans la liste"},
    {SEUL(Command4), Genre::Bouton, "", {6480, 4350, 1470, 405}, "Supprimer", "Supprime du fichier l'objet choisi dans la liste"},
    {SEUL(Command2), Genre::Bouton, "", {6480, 5085, 1470, 405}, "Fermer", "Enregistre et ferme", {.role = Role::Annule, .image = "ferme"}},
    // What the file holds of the entry selected, past the buttons on the keyboard's way.
    {SEUL(Label4), Genre::Etiquette, "Frame5", {150, 825, 2250, 240}, "Valeur enregistrée"},
    {SEUL(Text1), Genre::Champ, "Frame5", {2430, 780, 1200, 330}, "", "Latitude telle que le fichier la garde, en degrés", {.lectureSeule = true, .cote = Cote::Droite, .par = "TexteChamp", .parIndice = 2}},
    {SEUL(Label5), Genre::Etiquette, "Frame6", {150, 825, 2250, 240}, "Valeur enregistrée"},
    {SEUL(Text2), Genre::Champ, "Frame6", {2430, 780, 1200, 330}, "", "Longitude telle que le fichier la garde, en degrés", {.lectureSeule = true, .cote = Cote::Droite, .par = "TexteChamp", .parIndice = 5}},
    {RANG(TexteChamp, 0), Genre::Texte, "", {}, "Latitude, degrés"},
    {RANG(TexteChamp, 1), Genre::Texte, "", {}, "Latitude, minutes ou centièmes"},
    {RANG(TexteChamp, 2), Genre::Texte, "", {}, "Latitude, valeur enregistrée"},
    {RANG(TexteChamp, 3), Genre::Texte, "", {}, "Longitude, degrés"},
    {RANG(TexteChamp, 4), Genre::Texte, "", {}, "Longitude, minutes ou centièmes"},
    {RANG(TexteChamp, 5), Genre::Texte, "", {}, "Longitude, valeur enregistrée"},
    {SEUL(TexteLigne), Genre::Texte, "", {}, "Ligne"},
    {SEUL(TexteDeCote), Genre::Texte, "", {}, "Ce qui n'a pas été lu n'est pas perdu : avant d'être remplacé, le fichier est mis de côté sous le nom Utilisateur.ancien.txt."},
    {SEUL(TexteAutreMain), Genre::Texte, "", {}, "Le fichier des objets a été changé par un autre programme ou à la main depuis sa lecture. Ce qu'il contenait n'est pas perdu, mais mis de côté ici :"},
    {SEUL(TexteNonEcrit), Genre::Texte, "", {}, "La liste des objets n'a pas pu être écrite. L'ancien fichier est resté entier :"},
    {SEUL(TexteRienPerdu), Genre::Texte, "", {}, "Rien n'est perdu : l'objet reste dans la liste."},
    {SEUL(TexteFermer), Genre::Texte, "", {}, "Fermer quand même ? Ce qui a changé depuis l'ouverture de cette fenêtre serait perdu."},
};
// clang-format on

} // namespace

std::span<const LigneUtilisateur> TableUtilisateur() { return kUtilisateur; }

void InitialiseUtilisateur(Utilisateur &fenetre) {
  PourChaque(fenetre, [](const LigneUtilisateur &ligne, Controle &c) { c = ControleNeuf(ligne, kFenetreUtilisateur); });
  fenetre.Command3.actif = false; // nothing is selected
  fenetre.tables.clear();
  fenetre.etiquetteCommand1 = "0";
  fenetre.etiquetteCommand3.clear();
  fenetre.Precision = 60;
  fenetre.Modifie = 0;
  fenetre.fidele = true;
  fenetre.octetsLus.reset();
}

std::size_t CompteObjets(const Utilisateur &fenetre) {
  return static_cast<std::size_t>(Val(fenetre.etiquetteCommand1));
}

} // namespace velmaris
