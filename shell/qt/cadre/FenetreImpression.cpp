#include "shell/qt/cadre/FenetreImpression.hpp"

#include "shell/bureau/Evenements.hpp"
#include "shell/ecran/Echelle.hpp"
#include "shell/qt/peinture/Apparat.hpp"
#include "shell/qt/peinture/PageQt.hpp"
#include "shell/qt/peinture/Palette.hpp"
#include "shell/qt/peinture/Toile.hpp"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmaris::qt {
namespace {

constexpr QSize kPlusPetite(480, 360);
constexpr int kMarge = 20; ///< pixels of the mat around the page
constexpr int kOmbre = 5;  ///< pixels that the page's shadow reaches beyond it

} // namespace

FenetreImpression::FenetreImpression(Scene &scene, QWidget *parent)
    : Dialogue(scene, scene.bureau().impression.cadre, parent, Etirable::Grandit, kMarge),
      page_(scene.bureau().impression), taille_(scene.bureau().taille) {
  // A window of its own: as a dialog of the main one it would stay over it.
  setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                 Qt::WindowCloseButtonHint);
  create();
  windowHandle()->setTransientParent(nullptr);
  setMinimumSize(kPlusPetite);
  AjusteTaille();
  ReprendSaTaille();
  Centre();
  connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow *devant) { Note(devant); });
}

double FenetreImpression::EchelleVoulue() const {
  return EchellePage(page_.cadre, width() - 2 * kMarge, height() - 2 * kMarge);
}

/// As large as the page at the present size of everything, with its mat.
void FenetreImpression::AjusteTaille() {
  const QSize libre = screen()->availableSize() - QSize(2 * kMarge, 2 * kMarge);
  const double echelle = EchelleDialogue(scene().bureau(), page_.cadre, libre.width(), libre.height());
  resize((QSizeF(page_.cadre.largeur, page_.cadre.hauteur) * echelle / kUnitesParPixel).toSize() +
         QSize(2 * kMarge, 2 * kMarge));
}

/// The page fills its window but for the mat; the window's size is its user's.
void FenetreImpression::Redimensionne() { update(); }

void FenetreImpression::resizeEvent(QResizeEvent *event) {
  Dialogue::resizeEvent(event);
  Echelonne();
}

/// Another size of everything is one of the page too.
void FenetreImpression::AccordeTaille() {
  if (std::exchange(taille_, scene().bureau().taille) != taille_) {
    AjusteTaille();
    Centre();
  }
}

/// The toolkit would set it over the middle of the main window, without a thought for its title.
void FenetreImpression::Centre() {
  const QRect libre = screen()->availableGeometry();
  const QSize reste = libre.size() - size() - QSize(0, kBarreTitre);
  move(libre.topLeft() + QPoint(reste.width() / 2, reste.height() / 2));
}

/// Notes what takes the keyboard while the page hasn't it. A list that opens is no window of its own.
void FenetreImpression::Note(const QWindow *devant) {
  if (devant != windowHandle() && QApplication::activePopupWidget() == nullptr) {
    sousBoite_ = QApplication::activeModalWidget() != nullptr;
  }
}

void FenetreImpression::AccordeFenetre() {
  AccordeTaille();
  Dialogue::AccordeFenetre();
  std::vector<Controle> voulus;
  PourChaque(page_, [&](const LigneImpression &, const Controle &c) {
    if (c.peint) {
      voulus.push_back(c);
    }
  });
  const bool prise = std::exchange(prise_, page_.prises) != page_.prises;
  if (voulus != peints_ || eclairage_ != EclairageVu() || prise) {
    peints_ = std::move(voulus);
    eclairage_ = EclairageVu();
    // A new picture is on show when the page has come to the front; no event is let in for that.
    prise ? repaint() : update();
  }
}

/// A box that goes, or the dialog that chooses the printer, doesn't bring the page to the front: it was there. Anything
/// else does, also when it came between.
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
  const Teintes &teintes = TeintesDe(EclairageVu());
  QPainter painter(this);
  painter.fillRect(event->rect(), teintes.mat);
  const double facteur = PixelsParTwip(*this);
  const QRect page(kMarge, kMarge, static_cast<int>(std::lround(page_.cadre.largeur * facteur)),
                   static_cast<int>(std::lround(page_.cadre.hauteur * facteur)));
  for (int n = 1; n <= kOmbre; ++n) {
    painter.fillRect(page.adjusted(n, n, n, n), teintes.ombre);
  }
  painter.setPen(teintes.bord);
  painter.drawRect(page.adjusted(-1, -1, 0, 0));
  painter.translate(page.topLeft());
  PeintPage(painter, page_, facteur, EclairageVu());
}

} // namespace velmaris::qt
