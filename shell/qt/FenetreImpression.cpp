#include "shell/qt/FenetreImpression.hpp"

#include "shell/bureau/Evenements.hpp"
#include "shell/qt/Nuit.hpp"
#include "shell/qt/PageQt.hpp"
#include "shell/qt/Toile.hpp"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace velmaris::qt {
namespace {

constexpr int kBarreTitre = 32; ///< pixels that a window manager's title takes, near enough

} // namespace

FenetreImpression::FenetreImpression(Scene &scene, QWidget *parent)
    : Dialogue(scene, scene.bureau().impression.cadre, parent), page_(scene.bureau().impression) {
  // A window of its own: as a dialog of the main one it would stay over it.
  setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                 Qt::WindowCloseButtonHint);
  create();
  windowHandle()->setTransientParent(nullptr);
  setFixedSize(size().boundedTo(screen()->availableSize() - QSize(0, kBarreTitre)));
}

void FenetreImpression::AccordeFenetre() {
  Dialogue::AccordeFenetre();
  // On a small screen the button stays in reach.
  if (QWidget *cadre = rendu().WidgetDe(page_.Frame1)) {
    const QSize reste = size() - cadre->size();
    cadre->move(std::min(cadre->x(), reste.width()), std::min(cadre->y(), reste.height()));
  }
  std::vector<Controle> voulus;
  PourChaque(page_, [&](const LigneImpression &, const Controle &c) {
    if (c.peint) {
      voulus.push_back(c);
    }
  });
  if (voulus != peints_ || prise_ != page_.prises || nuit_ != EstNuit()) {
    peints_ = std::move(voulus);
    prise_ = page_.prises;
    nuit_ = EstNuit();
    update();
  }
}

/// A box that goes, or the dialog that chooses the printer, doesn't bring the page to the front: it was there.
bool FenetreImpression::VientDevant() {
  if (!isActiveWindow()) {
    sousBoite_ = QApplication::activeModalWidget() != nullptr;
    return false;
  }
  return !std::exchange(sousBoite_, false);
}

void FenetreImpression::mouseReleaseEvent(QMouseEvent *event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
    reject();
  }
}

void FenetreImpression::reject() {
  scene().Joue([this] { ClicControle(scene().bureau(), page_.Image1); });
}

void FenetreImpression::paintEvent(QPaintEvent *event) {
  Dialogue::paintEvent(event);
  QPainter painter(this);
  const double facteur = PixelsParTwip(*this);
  const double echelle =
      std::min({1.0, width() / (page_.cadre.largeur * facteur), height() / (page_.cadre.hauteur * facteur)});
  painter.scale(echelle, echelle);
  PeintPage(painter, page_, facteur, EstNuit());
}

} // namespace velmaris::qt
