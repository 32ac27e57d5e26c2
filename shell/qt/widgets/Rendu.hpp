#pragma once

#include "shell/qt/widgets/Adaptateur.hpp"
#include "shell/qt/widgets/Scene.hpp"

#include <QHash>
#include <QObject>
#include <QWidget>

#include <memory>
#include <vector>

class QButtonGroup;

namespace velmaris::qt {

/// A control and the widget that shows it.
struct Lien {
  Controle *controle = nullptr;
  QWidget *widget = nullptr;              ///< null for words that no control shows
  std::unique_ptr<Adaptateur> adaptateur; ///< what brings the two together; null where there is no widget
  Controle vu;                            ///< the control as the widget was last brought in line with
  const Controle *nomme = nullptr;        ///< whose words name it to a screen reader
  bool homonyme = false;                  ///< another field beside it has the same words
  const Lien *dans = nullptr;             ///< what it lies in, null for the window itself
  bool neuf = true;                       ///< the widget was never laid out
};

/// The renderer of one window: a widget for each control of its list. It turns each signal into one event function,
/// and brings the widgets in line with their controls.
class Rendu : public QObject {
public:
  /// Makes the widgets.
  /// @param fenetre    the window that they lie in
  /// @param controles  its controls, in the order of the keyboard
  /// @param presse     the window is waited for: what isn't to be seen in it is laid out when it is, or by `Complete`
  Rendu(Scene &scene, QWidget &fenetre, const ListeControles &controles, bool presse = false);
  ~Rendu() override;
  Rendu(const Rendu &) = delete;
  Rendu &operator=(const Rendu &) = delete;
  Rendu(Rendu &&) = delete;
  Rendu &operator=(Rendu &&) = delete;

  /// Brings all widgets in line with their controls.
  void Accorde();
  /// Lays out what wasn't to be seen so far.
  void Complete();
  /// Brings all widgets in line with a new scale of the window.
  void AccordeEchelle();
  /// Gives the keyboard to the widget of a control.
  /// @return false when it is none of this window
  bool DonneFocus(const Controle &controle);
  /// Brings the window itself in line, its title at least.
  std::function<void()> AccordeFenetre = [] {};

  /// The control that a widget shows, null for none.
  Controle *ControleDe(const QWidget &widget) const;
  /// The widget that shows a control, null for none.
  QWidget *WidgetDe(const Controle &controle) const;
  const std::vector<Lien> &liens() const { return liens_; }

  /// A control whose widget shows something else than it holds: another content, enabled, visible, or another name.
  /// @return null when all agree
  const Controle *Ecart() const;

protected:
  bool eventFilter(QObject *objet, QEvent *event) override;

private:
  void CreeWidgets(const ListeControles &controles);
  void Branche(const Lien &lien);
  void BrancheLibelles();
  void TrouveHomonymes();
  void Champ(QObject *objet, QEvent *event);
  static bool EstMontre(const Lien &lien);
  void AccordeLien(Lien &lien) const;
  void AccordeGroupes();
  const Lien *LienDuClavier() const;
  void PasseClavier(const Lien *tenu) const;
  static QString NomLisible(const Lien &lien);
  const Lien *Trouve(std::string_view nom, int indice) const;
  void Joue(const std::function<void()> &evenement) { scene_.Joue(evenement); }

  Scene &scene_;
  Bureau &bureau_;
  QWidget &fenetre_;
  std::vector<Lien> liens_;
  QHash<QObject *, Controle *> champs_; ///< what takes notice of the focus
  QHash<int, QButtonGroup *> groupes_;
  bool presse_;                    ///< what isn't to be seen isn't laid out
  QObject *champDonne_ = nullptr;  ///< what the core has given the keyboard to, until its user does something there
  QObject *champPresse_ = nullptr; ///< field that the mouse brings the focus to, until its button is up
  Eclairage eclairage_ = Eclairage::Jour; ///< whose colours the widgets show
};

} // namespace velmaris::qt
