#include "shell/qt/widgets/Adaptateur.hpp"

#include "shell/qt/peinture/Apparat.hpp"
#include "shell/qt/peinture/Palette.hpp"
#include "shell/qt/peinture/Toile.hpp"
#include "shell/qt/widgets/Widgets.hpp"

#include <QApplication>

#include <algorithm>

namespace velmaris::qt {
namespace {

constexpr double kPlusPetite = 7.0; ///< points of a caption that stands out
constexpr double kEtroite = 0.88;   ///< of its points, that any other caption keeps
constexpr double kPas = 0.25;       ///< points by which a caption is made smaller

/// The background of a caption on the drawing surface. Not quite opaque: an opaque widget that moves is copied from
/// place to place by the toolkit, which then paints what lies under it over the modules.
void PoseFond(QWidget &widget) {
  QPalette palette = widget.palette();
  QColor fond = QApplication::palette().color(QPalette::Base);
  fond.setAlpha(254);
  palette.setColor(QPalette::Base, fond);
  widget.setPalette(palette);
}

void PoseCouleur(QWidget &widget, const Controle &c) {
  QPalette palette = widget.palette();
  // A result that isn't to be taken any more is as faint as what can't be used.
  const bool perime = c.genre == Genre::Etiquette && !c.alerte.empty();
  const QColor couleur = perime               ? QApplication::palette().color(QPalette::Disabled, QPalette::Text)
                         : c.couleur == kNoir ? QApplication::palette().color(widget.foregroundRole())
                                              : EncreDeLegende(EclairageVu(), c.couleur);
  palette.setColor(QPalette::Active, widget.foregroundRole(), couleur);
  palette.setColor(QPalette::Inactive, widget.foregroundRole(), couleur);
  widget.setPalette(palette);
}

bool Actif(const QWidget &widget) { return !widget.testAttribute(Qt::WA_ForceDisabled); }

} // namespace

void Adaptateur::Ecoute(Bureau & /*bureau*/, Controle & /*controle*/, const Joueur & /*joue*/) {}

bool Adaptateur::EnAccord(const Controle &c, const QString &nom) const {
  return Montre() == Voulu(c) && Actif(widget_) == c.actif && widget_.isHidden() != c.visible &&
         widget_.accessibleName() == nom;
}

/// Font and words of a control. A caption takes no more room than its place has: widths don't go with the scale to the
/// pixel, and one that stands out is broader than it was.
void Adaptateur::PosePolice(const Controle &c) {
  const double f = PixelsParTwip(widget_);
  const double moindre = c.accent ? kPlusPetite : c.taille * kEtroite;
  QFont font = widget_.font();
  font.setBold(c.gras || c.accent);
  font.setUnderline(c.accent);
  const int pas = std::max(0, static_cast<int>((c.taille - moindre) / kPas));
  for (int n = 0; n <= pas; ++n) {
    widget_.setFont(PoliceA(font, c.taille - n * kPas, f, widget_));
    PoseLegende(c);
    if (Depasse() <= 0) {
      break;
    }
  }
}

/// Place, font, picture, words and colour.
void Adaptateur::AccordeAspect(const Controle &c, const Controle &vu, bool tout) {
  if (tout || c.place != vu.place) {
    widget_.setGeometry(PlaceQt(c.place, widget_));
  }
  if ((tout || c.image != vu.image) && (!c.image.empty() || !vu.image.empty())) {
    PoseImage(c);
  }
  if (tout || c.taille != vu.taille || c.gras != vu.gras || c.accent != vu.accent || c.legende != vu.legende ||
      c.marque != vu.marque || c.place != vu.place) {
    PosePolice(c);
  }
  const bool alerte = c.alerte.empty() != vu.alerte.empty();
  if (c.couleur != vu.couleur || (tout && c.couleur != kNoir) || (alerte && c.genre == Genre::Etiquette)) {
    PoseCouleur(widget_, c);
  }
  if (alerte || tout) {
    PoseAlerte(!c.alerte.empty());
  }
}

void Adaptateur::Accorde(const Controle &c, const Controle &vu, const QString &nom, bool tout) {
  AccordeAspect(c, vu, tout);
  if (tout || Montre() != Voulu(c) || c.liste != vu.liste || c.loin != vu.loin) {
    const QSignalBlocker silence(&widget_);
    PoseContenu(c, vu, tout);
  }
  if (const QString bulle = Infobulle(c.infobulle); widget_.toolTip() != bulle) {
    widget_.setToolTip(bulle);
  }
  if (c.pointeur != vu.pointeur) {
    widget_.setCursor(c.pointeur == Pointeur::Croix ? Qt::CrossCursor : Qt::ArrowCursor);
  }
  if (widget_.accessibleName() != nom) {
    widget_.setAccessibleName(nom);
  }
  if (const QString mots = QString::fromStdString(c.alerte); widget_.accessibleDescription() != mots) {
    widget_.setAccessibleDescription(mots);
  }
  if (Actif(widget_) != c.actif) {
    widget_.setEnabled(c.actif);
  }
  if (tout || widget_.isHidden() == c.visible) {
    widget_.setVisible(c.visible);
    if (c.visible && (c.genre == Genre::Cadre || c.couleur != kNoir || c.dessus)) {
      widget_.raise();
    }
  }
}

void Adaptateur::AccordeTeintes(const Controle &c) {
  if (c.opaque) {
    PoseFond(widget_);
  }
  if (!c.image.empty()) {
    PoseImage(c);
  }
  if (widget_.palette().isBrushSet(QPalette::Active, widget_.foregroundRole()) &&
      widget_.testAttribute(Qt::WA_SetPalette)) {
    PoseCouleur(widget_, c);
  }
}

} // namespace velmaris::qt
