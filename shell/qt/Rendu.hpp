#pragma once

#include "shell/qt/Scene.hpp"

#include <QHash>
#include <QObject>
#include <QWidget>

#include <vector>

class QButtonGroup;
class QRadioButton;

namespace velmaris::qt {

class Toile;

/// A control and the widget that shows it.
struct Lien {
  Controle *controle = nullptr;
  QWidget *widget = nullptr; ///< null for words that no control shows
  Controle vu;               ///< the control as the widget shows it now
};

/// The renderer of one window: a widget for each control of its list. It turns each signal into one event function,
/// and brings the widgets in line with their controls.
class Rendu : public QObject {
public:
  /// Makes the widgets.
  /// @param fenetre    the window that they lie in
  /// @param controles  its controls, in the order of the keyboard
  Rendu(Scene &scene, QWidget &fenetre, const ListeControles &controles);
  ~Rendu() override;
  Rendu(const Rendu &) = delete;
  Rendu &operator=(const Rendu &) = delete;
  Rendu(Rendu &&) = delete;
  Rendu &operator=(Rendu &&) = delete;

  /// Brings all widgets in line with their controls.
  void Accorde();
  /// Gives the keyboard to the widget of a control.
  /// @return false when it is none of this window
  bool DonneFocus(const Controle &controle) const;
  /// Brings the window itself in line, its title at least.
  std::function<void()> AccordeFenetre = [] {};

  /// The widget that shows a control, null for none.
  QWidget *WidgetDe(const Controle &controle) const;
  const std::vector<Lien> &liens() const { return liens_; }

protected:
  bool eventFilter(QObject *objet, QEvent *event) override;

private:
  void CreeWidgets(const ListeControles &controles);
  void Branche(QWidget *widget, Controle &controle);
  void BrancheListe(QWidget *widget, Controle &controle);
  void BrancheOption(QRadioButton &option, Controle &controle);
  void BrancheLibelles();
  void Champ(QObject *objet, QEvent *event);
  void AccordeWidget(Lien &lien, bool tout);
  void AccordeGroupes();
  QString NomLisible(const Controle &controle) const;
  const Lien *Trouve(std::string_view nom, int indice) const;
  void Joue(const std::function<void()> &evenement) { scene_.Joue(evenement); }

  Scene &scene_;
  Bureau &bureau_;
  QWidget &fenetre_;
  std::vector<Lien> liens_;
  QHash<QObject *, Controle *> champs_; ///< what takes notice of the focus
  QHash<int, QButtonGroup *> groupes_;
  QObject *champPresse_ = nullptr; ///< field that the mouse brings the focus to, until its button is up
  bool premier_ = true;
  bool nuit_ = false; ///< the widgets show the colours of the night
};

} // namespace velmaris::qt
