/// The program's table of events: which function answers which event of which control. The one place of the core that
/// knows all rooms of the shell.

#include "foundations/TexteNombre.hpp"
#include "shell/Aide.hpp"
#include "shell/Demarrage.hpp"
#include "shell/Sortie.hpp"
#include "shell/bureau/Evenements.hpp"
#include "shell/carte/Carte.hpp"
#include "shell/carte/Objets.hpp"
#include "shell/carte/Souris.hpp"
#include "shell/ciel/EcranCiel.hpp"
#include "shell/ciel/SourisCiel.hpp"
#include "shell/complements/Verification.hpp"
#include "shell/droites/Bouts.hpp"
#include "shell/droites/Droites.hpp"
#include "shell/droites/FichierVisee.hpp"
#include "shell/droites/ModesDroite.hpp"
#include "shell/droites/Recentes.hpp"
#include "shell/droites/Retour.hpp"
#include "shell/droites/Route.hpp"
#include "shell/ecran/ChoixFichier.hpp"
#include "shell/ecran/Copie.hpp"
#include "shell/ecran/Echelle.hpp"
#include "shell/ecran/Eclairage.hpp"
#include "shell/ecran/Modules.hpp"
#include "shell/ecran/PageImprimee.hpp"
#include "shell/ecran/Presentation.hpp"
#include "shell/ecran/Rangement.hpp"
#include "shell/exercice/EvenementsExercice.hpp"
#include "shell/papier/Papier.hpp"
#include "shell/point/Point.hpp"
#include "shell/preparation/Preparation.hpp"
#include "shell/registre/FichiersRegistre.hpp"
#include "shell/registre/Registre.hpp"
#include "shell/serie/Serie.hpp"
#include "shell/visee/Annulation.hpp"
#include "shell/visee/Astres.hpp"
#include "shell/visee/Saisie.hpp"

