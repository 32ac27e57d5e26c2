#pragma once

#include "shell/qt/widgets/Adaptateur.hpp"

namespace velmaris::qt {

/// What all kinds of controls share: a widget of a type.
template <class W> class De : public Adaptateur {
public:
  explicit De(W *widget) : Adaptateur(*widget), w(*widget) {}

protected:
  W &w;
};

} // namespace velmaris::qt
