#include "shell/bureau/Evenements.hpp"

#include "shell/bureau/Avis.hpp"

#include <algorithm>
#include <utility>

namespace velmaris {
namespace {

bool Utilisable(const Controle &controle) { return controle.actif && controle.visible; }

bool ALaLigne(const Controle &table, int ligne) { return ligne >= 0 && std::cmp_less(ligne, table.tableau.lignes); }

/// Something that happens at one row of a table.
void JoueALaLigne(Bureau &bureau, Controle &table, int ligne, Evenement evenement) {
  if (Utilisable(table) && ALaLigne(table, ligne)) {
    table.tableau.courante = ligne;
    Declenche(bureau, table, evenement);
  }
}

} // namespace

void PoseTexte(Bureau &bureau, Controle &controle, std::string texte) {
  if (controle.genre == Genre::Liste) {
    const auto ligne = std::find(controle.liste.begin(), controle.liste.end(), texte);
    controle.rang = ligne == controle.liste.end() ? -1 : static_cast<int>(ligne - controle.liste.begin());
  }
  if (controle.texte != texte) {
    controle.texte = std::move(texte);
    Declenche(bureau, controle, Evenement::Change);
  }
}

void PoseRang(Bureau &bureau, Controle &controle, int rang, int nombre) {
  if (rang < -1 || rang >= nombre) {
    return;
  }
  const auto ligne = static_cast<std::size_t>(rang);
  controle.rang = rang;
  controle.texte = rang >= 0 && ligne < controle.liste.size() ? controle.liste[ligne] : std::string();
  Declenche(bureau, controle, Evenement::Clic);
}

void PoseOption(Bureau &bureau, Controle &controle) {
  for (Controle *autre : ControlesDe(bureau, controle.fenetre)) {
    if (autre->genre == Genre::Option && autre->groupe == controle.groupe) {
      autre->choisi = false;
    }
  }
  controle.choisi = true;
  Declenche(bureau, controle, Evenement::Clic);
}

void PoseValeur(Bureau &bureau, Controle &controle, int valeur) {
  if (controle.valeur != valeur) {
    controle.valeur = valeur;
    Declenche(bureau, controle, controle.genre == Genre::Case ? Evenement::Clic : Evenement::Change);
  }
}

void ClicControle(Bureau &bureau, Controle &controle) {
  if (Utilisable(controle)) {
    Declenche(bureau, controle, Evenement::Clic);
  }
}

void SurvoleControle(Bureau &bureau, Controle &controle) {
  if (Utilisable(controle)) {
    Declenche(bureau, controle, Evenement::Survol);
  }
}

void DoubleClicControle(Bureau &bureau, Controle &controle) {
  if (Utilisable(controle)) {
    Declenche(bureau, controle, Evenement::DoubleClic);
  }
}

void ClicLongControle(Bureau &bureau, Controle &controle) {
  if (Utilisable(controle)) {
    Declenche(bureau, controle, Evenement::ClicLong);
  }
}

bool ValideControle(Bureau &bureau, Controle &controle) {
  const bool ecoute = Utilisable(controle) && Ecoute(controle, Evenement::Valide);
  if (ecoute) {
    Declenche(bureau, controle, Evenement::Valide);
  }
  return ecoute;
}

void ClicOption(Bureau &bureau, Controle &controle) {
  if (Utilisable(controle)) {
    PoseOption(bureau, controle);
    Declenche(bureau, controle, Evenement::Relache);
  }
}

void ClicCase(Bureau &bureau, Controle &controle) {
  if (Utilisable(controle)) {
    PoseValeur(bureau, controle, controle.valeur == 0 ? 1 : 0);
  }
}

void BougeCurseur(Bureau &bureau, Controle &controle, int valeur) {
  if (Utilisable(controle)) {
    PoseValeur(bureau, controle, std::clamp(valeur, controle.minimum, controle.maximum));
  }
}

void PresseSurface(Bureau &bureau, Controle &controle, Point point) {
  if (Utilisable(controle)) {
    controle.pointe = point;
    Declenche(bureau, controle, Evenement::Presse);
  }
}

void EntreChamp(Bureau &bureau, Controle &controle) {
  controle.toutSelectionne = true;
  bureau.champ = &controle;
  Declenche(bureau, controle, Evenement::Entre);
}

void QuitteChamp(Bureau &bureau, Controle &controle) {
  const std::string tape = controle.texte;
  Declenche(bureau, controle, Evenement::Quitte);
  if (controle.genre == Genre::Champ && !tape.empty() && controle.texte.empty()) {
    AviseRefus(bureau, controle, tape);
  }
}

void SaisitTexte(Bureau &bureau, Controle &controle, std::string texte) {
  if (Utilisable(controle) && !controle.lectureSeule) {
    PoseTexte(bureau, controle, std::move(texte));
  }
}

void ChoisitLigne(Bureau &bureau, Controle &controle, int rang) {
  if (Utilisable(controle)) {
    PoseRang(bureau, controle, rang, static_cast<int>(controle.liste.size()));
  }
}

void ChoisitLignes(Bureau &bureau, Controle &controle, std::vector<std::size_t> choisies, int courante) {
  Tableau &t = controle.tableau;
  std::erase_if(choisies, [&](std::size_t ligne) { return ligne >= t.lignes; });
  const int voulue = ALaLigne(controle, courante) ? courante : kSansLigne;
  if (Utilisable(controle) && (choisies != t.choisies || voulue != t.courante)) {
    t.choisies = std::move(choisies);
    t.courante = voulue;
    Declenche(bureau, controle, Evenement::Clic);
  }
}

void CocheLigne(Bureau &bureau, Controle &controle, int ligne) {
  JoueALaLigne(bureau, controle, ligne, Evenement::Coche);
}

void ValideLigne(Bureau &bureau, Controle &controle, int ligne) {
  JoueALaLigne(bureau, controle, ligne, Evenement::Valide);
}

} // namespace velmaris
