#pragma once

#include "suite/table/Table.h"

#include <QObject>

#include <functional>
#include <string>
#include <vector>

class QMenu;
class QWidget;

namespace suite::desktop {

class GridPane;

// Writes what a table says to a file by its ending. Throws base::TFalha.
using ExportFunction = std::function<void(const table::Table& table, const std::string& file)>;

// A kind of file to which the export can write.
struct ExportFormat {
    std::string ending;  // ".xlsx"
    std::string caption; // "Planilha (.xlsx)"
};

// The menu "Exportar": what the grid in view shows, as a file or on the clipboard.
class ResultExport : public QObject {
  public:
    ResultExport(ExportFunction write, std::vector<ExportFormat> formats, QWidget& window);

    QMenu& menu() const { return *menu_; }
    // Asked at each export: the pane in view, null for none.
    std::function<GridPane*()> pane;
    // Runs the deed and shows its failure.
    std::function<void(const std::function<void()>&)> attempt;
    std::function<void(const QString&)> tell; // a line for the user
    void setEnabled(bool enabled);

  private:
    void toFile(const ExportFormat& format);
    void write(const GridPane& pane, const QString& file);
    void toClipboard();

    ExportFunction write_;
    std::vector<ExportFormat> formats_;
    QWidget& window_;
    QMenu* menu_;
};

} // namespace suite::desktop
