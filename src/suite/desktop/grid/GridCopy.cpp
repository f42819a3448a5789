#include "suite/desktop/grid/GridCopy.h"

#include <QMimeData>

#include <algorithm>
#include <set>

namespace suite::desktop {

namespace {

class Table {
  public:
    explicit Table(bool html) : html_(html) {}

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

void addTitles(Table& table, const GridModel& model, const std::vector<int>& columns) {
    table.begin();
    for (const auto column : columns)
        table.add(model.headerData(column, Qt::Horizontal, Qt::AccessibleTextRole).toString(), false, true);
    table.end();
}

template <class Contains>
void addRow(Table& table, const GridModel& model, int row, const std::vector<int>& columns, const Contains& contains) {
    table.begin();
    for (const auto column : columns)
        table.add(contains(column) ? model.data(model.index(row, column), Qt::DisplayRole).toString() : QString(),
                  model.columns()[static_cast<std::size_t>(column)].number, false);
    table.end();
}

} // namespace

std::unique_ptr<QMimeData> copyOf(const GridModel& model, const QItemSelection& selection, CopyTitles titles) {
    std::set<int> rows;
    std::set<int> across;
    for (const auto& range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.insert(rows.end(), row);
        for (int column = range.left(); column <= range.right(); ++column)
            across.insert(column);
    }
    const std::vector<int> columns(across.begin(), across.end());
    Table table(static_cast<int>(rows.size()) <= MostHtmlRows);
    if (titles == CopyTitles::With)
        addTitles(table, model, columns);
    for (const auto row : rows)
        addRow(table, model, row, columns, [&](int column) {
            return std::any_of(selection.begin(), selection.end(),
                               [&](const QItemSelectionRange& range) { return range.contains(row, column, {}); });
        });
    return table.finish();
}

std::unique_ptr<QMimeData> copyOfAll(const GridModel& model) {
    std::vector<int> columns;
    for (int i = 0; i < model.columnCount(); ++i)
        columns.push_back(i);
    Table table(model.rowCount() <= MostHtmlRows);
    addTitles(table, model, columns);
    for (int row = 0; row < model.rowCount(); ++row)
        addRow(table, model, row, columns, [](int) { return true; });
    return table.finish();
}

} // namespace suite::desktop