#include <algorithm>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace velmaris {
namespace {

using Fonction = void (*)(Bureau &, int);

/// What a gesture is called when it is undone.
/// @{
std::string NomTop(const Bureau &bureau, int /*indice*/) { return bureau.donnees.Command1.legende; }
std::string NomEstimee(const Bureau &bureau, int /*indice*/) { return bureau.donnees.Label42.legende; }
template <std::size_t Bouton> std::string NomBouton(const Bureau &bureau, int /*indice*/) {
  return std::string(SansBlancs(bureau.donnees.Label50[Bouton].legende));
}
std::string NomDroite(const Bureau &bureau, int ligne) {
  const Donnees &d = bureau.donnees;
  const auto *const mode =
      std::find_if(d.Option1.begin(), d.Option1.end(), [](const Controle &option) { return option.choisi; });
  const bool caps = d.Frame2.visible || mode == d.Option1.end();
  return (caps ? d.Label66 : *mode).legende + ", " + d.Droite.at(static_cast<std::size_t>(ligne)).legende;
}
/// @}

/// An event that undo takes back.
template <std::string (*Nom)(const Bureau &, int), Fonction Geste> void Revocable(Bureau &bureau, int indice) {
  RetientGeste(bureau, Nom(bureau, indice), [&] { Geste(bureau, indice); });
}

/// "Ecran": the sheet is cleared, and the fix is put away.
void EffaceEcran(Bureau &bureau, int indice) {
  Command6_Click(bureau, indice);
  RetirePoint(bureau);
}

constexpr std::size_t kOuvre = 1; ///< captions of the toolbar
constexpr std::size_t kEcran = 4;
constexpr std::size_t kMemoire = 5;
constexpr std::size_t kAstres = 12;

/// One function an event; the index is that of the control in its group.
struct Abonnement {
  std::string_view nom;
  Evenement evenement;
  Fonction fonction;
};

// NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays)
constexpr Abonnement kFSelect[] = {
    {"FName", Evenement::Change, FName_Change},       {"File1", Evenement::Clic, File1_Click},
    {"File1", Evenement::DoubleClic, File1_DblClick}, {"File1", Evenement::Entre, File1_Entre},
    {"Dir1", Evenement::DoubleClic, Dir1_DblClick},   {"Dir1", Evenement::Valide, Dir1_Valide},
    {"Drive1", Evenement::Clic, Drive1_Click},        {"OK", Evenement::Clic, OK_Click},
    {"Quitter", Evenement::Clic, Quitter_Click},      {"Command1", Evenement::Clic, Supprime_Click},
};

// NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays)
constexpr Abonnement kUtilisateur[] = {
    {"List1", Evenement::Clic, objets::List1_Click},       {"Text3", Evenement::Change, objets::Champ_Change},
    {"Text4", Evenement::Change, objets::Champ_Change},    {"Text6", Evenement::Change, objets::Champ_Change},
    {"Text7", Evenement::Change, objets::Champ_Change},    {"Text8", Evenement::Change, objets::Champ_Change},
    {"Text9", Evenement::Change, objets::Champ_Change},    {"OptN", Evenement::Clic, objets::Champ_Change},
    {"OptE", Evenement::Clic, objets::Champ_Change},       {"Option1", Evenement::Clic, objets::Option1_Click},
    {"Command1", Evenement::Clic, objets::Command1_Click}, {"Command2", Evenement::Clic, objets::Command2_Click},
    {"Command3", Evenement::Clic, objets::Command3_Click}, {"Command4", Evenement::Clic, objets::Command4_Click},
};

// NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays)
constexpr Abonnement kCiel[] = {
    {"HScroll1", Evenement::Change, ciel::HScroll1_Change},
    {"Check2", Evenement::Clic, ciel::Check2_Click},
    {"Command1", Evenement::Clic, ciel::Command1_Click},
    {"Command4", Evenement::Clic, ciel::Command4_Click},
    {"Option1", Evenement::Clic, ciel::Option1_Click},
    {"Recule", Evenement::Clic, ciel::Recule_Click},
    {"Avance", Evenement::Clic, ciel::Avance_Click},
    {"List1", Evenement::Clic, ciel::List1_Click},
    {"SOL", Evenement::Clic, Revocable<NomBouton<kAstres>, ciel::SOL_Click>},
    {"Lune", Evenement::Clic, Revocable<NomBouton<kAstres>, ciel::Lune_Click>},
    {"LaP", Evenement::Clic, Revocable<NomBouton<kAstres>, ciel::LaP_Click>},
    {"Laet", Evenement::Clic, Revocable<NomBouton<kAstres>, ciel::Laet_Click>},
};

// NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays)
constexpr Abonnement kImpression[] = {
    {"Image1", Evenement::Clic, impression::Image1_Click},
    {"Command1", Evenement::Clic, impression::Command1_Click},
};

// NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays)
constexpr Abonnement kApropos[] = {
    {"Image1", Evenement::Survol, apropos::Image1_MouseMove}, {"Label3", Evenement::Clic, apropos::Label3_Click},
    {"Label4", Evenement::Clic, apropos::Label4_Click},       {"Label5", Evenement::Clic, apropos::Label5_Click},
    {"Command1", Evenement::Clic, apropos::Command1_Click},
};

// NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays)
constexpr Abonnement kPoint[] = {
    {"Text1", Evenement::Change, point::Champ_Change},    {"Text2", Evenement::Change, point::Text2_Change},
    {"Text4", Evenement::Change, point::Champ_Change},    {"Text5", Evenement::Change, point::Champ_Change},
    {"Visees", Evenement::Coche, point::Visees_Coche},    {"Visees", Evenement::Clic, point::Visees_Click},
    {"Jambes", Evenement::Clic, point::Jambes_Click},     {"Check1", Evenement::Clic, point::Case_Click},
    {"Check2", Evenement::Clic, point::Case_Click},       {"Check3", Evenement::Clic, point::Check3_Click},
    {"Check4", Evenement::Clic, point::Check4_Click},     {"Command1", Evenement::Clic, point::Command1_Click},
    {"Command2", Evenement::Clic, point::Command2_Click}, {"Command3", Evenement::Clic, point::Command3_Click},
    {"Text3", Evenement::Valide, point::Text3_Valide},
};

// NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays)
constexpr Abonnement kFiche[] = {
    {"Text1", Evenement::Change, fiche::Text1_Change},
    {"Command1", Evenement::Clic, fiche::Command1_Click},
    {"Command2", Evenement::Clic, fiche::Command2_Click},
};

// NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays)
constexpr Abonnement kRegistre[] = {
    {"Text1", Evenement::Change, registre::Text1_Change},    {"Check1", Evenement::Clic, registre::Check1_Click},
    {"Table1", Evenement::Clic, registre::Table1_Click},     {"Table1", Evenement::Coche, registre::Table1_Coche},
    {"Table1", Evenement::Valide, registre::Command1_Click}, {"Text2", Evenement::Quitte, registre::Text2_Quitte},
    {"Text2", Evenement::Valide, registre::Text2_Quitte},    {"Command1", Evenement::Clic, registre::Command1_Click},
    {"Command2", Evenement::Clic, registre::Command2_Click}, {"Command3", Evenement::Clic, registre::Command3_Click},
    {"Command4", Evenement::Clic, registre::Command4_Click}, {"Command5", Evenement::Clic, registre::Command5_Click},
    {"Command6", Evenement::Clic, registre::Command6_Click}, {"Command7", Evenement::Clic, registre::Command7_Click},
    {"Command8", Evenement::Clic, registre::Command8_Click}, {"Text3", Evenement::Change, registre::Text3_Change},
    {"Text3", Evenement::Valide, registre::Command8_Click},
};

// NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays)
constexpr Abonnement kPreparation[] = {
    {"Text1", Evenement::Change, preparation::Champ_Change},
    {"Text2", Evenement::Change, preparation::Champ_Change},
    {"Text3", Evenement::Change, preparation::Champ_Change},
    {"Command1", Evenement::Clic, preparation::Command1_Click},
    {"Onglets1", Evenement::Clic, preparation::Onglets1_Click},
    {"HScroll1", Evenement::Change, preparation::HScroll1_Change},
    {"Pas", Evenement::Clic, preparation::Pas_Click},
    {"Check1", Evenement::Clic, preparation::Case_Click},
    {"Check2", Evenement::Clic, preparation::Case_Click},
    {"Carte", Evenement::Presse, preparation::Carte_Presse},
    {"Astres", Evenement::Clic, preparation::Astres_Click},
    {"Astres", Evenement::Valide, preparation::Prend_Click},
    {"Prend", Evenement::Clic, preparation::Prend_Click},
    {"Jeux", Evenement::Clic, preparation::Jeux_Click},
    {"Mieux", Evenement::Clic, preparation::Mieux_Click},
    {"Text4", Evenement::Change, preparation::Compas_Change},
    {"Combo1", Evenement::Clic, preparation::Compas_Change},
    {"Text5", Evenement::Change, preparation::Inconnu_Change},
    {"Inconnus", Evenement::Valide, preparation::Inconnus_Valide},
    {"Command2", Evenement::Clic, preparation::Command2_Click},
};

// NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays)
constexpr Abonnement kSerie[] = {
    {"Text1", Evenement::Change, serie::Champ_Change},
    {"Text2", Evenement::Change, serie::Champ_Change},
    {"Text3", Evenement::Change, serie::Champ_Change},
    {"Text6", Evenement::Change, serie::Champ_Change},
    {"Combo1", Evenement::Clic, serie::Combo1_Click},
    {"Combo2", Evenement::Clic, serie::Champ_Change},
    {"Check1", Evenement::Clic, serie::Check1_Click},
    {"Command1", Evenement::Clic, serie::Command1_Click},
    {"Onglets1", Evenement::Clic, serie::Onglets1_Click},
    {"Lectures", Evenement::Clic, serie::Lectures_Click},
    {"Lectures", Evenement::Coche, serie::Lectures_Coche},
    {"Text4", Evenement::Valide, serie::Text4_Valide},
    {"Command3", Evenement::Clic, serie::Command3_Click},
    {"Marque", Evenement::Clic, serie::Marque_Click},
    {"Prend", Evenement::Clic, serie::Prend_Click},
    {"PrendMidi", Evenement::Clic, serie::PrendMidi_Click},
    {"Distances", Evenement::Clic, serie::Distances_Click},
    {"Distances", Evenement::Coche, serie::Distances_Coche},
    {"Candidats", Evenement::Valide, serie::Candidats_Valide},
    {"Combo3", Evenement::Clic, serie::Combo3_Click},
    {"Text5", Evenement::Valide, serie::Text5_Valide},
    {"Command4", Evenement::Clic, serie::Command4_Click},
    {"PrendLune", Evenement::Clic, serie::PrendLune_Click},
    {"Command2", Evenement::Clic, serie::Command2_Click},
};

// NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays)
constexpr Abonnement kExercice[] = {
    {"Combo1", Evenement::Clic, exercice::Combo1_Click},     {"Text1", Evenement::Change, exercice::Champ_Change},
    {"Combo2", Evenement::Clic, exercice::Champ_Change},     {"Text2", Evenement::Change, exercice::Champ_Change},
    {"Command1", Evenement::Clic, exercice::Command1_Click}, {"Visees", Evenement::Clic, exercice::Visees_Click},
    {"Visees", Evenement::Valide, exercice::Prend_Click},    {"Prend", Evenement::Clic, exercice::Prend_Click},
    {"Text3", Evenement::Change, exercice::Point_Change},    {"Text3", Evenement::Valide, exercice::Corrige_Click},
    {"Corrige", Evenement::Clic, exercice::Corrige_Click},   {"Ferme", Evenement::Clic, exercice::Ferme_Click},
};

// NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays)
constexpr Abonnement kPapier[] = {
    {"Onglets1", Evenement::Clic, papier::Onglets1_Click}, {"Text1", Evenement::Change, papier::Text1_Change},
    {"Text1", Evenement::Valide, papier::Text1_Valide},    {"Combo2", Evenement::Clic, papier::Text1_Change},
    {"Check1", Evenement::Clic, papier::Text1_Change},     {"Command1", Evenement::Clic, papier::Command1_Click},
    {"Option1", Evenement::Clic, papier::Champ_Change},    {"Check2", Evenement::Clic, papier::Champ_Change},
    {"Text2", Evenement::Change, papier::Champ_Change},    {"Text3", Evenement::Change, papier::Champ_Change},
    {"Combo1", Evenement::Clic, papier::Champ_Change},     {"Page", Evenement::Clic, papier::Page_Click},
    {"Command2", Evenement::Clic, papier::Command2_Click},
};

// NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays)
constexpr Abonnement kDonnees[] = {
    {"TDate", Evenement::Quitte, TDate_Quitte},
    {"TDate", Evenement::Change, TDate_Change},
    {"Text3", Evenement::Quitte, Text3_Quitte},
    {"Text4", Evenement::Quitte, QuitteMinutes<&Donnees::Text4>},
    {"Text5", Evenement::Quitte, QuitteMinutes<&Donnees::Text5>},
    {"Text6", Evenement::Quitte, QuitteDegres<&Donnees::Text6>},
    {"Text7", Evenement::Quitte, QuitteMinutes<&Donnees::Text7>},
    {"Text8", Evenement::Quitte, QuitteDegres<&Donnees::Text8>},
    {"Text9", Evenement::Quitte, QuitteMinutes<&Donnees::Text9>},
    {"Text10", Evenement::Quitte, Text10_Quitte},
    {"Text11", Evenement::Quitte, Text11_Quitte},
    {"Text12", Evenement::Quitte, QuitteMinutes<&Donnees::Text12>},
    {"Text13", Evenement::Quitte, Text13_Quitte},
    {"Text25", Evenement::Change, Text25_Change},
    {"Option4", Evenement::Clic, Option4_Click},
    {"Option5", Evenement::Relache, Option5_Relache},
    {"Option7", Evenement::Relache, SelAstre},
    {"Check3", Evenement::Clic, Check3_Click},
    {"Combo6", Evenement::Clic, Combo6_Click},
    {"Combo7", Evenement::Clic, Combo7_Click},
    {"Combo8", Evenement::Clic, Combo8_Click},
    {"Command1", Evenement::Clic, Revocable<NomTop, Command1_Click>},
    {"Command2", Evenement::Clic, Command2_Click},
    {"Command26", Evenement::Clic, Command26_Click},
    {"LabControle", Evenement::Clic, OuvreFiche_Click},
    {"PU_Fiche", Evenement::Clic, OuvreFiche_Click},
    {"PU_Registre", Evenement::Clic, OuvreRegistre_Click},
    {"PU_Point", Evenement::Clic, OuvrePoint_Click},
    {"PU_Preparation", Evenement::Clic, OuvrePreparation_Click},
    {"PU_Serie", Evenement::Clic, OuvreSerie_Click},
    {"PU_Exercice", Evenement::Clic, OuvreExercice_Click},
    {"PU_Papier", Evenement::Clic, OuvrePapier_Click},
    {"PU_PointTrace", Evenement::Clic, PU_PointTrace_Click},
    {"PU_Sillage", Evenement::Clic, PU_Sillage_Click},
    {"Command3", Evenement::Clic, Command3_Click},
    {"Command4", Evenement::Clic, Revocable<NomBouton<kOuvre>, Command4_Click>},
    {"Command4", Evenement::ClicLong, OuvreRecentes},
    {"FlecheOuvre", Evenement::Clic, OuvreRecentes},
    {"Recente", Evenement::Clic, Recente_Click},
    {"Command5", Evenement::Clic, Command5_Click},
    {"Command6", Evenement::Clic, Revocable<NomBouton<kEcran>, EffaceEcran>},
    {"Command8", Evenement::Clic, Revocable<NomBouton<kMemoire>, Command8_Click>},
    {"Droite", Evenement::Clic, Revocable<NomDroite, Droite_Click>},
    {"Option1", Evenement::Clic, Option1_Click},
    {"Text2", Evenement::Entre, Text2_Entre},
    {"Text2", Evenement::Change, CalculEstime},
    {"Text15", Evenement::Entre, Text15_Entre},
    {"Text15", Evenement::Change, CalculEstime},
    {"Command15", Evenement::Clic, CalculEstime},
    {"LabLatEst", Evenement::Clic, Revocable<NomEstimee, PositionEstimee_Click>},
    {"LabLonEst", Evenement::Clic, Revocable<NomEstimee, PositionEstimee_Click>},
    {"Command10", Evenement::Clic, Command10_Click},
    {"Command11", Evenement::Clic, Command11_Click},
    {"Command12", Evenement::Clic, Grille_Click},
    {"Command14", Evenement::Clic, Grille_Click},
    {"HScroll1", Evenement::Change, HScroll1_Change},
    {"Command23", Evenement::Clic, Command23_Click},
    {"Command18", Evenement::Clic, Command18_Click},
    {"Command20", Evenement::Clic, Command20_Click},
    {"Command7", Evenement::Clic, Command7_Click},
    {"Command21", Evenement::Clic, Command21_Click},
    {"Command22", Evenement::Clic, Command22_Click},
    {"Command9", Evenement::Clic, Command9_Click},
    {"Command13", Evenement::Clic, Command13_Click},
    {"Sortie", Evenement::Clic, Sortie_Click},
    {"Image10", Evenement::Clic, Image10_Click},
    {"Complement", Evenement::Clic, Complement_Click},
    {"OpCarte", Evenement::Clic, OpCarte_Click},
    {"Image2", Evenement::Clic, FermeModule<10>},
    {"Image3", Evenement::Clic, FermeModule<2>},
    {"Image4", Evenement::Clic, FermeModule<1>},
    {"Image5", Evenement::Clic, FermeModule<4>},
    {"Image6", Evenement::Clic, FermeModule<7>},
    {"Image7", Evenement::Clic, FermeModule<9>},
    {"Image8", Evenement::Clic, FermeModule<8>},
    {"Image9", Evenement::Clic, FermeModule<3>},
    {"Frame1", Evenement::Clic, SaisitModule<1>},
    {"Frame2", Evenement::Clic, SaisitModule<2>},
    {"Frame9", Evenement::Clic, SaisitModule<3>},
    {"Label70", Evenement::Clic, SaisitModule<3>},
    {"Frame4", Evenement::Clic, SaisitModule<4>},
    {"Frame7", Evenement::Clic, SaisitModule<7>},
    {"Frame8", Evenement::Clic, SaisitModule<8>},
    {"PicAZ", Evenement::Clic, SaisitModule<8>},
    {"PicHE", Evenement::Clic, SaisitModule<8>},
    {"FOptionCarte", Evenement::Clic, SaisitModule<9>},
    {"Frame10", Evenement::Clic, SaisitModule<10>},
    {"Command17", Evenement::Clic, Command17_Click},
    {"Command16", Evenement::Clic, Command16_Click},
    {"Command24", Evenement::Clic, PU_Distance_Click},
    {"Command25", Evenement::Clic, PU_Coord_Click},
    {"Command19", Evenement::Clic, Command19_Click},
    {"PU_Carte", Evenement::Clic, Command17_Click},
    {"PU_Centre", Evenement::Clic, PU_Centre_Click},
    {"PU_Distance", Evenement::Clic, PU_Distance_Click},
    {"PU_Coord", Evenement::Clic, PU_Coord_Click},
    {"PU_DM", Evenement::Clic, Command23_Click},
    {"PU_D", Evenement::Clic, Command20_Click},
    {"PU_S", Evenement::Clic, Command7_Click},
    {"PU_C", Evenement::Clic, Command21_Click},
    {"PU_E", Evenement::Clic, Command22_Click},
    {"PU_Caps", Evenement::Clic, Command9_Click},
    {"PU_Ranger", Evenement::Clic, PU_Ranger_Click},
    {"PU_Disposition", Evenement::Clic, PU_Disposition_Click},
    {"PU_CopieImage", Evenement::Clic, PU_CopieImage_Click},
    {"PU_CopiePoint", Evenement::Clic, PU_CopiePoint_Click},
    {"PU_Image", Evenement::Clic, PU_Image_Click},
    {"MC_Copier", Evenement::Clic, MC_Copier_Click},
    {"PU_Clear", Evenement::Clic, PU_Clear_Click},
    {"PU_Apropos", Evenement::Clic, PU_Apropos_Click},
    {"PU_Terres", Evenement::Clic, PU_Terres_Click},
    {"PU_Bouts", Evenement::Clic, PU_Bouts_Click},
    {"PU_Crepuscule", Evenement::Clic, PU_Crepuscule_Click},
    {"PU_Nuit", Evenement::Clic, PU_Nuit_Click},
    {"PU_TailleAuto", Evenement::Clic, PU_TailleAuto_Click},
    {"PU_TailleMoins", Evenement::Clic, PU_TailleMoins_Click},
    {"PU_TaillePlus", Evenement::Clic, PU_TaillePlus_Click},
    {"PU_PleinEcran", Evenement::Clic, PU_PleinEcran_Click},
    {"PU_Annule", Evenement::Clic, PU_Annule_Click},
    {"PU_Retablit", Evenement::Clic, PU_Retablit_Click},
    {"PU_Secours", Evenement::Clic, PU_Secours_Click},
    {"PU_Quitter", Evenement::Clic, Sortie_Click},
};

std::span<const Abonnement> AbonnementsDe(std::string_view fenetre) {
  if (fenetre == kFenetreDonnees) {
    return kDonnees;
  }
  if (fenetre == kFenetreUtilisateur) {
    return kUtilisateur;
  }
  if (fenetre == kFenetreCiel) {
    return kCiel;
  }
  if (fenetre == kFenetreImpression) {
    return kImpression;
  }
  if (fenetre == kFenetreApropos) {
    return kApropos;
  }
  if (fenetre == kFenetrePoint) {
    return kPoint;
  }
  if (fenetre == kFenetreFiche) {
    return kFiche;
  }
  if (fenetre == kFenetreRegistre) {
    return kRegistre;
  }
  if (fenetre == kFenetrePreparation) {
    return kPreparation;
  }
  if (fenetre == kFenetreSerie) {
    return kSerie;
  }
  if (fenetre == kFenetreExercice) {
    return kExercice;
  }
  if (fenetre == kFenetrePapier) {
    return kPapier;
  }
  return fenetre == kFenetreFSelect ? std::span<const Abonnement>(kFSelect) : std::span<const Abonnement>();
}

/// @return null when nothing happens at that event
const Abonnement *Trouve(const Controle &controle, Evenement evenement) {
  for (const Abonnement &a : AbonnementsDe(controle.fenetre)) {
    if (a.evenement == evenement && a.nom == controle.nom) {
      return &a;
    }
  }
  return nullptr;
}

} // namespace

bool Ecoute(const Controle &controle, Evenement evenement) { return Trouve(controle, evenement) != nullptr; }

void Declenche(Bureau &bureau, Controle &controle, Evenement evenement) {
  if (const Abonnement *a = Trouve(controle, evenement)) {
    a->fonction(bureau, controle.indice);
  }
}

void ActiveFenetre(Bureau &bureau, std::string_view fenetre) {
  if (fenetre == kFenetreFSelect) {
    FSelect_Activate(bureau);
  } else if (fenetre == kFenetreImpression) {
    Impression_Activate(bureau);
  }
}

} // namespace velmaris
