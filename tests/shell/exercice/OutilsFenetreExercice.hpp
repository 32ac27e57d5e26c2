#pragma once

#include "foundations/Fichiers.hpp"
#include "shell/complements/ExerciceEnCours.hpp"
#include "shell/exercice/EvenementsExercice.hpp"
#include "shell/exercice/LectureExercice.hpp"
#include "shell/exercice/MotsExercice.hpp"
#include "tests/shell/ecran/OutilsDialogue.hpp"

#include <gmock/gmock.h>

#include <cmath>
#include <cstddef>
#include <filesystem>
#include <string>

namespace velmaris::essais {

/// The window of practice without a screen.
class EnExercice : public AvecDialogue {
protected:
  /// Begins one of the ten.
  void Commence(int rang) {
    ClicControle(bureau, d.PU_Exercice);
    AccordeExercice(bureau);
    ChoisitLigne(bureau, fe.Combo1, rang);
    ClicControle(bureau, fe.Command1[0]);
    AccordeExercice(bureau);
  }
  void Prend(std::size_t visee) {
    ChoisitLignes(bureau, fe.Visees, {visee}, static_cast<int>(visee));
    ClicControle(bureau, fe.Prend);
  }
  /// Takes a sight into the panel and reduces it.
  void Reduit(std::size_t visee) {
    Prend(visee);
    Calcule();
    AccordeExercice(bureau);
  }
  void TapePoint(const LieuNavire &place) {
    const auto angle = [](double degres, char plus, char moins) {
      return std::to_string(std::fabs(degres)) + " " + (degres < 0 ? moins : plus);
    };
    SaisitTexte(bureau, fe.Text3[0], angle(place.latitude, 'N', 'S'));
    SaisitTexte(bureau, fe.Text3[1], angle(place.longitude, 'E', 'W'));
  }
  void Corrige() {
    ClicControle(bureau, fe.Corrige);
    AccordeExercice(bureau);
  }
  std::string Mots(std::size_t visee) const {
    return fe.Visees.tableau.lecteur->texte(visee, fe.MotColonne.size() - 1);
  }
  const ExerciceComplet &EnCours() const { return bureau.exercice.enCours.value(); }
  /// All that the window shows.
  std::string ToutLEcran() {
    std::string mots;
    for (const Controle *c : Liste(fe)) {
      mots += c->genre == Genre::Texte ? "" : c->legende + "\n" + c->texte + "\n" + c->alerte + "\n";
      for (std::size_t i = 0; i < c->tableau.lignes; ++i) {
        for (std::size_t j = 0; j < c->tableau.colonnes.size(); ++j) {
          mots += c->tableau.lecteur->texte(i, j) + "\n";
        }
      }
    }
    return mots;
  }
  std::string Journal() const {
    const std::filesystem::path fichier = bureau.dossiers.utilisateur / "journal.csv";
    return std::filesystem::exists(fichier) ? LitFichier(fichier) : "";
  }

  FenetreExercice &fe = bureau.fenetreExercice;
};

} // namespace velmaris::essais
