#pragma once

#include "shell/Bureau.hpp"
#include "shell/qt/Toile.hpp"

#include <QHash>
#include <QTimer>
#include <QWidget>

#include <exception>
#include <functional>
#include <vector>

class QButtonGroup;
class QRadioButton;

namespace velmaris::qt {

/// A control and the widget that shows it.
struct Lien {
  const LigneDonnees *ligne = nullptr;
  Controle *controle = nullptr;
  QWidget *widget = nullptr; ///< null for words that no control shows
  Controle vu;               ///< the control as the widget shows it now
};

/// The main window. It turns each signal into one event function, then brings every widget in line with its control.
class Fenetre : public QWidget {
public:
  /// Makes the widgets; the start sequence has run.
  explicit Fenetre(Bureau &bureau);

  /// Brings all widgets in line with their controls, and ends the program once the exit sequence has run.
  void Accorde();

  /// Runs an event of the core, then Accorde; a failure that nothing caught ends the program with its report.
  void Joue(const std::function<void()> &evenement);

  const std::vector<Lien> &liens() const { return liens_; }

protected:
  void closeEvent(QCloseEvent *event) override;
  bool eventFilter(QObject *objet, QEvent *event) override;
  void paintEvent(QPaintEvent *event) override;

private:
  void CreeWidgets();
  void Branche(Lien &lien);
  void BrancheToile(Toile &toile, Controle &controle);
  void BrancheOption(QRadioButton &option, Controle &controle);
  bool Champ(QObject *objet, QEvent *event);
  void AccordeWidget(Lien &lien, bool tout);
  void AccordeTout();
  void AccordeGroupes();
  QWidget *Parent(std::string_view nom);

  Bureau &bureau_;
  std::vector<Lien> liens_;
  QHash<QObject *, Controle *> champs_;
  QHash<int, QButtonGroup *> groupes_;
  QTimer horloge_;
  QObject *champPresse_ = nullptr; ///< field that the mouse brings the focus to, until its button is up
  bool accorde_ = false;
  bool encore_ = false; ///< something changed while widgets were brought in line
  bool premier_ = true;
};

} // namespace velmaris::qt
