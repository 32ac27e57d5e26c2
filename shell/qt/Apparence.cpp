#include "shell/qt/Apparence.hpp"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QStyleFactory>

namespace velmaris::qt {
namespace {

constexpr double kTaillePolice = 9.0; ///< points

QPalette PaletteClaire() {
  QPalette p(QColor(226, 231, 237), QColor(247, 248, 250));
  p.setColor(QPalette::WindowText, QColor(30, 36, 44));
  p.setColor(QPalette::ButtonText, QColor(30, 36, 44));
  p.setColor(QPalette::Base, Qt::white);
  p.setColor(QPalette::Text, Qt::black);
  p.setColor(QPalette::Highlight, QColor(31, 111, 178));
  p.setColor(QPalette::HighlightedText, Qt::white);
  p.setColor(QPalette::ToolTipBase, QColor(255, 252, 230));
  p.setColor(QPalette::ToolTipText, QColor(30, 36, 44));
  for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text}) {
    p.setColor(QPalette::Disabled, role, QColor(150, 158, 168));
  }
  return p;
}

} // namespace

void PoseApparence() {
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  QApplication::setPalette(PaletteClaire());
  QFont police = QApplication::font();
  police.setFamilies({"Liberation Sans", "Arial", "Helvetica", "DejaVu Sans"});
  police.setPointSizeF(kTaillePolice);
  QApplication::setFont(police);
  QApplication::setApplicationName("velmaris");
}

} // namespace velmaris::qt
