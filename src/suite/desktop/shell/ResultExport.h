#pragma once

#include "host/Grade.h"

#include <QObject>

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

class QMenu;
class QWidget;

namespace suite::desktop {

class GridPane;

// Writes rows of a grid, by position in its dataset and in that order, to a file by its ending. Throws base::TFalha.
using ExportFunction = std::function<void(const host::TGrade& grid, const std::vector<std::uint32_t>& lines,
                                          const std::string& file, std::span<const std::string> title)>;

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
    // Asked at each export: the pane in view, null for none, and what stands above its rows.
    std::function<GridPane*()> pane;
    std::function<std::vector<std::string>()> title;
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
