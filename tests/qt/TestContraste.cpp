#include "OutilsFenetre.hpp"

#include "shell/qt/cadre/PortsQt.hpp"
#include "shell/qt/peinture/Apparat.hpp"
#include "shell/qt/peinture/Palette.hpp"
#include "shell/qt/widgets/Table.hpp"

#include <QAbstractItemModel>
#include <QHeaderView>
#include <QTabBar>
#include <QTableView>

#include <algorithm>
#include <map>
#include <string>
#include <utility>
#include <vector>

/// What stands out from what, measured on the pictures of the windows themselves, every text by itself.
namespace velmaris::essais {
namespace {

constexpr int kFinesse = 4; ///< pixels of the picture to one of the window, so that a stroke has its whole ink
constexpr int kBord = 3;    ///< pixels of the window at the edge of a widget: its frame

/// A text on show and where it is painted, in its window.
struct TexteVu {
  std::string mots;
  QRect zone;
};

/// The strongest contrast that anything in a zone has with its ground, which is its most frequent colour.
double ContrastePeint(const QImage &image, const QRect &zone) {
  std::map<QRgb, int> teintes;
  const QRect la = QRect(zone.topLeft() * kFinesse, zone.size() * kFinesse) & image.rect();
  for (int y = la.top(); y <= la.bottom(); ++y) {
    for (int x = la.left(); x <= la.right(); ++x) {
      ++teintes[image.pixel(x, y)];
    }
  }
  if (teintes.empty()) {
    return 0;
  }
  const auto fond = std::max_element(teintes.begin(), teintes.end(),
                                     [](const auto &a, const auto &b) { return a.second < b.second; });
  double contraste = 0;
  for (const auto &[teinte, fois] : teintes) {
    contraste = std::max(contraste, qt::Contraste(QColor(teinte), QColor(fond->first)));
  }
  return contraste;
}

/// What a widget says in words, and the part of it that they take.
TexteVu MotsDe(const QWidget &widget) {
  const QRect dedans = widget.rect().adjusted(kBord, kBord, -kBord, -kBord);
  if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
    return {label->text().toStdString(), widget.rect()};
  }
  if (const auto *champ = qobject_cast<const QLineEdit *>(&widget)) {
    return {champ->text().toStdString(), dedans};
  }
  if (const auto *liste = qobject_cast<const QComboBox *>(&widget)) {
    return {liste->currentText().toStdString(), dedans.adjusted(0, 0, -dedans.height(), 0)};
  }
  if (const auto *bouton = qobject_cast<const QAbstractButton *>(&widget)) {
    // Without its mark, or its picture.
    const int image = bouton->icon().isNull() ? 0 : widget.width() / 2;
    return {bouton->text().toStdString(), dedans.adjusted(std::max(image, bouton->isCheckable() ? 20 : 0), 0, 0, 0)};
  }
  return {};
}

/// The cells of a table on show.
void AjouteCellules(std::vector<TexteVu> &textes, const QTableView &table, const QWidget &fenetre) {
  const QPoint coin = table.viewport()->mapTo(&fenetre, QPoint());
  for (int ligne = 0; ligne < table.model()->rowCount(); ++ligne) {
    for (int colonne = 0; colonne < table.model()->columnCount(); ++colonne) {
      const QModelIndex la = table.model()->index(ligne, colonne);
      const QRect zone = table.visualRect(la).adjusted(1, 1, -1, -1);
      if (table.viewport()->rect().contains(zone)) {
        textes.push_back({la.data().toString().toStdString(), zone.translated(coin)});
      }
    }
  }
}

/// All texts on show in a window that aren't greyed because they can't be used.
std::vector<TexteVu> TextesVus(const QWidget &fenetre) {
  std::vector<TexteVu> textes;
  for (const auto *widget : fenetre.findChildren<const QWidget *>()) {
    if (!widget->isVisible() || !widget->isEnabled() || widget->window() != &fenetre || DansUneListe(*widget)) {
      continue;
    }
    if (const auto *table = qobject_cast<const QTableView *>(widget)) {
      AjouteCellules(textes, *table, fenetre);
    }
    if (const auto *onglets = qobject_cast<const QTabBar *>(widget)) {
      for (int i = 0; i < onglets->count(); ++i) {
        textes.push_back({onglets->tabText(i).toStdString(), onglets->tabRect(i)
                                                                 .adjusted(kBord, kBord, -kBord, -2 * kBord)
                                                                 .translated(onglets->mapTo(&fenetre, QPoint()))});
      }
    }
    TexteVu texte = MotsDe(*widget);
    texte.zone.translate(widget->mapTo(&fenetre, QPoint()));
    textes.push_back(std::move(texte));
  }
  std::erase_if(textes, [&](const TexteVu &t) {
    return t.mots.find_first_not_of(' ') == std::string::npos || !fenetre.rect().contains(t.zone);
  });
  return textes;
}

class ContrasteVu : public FenetreOuverte {
protected:
  ~ContrasteVu() override { qt::AccordeEclairage(Eclairage::Jour); }
  ContrasteVu() = default;
  ContrasteVu(const ContrasteVu &) = delete;
  ContrasteVu &operator=(const ContrasteVu &) = delete;
  ContrasteVu(ContrasteVu &&) = delete;
  ContrasteVu &operator=(ContrasteVu &&) = delete;

