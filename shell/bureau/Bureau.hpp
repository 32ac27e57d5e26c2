#pragma once

#include "chart/Polygones.hpp"
#include "chart/SourisCarte.hpp"
#include "ephemerides/Etoiles.hpp"
#include "ephemerides/ModulePosLune.hpp"
#include "foundations/Horloge.hpp"
#include "foundations/Messages.hpp"
#include "foundations/Patience.hpp"
#include "foundations/Surface.hpp"
#include "lines/DroiteMemoire.hpp"
#include "lines/Feuille.hpp"
#include "lines/FichierLoP.hpp"
#include "lines/Transport.hpp"
#include "shell/bureau/EtatRevocable.hpp"
#include "shell/bureau/Ports.hpp"
#include "shell/bureau/Verification.hpp"
#include "shell/bureau/complements/ExerciceOuvert.hpp"
#include "shell/bureau/complements/PapierOuvert.hpp"
#include "shell/bureau/complements/PlanOuvert.hpp"
#include "shell/bureau/complements/PointOuvert.hpp"
#include "shell/bureau/complements/RegistreOuvert.hpp"
#include "shell/bureau/complements/SerieOuverte.hpp"
#include "shell/fenetres/Apropos.hpp"
#include "shell/fenetres/Ciel.hpp"
#include "shell/fenetres/Donnees.hpp"
#include "shell/fenetres/Etat.hpp"
#include "shell/fenetres/FSelect.hpp"
#include "shell/fenetres/Impression.hpp"
#include "shell/fenetres/Utilisateur.hpp"
#include "shell/fenetres/complements/FenetreExercice.hpp"
#include "shell/fenetres/complements/FenetrePapier.hpp"
#include "shell/fenetres/complements/FenetrePoint.hpp"
#include "shell/fenetres/complements/FenetreSerie.hpp"
#include "shell/fenetres/complements/Fiche.hpp"
#include "shell/fenetres/complements/MotsPapier.hpp"
#include "shell/fenetres/complements/Preparation.hpp"
#include "shell/fenetres/complements/Registre.hpp"
#include "shell/fenetres/complements/TermesAlmanach.hpp"
#include "sights/Affichage.hpp"
#include "sights/Observation.hpp"
#include "sights/PositionDirecte.hpp"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

class Sauvegarde;
class Valeurs;
enum class EtatMagasin : std::uint8_t;

/// The screen that the program starts on.
struct Ecran {
  double largeur = 28800.0; ///< 1/1440 inch
  double hauteur = 16200.0; ///< 1/1440 inch
  int pixelsHaut = 1080;
  double echelle = 1.0; ///< pixels of the toolkit per 15/1440 inch
};

/// By what light the program is seen.
enum class Eclairage : std::uint8_t { Jour, Crepuscule, Nuit };

/// Percent of the scale that the screen gives, at first.
inline constexpr int kTailleAutomatique = 100;

/// Place and scales by which a chart is drawn.
struct LieuCarte {
  Origine origine;       ///< `kSansFeuille` for the whole world
  float EchelleX = 0.0F; ///< 0 for the whole world, which has scales of its own
  float EchelleY = 0.0F;
  bool operator==(const LieuCarte &) const = default;
};

/// What a file's outlines enclose, and by which file.
struct TerresLues {
  std::uintmax_t taille = 0; ///< of the file
  std::filesystem::file_time_type date;
  std::shared_ptr<const Anneaux> anneaux; ///< none before it was read
};

/// A module that has been put away, and where it stood.
struct ModuleRange {
  int numero = 0;
  Place place;
};

/// What the drawings of the chart share.
struct CarteOuverte {
  Polygone polygone;                        ///< the outlines of one file after the other
  bool fichierReste = false;                ///< a file was opened and not read to its end: no other can be opened
  std::vector<Tranche> dessins;             ///< the chart's drawings in the surface's list
  LieuCarte lieu;                           ///< by which the last of them was drawn
  std::uint64_t effacements = 0;            ///< of the surface when they were drawn
  std::map<std::string, TerresLues> terres; ///< by file name
};

/// The whole program: its windows and what they share. Event functions take it; nothing below the shell knows it.
struct Bureau {
  Bureau();
  ~Bureau();
  Bureau(const Bureau &) = delete;
  Bureau &operator=(const Bureau &) = delete;
  Bureau(Bureau &&) = delete;
  Bureau &operator=(Bureau &&) = delete;

