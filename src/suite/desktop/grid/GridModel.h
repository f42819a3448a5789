#pragma once

#include "suite/table/Table.h"

#include <QAbstractTableModel>

#include <functional>

namespace suite::desktop {

// A table as the toolkit's views ask for it. Every text and every look is made when it is asked for, and none is kept.
class GridModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    // The table outlives the model, which is empty before the first change: views are made quickly then.
    GridModel(table::Table& table, QObject* parent);

    const table::Table& table() const { return table_; }
    const table::Rows& rows() const { return table_.rows(); }
    const table::Column& column(int index) const { return table_.columns()[at(index)]; }
    const std::string& field(int index) const { return column(index).shown->Campo; }
    int indexOf(const std::string& field) const; // -1 for a column that is not in view
    int frozen() const { return frozen_; }       // leading columns that stay in view
    const std::vector<table::Band>& bands() const { return bands_; }

    // Runs a change of rows or columns between the two halves of a reset.
    void change(const std::function<void()>& deed);
    bool freezes() const { return freeze_; }
    void freeze(bool on) { freeze_ = on; } // seen at the next change

    bool isGroup(int row) const { return rows().isGroup(at(row)); }
    bool isOpen(int row) const { return group(row).open; }
    int level(int row) const { return static_cast<int>(group(row).level); }
    table::Table::Cell cell(int row, int column, bool selected = false) const; // of a line
    QString caption(int row) const;                                            // of a group
    QString sumText(std::size_t set, int column) const;                        // "" for none
    QString reasonText(std::size_t set, int column) const;
    QString meaning(int row) const; // of a line's colour, "" for nothing
    QString sign(int row) const;    // that stands for it

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

  private:
    static std::size_t at(int index) { return static_cast<std::size_t>(index); }
    const table::Rows::Group& group(int row) const { return rows().group(rows().groupAt(at(row))); }
    std::string lineMeaning(int row) const;
    QVariant groupData(int row, int column, int role) const;

    table::Table& table_;
    bool shown_ = false;
    bool freeze_ = true;
    int frozen_ = 0;
    std::vector<table::Band> bands_;
};

} // namespace suite::desktop
