#pragma once

#include "host/Lookup.h"

#include <QAbstractTableModel>

#include <cstdint>
#include <vector>

namespace suite::desktop {

// The rows of a search as its window shows them: those that the filter lets through, in the order of the search, with
// a mark before each where several may be chosen. Positions count from 1 in the search.
class LookupRows : public QAbstractTableModel {
    Q_OBJECT

  public:
    LookupRows(const host::TZTLookupEx& lookup, const host::TDataSet& search, QObject* parent);

    void setFilter(const QString& text);
    bool marks() const { return marks_; }
    void toggle(int row);
    void markShown(bool marked);             // all that the filter lets through
    std::vector<std::size_t> marked() const; // in the order of the search
    std::size_t position(int row) const { return shown_[static_cast<std::size_t>(row)]; }
    int rowOf(std::size_t position) const; // -1 where the filter hides it

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

  Q_SIGNALS:
    void marksChanged();

  private:
    bool isMark(const QModelIndex& index) const { return marks_ && index.column() == 0; }
    const host::TField* field(int column) const;
    void tellMarks();

    const host::TZTLookupEx& lookup_;
    const host::TDataSet& search_;
    bool marks_;
    std::vector<const host::TField*> fields_;
    std::vector<std::size_t> shown_;
    std::vector<std::uint8_t> marked_; // by position, from 0
};

} // namespace suite::desktop
