#pragma once

#include "shell/bureau/Bureau.hpp"

#include <QString>
#include <QWidget>

#include <functional>
#include <memory>

namespace velmaris::qt {

/// What a widget shows of the part of its control that the user can change.
struct Contenu {
  QString texte;        ///< of a field, or of a list's line
  int choix = 0;        ///< an option chosen, a box's value, the slider's, the line of a list
  qsizetype lignes = 0; ///< of a list
  bool operator==(const Contenu &) const = default;
};

/// How an event of a widget goes into the core.
using Joueur = std::function<void(const std::function<void()> &)>;

/// One control on the screen: its widget made, listened to, brought in line, and read back. Each kind of control has
/// one class of its own, and nothing else knows what widget stands for it.
class Adaptateur {
public:
  virtual ~Adaptateur() = default;
  Adaptateur(const Adaptateur &) = delete;
  Adaptateur &operator=(const Adaptateur &) = delete;
  Adaptateur(Adaptateur &&) = delete;
  Adaptateur &operator=(Adaptateur &&) = delete;

  QWidget &widget() const { return widget_; }

  /// Ties the widget's signals to the core's events.
  virtual void Ecoute(Bureau &bureau, Controle &controle, const Joueur &joue);
  /// Whether entering and leaving it with the keyboard are events of their own.
  virtual bool EstChamp() const { return false; }
  /// Selects the whole text, where there is one.
  virtual void SelectionneTout() {}

  /// What it shows now, and what it has to show.
  /// @{
  virtual Contenu Montre() const { return {}; }
  virtual Contenu Voulu(const Controle & /*controle*/) const { return {}; }
  /// @}

  /// Whether the widget shows its control: content, enabled, visible and the name for a screen reader.
  bool EnAccord(const Controle &controle, const QString &nom) const;

  /// Brings the widget in line with its control.
  /// @param vu    the control as it was shown last
  /// @param nom   words that name it to a screen reader
  /// @param tout  also what hasn't changed
  void Accorde(const Controle &controle, const Controle &vu, const QString &nom, bool tout);

  /// Brings place, font, picture and words in line with the window's scale.
  void AccordeEchelle(const Controle &controle) { AccordeAspect(controle, controle, true); }

  /// Brings colours and picture in line with the day or the night.
  virtual void AccordeTeintes(const Controle &controle);

protected:
  explicit Adaptateur(QWidget &widget) : widget_(widget) {}

  virtual void PoseContenu(const Controle & /*controle*/, const Controle & /*vu*/, bool /*tout*/) {}
  virtual void PoseLegende(const Controle & /*controle*/) {}
  /// Pixels by which the caption is wider than its place; 0 or less where it fits, or where there is none.
  virtual double Depasse() const { return 0; }
  virtual void PoseImage(const Controle & /*controle*/) {}
  /// Shows whether there is something to be mended.
  virtual void PoseAlerte(bool /*alerte*/) {}

private:
  void PosePolice(const Controle &controle);
  void AccordeAspect(const Controle &controle, const Controle &vu, bool tout);

  QWidget &widget_; ///< owned by its parent
};

/// Makes the widget of a control, and what brings the two together.
/// @return null for words that no control shows, for menus and their entries
std::unique_ptr<Adaptateur> CreeAdaptateur(Bureau &bureau, const Controle &controle, QWidget *parent);

} // namespace velmaris::qt
