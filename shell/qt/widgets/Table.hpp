#pragma once

#include "shell/fenetres/Tableau.hpp"
#include "shell/qt/widgets/Adaptateur.hpp"

#include <QAbstractTableModel>
#include <QTableView>

#include <functional>
#include <memory>

namespace velmaris::qt {

/// The rows of a table of the core, as the toolkit asks for them: those in sight and no others.
class ModeleTable : public QAbstractTableModel {
public:
  using QAbstractTableModel::QAbstractTableModel;

  /// Shows a table as it is now.
  /// @return whether rows or columns are others than before, so that nothing is chosen any more
  bool Prend(const Tableau &tableau);
  /// Columns beside those of the table itself: that of the boxes.
  int decalage() const { return tableau_.coches ? 1 : 0; }
  const Tableau &tableau() const { return tableau_; }

  int rowCount(const QModelIndex &parent = {}) const override;
  int columnCount(const QModelIndex &parent = {}) const override;
  QVariant data(const QModelIndex &index, int role) const override;
  QVariant headerData(int section, Qt::Orientation sens, int role) const override;
  Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
  QVariant Mots(std::size_t ligne, int colonne, int role) const;
  QVariant Encre(std::size_t ligne) const;
  QVariant Penche(std::size_t ligne) const;
  Tableau tableau_;
};

/// A long list. The keyboard has it whole: arrows and pages move, with shift they choose more, Home and End go to its
/// ends, the space bar ticks, Return does what a row is for, Tab leaves.
class Table : public QTableView {
public:
  explicit Table(QWidget *parent);

  std::function<void()> auChoix;         ///< other rows are chosen, or another is the current one
  std::function<void(int)> auCoche;      ///< the box of a row was pressed
  std::function<void(int)> auValide;     ///< a row was pressed twice, or Return
  std::function<void(int)> auDefilement; ///< another row is the topmost in sight

  ModeleTable &modele() { return modele_; }
  const ModeleTable &modele() const { return modele_; }
  /// The chosen rows, in ascending order.
  std::vector<std::size_t> Choisies() const;
  int Courante() const { return currentIndex().row(); }
  /// Chooses rows and moves to one, without telling.
  void Choisit(const std::vector<std::size_t> &lignes, int courante);
  /// Brings a row to the top, without telling.
  void MontreDe(int ligne);
  /// Heights and widths by the scale of the window.
  void Mesure();

  void keyboardSearch(const QString &texte) override;

protected:
  void keyPressEvent(QKeyEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void mouseDoubleClickEvent(QMouseEvent *event) override;
  QModelIndex moveCursor(CursorAction geste, Qt::KeyboardModifiers touches) override;
  void selectionChanged(const QItemSelection &ajout, const QItemSelection &retrait) override;
  void currentChanged(const QModelIndex &courante, const QModelIndex &avant) override;
  void scrollContentsBy(int dx, int dy) override;

private:
  bool SurCoche(QPoint place) const;
  void ChoisitCourante(const QKeyEvent &event);

  ModeleTable modele_;
  bool pose_ = false; ///< rows are being set by the core
};

/// Makes what brings a table and its control together.
std::unique_ptr<Adaptateur> CreeTable(QWidget *parent);

} // namespace velmaris::qt