  Donnees donnees;
  FSelect fselect;
  Impression impression;
  Utilisateur utilisateur;
  Ciel ciel;
  Apropos apropos;
  Etat etat;
  Fiche fiche;
  Registre registre;
  FenetrePoint fenetrePoint;
  Preparation preparation;
  FenetreSerie fenetreSerie;
  FenetreExercice fenetreExercice;
  FenetrePapier fenetrePapier;
  MotsPapier motsPapier;
  TermesAlmanach termesAlmanach;
  Ecran ecran;                           ///< that it has started on
  double largeurFenetre = 0.0;           ///< of the main window, 1/1440 inch
  double hauteurFenetre = 0.0;           ///< of the main window, 1/1440 inch
  std::string titre = "Velmaris 2009";   ///< of the main window
  const Controle *focus = nullptr;       ///< control that asks for the focus
  const Controle *champ = nullptr;       ///< field that the user has entered last
  const Controle *menu = nullptr;        ///< menu that asks to be opened
  const Controle *menuSous = nullptr;    ///< control that it opens under; null for the place of the last click
  Eclairage eclairage = Eclairage::Jour; ///< everything is painted for that light
  bool sombreAilleurs = false;           ///< the desktop is set to dark colours
  int taille = kTailleAutomatique;       ///< percent of the scale that the screen gives
  bool pleinEcran = false;               ///< the main window fills the whole screen
  bool pointeurOccupe = false;           ///< the pointer tells that the program works
  bool termine = false;                  ///< the exit sequence has run
  std::string_view premierPlan;          ///< name of the window that asks to come to the front
  bool horlogeArretee = false;           ///< the main window's clock stands still

  Surface image1; ///< the drawing surface of the main window
  Surface picAZ;  ///< the azimuth dial
  Surface picHE;  ///< the height dial

  TexteMsg messages;
  std::string FichierLangue = "\\FR.txt"; ///< current language file, with its leading backslash
  std::string TitreHorloge;               ///< local date and time, rebuilt at each tick
  std::string TitreFichier;               ///< last part of the window's title
  std::int16_t ModuleDeplace = 0;         ///< number of the module held by the mouse, 0 for none
  std::vector<ModuleRange> modulesRanges; ///< what F12 has put away last
  bool gardeDisposition = false;          ///< the modules' places are kept for the next start
  std::string aCopier;                    ///< what the menu of a module's results would copy
  std::int16_t QuitterRefuse = 0;         ///< -1 once the exit question was answered No

  ValeursVisee visee;
  AffichageDroite affichage;
  Feuille feuille;
  PointSolaire soleil;
  Lune lune;
  Etoiles etoiles;
  std::vector<bool> lignesLoin; ///< rows of the star table far from their stars, by row; empty before they are measured
  Horloge horloge;
  Transports transports;
  CarteOuverte carte;
  SourisCarte souris;
  TableLoP lignesLoP;                      ///< lines of the sight's file read last
  bool sansQuestion = false;               ///< lines are erased without asking for each, while all four are
  std::string NomAstre;                    ///< name of the body of the last reduced line
  std::optional<Observation> viseeReduite; ///< the sight whose results are shown
  Verification verification;               ///< of that sight
  PointOuvert point;                       ///< the fix in figures
  PlanOuvert plan;                         ///< the plan of a day
  SerieOuverte serie;                      ///< a run of readings, noon, the clock from the Moon
  ExerciceOuvert exercice;                 ///< the practice
  PapierOuvert papier;                     ///< pages to be printed
  Annulations annulations;                 ///< what can be undone and redone
  RegistreOuvert registreOuvert;           ///< all sights ever reduced

  Ports ports;
  Dossiers dossiers;
  std::unique_ptr<Valeurs> valeurs;          ///< the settings store
  std::unique_ptr<Sauvegarde> reprise;       ///< the recovery file; none where nothing is kept
  std::string sessionLaissee;                ///< what the program before has left in it, until that is taken up or not
  std::string sessionDepart;                 ///< the session while nothing has been done in it: there is none to keep
  bool recommence = false;                   ///< the program that ends is to be started again, with its session
  EtatMagasin magasinSignale{};              ///< the trouble that has been told, none at first
  bool attenteSignalee = false;              ///< that another program holds the store has been told
  bool journalSignale = false;               ///< that the journal can't be written has been told
  std::vector<std::string> journalEnAttente; ///< lines that another program has kept out of the journal, in their order
  Patience patienceJournal;                  ///< with that program
  bool retenueJournalSignalee = false;       ///< that it holds the journal has been told
  std::vector<CleValeur> reglagesDepart; ///< what a start took for the settings that it couldn't read, empty otherwise
};

/// The controls of one of the program's windows.
/// @param fenetre  the window's name
/// @return an empty list for an unknown window
ListeControles ControlesDe(Bureau &bureau, std::string_view fenetre);

/// The frames of the windows that live beside the main one; each is on show while it is visible.
std::vector<CadreFenetre *> FenetresLibres(Bureau &bureau);

/// The surface that a control of that kind shows.
/// @return null for another control
Surface *SurfaceDe(Bureau &bureau, const Controle &controle);

/// Where the drawings of the chart stand in the list of the main window's surface.
std::vector<Tranche> DessinsCarte(const Bureau &bureau);

/// A run-time error in the user's language: its number, and its meaning on a line of its own.
std::string MotsErreur(const Donnees &donnees, int numero);

/// A setting's text as a 16-bit integer, 0 for what isn't one.
int NombreRegle(const std::string &texte);

/// A setting of the program.
std::string LitReglage(const Bureau &bureau, std::string_view cle, std::string_view defaut = {});

/// Keeps a setting, unless the store holds that value already; tells the user once when the store can't.
void EcritReglage(Bureau &bureau, std::string_view cle, std::string_view valeur);

/// Tells the user that the store was damaged, can't be written or is held by another program, once each.
void SignaleMagasin(Bureau &bureau);

} // namespace velmaris
