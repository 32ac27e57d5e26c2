#pragma once

#include "tests/shell/carte/OutilsCarte.hpp"

namespace velmaris::essais {

/// A sheet off Brittany, without the chart, on the large screen.
class Souris : public AvecCarte {
protected:
  Souris() {
    TapeVisee();
    Calcule();
  }

  /// A right click at a place, as the hand makes it: the pointer goes there first.
  void ClicDroit(double x, double y) {
    Image1_MouseMove(bureau, false, x, y);
    Image1_MouseDown(bureau, BoutonSouris::Droit, x, y);
    Image1_MouseUp(bureau, BoutonSouris::Droit);
  }
  void ClicGauche(double x, double y) { Image1_MouseDown(bureau, BoutonSouris::Gauche, x, y); }

  double Unites(double milles) const { return milles * bureau.feuille.EchelleY; }

  const double W = bureau.image1.largeur;
  const double H = bureau.image1.hauteur;
};

} // namespace velmaris::essais
