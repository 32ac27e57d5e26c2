#include "shell/Demarrage.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/Fichiers.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/Aide.hpp"
#include "shell/Sortie.hpp"
#include "shell/bureau/Avis.hpp"
#include "shell/bureau/Evenements.hpp"
#include "shell/bureau/Langage.hpp"
#include "shell/bureau/Valeurs.hpp"
#include "shell/carte/Carte.hpp"
#include "shell/carte/Souris.hpp"
#include "shell/ciel/EcranCiel.hpp"
#include "shell/complements/Verification.hpp"
#include "shell/droites/Bouts.hpp"
#include "shell/droites/Droites.hpp"
#include "shell/droites/MemoireDroites.hpp"
#include "shell/droites/ModesDroite.hpp"
#include "shell/droites/Retour.hpp"
#include "shell/ecran/Copie.hpp"
#include "shell/ecran/Disposition.hpp"
#include "shell/ecran/Echelle.hpp"
#include "shell/ecran/Eclairage.hpp"
#include "shell/ecran/Rangement.hpp"
#include "shell/ecran/Statut.hpp"
#include "shell/point/Point.hpp"
#include "shell/preparation/CalculPlan.hpp"
#include "shell/registre/LectureRegistre.hpp"
#include "shell/registre/Registre.hpp"
#include "shell/serie/GestesSerie.hpp"
#include "shell/visee/Journal.hpp"
#include "shell/visee/PanneauDirect.hpp"
#include "shell/visee/Saisie.hpp"

#include <algorithm>
#include <array>
#include <chrono>
#include <span>
#include <string_view>
#include <utility>

