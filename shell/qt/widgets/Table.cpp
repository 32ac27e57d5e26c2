#include "shell/qt/widgets/Table.hpp"

#include "shell/bureau/Evenements.hpp"
#include "shell/qt/peinture/Apparat.hpp"
#include "shell/qt/peinture/Grandeur.hpp"
#include "shell/qt/peinture/Palette.hpp"
#include "shell/qt/widgets/Widgets.hpp"

#include <QApplication>
#include <QFont>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace velmaris::qt {
namespace {

constexpr double kHauteurLigne = 1.45;            ///< of the font's height
constexpr int kLargeurCoche = 30;                 ///< pixels of the column of boxes, at scale 1
constexpr Couleur kAlerteLigne = Rvb(160, 60, 0); ///< ink of a row that is to be looked at, by day

Qt::Alignment Alignement(Cote cote) {
  return Qt::AlignVCenter | (cote == Cote::Droite   ? Qt::AlignRight
                             : cote == Cote::Centre ? Qt::AlignHCenter
                                                    : Qt::AlignLeft);
}

} // namespace

bool ModeleTable::Prend(const Tableau &tableau) {
  const bool vide = tableau.lecteur == nullptr;
  const bool autres = tableau.lignes != tableau_.lignes || vide != (tableau_.lecteur == nullptr) ||
                      tableau.colonnes.size() != tableau_.colonnes.size() || tableau.coches != tableau_.coches;
  if (autres) {
    beginResetModel();
    tableau_ = tableau;
    endResetModel();
    return true;
  }
  tableau_ = tableau;
  if (rowCount() > 0) {
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
  }
  if (columnCount() > 0) {
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
  }
  return false;
}

int ModeleTable::rowCount(const QModelIndex &parent) const {
  return parent.isValid() || tableau_.lecteur == nullptr ? 0 : static_cast<int>(tableau_.lignes);
}

int ModeleTable::columnCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : static_cast<int>(tableau_.colonnes.size()) + decalage();
}

/// A cell's words; a box is called by those of its row's first cell.
QVariant ModeleTable::Mots(std::size_t ligne, int colonne, int role) const {
  if (colonne < 0) {
    return role == Qt::AccessibleTextRole ? Texte(tableau_.lecteur->texte(ligne, 0)) : QVariant();
  }
  const std::string mots = tableau_.lecteur->texte(ligne, static_cast<std::size_t>(colonne));
  return role == Qt::ToolTipRole ? Infobulle(mots) : Texte(mots);
}

QVariant ModeleTable::Encre(std::size_t ligne) const {
  switch (tableau_.lecteur->ton(ligne)) {
  case TonLigne::Alerte:
    return EncreDeLegende(EclairageVu(), kAlerteLigne);
  case TonLigne::Faible:
    return EncrePale(EclairageVu());
  case TonLigne::Ordinaire:
  default:
    return {};
  }
}

/// What stands back is slanted too: by night all texts are nearly as bright, and some eyes see no difference of tone.
QVariant ModeleTable::Penche(std::size_t ligne) const {
  if (tableau_.lecteur->ton(ligne) != TonLigne::Faible) {
    return {};
  }
  QFont police;
  police.setItalic(true);
  return police;
}

QVariant ModeleTable::data(const QModelIndex &index, int role) const {
  if (!index.isValid() || index.row() >= rowCount() || index.column() >= columnCount()) {
    return {};
  }
  const auto ligne = static_cast<std::size_t>(index.row());
  const int colonne = index.column() - decalage();
  switch (role) {
  case Qt::DisplayRole:
  case Qt::ToolTipRole:
  case Qt::AccessibleTextRole:
    return Mots(ligne, colonne, role);
  case Qt::TextAlignmentRole:
    return colonne < 0 ? QVariant() : QVariant(Alignement(tableau_.colonnes[static_cast<std::size_t>(colonne)].cote));
  case Qt::ForegroundRole:
    return Encre(ligne);
  case Qt::FontRole:
    return Penche(ligne);
  case Qt::CheckStateRole:
    return colonne >= 0 ? QVariant() : QVariant(tableau_.lecteur->coche(ligne) ? Qt::Checked : Qt::Unchecked);
  default:
    return {};
  }
}

QVariant ModeleTable::headerData(int section, Qt::Orientation sens, int role) const {
  const int colonne = section - decalage();
  if (sens != Qt::Horizontal || colonne < 0 || section >= columnCount()) {
    return {};
  }
  const Colonne &c = tableau_.colonnes[static_cast<std::size_t>(colonne)];
  switch (role) {
  case Qt::DisplayRole:
    return Texte(c.legende);
  case Qt::TextAlignmentRole:
    return static_cast<int>(Alignement(c.cote));
  default:
    return {};
  }
}

