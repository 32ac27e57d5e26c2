#pragma once

#include "shell/qt/cadre/Libres.hpp"
#include "shell/qt/peinture/Grandeur.hpp"
#include "shell/qt/widgets/Rendu.hpp"

#include <QScrollArea>
#include <QTimer>
#include <QWidget>

class QContextMenuEvent;
class QDropEvent;

namespace velmaris::qt {

class Toile;

/// The main window: its controls, the clock, the function keys and the way out, and the windows beside it. Its content
/// fills it by one scale, centred; made larger by the user it is panned.
class Fenetre : public QWidget, public Echelonnee {
public:
  /// Makes the widgets; the start sequence has run.
  explicit Fenetre(Scene &scene);

  /// Lays out what the first sight of the window didn't need.
  void Complete() { rendu_.Complete(); }

  const Rendu &rendu() const { return rendu_; }

protected:
  void closeEvent(QCloseEvent *event) override;
  bool eventFilter(QObject *objet, QEvent *event) override;
  void paintEvent(QPaintEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;

private:
  void Echelonne();
  void AccordePleinEcran();
  void AccordeHorloge();
  void BrancheDessin();
  void AccordeFenetre();
  Toile &Dessin();
  bool Retour(QWidget &widget);
  bool Appui(QObject *objet, const QKeyEvent &appui);
  bool Touche(QObject *objet, const QKeyEvent &appui);
  bool ToucheHabitude(QWidget &widget, const QKeyEvent &appui);
  Controle *ControleDe(QWidget *widget) const;
  QWidget *WidgetDe(const Controle &controle) const;
  void OuvreMenuDemande();
  bool MenuDe(QObject *objet, const QContextMenuEvent &event);
  bool Depose(QObject *objet, QDropEvent &event);
  bool ToucheTaille(const QKeyEvent &appui);
  bool ToucheAnnule(QObject *objet, const QKeyEvent &appui);
  bool ToucheDesComplements(const QObject *objet, const QKeyEvent &appui);

  Scene &scene_;
  Bureau &bureau_;
  QScrollArea vue_;  ///< what is seen of the content
  QWidget &contenu_; ///< what the controls lie in; the view's
  Rendu rendu_;
  Rendu etat_; ///< the status line
  QTimer horloge_;
  Libres libres_;
};

} // namespace velmaris::qt