namespace velmaris {
namespace {

constexpr int kZoomInitial = 2000; ///< of the slider
constexpr int kPasTouches = 2000;  ///< of F9 and F10, on the slider

bool EstVrai(const std::string &texte) { return texte == "True" || Val(texte) != 0; }

void LitOptionsCarte(Bureau &bureau) {
  Donnees &d = bureau.donnees;
  PoseValeur(bureau, d.Check2, NombreRegle(LitReglage(bureau, "C2", "1")));
  if (EstVrai(LitReglage(bureau, "opCarte0", "False"))) {
    PoseOption(bureau, d.OpCarte[0]);
  }
  if (EstVrai(LitReglage(bureau, "opCarte1", "True"))) {
    PoseOption(bureau, d.OpCarte[1]);
  }
  for (std::size_t i = 0; i < d.Check1.size(); ++i) {
    PoseValeur(bureau, d.Check1[i], NombreRegle(LitReglage(bureau, "c1 " + std::to_string(i), "1")));
  }
}

void RemplitListesHeures(Donnees &d) {
  for (int i = 0; i < 60; ++i) {
    const std::string texte = Format(i, "00");
    if (i < 24) {
      d.Combo1.liste.push_back(texte);
      d.Combo3.liste.push_back(texte);
    }
    d.Combo2.liste.push_back(texte);
    d.Combo4.liste.push_back(texte);
  }
  d.Combo5.liste = {"1", "2", "3", "4"};
}

void LitPosition(Bureau &bureau) {
  Donnees &d = bureau.donnees;
  PoseTexte(bureau, d.Text6, Format(LitReglage(bureau, "T6"), "00"));
  PoseTexte(bureau, d.Text7, Format(LitReglage(bureau, "T7"), "00"));
  PoseTexte(bureau, d.Text8, Format(LitReglage(bureau, "T8"), "00"));
  PoseTexte(bureau, d.Text9, Format(LitReglage(bureau, "T9"), "00"));
  PoseTexte(bureau, d.Text10, LitReglage(bureau, "T10"));
  PoseTexte(bureau, d.Text11, LitReglage(bureau, "T11"));
  PoseOption(bureau, d.OptN[LitReglage(bureau, "Hem") == "Nord" ? 0 : 1]);
  PoseOption(bureau, d.OptE[LitReglage(bureau, "Lon") == "Est" ? 0 : 1]);
}

/// The settings that a start couldn't read, once another program has let go of the store, as the start would have shown
/// them: while the user has touched none of them.
void ReprendReglages(Bureau &bureau) {
  MajListeDroites(bureau);
  if (ReglagesSortie(bureau.donnees) != bureau.reglagesDepart) {
    return;
  }
  LitEclairage(bureau);
  LitTerres(bureau);
  LitBouts(bureau);
  LitTaille(bureau);
  LitOptionsCarte(bureau);
  PoseOption(bureau, bureau.donnees.Option4[Val(LitReglage(bureau, "Prec", "0")) == 1 ? 1 : 0]);
  Image10_Click(bureau, Val(LitReglage(bureau, "Langue", "0")) == 1 ? 1 : 0);
  LitPosition(bureau);
  bureau.reglagesDepart.clear();
}

/// Another try for what another program has kept from being read or written, without waiting for it.
void RetenteEcritures(Bureau &bureau) {
  Patience aucune(std::chrono::nanoseconds::zero());
  RetenteJournal(bureau, aucune);
  if (!bureau.valeurs) {
    return;
  }
  const bool aveugle = bureau.valeurs->aveugle();
  bureau.valeurs->Retente();
  if (aveugle && !bureau.valeurs->aveugle()) {
    ReprendReglages(bureau);
  }
  SignaleMagasin(bureau);
}

/// Does what a key stands for.
/// @return whether it does something here
bool Touche(Bureau &bureau, int code) {
  constexpr int kF2 = kToucheF1 + 1;
  constexpr int kF3 = kToucheF1 + 2;
  constexpr int kF4 = kToucheF1 + 3;
  constexpr int kF5 = kToucheF1 + 4; ///< F5 to F8, the four lines
  constexpr int kF9 = kToucheF1 + 8;
  constexpr int kF10 = kToucheF1 + 9;
  constexpr int kF11 = kToucheF1 + 10;
  constexpr int kF12 = kToucheF1 + 11;
  Controle &zoom = bureau.donnees.HScroll1;
  const auto deplace = [&](int pas) {
    const int valeur = zoom.valeur + pas;
    if (valeur >= zoom.minimum && valeur <= zoom.maximum) {
      PoseValeur(bureau, zoom, valeur);
    } else {
      Avise(bureau, bureau.etat.TexteBorneZoom.legende);
    }
  };
  switch (code) {
  case kToucheF1:
    OuvreAide(bureau);
    return true;
  case kF2:
    Sortie_Click(bureau, -1);
    return true;
  case kF3:
    Declenche(bureau, bureau.donnees.Command1, Evenement::Clic);
    return true;
  case kF4:
    OuvreCartes(bureau);
    return true;
  case kF5:
  case kF5 + 1:
  case kF5 + 2:
  case kF5 + 3:
    Declenche(bureau, bureau.donnees.Droite.at(static_cast<std::size_t>(code - kF5)), Evenement::Clic);
    return true;
  case kF9:
    deplace(kPasTouches);
    return true;
  case kF10:
    deplace(-kPasTouches);
    return true;
  case kF11:
    PU_PleinEcran_Click(bureau, -1);
    return true;
  case kF12:
    PU_Ranger_Click(bureau, -1);
    return true;
  default:
    return false;
  }
}

/// A letter and the button that it presses.
using BoutonDeLettre = std::pair<char, Controle Donnees::*>;

/// Presses the button of a letter.
/// @return whether it has one
bool ClicDeLettre(Bureau &bureau, std::span<const BoutonDeLettre> boutons, char lettre) {
  const auto la =
      std::find_if(boutons.begin(), boutons.end(), [lettre](const auto &bouton) { return bouton.first == lettre; });
  if (la == boutons.end()) {
    return false;
  }
  ClicControle(bureau, bureau.donnees.*la->second);
  return true;
}

} // namespace

void Donnees_Charge(Bureau &bureau, const Ecran &ecran) {
  Donnees &d = bureau.donnees;
  if (!bureau.valeurs) {
    bureau.valeurs = std::make_unique<Valeurs>(bureau.dossiers.utilisateur / "valeurs.sqlite");
  }
  BalaieProvisoires(bureau.dossiers.utilisateur);
  bureau.ecran = ecran;
  LitEclairage(bureau);
  LitTerres(bureau);
  LitBouts(bureau);
  LitTaille(bureau);
  LitDisposition(bureau);
  LitReglagesVerification(bureau);
  LitReglagesPoint(bureau);
  DisposeFenetre(bureau, ecran);
  d.ImAstre[0].image = d.Soleil.image;
  bureau.TitreFichier = bureau.messages[9];
  MajListeDroites(bureau);
  bureau.feuille.OrigineFeuille = kSansFeuille;
  bureau.feuille.CouleurGrille = static_cast<float>(Rvb(220, 220, 220));
  bureau.image1.fond = kBlanc;
  d.LabC.opaque = true;
  d.LabLon.opaque = true;
  d.LabLat.opaque = true;
  d.Label62.opaque = true;
  d.Label62.dessus = true;
  bureau.focus = &d.TDate[0];
  d.TDate[0].toutSelectionne = true;
  PoseValeur(bureau, d.HScroll1, kZoomInitial);
  LitOptionsCarte(bureau);
  PoseOption(bureau, d.Option4[Val(LitReglage(bureau, "Prec", "0")) == 1 ? 1 : 0]);
  Image10_Click(bureau, Val(LitReglage(bureau, "Langue", "0")) == 1 ? 1 : 0);
  RemplitListesHeures(d);
  LitHorloge(bureau.horloge);
  PoseHeureGMT(bureau);
  LitPosition(bureau);
  PoseTexte(bureau, d.Combo1, d.Text3.texte);
  PoseTexte(bureau, d.Combo3, d.Text3.texte);
  PoseTexte(bureau, d.Combo2, d.Text4.texte);
  PoseTexte(bureau, d.Combo4, d.Text4.texte);
  PosSoleil(bureau, false, false);
  ChargeEtoiles(bureau.etoiles, d.Combo6.liste);
  if (ecran.pixelsHaut < kPixelsCompacts) {
    DispositionCompacte(d);
  }
  SignaleMagasin(bureau);
  if (bureau.valeurs->aveugle()) {
    // What the start has chosen for the want of the stored values must not be written over them.
    bureau.valeurs->OublieEnAttente();
    bureau.reglagesDepart = ReglagesSortie(d);
  }
}

void Timer1_Tick(Bureau &bureau) {
  RetenteEcritures(bureau);
  BatRegistre(bureau);
  VieillitAvis(bureau);
  LitHorloge(bureau.horloge);
  PositionLive(bureau);
  const ValeurDate date = bureau.horloge.locale();
  const TempsSysteme &t = bureau.horloge.temps;
  bureau.TitreHorloge = "  " + bureau.ports.nomJour(date) + "   " + std::to_string(date.jour) + "   " +
                        bureau.ports.nomMois(date) + "   " + Format(date.annee, "0000") + "  " + bureau.messages[7] +
                        " " + Format(date.heure, "00") + ":" + Format(date.minute, "00") + ":" +
                        Format(date.seconde, "00") + " ";
  bureau.titre = bureau.TitreHorloge + "   ~~~   " +
                 TexteDateHeure({t.annee, t.mois, t.jour, t.heure, t.minute, t.seconde}) + "   GMT " + "   ~~~   " +
                 bureau.messages[8] + bureau.TitreFichier;
}

void ZoomeTouche(Bureau &bureau, int crans) {
  Passe([&] { ZoomeCrans(bureau, crans); });
}

bool RetourDansChamp(Bureau &bureau, Controle &champ) {
  Donnees &d = bureau.donnees;
  const ListeControles controles = Liste(d);
  const Controle *parent = &champ;
  while (parent != nullptr && !parent->parent.empty()) {
    parent = Cherche(controles, parent->parent);
  }
  constexpr std::array<std::pair<Controle Donnees::*, Controle Donnees::*>, 3> kCalculs = {
      {{&Donnees::Frame7, &Donnees::Command2},
       {&Donnees::Frame4, &Donnees::Command15},
       {&Donnees::Frame2, &Donnees::Command10}}};
  for (const auto &[module, calcul] : kCalculs) {
    if (parent == &(d.*module)) {
      QuitteChamp(bureau, champ);
      champ.toutSelectionne = true;
      ClicControle(bureau, d.*calcul);
      return true;
    }
  }
  return false;
}

void Command5_Click(Bureau &bureau, int /*indice*/) { Donnees_KeyDown(bureau, kToucheF1); }

bool ToucheControle(Bureau &bureau, char lettre) {
  constexpr std::array<BoutonDeLettre, 4> kBoutons = {{
      {'S', &Donnees::Command3},
      {'O', &Donnees::Command4},
      {'P', &Donnees::Command11},
      {'Q', &Donnees::Sortie},
  }};
  return ClicDeLettre(bureau, kBoutons, lettre) || ToucheComplement(bureau, lettre);
}

bool ToucheComplement(Bureau &bureau, char lettre) {
  constexpr std::array<BoutonDeLettre, 7> kBoutons = {{
      {'I', &Donnees::PU_Fiche},
      {'L', &Donnees::PU_Registre},
      {'G', &Donnees::PU_Point},
      {'K', &Donnees::PU_Preparation},
      {'R', &Donnees::PU_Serie},
      {'E', &Donnees::PU_Exercice},
      {'a', &Donnees::PU_Papier},
  }};
  return ClicDeLettre(bureau, kBoutons, lettre);
}

bool RevientDans(Bureau &bureau, std::string_view fenetre, bool retablit) {
  constexpr std::array kAvecLePanneau = {kFenetreDonnees, kFenetreRegistre, kFenetrePoint, kFenetrePreparation,
                                         kFenetreExercice};
  if (fenetre == kFenetreSerie) {
    (retablit ? RetablitSerie : AnnuleSerie)(bureau);
    return true;
  }
  if (std::find(kAvecLePanneau.begin(), kAvecLePanneau.end(), fenetre) == kAvecLePanneau.end()) {
    return false;
  }
  (retablit ? PU_Retablit_Click : PU_Annule_Click)(bureau, -1);
  if (fenetre == kFenetrePreparation) {
    DitPlan(bureau, bureau.etat.avis);
  }
  return true;
}

void Complement_Click(Bureau &bureau, int indice) {
  Donnees &d = bureau.donnees;
  const std::array<Controle *, 7> entrees = {&d.PU_Fiche, &d.PU_Registre, &d.PU_Point, &d.PU_Preparation,
                                             &d.PU_Serie, &d.PU_Exercice, &d.PU_Papier};
  ClicControle(bureau, *entrees.at(static_cast<std::size_t>(indice)));
}

bool ToucheMenu(Bureau &bureau, const Controle *pointe, Point place, const Controle *clavier) {
  const bool surFeuille = pointe == &bureau.donnees.Image1;
  if (pointe != nullptr && OuvreMenuCopie(bureau, *pointe)) {
    return true;
  }
  const Point milieu{bureau.image1.largeur / 2, bureau.image1.hauteur / 2};
  const Point ou = surFeuille ? place : milieu;
  Image1_MouseDown(bureau, BoutonSouris::Gauche, ou.x, ou.y);
  if (!surFeuille && clavier != &bureau.donnees.Image1) {
    bureau.menuSous = clavier;
  }
  return bureau.menu != nullptr;
}

bool Donnees_KeyDown(Bureau &bureau, int code) {
  bool connue = true;
  Passe([&] { connue = Touche(bureau, code); });
  return connue;
}

void Image10_Click(Bureau &bureau, int indice) {
  bureau.FichierLangue = indice == 1 ? "\\EN.txt" : "\\FR.txt";
  Donnees &d = bureau.donnees;
  const bool sansFichier = bureau.TitreFichier == bureau.messages[9];
  // The position worked out is a result, which a file's empty captions must not take away.
  const std::array<std::string, 2> estimee = {d.LabLatEst.legende, d.LabLonEst.legende};
  constexpr std::array<std::string_view, 11> kFenetres = {
      kFenetreDonnees, kFenetreEtat,     kFenetreFiche,  kFenetreRegistre,   kFenetrePoint, kFenetrePreparation,
      kFenetreSerie,   kFenetreExercice, kFenetrePapier, kFenetreMotsPapier, kFenetreTermes};
  ChargeLangues(bureau, kFenetres);
  d.LabLatEst.legende = estimee[0];
  d.LabLonEst.legende = estimee[1];
  if (sansFichier) {
    bureau.TitreFichier = bureau.messages[9];
  }
  PoseDomaines(bureau);
  if (bureau.fselect.chargee) {
    ChargeLangue(bureau, kFenetreFSelect);
  }
  TDate_Change(bureau, -1); // the weekday again, where the file has put the plain caption
  MajListeDroites(bureau);  // the buttons' tool tips are the stored bodies, not the file's
  d.Image10[0].visible = indice != 0;
  d.Image10[1].visible = indice == 0;
  EcritReglage(bureau, "Langue", std::to_string(indice));
}

} // namespace velmaris
