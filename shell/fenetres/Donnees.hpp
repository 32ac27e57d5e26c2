#pragma once

#include "foundations/Erreur.hpp"
#include "shell/fenetres/Controles.hpp"

#include <array>
#include <span>
#include <string_view>

namespace velmaris {

/// The main window: its controls under their own names.
struct Donnees {
  // The toolbar and what lies on the drawing surface.
  Controle Image1, LabLat, LabLon, LabC, Soleil, Label62, Frame3, Command3;
  std::array<Controle, 15> Label50;
  Controle Command4, FlecheOuvre, Command11, Label32, HScroll1, Command12, Command14, Label61, Command6, Command8,
      Label60;
  Controle Command23, Command20, Label59, Command7, Command21, Command22, Command9, Command13, Command5;
  Controle Sortie;
  std::array<Controle, 2> Image10;
  Controle FrameComplements, LabComplements;
  std::array<Controle, 7> Complement, LegendeComplement; ///< check, log, fix, plan, run, practice, paper

  // The menu of the drawing surface.
  Controle PopUp, PU_Carte, PU_Centre, PU_Distance, PU_Coord, PU_Modules, PU_DM, PU_D, PU_S, PU_C, PU_E, PU_Caps;
  Controle PU_Clear, PU_Exit, PU_Apropos, PU_Nuit, PU_Crepuscule, PU_Terres, PU_Bouts, PU_Secours, PU_Quitter;
  Controle PU_Taille, PU_TaillePlus, PU_TailleMoins, PU_TailleAuto, PU_PleinEcran, PU_Annule, PU_Retablit;
  Controle PU_Complements, PU_Fiche, PU_Registre, PU_Point, PU_Preparation, PU_Serie, PU_Exercice, PU_Papier;
  Controle PU_PointTrace, PU_Sillage;
  Controle PU_Ranger, PU_Disposition, PU_Copier, PU_CopieImage, PU_CopiePoint, PU_Image;
  std::array<Controle, 7> PU_Trait;

  // The menu of what a module has worked out, and that of the last sights.
  Controle MenuCopie, MC_Copier, Recentes;
  std::array<Controle, 8> Recente;
  Controle TexteSansRecente, TexteImage, TexteImageForme;

  // Module 7, "Données": the sight.
  Controle Frame7, Label63, Image6;
  std::array<Controle, 4> Option7;
  std::array<Controle, 4> ImAstre;
  Controle Combo7, Combo6, Combo8, Check3, Bayer1, Bayer2, Label1, Label2, Label3;
  std::array<Controle, 3> TDate;
  Controle Label4, Text3, Label5, Text4, Label6, Text5, Label7, Command1, Label8, Text8, Label10, Text9;
  Controle Label11;
  std::array<Controle, 6> OptN;
  Controle Label12, Text6, Label13, Text7, Label16;
  std::array<Controle, 6> OptE;
  Controle Frame17, Label14, Text13, Label19, Text12, Label9, Label69, Text25, Label68;
  std::array<Controle, 2> Option4;
  std::array<Controle, 3> Option6;
  std::array<Controle, 2> Option5;
  Controle Frame6, Label21, Text11, Label22, Text10, Command2, Command26, Label18, Affichage_Intercept;
  Controle Label20, Affichage_Azimuth, Label72;
  std::array<Controle, 2> LabControle; ///< the check: its figures, its grade

  // Module 3: the eight detail lines of a sight.
  Controle Frame9, Image9;
  std::array<Controle, 8> Label70;

  // Module 8, "Position du Soleil": azimuth and height on two dials.
  Controle Frame8, Label64, Image8, PicAZ, PicHE, Label23, Label35, Label24, Label36;

  // Module 9, "Carte:": what the chart shows.
  Controle FOptionCarte, Label51, Image7;
  std::array<Controle, 2> OpCarte;
  Controle Check2;
  std::array<Controle, 4> Check1;
  Controle Command17, Command16, Command18, Command24, Command25;

  // Module 1, " Distance  et  Route": legs measured on the chart.
  Controle Frame1, Label25, Image4, List1, Label26, Label56, Label27, Label17, Label28, Label15, Command19;

  // Module 10, "Droites  multiples :": the four stored lines.
  Controle Frame10, Label65, Image2;
  std::array<Controle, 4> Droite;
  std::array<Controle, 4> LHeure;
  std::array<Controle, 4> Ldate;
  std::array<Controle, 7> Option1;
  Controle Combo5;

  // Module 4, "Estime": dead reckoning.
  Controle Frame4, Label67, Image5, Label29, Text1, Label30, Label31, Text2, Label33, Label34, Text15, Label37;
  Controle Command15, Label38, Combo1, Label39, Combo2, Label40, Combo3, Label41, Combo4, Label42, LabLatEst;
  Controle LabLonEst;

  // Module 2, "Caps et distances": course and distance between two places.
  Controle Frame2, Label66, Image3, Option2, Label43, Text14, Label44, Text16, Label45, Label46, Text17;
  Controle Label47, Text18, Label48, Option3, Label49, Text20, Label52, Text19, Label53, Label54, Text22;
  Controle Label55, Text21, Label57, Command10, Label58, Text24, Label71, Label73, Text23, Label74;

  std::array<Controle, 48> Nom; ///< what a screen reader calls other controls

  // Words that no control shows: boxes and tool tips.
  Controle TexteAdresse, TexteCopier, TexteSansAide, TexteOui, TexteNon, TexteOk, TexteErreur, TexteSecours,
      TexteMagasinAbime;
  Controle TexteMagasinMuet, TexteSansSecours, TexteAttention, TexteTitreErreur, TexteTempsRoute, TexteSauve;
  Controle TexteCharge, TexteNonEcrit, TexteNonLu, TexteJournalMuet, TexteSansAstre;
  Controle TexteMagasinRetenu, TexteJournalRetenu;
  std::array<Controle, kErreursNommees.size()> TexteSens; ///< meaning of each run-time error
  std::array<Controle, 2> TexteVide;                      ///< after a field's name: a planet needs it, a star needs it
  std::array<Controle, 4> TexteDefaut; ///< after a field's name: what is wrong with it, in the order of `Defaut`
  Controle TexteSansDate, TexteDeuxPoints;
  Controle TexteRecommencer, TexteTitreReprise, TexteReprise;
};

/// Name of the main window, in language files and among the windows.
inline constexpr std::string_view kFenetreDonnees = "Données";

/// One control of the main window in its table.
using LigneDonnees = LigneDe<Donnees>;

/// The table of the main window's controls, each named once, in the order of the keyboard. It comes in pieces, by what
/// the user is doing. Widgets, language files and tests are made from it.
std::span<const std::span<const LigneDonnees>> TableDonnees();

/// The pieces of the table.
std::span<const LigneDonnees> TableBarre();
std::span<const LigneDonnees> TableMenu();
std::span<const LigneDonnees> TableVisee();
std::span<const LigneDonnees> TableModules();
std::span<const LigneDonnees> TableDroites();
std::span<const LigneDonnees> TableNoms();

/// Fills the record with its controls as the table has them.
void InitialiseDonnees(Donnees &donnees);

/// Runs over all controls of the main window in the order of the table.
template <class Fonction> void PourChaque(Donnees &donnees, Fonction &&fonction) {
  for (const auto &morceau : TableDonnees()) {
    for (const LigneDonnees &ligne : morceau) {
      fonction(ligne, ligne.acces(donnees));
    }
  }
}

/// A control by its name and index.
/// @return null when the window has none of that name
Controle *Cherche(Donnees &donnees, std::string_view nom, int indice = -1);

} // namespace velmaris