Qt::ItemFlags ModeleTable::flags(const QModelIndex &index) const {
  const Qt::ItemFlags permis = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
  return index.isValid() && index.column() < decalage() ? permis | Qt::ItemIsUserCheckable : permis;
}

Table::Table(QWidget *parent) : QTableView(parent), modele_(this) {
  setModel(&modele_);
  setSelectionBehavior(SelectRows);
  setSelectionMode(ExtendedSelection);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setShowGrid(false);
  setAlternatingRowColors(true);
  setCornerButtonEnabled(false);
  setVerticalScrollMode(ScrollPerItem);
  setHorizontalScrollMode(ScrollPerPixel);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setMinimumSectionSize(1); // with rows in it the toolkit would take half a minute for that
  horizontalHeader()->setMinimumSectionSize(1);
  horizontalHeader()->setDefaultSectionSize(1); // the last column takes what is left, however little
  horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setStretchLastSection(true);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setSectionsClickable(false);
}

std::vector<std::size_t> Table::Choisies() const {
  std::vector<std::size_t> lignes;
  for (const QItemSelectionRange &plage : selectionModel()->selection()) {
    for (int ligne = plage.top(); ligne <= plage.bottom(); ++ligne) {
      lignes.push_back(static_cast<std::size_t>(ligne));
    }
  }
  std::sort(lignes.begin(), lignes.end());
  lignes.erase(std::unique(lignes.begin(), lignes.end()), lignes.end());
  return lignes;
}

void Table::Choisit(const std::vector<std::size_t> &lignes, int courante) {
  const bool avant = std::exchange(pose_, true);
  const int derniere = modele_.columnCount() - 1;
  QItemSelection choix;
  for (auto debut = lignes.begin(); debut != lignes.end();) {
    auto fin = debut + 1;
    while (fin != lignes.end() && *fin == *(fin - 1) + 1) {
      ++fin;
    }
    choix.append(QItemSelectionRange(modele_.index(static_cast<int>(*debut), 0),
                                     modele_.index(static_cast<int>(*(fin - 1)), derniere)));
    debut = fin;
  }
  selectionModel()->select(choix, QItemSelectionModel::ClearAndSelect);
  selectionModel()->setCurrentIndex(modele_.index(courante, modele_.decalage()), QItemSelectionModel::NoUpdate);
  pose_ = avant;
}

void Table::MontreDe(int ligne) {
  if (ligne != rowAt(0)) {
    const bool avant = std::exchange(pose_, true);
    scrollTo(modele_.index(ligne, modele_.decalage()), PositionAtTop);
    pose_ = avant;
  }
}

void Table::Mesure() {
  const double f = PixelsParTwip(*this);
  const int hauteur = static_cast<int>(std::lround(fontMetrics().height() * kHauteurLigne));
  if (verticalHeader()->defaultSectionSize() != hauteur) {
    // Told of each row by itself, the toolkit would work out a hundred thousand of them one after the other.
    const QSignalBlocker silence(verticalHeader());
    verticalHeader()->setDefaultSectionSize(hauteur);
    scheduleDelayedItemsLayout();
  }
  horizontalHeader()->setFixedHeight(hauteur);
  if (modele_.decalage() > 0) {
    setColumnWidth(0, Pixels(kLargeurCoche, *this));
  }
  const std::vector<Colonne> &colonnes = modele_.tableau().colonnes;
  for (std::size_t i = 0; i + 1 < colonnes.size(); ++i) {
    setColumnWidth(static_cast<int>(i) + modele_.decalage(), static_cast<int>(std::lround(colonnes[i].largeur * f)));
  }
}

/// Letters choose nothing: the rows would all have to be read for it.
void Table::keyboardSearch(const QString & /*texte*/) {}

void Table::keyPressEvent(QKeyEvent *event) {
  const int touche = event->key();
  const bool retour = touche == Qt::Key_Return || touche == Qt::Key_Enter;
  if (retour && Courante() >= 0 && auValide) {
    event->accept();
    auValide(Courante());
  } else if (touche == Qt::Key_Space && modele_.decalage() > 0 && Courante() >= 0 && auCoche) {
    event->accept();
    auCoche(Courante());
  } else {
    QTableView::keyPressEvent(event);
    ChoisitCourante(*event);
  }
}

/// A key that moves nowhere, at an end of the list, chooses the row that it is at, while none is chosen.
void Table::ChoisitCourante(const QKeyEvent &event) {
  constexpr std::array kVont = {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_Home, Qt::Key_End, Qt::Key_PageDown};
  if (std::count(kVont.begin(), kVont.end(), event.key()) > 0 && event.modifiers() == Qt::NoModifier &&
      !selectionModel()->hasSelection() && currentIndex().isValid()) {
    selectRow(Courante());
  }
}

bool Table::SurCoche(QPoint place) const {
  const QModelIndex index = indexAt(place);
  return index.isValid() && index.column() < modele_.decalage();
}

