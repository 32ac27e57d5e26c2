#pragma once

#include "shell/qt/cadre/Libres.hpp"
#include "shell/qt/widgets/Rendu.hpp"

#include <QTimer>
#include <QWidget>

namespace velmaris::qt {

class Toile;

/// The main window: its controls, the clock, the function keys and the way out, and the windows beside it.
class Fenetre : public QWidget {
public:
  /// Makes the widgets; the start sequence has run.
  explicit Fenetre(Scene &scene);

  const Rendu &rendu() const { return rendu_; }

protected:
  void closeEvent(QCloseEvent *event) override;
  bool eventFilter(QObject *objet, QEvent *event) override;
  void paintEvent(QPaintEvent *event) override;

private:
  void AccordeHorloge();
  void BrancheDessin();
  void AccordeFenetre();
  Toile &Dessin();
  bool Retour(QWidget &widget);
  bool Touche(QObject *objet, int touche, bool controle);

  Scene &scene_;
  Bureau &bureau_;
  Rendu rendu_;
  QTimer horloge_;
  Libres libres_;
};

} // namespace velmaris::qt
