#pragma once

#include "shell/bureau/Bureau.hpp"

#include <exception>
#include <functional>
#include <vector>

namespace velmaris::qt {

class Rendu;

/// The program on the screen: its windows' renderers, and the one way an event goes into the core.
class Scene {
public:
  explicit Scene(Bureau &bureau) : bureau_(bureau) {}

  Bureau &bureau() { return bureau_; }

  /// Runs an event of the core, then Accorde; a failure that nothing caught ends the program with its report.
  void Joue(const std::function<void()> &evenement);

  /// Brings all widgets of all windows in line with their controls, and ends the program once the exit sequence has
  /// run.
  void Accorde();

  /// The pointer tells whether the program works.
  void AccordePointeur() const;

  void Ajoute(Rendu &rendu) { rendus_.push_back(&rendu); }
  void Retire(const Rendu &rendu) { std::erase(rendus_, &rendu); }

private:
  Bureau &bureau_;
  std::vector<Rendu *> rendus_;
  bool accorde_ = false;
  bool encore_ = false; ///< something changed while widgets were brought in line
};

} // namespace velmaris::qt