  void Vue(Eclairage vue) {
    for (int fois = 0; fois < 3 && bureau.eclairage != vue; ++fois) {
      QKeyEvent appui(QEvent::KeyPress, Qt::Key_N, Qt::ControlModifier);
      QApplication::sendEvent(fenetre.get(), &appui);
      QApplication::processEvents();
    }
    ASSERT_EQ(bureau.eclairage, vue);
  }

  void Mesure(QWidget &window, const std::string &ou) {
    QImage image(window.size() * kFinesse, QImage::Format_RGB32);
    image.setDevicePixelRatio(kFinesse);
    image.fill(Qt::magenta);
    window.render(&image);
    for (const TexteVu &texte : TextesVus(window)) {
      ++mesures;
      const double contraste = ContrastePeint(image, texte.zone);
      EXPECT_GE(contraste, qt::ContrasteDeTexte(bureau.eclairage) - 0.1)
          << ou << " \"" << texte.mots << "\" at " << texte.zone.x() << " " << texte.zone.y();
    }
  }

  int mesures = 0;
};

TEST_F(ContrasteVu, EveryTextOfTheMainWindowStandsOutFromItsGroundByDayDuskAndNight) {
  Ouvre(kGrandEcran);
  fenetre->activateWindow();
  Joue([this] {
    TapeVisee();
    Calcule();
    for (Controle *module : {&d.Command14, &d.Command13, &d.Command9}) {
      ClicControle(bureau, *module);
    }
  });
  for (const Eclairage vue : {Eclairage::Jour, Eclairage::Crepuscule, Eclairage::Nuit}) {
    Vue(vue);
    Mesure(*fenetre, "main, view " + std::to_string(static_cast<int>(vue)));
  }
  EXPECT_GT(mesures, 200);
}

TEST_F(ContrasteVu, EveryTextOfTheComplementsStandsOutOnEachOfTheirPages) {
  Ouvre(kGrandEcran);
  Joue([this] {
    TapeVisee();
    Calcule();
  });
  struct Entree {
    std::string_view fenetre;
    Controle *menu;
    Controle *onglets;
  };
  const std::vector<Entree> entrees = {{kFenetreFiche, &d.PU_Fiche, nullptr},
                                       {kFenetreRegistre, &d.PU_Registre, nullptr},
                                       {kFenetrePoint, &d.PU_Point, nullptr},
                                       {kFenetrePreparation, &d.PU_Preparation, &bureau.preparation.Onglets1},
                                       {kFenetreSerie, &d.PU_Serie, &bureau.fenetreSerie.Onglets1},
                                       {kFenetreExercice, &d.PU_Exercice, nullptr},
                                       {kFenetrePapier, &d.PU_Papier, &bureau.fenetrePapier.Onglets1}};
  for (const Entree &entree : entrees) {
    const std::string nom(entree.fenetre);
    Joue([&] { ClicControle(bureau, *entree.menu); });
    auto *dialogue = fenetre->findChild<QWidget *>(QString::fromStdString(nom));
    ASSERT_NE(dialogue, nullptr) << nom;
    for (const Eclairage vue : {Eclairage::Jour, Eclairage::Crepuscule, Eclairage::Nuit}) {
      Vue(vue);
      const int pages = entree.onglets == nullptr ? 1 : static_cast<int>(entree.onglets->liste.size());
      for (int page = 0; page < pages; ++page) {
        if (entree.onglets != nullptr) {
          Joue([&] { ChoisitLigne(bureau, *entree.onglets, page); });
        }
        Mesure(*dialogue, nom + " " + std::to_string(page) + ", view " + std::to_string(static_cast<int>(vue)));
      }
    }
  }
  EXPECT_GT(mesures, 1000);
}

} // namespace
} // namespace velmaris::essais
