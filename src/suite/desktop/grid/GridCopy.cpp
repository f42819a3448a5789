#include "suite/desktop/grid/GridCopy.h"

#include "suite/desktop/grid/GridModel.h"
#include "suite/desktop/grid/GridView.h"
#include "suite/desktop/look/Text.h"
#include "suite/export/Formats.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>

#include <algorithm>
#include <functional>
#include <memory>
#include <numeric>
#include <set>

namespace suite::desktop {

namespace {

QString textOf(std::string_view text) { return fromUtf8(exporting::harmless(text)); }

class Copy {
  public:
    explicit Copy(bool html) : html_(html) {}

    void begin() {
        first_ = true;
        if (html_)
            marked_ += QLatin1String("<tr>");
    }
    void add(QString text, bool right, bool title) {
        // A tab or a line break inside a cell would be taken for the end of it.
        text.replace(QLatin1Char('\t'), QLatin1Char(' ')).replace(QLatin1Char('\n'), QLatin1Char(' '));
        plain_ += (first_ ? QString() : QStringLiteral("\t")) + text;
        first_ = false;
        if (!html_)
            return;
        const auto* tag = title ? "th" : "td";
        marked_ += QStringLiteral("<%1%2>%3</%1>")
                       .arg(QLatin1String(tag), QLatin1String(right ? " align=\"right\"" : ""), text.toHtmlEscaped());
    }
    void end() {
        plain_ += QLatin1Char('\n');
        if (html_)
            marked_ += QLatin1String("</tr>\n");
    }
    std::unique_ptr<QMimeData> finish() {
        auto data = std::make_unique<QMimeData>();
        plain_.chop(1);
        data->setText(plain_);
        if (html_)
            data->setHtml(QStringLiteral("<table border=\"1\">\n%1</table>").arg(marked_));
        return data;
    }

  private:
    bool html_;
    bool first_ = true;
    QString plain_;
    QString marked_;
};

void addTitles(Copy& copy, const GridModel& model, const std::vector<int>& columns) {
    copy.begin();
    for (const auto column : columns)
        copy.add(textOf(model.column(column).heading), false, true);
    copy.end();
}

void addRow(Copy& copy, const GridModel& model, int row, const std::vector<int>& columns,
            const std::function<bool(int)>& contains) {
    const auto& table = model.table();
    const bool group = model.isGroup(row);
    copy.begin();
    for (const auto index : columns) {
        const auto& column = model.column(index);
        QString text;
        if (!contains(index))
            text = QString();
        else if (group)
            text = index == 0 ? textOf(toUtf8(model.caption(row)))
                              : fromUtf8(table.sumText(model.rows().groupAt(static_cast<std::size_t>(row)), column));
        else if (const auto cell = model.cell(row, index); column.type() == host::TTipoColuna::Texto)
            text = textOf(cell.text);
        else
            text = fromUtf8(cell.text);
        copy.add(text, column.right(), false);
    }
    copy.end();
}

void toClipboard(std::unique_ptr<QMimeData> data) { QApplication::clipboard()->setMimeData(data.release()); }

struct WaitCursor {
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

} // namespace

void copySelection(const GridView& view, const GridModel& model, bool titles) {
    auto selection = view.selectionModel()->selection();
    if (selection.isEmpty() && view.currentIndex().isValid())
        selection.select(view.currentIndex(), view.currentIndex());
    if (selection.isEmpty())
        return;
    const WaitCursor waiting;
    std::set<int> rows;
    std::set<int> across;
    for (const auto& range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.insert(rows.end(), row);
        for (int column = range.left(); column <= range.right(); ++column)
            across.insert(column);
    }
    const std::vector<int> columns(across.begin(), across.end());
    Copy copy(static_cast<int>(rows.size()) <= MostHtmlRows);
    if (titles && rows.size() * columns.size() > 1)
        addTitles(copy, model, columns);
    for (const auto row : rows)
        addRow(copy, model, row, columns, [&](int column) {
            return std::any_of(selection.begin(), selection.end(),
                               [&](const QItemSelectionRange& range) { return range.contains(row, column, {}); });
        });
    toClipboard(copy.finish());
}

void copyAll(const GridModel& model) {
    const WaitCursor waiting;
    std::vector<int> columns(static_cast<std::size_t>(model.columnCount()));
    std::iota(columns.begin(), columns.end(), 0);
    Copy copy(model.rowCount() <= MostHtmlRows);
    addTitles(copy, model, columns);
    for (int row = 0; row < model.rowCount(); ++row)
        addRow(copy, model, row, columns, [](int) { return true; });
    toClipboard(copy.finish());
}

} // namespace suite::desktop
