#include "shell/qt/widgets/GenresListes.hpp"

#include "shell/bureau/Evenements.hpp"
#include "shell/qt/peinture/Grandeur.hpp"
#include "shell/qt/peinture/Icones.hpp"
#include "shell/qt/widgets/Elements.hpp"
#include "shell/qt/widgets/GenreDe.hpp"
#include "shell/qt/widgets/Widgets.hpp"

#include <QComboBox>
#include <QListWidget>
#include <QPaintEvent>
#include <QPainter>
#include <QTabBar>

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmaris::qt {
namespace {

/// The line of a list that a control chooses, -1 for none.
int Ligne(const Controle &c) { return c.rang >= 0 && static_cast<std::size_t>(c.rang) < c.liste.size() ? c.rang : -1; }

/// A closed list. A text that is no line of it is shown all the same.
class AListe : public De<Deroulante> {
public:
  using De::De;
  void Ecoute(Bureau &bureau, Controle &c, const Joueur &joue) override {
    QObject::connect(&w, &QComboBox::activated, &w,
                     [&bureau, &c, joue](int rang) { joue([&] { ChoisitLigne(bureau, c, rang); }); });
  }
  Contenu Montre() const override {
    return {w.currentIndex() < 0 ? w.placeholderText() : w.currentText(), w.currentIndex(), w.count()};
  }
  Contenu Voulu(const Controle &c) const override {
    const int ligne = Ligne(c);
    return {Texte(ligne < 0 ? c.texte : c.liste[static_cast<std::size_t>(ligne)]), ligne,
            static_cast<qsizetype>(c.liste.size())};
  }

protected:
  void PoseContenu(const Controle &c, const Controle &vu, bool tout) override {
    if (tout || c.liste != vu.liste || w.count() != static_cast<int>(c.liste.size())) {
      w.clear();
      for (const std::string &ligne : c.liste) {
        w.addItem(Texte(ligne));
      }
    }
    for (int i = 0; i < w.count(); ++i) {
      const auto rang = static_cast<std::size_t>(i);
      w.setItemIcon(i, rang < c.loin.size() && c.loin[rang] ? Icone("attention") : QIcon());
    }
    w.setPlaceholderText(Texte(c.texte));
    w.setCurrentIndex(Ligne(c));
  }
  void PoseAlerte(bool alerte) override { w.PoseAlerte(alerte); }
};

/// Tabs whose current one is underlined: by its ground alone it is hardly told in a night's reds.
class Onglets : public QTabBar {
public:
  using QTabBar::QTabBar;

protected:
  void paintEvent(QPaintEvent *event) override {
    constexpr double kTrait = 2.5; // points of the screen at scale 1
    constexpr int kRetrait = 6;
    QTabBar::paintEvent(event);
    if (currentIndex() >= 0) {
      const QRect onglet = tabRect(currentIndex());
      const int trait = static_cast<int>(std::lround(std::max(2.0, kTrait * Grandeur(*this))));
      QPainter(this).fillRect(onglet.left() + kRetrait, onglet.bottom() - trait, onglet.width() - 2 * kRetrait, trait,
                              palette().color(QPalette::Highlight));
    }
  }
};

class AOnglets : public De<QTabBar> {
public:
  using De::De;
  void Ecoute(Bureau &bureau, Controle &c, const Joueur &joue) override {
    QObject::connect(&w, &QTabBar::currentChanged, &w,
                     [&bureau, &c, joue](int rang) { joue([&] { ChoisitLigne(bureau, c, rang); }); });
  }
  Contenu Montre() const override { return {{}, w.currentIndex(), w.count()}; }
  Contenu Voulu(const Controle &c) const override { return {{}, Ligne(c), static_cast<qsizetype>(c.liste.size())}; }

protected:
  void PoseContenu(const Controle &c, const Controle & /*vu*/, bool /*tout*/) override {
    for (int i = 0; std::cmp_less(i, c.liste.size()); ++i) {
      const QString mots = Texte(c.liste[static_cast<std::size_t>(i)]);
      i < w.count() ? w.setTabText(i, mots) : static_cast<void>(w.addTab(mots));
    }
    w.setCurrentIndex(Ligne(c));
  }
};

class AListeBoite : public De<QListWidget> {
public:
  using De::De;
  void Ecoute(Bureau &bureau, Controle &c, const Joueur &joue) override {
    const auto choisit = [&bureau, &c, joue](int rang) { joue([&] { ChoisitLigne(bureau, c, rang); }); };
    QObject::connect(&w, &QListWidget::currentRowChanged, &w, choisit);
    QObject::connect(&w, &QListWidget::itemPressed, &w,
                     [this, choisit](QListWidgetItem *ligne) { choisit(w.row(ligne)); });
    QObject::connect(&w, &QListWidget::itemDoubleClicked, &w,
                     [&bureau, &c, joue] { joue([&] { DoubleClicControle(bureau, c); }); });
  }
  bool EstChamp() const override { return true; }
  Contenu Montre() const override {
    const QListWidgetItem *ligne = w.currentItem();
    return {ligne == nullptr ? QString() : ligne->text(), w.currentRow(), w.count()};
  }
  Contenu Voulu(const Controle &c) const override {
    const int ligne = Ligne(c);
    return {ligne < 0 ? QString() : Texte(c.liste[static_cast<std::size_t>(ligne)]), ligne,
            static_cast<qsizetype>(c.liste.size())};
  }

protected:
  void PoseContenu(const Controle &c, const Controle &vu, bool tout) override {
    const auto montrees = static_cast<std::size_t>(w.count());
    const bool ajout = !tout && montrees == vu.liste.size() && c.liste.size() == vu.liste.size() + 1 &&
                       std::equal(vu.liste.begin(), vu.liste.end(), c.liste.begin());
    if (ajout) {
      w.addItem(Texte(c.liste.back()));
      w.scrollToBottom();
    } else if (tout || c.liste != vu.liste || montrees != c.liste.size()) {
      QStringList lignes;
      lignes.reserve(static_cast<qsizetype>(c.liste.size()));
      for (const std::string &ligne : c.liste) {
        lignes << Texte(ligne);
      }
      w.clear();
      w.addItems(lignes);
    }
    if (w.currentRow() != Ligne(c)) {
      w.setCurrentRow(Ligne(c));
    }
  }
};

} // namespace

std::unique_ptr<Adaptateur> CreeListe(QWidget *parent) { return std::make_unique<AListe>(new Deroulante(parent)); }

std::unique_ptr<Adaptateur> CreeListeBoite(QWidget *parent) {
  auto *liste = new ListeSansChoix(parent);
  liste->setUniformItemSizes(true);
  liste->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  return std::make_unique<AListeBoite>(liste);
}

std::unique_ptr<Adaptateur> CreeOnglets(QWidget *parent) {
  auto *onglets = new Onglets(parent);
  onglets->setDrawBase(false);
  onglets->setExpanding(false);
  onglets->setUsesScrollButtons(false);
  onglets->setFocusPolicy(Qt::StrongFocus);
  return std::make_unique<AOnglets>(onglets);
}

} // namespace velmaris::qt
