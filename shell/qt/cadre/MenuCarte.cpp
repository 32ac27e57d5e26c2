#include "shell/qt/cadre/MenuCarte.hpp"

#include "shell/bureau/Evenements.hpp"
#include "shell/qt/widgets/Widgets.hpp"

#include <QMenu>
#include <QRegularExpression>

namespace velmaris::qt {
namespace {

/// Whether a tip is the key that does the same as its entry.
bool EstTouche(const QString &bulle) {
  static const QRegularExpression kTouche(R"(^(Ctrl\+|Maj\+|Shift\+|F\d+$))");
  return kTouche.match(bulle).hasMatch();
}

/// The entries of a menu, and those of the menus in it.
void Remplit(QMenu &qt, QWidget &parent, Scene &scene, const ListeControles &controles, std::string_view menu) {
  qt.setToolTipsVisible(true);
  for (Controle *c : controles) {
    if (c->parent != menu || !c->visible) {
      continue;
    }
    const QString legende = QString::fromStdString(c->legende).replace('&', "&&"); // a file's name has no key
    if (c->genre == Genre::Menu) {
      Remplit(*qt.addMenu(legende), parent, scene, controles, c->nom);
    } else if (c->genre == Genre::Separateur) {
      qt.addSeparator();
    } else if (c->genre == Genre::Entree) {
      const QString bulle = Infobulle(c->infobulle);
      // Shown beside the entry, and not given to the toolkit: the window listens to its keys itself.
      QAction *entree = qt.addAction(EstTouche(bulle) ? legende + '\t' + bulle : legende);
      entree->setObjectName(QString::fromStdString(c->nom));
      entree->setEnabled(c->actif);
      entree->setCheckable(c->valeur != 0);
      entree->setChecked(c->valeur != 0);
      entree->setToolTip(EstTouche(bulle) ? QString() : bulle);
      // Once the menu has gone: a drawing lets the interface live, which would take the menu away under its own entry.
      QObject::connect(
          entree, &QAction::triggered, &parent,
          [&scene, c] { scene.Joue([&scene, c] { ClicControle(scene.bureau(), *c); }); }, Qt::QueuedConnection);
    }
  }
}

} // namespace

void OuvreMenu(Scene &scene, const Controle &menu, QWidget &parent, const QPoint &place) {
  auto *qt = new QMenu(&parent);
  qt->setObjectName(QString::fromStdString(menu.nom));
  Remplit(*qt, parent, scene, ControlesDe(scene.bureau(), menu.fenetre), menu.nom);
  QObject::connect(qt, &QMenu::aboutToHide, qt, &QObject::deleteLater);
  qt->popup(place);
}

} // namespace velmaris::qt
