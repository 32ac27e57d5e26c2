#include "shell/qt/Apparence.hpp"

#include "shell/qt/Nuit.hpp"

#include <QApplication>
#include <QFont>

namespace velmaris::qt {
namespace {

constexpr double kTaillePolice = 9.0; ///< points

} // namespace

void PoseApparence() {
  QApplication::setStyle(new Apparat);
  QApplication::setPalette(PaletteDe(false));
  QFont police = QApplication::font();
  police.setFamilies({"Liberation Sans", "Arial", "Helvetica", "DejaVu Sans"});
  police.setPointSizeF(kTaillePolice);
  QApplication::setFont(police);
  QApplication::setApplicationName("velmaris");
}

} // namespace velmaris::qt
