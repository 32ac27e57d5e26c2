#include "shell/ciel/EcranCiel.hpp"

#include "foundations/Erreur.hpp"
#include "shell/bureau/Evenements.hpp"
#include "shell/bureau/Langage.hpp"
#include "shell/ciel/DessinCiel.hpp"
#include "shell/ciel/MomentCiel.hpp"
#include "shell/complements/LignesLoin.hpp"

#include <algorithm>
#include <array>
#include <string>

namespace velmaris {
namespace {

constexpr double kMarge = 400;             ///< that the window keeps around its parts, both sides together
constexpr double kMargeDroite = 200;       ///< right of the bottom strip
constexpr std::size_t kLegendeAstres = 12; ///< caption under "Astres" in the main window's toolbar

/// The parts of the window find their places in its inside.
void Dispose(Ciel &c, double largeur, double hauteur) {
  c.List1.place.hauteur = std::max(0.0, hauteur - kMarge);
  Place &carte = c.Picture1.place;
  carte.largeur = std::max(0.0, largeur - kMarge - c.List1.place.largeur);
  carte.hauteur = std::max(0.0, hauteur - c.Frame8.place.hauteur - c.HScroll1.place.hauteur - kMarge);
  c.picture1.largeur = carte.largeur;
  c.picture1.hauteur = carte.hauteur;
  c.HScroll1.place.gauche = carte.gauche;
  c.HScroll1.place.largeur = carte.largeur;
  c.HScroll1.place.haut = carte.haut + carte.hauteur;
  c.Frame8.place.haut = c.HScroll1.place.haut + c.HScroll1.place.hauteur;
  c.Frame8.place.gauche = largeur - kMargeDroite - c.Frame8.place.largeur;
}

constexpr std::array<long, 4> kDurees = {1L, 10L, 60L, 24L * 60L}; ///< minutes of a step
constexpr int kPasUsuel = 1;
constexpr int kPremiereAnnee = 1900; ///< first and last year that steps lead to
constexpr int kDerniereAnnee = 2100;

/// The lengths of a step, in the language of the moment.
void RemplitPas(Ciel &c) {
  c.Pas.liste.clear();
  for (const Controle &duree : c.TexteDuree) {
    c.Pas.liste.push_back(duree.legende);
  }
  c.Pas.rang = kPasUsuel;
  c.Pas.texte = c.Pas.liste[kPasUsuel];
  c.Pas.infobulle = c.TextePas.legende;
}

/// A step of time from the moment that is shown.
void AvancePas(Bureau &bureau, int sens) {
  Ciel &c = bureau.ciel;
  const auto rang = static_cast<std::size_t>(std::max(0, c.Pas.rang));
  const TempsSysteme montre = c.moment ? *c.moment : bureau.horloge.source();
  const TempsSysteme suivant = Decale(montre, sens * kDurees.at(rang));
  if (suivant.annee < kPremiereAnnee || suivant.annee > kDerniereAnnee) {
    return;
  }
  c.moment = suivant;
  PoseValeur(bureau, c.Check2, 0);
  TraceCiel(bureau);
}

} // namespace

void Command13_Click(Bureau &bureau, int /*indice*/) {
  Ciel &c = bureau.ciel;
  if (!c.cadre.visible) {
    Ciel_Charge(bureau);
    c.cadre.visible = true;
  }
  bureau.premierPlan = kFenetreCiel;
}

void Ciel_Charge(Bureau &bureau) {
  Ciel &c = bureau.ciel;
  const Donnees &d = bureau.donnees;
  InitialiseCiel(c);
  ChargeLangue(bureau, kFenetreCiel);
  MarqueCiel(bureau);
  c.cadre.titre = d.Label50[kLegendeAstres].legende;
  c.cadre.largeur = bureau.ecran.largeur - 100;
  c.cadre.hauteur = bureau.ecran.hauteur - 300;
  c.SOL.image = d.Soleil.image;
  c.Lune.image = d.ImAstre[1].image;
  PoseValeur(bureau, c.HScroll1, 0);
  RemplitPas(c);
  c.moment.reset();
  for (std::size_t i = 1; i <= kEtoilesCiel; ++i) {
    Controle &label = c.Laet[i];
    label.etiquette = std::to_string(kBlanc);
    PoseMots(bureau.ports, label, bureau.etoiles.EtoileNom[i]);
    label.infobulle = bureau.etoiles.EtoileBayer[i];
  }
  Dispose(c, c.cadre.largeur, c.cadre.hauteur);
  c.minuterie = true;
  TraceCiel(bureau);
}

void Ciel_Redimensionne(Bureau &bureau, double largeur, double hauteur) {
  bureau.ciel.cadre.largeur = largeur;
  bureau.ciel.cadre.hauteur = hauteur;
  Dispose(bureau.ciel, largeur, hauteur);
  TraceCiel(bureau);
}

void Ciel_Ferme(Bureau &bureau) {
  Ciel &c = bureau.ciel;
  if (c.cadre.visible) {
    c.cadre.visible = false;
    c.minuterie = false;
    bureau.premierPlan = kFenetreDonnees;
  }
}

void Ciel_EcritLangue(Bureau &bureau) {
  try {
    EcritLangue(bureau, kFenetreCiel);
  } catch (const Erreur &erreur) {
    bureau.ports.boite({.texte = MotsErreur(bureau.donnees, erreur.numero), .icone = Icone::Attention});
  }
}

namespace ciel {

void Timer1_Tick(Bureau &bureau) {
  if (bureau.ciel.cadre.visible && bureau.ciel.minuterie) {
    bureau.ciel.moment.reset();
    TraceCiel(bureau);
  }
}

void HScroll1_Change(Bureau &bureau, int /*indice*/) { TraceCiel(bureau); }

void Check2_Click(Bureau &bureau, int /*indice*/) { bureau.ciel.minuterie = bureau.ciel.Check2.valeur == 1; }

void Command1_Click(Bureau &bureau, int /*indice*/) {
  bureau.ciel.moment.reset();
  TraceCiel(bureau);
}

void Recule_Click(Bureau &bureau, int /*indice*/) { AvancePas(bureau, -1); }

void Avance_Click(Bureau &bureau, int /*indice*/) { AvancePas(bureau, 1); }

void Command4_Click(Bureau &bureau, int /*indice*/) { Ciel_Ferme(bureau); }

void Option1_Click(Bureau &bureau, int /*indice*/) { TraceCiel(bureau); }

} // namespace ciel
} // namespace velmaris
