#pragma once

#include "complements/controle/RouteActuelle.hpp"
#include "shell/complements/Verification.hpp"
#include "shell/point/Point.hpp"
#include "shell/registre/Registre.hpp"
#include "shell/visee/ChampsJuges.hpp"
#include "shell/visee/Saisie.hpp"
#include "tests/shell/bureau/OutilsBureau.hpp"

#include <algorithm>
#include <cmath>
#include <string>

namespace velmaris::essais {

constexpr double kLatitude = 47.5; ///< of the ship, degrees
constexpr double kLongitude = -310 / 60.0;

class PointEnChiffres : public Programme {
protected:
  PointEnChiffres() { DemarreSansCarte(); }

  void Accorde() {
    JugeChamps(bureau);
    AccordeVerification(bureau);
    AccordeRegistre(bureau);
    AccordePoint(bureau);
  }

  int LigneDe(const std::string &nom) const {
    const auto &noms = d.Combo6.liste;
    return static_cast<int>(std::find(noms.begin(), noms.end(), nom) - noms.begin());
  }

  void TapeLieu(int latitude, int minutes, int longitude, int minutesLongitude) {
    Tape(d.Text8, std::to_string(latitude));
    Tape(d.Text9, std::to_string(minutes));
    Tape(d.Text6, std::to_string(longitude));
    Tape(d.Text7, std::to_string(minutesLongitude));
  }

  void TapeLecture(double degres) {
    const auto secondes = std::lround(degres * 3600);
    Tape(d.Text13, std::to_string(secondes / 3600));
    Tape(d.Text12, std::to_string(secondes / 60 % 60));
    Tape(d.Text25, std::to_string(secondes % 60));
  }

  /// The reading of a star that the ship has, by the sky of today: what the check calls no intercept at all.
  double LectureVraie() {
    double lecture = 40;
    for (int i = 0; i < 4; ++i) {
      TapeLecture(lecture);
      const FicheControle controle = ControleVisee(LitPanneau(d), {}, bureau.etoiles);
      lecture -= controle.actuel->intercept / 60;
    }
    return lecture;
  }

  /// Shoots a star from the ship, with an estimated position 20 miles off, and reduces it.
  /// @param faute  minutes of arc, added to the reading
  void Vise(const std::string &nom, int minute, double faute = 0) {
    TapeVisee();
    ClicOption(bureau, d.Option7[3]);
    PoseRang(bureau, d.Combo6, LigneDe(nom), kNombreEtoiles);
    Tape(d.Text3, "22");
    Tape(d.Text4, std::to_string(minute));
    Tape(d.Text5, "0");
    TapeLieu(47, 30, 5, 10);
    TapeLecture(LectureVraie() + faute / 60);
    TapeLieu(47, 40, 5, 30);
    Calcule();
    Accorde();
  }

  void ViseQuatre(double faute = 0) {
    Vise("Vega", 10);
    Vise("Arcturus", 12);
    Vise("Dubhe", 14);
    Vise("Altair", 16, faute);
  }

  void OuvrePoint() {
    ClicControle(bureau, d.PU_Point);
    Accorde();
  }

  void Coche(std::size_t ligne) {
    CocheLigne(bureau, f.Visees, static_cast<int>(ligne));
    Accorde();
  }

  void Clique(Controle &controle) {
    ClicControle(bureau, controle);
    Accorde();
  }

  void TapeIci(Controle &champ, const std::string &texte) {
    Tape(champ, texte);
    Accorde();
  }

  /// Miles from the ship.
  double Loin(const FichePoint &fiche) const {
    return std::hypot((fiche.solution->lieu.latitude - kLatitude) * 60,
                      (fiche.solution->lieu.longitude - kLongitude) * 60 * std::cos(kLatitude * 0.0174533));
  }

  std::string Mot(std::size_t ligne, std::size_t colonne) const {
    return f.Visees.tableau.lecteur->texte(ligne, colonne);
  }

  FenetrePoint &f = bureau.fenetrePoint;
  PointOuvert &p = bureau.point;
};

} // namespace velmaris::essais