void Table::mousePressEvent(QMouseEvent *event) {
  const QPoint place = event->position().toPoint();
  if (event->button() == Qt::LeftButton && SurCoche(place)) {
    const int ligne = indexAt(place).row();
    selectionModel()->setCurrentIndex(modele_.index(ligne, modele_.decalage()), QItemSelectionModel::NoUpdate);
    auCoche(ligne);
  } else {
    QTableView::mousePressEvent(event);
  }
}

void Table::mouseDoubleClickEvent(QMouseEvent *event) {
  const QPoint place = event->position().toPoint();
  const QModelIndex index = indexAt(place);
  if (event->button() != Qt::LeftButton || !index.isValid()) {
    QTableView::mouseDoubleClickEvent(event);
  } else if (SurCoche(place)) {
    mousePressEvent(event); // pressed twice is ticked and cleared
  } else {
    auValide(index.row());
  }
}

QModelIndex Table::moveCursor(CursorAction geste, Qt::KeyboardModifiers touches) {
  const int colonne = modele_.decalage();
  switch (geste) {
  case MoveHome:
    return modele_.index(0, colonne);
  case MoveEnd:
    return modele_.index(modele_.rowCount() - 1, colonne);
  case MoveLeft:
  case MoveRight:
    return currentIndex();
  default:
    return QTableView::moveCursor(geste, touches).siblingAtColumn(colonne);
  }
}

void Table::selectionChanged(const QItemSelection &ajout, const QItemSelection &retrait) {
  QTableView::selectionChanged(ajout, retrait);
  if (!pose_ && auChoix) {
    auChoix();
  }
}

void Table::currentChanged(const QModelIndex &courante, const QModelIndex &avant) {
  QTableView::currentChanged(courante, avant);
  if (!pose_ && auChoix) {
    auChoix();
  }
}

void Table::scrollContentsBy(int dx, int dy) {
  QTableView::scrollContentsBy(dx, dy);
  if (auDefilement) {
    auDefilement(std::max(0, rowAt(0)));
  }
}

namespace {

class ATable : public Adaptateur {
public:
  explicit ATable(Table *table) : Adaptateur(*table), w_(*table) {}

  void Ecoute(Bureau &bureau, Controle &c, const Joueur &joue) override {
    w_.auChoix = [this, &bureau, &c, joue] { joue([&] { ChoisitLignes(bureau, c, w_.Choisies(), w_.Courante()); }); };
    w_.auCoche = [&bureau, &c, joue](int ligne) { joue([&] { CocheLigne(bureau, c, ligne); }); };
    w_.auValide = [&bureau, &c, joue](int ligne) { joue([&] { ValideLigne(bureau, c, ligne); }); };
    // Scrolling changes nothing but what is in sight: it needs no window brought in line.
    w_.auDefilement = [&c](int ligne) { c.tableau.premiere = ligne; };
  }
  Contenu Montre() const override {
    const Tableau &montre = w_.modele().tableau();
    return {Marque(montre, w_.Choisies()), w_.Courante(), static_cast<qsizetype>(montre.lignes)};
  }
  Contenu Voulu(const Controle &c) const override {
    return {Marque(c.tableau, c.tableau.choisies), c.tableau.courante, static_cast<qsizetype>(c.tableau.lignes)};
  }
  void AccordeTeintes(const Controle &c) override {
    Adaptateur::AccordeTeintes(c);
    w_.viewport()->update();
  }

protected:
  void PoseContenu(const Controle &c, const Controle & /*vu*/, bool tout) override {
    const int premiere = c.tableau.premiere; // which what follows moves
    if (w_.modele().Prend(c.tableau) || tout) {
      w_.Mesure();
    }
    w_.MontreDe(premiere);
    w_.Choisit(c.tableau.choisies, c.tableau.courante);
  }
  void PoseLegende(const Controle & /*c*/) override { w_.Mesure(); }

private:
  /// What tells two states of a table apart: version, captions, chosen rows from first to last.
  static QString Marque(const Tableau &tableau, const std::vector<std::size_t> &choisies) {
    QString marque = QString::number(tableau.version);
    for (const Colonne &colonne : tableau.colonnes) {
      marque += '|' + Texte(colonne.legende);
    }
    for (std::size_t i = 0; i < choisies.size(); ++i) {
      const bool debut = i == 0 || choisies[i] != choisies[i - 1] + 1;
      const bool fin = i + 1 == choisies.size() || choisies[i + 1] != choisies[i] + 1;
      if (debut || fin) {
        marque += (debut ? ',' : '-') + QString::number(choisies[i]);
      }
    }
    return marque;
  }

  Table &w_;
};

} // namespace

std::unique_ptr<Adaptateur> CreeTable(QWidget *parent) { return std::make_unique<ATable>(new Table(parent)); }

} // namespace velmaris::qt
