#pragma once

#include "shell/qt/peinture/Grandeur.hpp"
#include "shell/qt/widgets/Rendu.hpp"

#include <QDialog>

#include <functional>

namespace velmaris::qt {

/// What a window does that its user stretches: it can't be, it shows more, or it shows the same larger.
enum class Etirable { Non, MontrePlus, Grandit };

/// A window over the main one, shown until the core hides it. Return presses its default button, or where it has none
/// the button with the focus; Escape and the close button press the one that gives up.
class Dialogue : public QDialog, public Echelonnee {
public:
  /// Makes the widgets.
  /// @param cadre     the window's record; it must outlive this
  /// @param etirable  what its user's stretching does to it
  /// @param marge     pixels around what the record holds
  Dialogue(Scene &scene, CadreFenetre &cadre, QWidget *parent, Etirable etirable = Etirable::Non, int marge = 0);

  /// Shows it and waits until it is hidden.
  void Montre();
  /// Shows it beside the main window, which goes on working.
  void MontreACote();

  void reject() override;

  /// Keeps its size for its next opening, where its user has given it another than it opened with.
  void GardeSaTaille();

protected:
  Scene &scene() const { return scene_; }
  const Rendu &rendu() const { return rendu_; }
  /// The scale that the window has to have.
  virtual double EchelleVoulue() const;
  /// Brings the scale in line, and all that goes by it.
  void Echelonne();
  /// Takes the size that its user has given it last, within the screen's.
  void ReprendSaTaille();
  QSize Taille() const;
  /// Brings the window's size in line with a new scale.
  virtual void Redimensionne();
  /// Has the core lay a shown window out for its present size. One that comes in the middle of that is taken after it.
  /// @param dispose  gets width and height of its inside, 1/1440 inch
  void Redispose(const std::function<void(double, double)> &dispose);
  /// Brings in line what the window has beside its controls.
  virtual void AccordeFenetre();
  /// Whether a change of the active window is this one's coming to the front.
  virtual bool VientDevant();
  void changeEvent(QEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void paintEvent(QPaintEvent *event) override;

private:
  bool Valide();
  void EtendContenu();
  Scene &scene_;
  CadreFenetre &cadre_;
  QWidget *contenu_; ///< what the controls lie in: the window itself where it has no margin
  Rendu rendu_;
  Etirable etirable_;
  QSize ouverte_;         ///< the size that it opened with
  bool enTaille_ = false; ///< it is being laid out for a new size
  bool parDefaut_;        ///< Return has a button of its own
};

} // namespace velmaris::qt
