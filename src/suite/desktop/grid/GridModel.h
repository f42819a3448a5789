#pragma once

#include "suite/desktop/grid/GridRows.h"
#include "suite/desktop/grid/PaneColumns.h"

#include <QAbstractTableModel>

#include <map>

namespace suite::desktop {

// The rows of a grid in view as the toolkit's views ask for them. Every text and every look is made when it is asked
// for, and none is kept.
class GridModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    // Both outlive the model.
    GridModel(const host::TGrade& grid, GridRows& rows, QObject* parent = nullptr);

    const host::TGrade& grid() const { return grid_; }
    const GridRows& rows() const { return rows_; }
    const std::vector<PaneColumn>& columns() const { return columns_; }
    const host::TColunaGrade& column(int index) const { return grid_.Colunas()[columns_[at(index)].place]; }
    int frozen() const { return frozen_; } // leading columns that stay in view

    // Runs a change of rows between the two halves of a reset.
    void change(const std::function<void()>& deed);
    // The columns as the grid has them now; part of a change.
    void readColumns(bool freeze);

    struct Cell {
        QString text;
        host::TAparencia look;
    };
    // A cell of a line. An identification that the rule leaves to the first line of a block is shown where that line is
    // not the one above.
    Cell cell(int row, int column, bool selected) const;
    bool isGroup(int row) const { return rows_.isGroup(at(row)); }
    bool isOpen(int row) const { return rows_.group(rows_.groupAt(at(row))).open; }
    int level(int row) const { return static_cast<int>(rows_.group(rows_.groupAt(at(row))).level); }
    QString caption(int row) const;                     // of a group
    QString sumText(std::size_t set, int column) const; // "" for none
    QString reasonText(std::size_t set, int column) const;

    void setColourMeanings(std::map<host::TCor, QString> meanings) { meanings_ = std::move(meanings); }
    // What the colour of a line says, "" for nothing, and the sign that stands for it: "R>".
    QString meaning(int row) const;
    static QString mark(const QString& meaning);
    bool showsMark(int column) const; // the column beside whose value the sign stands

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

  private:
    static std::size_t at(int index) { return static_cast<std::size_t>(index); }
    bool repeatsAbove(int row, int column) const;
    QVariant groupData(int row, int column, int role) const;

    const host::TGrade& grid_;
    GridRows& rows_;
    std::vector<PaneColumn> columns_;
    int frozen_ = 0;
    std::map<host::TCor, QString> meanings_;
};

} // namespace suite::desktop
