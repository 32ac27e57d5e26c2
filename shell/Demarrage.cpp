#include "shell/Demarrage.hpp"

#include "foundations/TexteNombre.hpp"
#include "lines/FichierLoP.hpp"
#include "shell/Aide.hpp"
#include "shell/Carte.hpp"
#include "shell/Disposition.hpp"
#include "shell/Droites.hpp"
#include "shell/EcranCiel.hpp"
#include "shell/Evenements.hpp"
#include "shell/FichierObjets.hpp"
#include "shell/Langage.hpp"
#include "shell/MemoireDroites.hpp"
#include "shell/ModesDroite.hpp"
#include "shell/Nuit.hpp"
#include "shell/Objets.hpp"
#include "shell/PageImprimee.hpp"
#include "shell/PanneauDirect.hpp"
#include "shell/Saisie.hpp"
#include "shell/Valeurs.hpp"

#include <algorithm>
#include <array>
#include <system_error>

namespace velmaris {
namespace {

constexpr int kZoomInitial = 2000;          ///< of the slider
constexpr std::size_t kLegendeQuitter = 14; ///< caption under "Quitter"
constexpr int kPasTouches = 2000;           ///< of F9 and F10, on the slider

bool EstVrai(const std::string &texte) { return texte == "True" || Val(texte) != 0; }

int Nombre(const std::string &texte) { return static_cast<int>(std::clamp(Val(texte), -32768.0, 32767.0)); }

void LitOptionsCarte(Bureau &bureau) {
  Donnees &d = bureau.donnees;
  PoseValeur(bureau, d.Check2, Nombre(LitReglage(bureau, "C2", "1")));
  if (EstVrai(LitReglage(bureau, "opCarte0", "False"))) {
    PoseOption(bureau, d.OpCarte[0]);
  }
  if (EstVrai(LitReglage(bureau, "opCarte1", "True"))) {
    PoseOption(bureau, d.OpCarte[1]);
  }
  for (std::size_t i = 0; i < d.Check1.size(); ++i) {
    PoseValeur(bureau, d.Check1[i], Nombre(LitReglage(bureau, "c1 " + std::to_string(i), "1")));
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

void GardeReglages(Bureau &bureau) {
  const Donnees &d = bureau.donnees;
  const auto garde = [&](const std::string &cle, std::string_view valeur) {
    bureau.valeurs->SaveSetting(kApplication, kSection, cle, valeur);
  };
  const auto booleen = [](bool vrai) { return vrai ? "True" : "False"; };
  garde("T6", d.Text6.texte);
  garde("T7", d.Text7.texte);
  garde("T8", d.Text8.texte);
  garde("T9", d.Text9.texte);
  garde("Hem", d.OptN[0].choisi ? "Nord" : "Sud");
  garde("Lon", d.OptE[0].choisi ? "Est" : "Ouest");
  garde("T10", d.Text10.texte);
  garde("T11", d.Text11.texte);
  garde("C2", std::to_string(d.Check2.valeur));
  garde("opCarte0", booleen(d.OpCarte[0].choisi));
  garde("opCarte1", booleen(d.OpCarte[1].choisi));
  for (std::size_t i = 0; i < d.Check1.size(); ++i) {
    garde("C1 " + std::to_string(i), std::to_string(d.Check1[i].valeur));
  }
}

} // namespace

void Donnees_Charge(Bureau &bureau, const Ecran &ecran) {
  Donnees &d = bureau.donnees;
  if (!bureau.valeurs) {
    bureau.valeurs = std::make_unique<Valeurs>(bureau.dossiers.utilisateur / "valeurs.sqlite");
  }
  bureau.ecran = ecran;
  LitNuit(bureau);
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
}

void Timer1_Tick(Bureau &bureau) {
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

bool Donnees_KeyDown(Bureau &bureau, int code) {
  constexpr int kF1 = 112;
  constexpr int kF2 = 113;
  constexpr int kF3 = 114;
  constexpr int kF4 = 115;
  constexpr int kF5 = 116; ///< F5 to F8, the four lines
  constexpr int kF9 = 120;
  constexpr int kF10 = 121;
  Controle &zoom = bureau.donnees.HScroll1;
  const auto deplace = [&](int pas) {
    const int valeur = zoom.valeur + pas;
    if (valeur >= zoom.minimum && valeur <= zoom.maximum) {
      PoseValeur(bureau, zoom, valeur);
    }
  };
  switch (code) {
  case kF1:
    OuvreAide(bureau);
    return true;
  case kF2:
    Sortie_Click(bureau, -1);
    return true;
  case kF3:
    Command1_Click(bureau, -1);
    return true;
  case kF4:
    OuvreCartes(bureau);
    return true;
  case kF5:
  case kF5 + 1:
  case kF5 + 2:
  case kF5 + 3:
    Droite_Click(bureau, code - kF5);
    return true;
  case kF9:
    deplace(kPasTouches);
    return true;
  case kF10:
    deplace(-kPasTouches);
    return true;
  default:
    return false;
  }
}

void Sortie_Click(Bureau &bureau, int /*indice*/) {
  // The title tells what is asked, also while no language file has filled the messages.
  const std::string titre = "Velmaris - " + bureau.donnees.Label50[kLegendeQuitter].legende;
  if (!bureau.ports.boite({.texte = bureau.messages[6], .titre = titre, .icone = Icone::Question, .question = true})) {
    bureau.QuitterRefuse = -1;
    return;
  }
  bureau.valeurs->Ensemble([&] { GardeReglages(bureau); });
  SignaleMagasin(bureau);
  bureau.apropos.cadre.visible = false;
  Ciel_Ferme(bureau);
  bureau.fselect.cadre.visible = false;
  Impression_Ferme(bureau);
  QuitteObjets(bureau);
  bureau.termine = true;
}

void Image10_Click(Bureau &bureau, int indice) {
  bureau.FichierLangue = indice == 1 ? "\\EN.txt" : "\\FR.txt";
  Donnees &d = bureau.donnees;
  const bool sansFichier = bureau.TitreFichier == bureau.messages[9];
  // The position worked out is a result, which a file's empty captions must not take away.
  const std::array<std::string, 2> estimee = {d.LabLatEst.legende, d.LabLonEst.legende};
  ChargeLangue(bureau, kFenetreDonnees);
  d.LabLatEst.legende = estimee[0];
  d.LabLonEst.legende = estimee[1];
  if (sansFichier) {
    bureau.TitreFichier = bureau.messages[9];
  }
  TDate_Change(bureau, -1); // the weekday again, where the file has put the plain caption
  MajListeDroites(bureau);  // the buttons' tool tips are the stored bodies, not the file's
  d.Image10[0].visible = indice != 0;
  d.Image10[1].visible = indice == 0;
  EcritReglage(bureau, "Langue", std::to_string(indice));
}

void Secours(Bureau &bureau, const std::exception &erreur) {
  const Donnees &d = bureau.donnees;
  const auto *numerotee = dynamic_cast<const Erreur *>(&erreur);
  std::string texte = d.TexteErreur.legende;
  if (numerotee != nullptr) {
    texte += " " + std::to_string(numerotee->numero);
  }
  texte += "\n" + std::string(erreur.what()) + "\n\n";
  const auto fichier = bureau.dossiers.utilisateur / "secours.LoP";
  const bool conservee = Passe([&] {
    std::error_code refus;
    std::filesystem::create_directories(fichier.parent_path(), refus);
    SauveLoP(fichier, LitPanneau(d));
  });
  if (bureau.utilisateur.Modifie != 0) {
    Passe([&] { EcritFichier(bureau); });
  }
  texte += conservee ? d.TexteSecours.legende + "\n" + fichier.string() : d.TexteSansSecours.legende;
  bureau.ports.boite({.texte = texte, .icone = Icone::Erreur});
}

} // namespace velmaris
