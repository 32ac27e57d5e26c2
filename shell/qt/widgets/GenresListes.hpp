#pragma once

#include "shell/qt/widgets/Adaptateur.hpp"

#include <memory>

namespace velmaris::qt {

/// The adapters of what chooses one of several lines: a closed list, an open one, tabs.
/// @{
std::unique_ptr<Adaptateur> CreeListe(QWidget *parent);
std::unique_ptr<Adaptateur> CreeListeBoite(QWidget *parent);
std::unique_ptr<Adaptateur> CreeOnglets(QWidget *parent);
/// @}

} // namespace velmaris::qt
