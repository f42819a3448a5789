// A grid of 200,000 lines: what opening, sorting, grouping and filtering cost, and the memory beside the dataset's own.
//   medir [LINES [distintos]]  prints seconds and megabytes; with a name of its own for each line
//   papel [LINES]              writes them to paper; prints seconds and the size of the file
//   imagens FOLDER             paints the two grids as they look, in a light and in a dark palette
#include "bench/Medicao.h"
#include "suite/desktop/grid/GridPane.h"
#include "suite/desktop/grid/GridView.h"
#include "suite/paint/grid/TablePages.h"
#include "suite/export/Exporter.h"
#include "tests/apoio/Grades.h"
#include "tests/desktop/Aplicacao.h"

#include <QClipboard>
#include <QLineEdit>

#include <filesystem>
#include <unistd.h>

namespace {

using suite::desktop::GridPane;

QPalette darkPalette() {
    QPalette palette;
    for (const auto role : {QPalette::Window, QPalette::Button})
        palette.setColor(role, QColor(0x2A, 0x2E, 0x32));
    palette.setColor(QPalette::Base, QColor(0x1B, 0x1E, 0x20));
    palette.setColor(QPalette::Mid, QColor(0x4A, 0x50, 0x56));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, QColor(0xFC, 0xFC, 0xFC));
    palette.setColor(QPalette::Highlight, QColor(0x3D, 0xAE, 0xE9));
    palette.setColor(QPalette::HighlightedText, QColor(0xFC, 0xFC, 0xFC));
    palette.setColor(QPalette::PlaceholderText, QColor(0x9A, 0xA0, 0xA6));
    return palette;
}

void settle() {
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
}

void measureGrid(std::size_t lines, bool distinctNames) {
    apoio::GradeBalanco balance;
    balance.grade.MudarColuna("FILIAL", [](auto& column) { column.Grupo = -1; });
    balance.encher(lines, 50, distinctNames);
    std::size_t bytes = 0;
    for (const auto& column : balance.dados.Colunas())
        bytes += column.Bytes();
    const auto before = bench::memory("VmRSS");
    const auto heap = bench::heapInUse();
    const auto tell = [](const char* what, double spent) { std::printf("%-34s %7.3f s\n", what, spent); };
    std::unique_ptr<GridPane> pane;
    tell("show and paint", bench::seconds([&] {
             pane = std::make_unique<GridPane>(balance.grade);
             pane->resize(1400, 800);
             pane->show();
             settle();
         }));
    std::printf("%-34s %7zu calls\n", "rule asked by then", balance.perguntas);
    const auto columnOf = [&](const char* field) {
        for (int i = 0; i < pane->view().model()->columnCount(); ++i)
            if (pane->columnAt(i) == field)
                return i;
        return -1;
    };
    const auto timed = [&](const char* what, const std::function<void()>& deed) {
        tell(what, bench::seconds([&] {
                 deed();
                 settle();
             }));
    };
    timed("sort by number", [&] { pane->sortBy(columnOf("VLRORCADO"), false, false); });
    timed("sort by text", [&] { pane->sortBy(columnOf("NOMECONTA"), false, false); });
    timed("sort by text again, descending", [&] { pane->sortBy(columnOf("NOMECONTA"), true, false); });
    pane->unsort();
    auto* filter = pane->findChild<QLineEdit*>(QStringLiteral("FiltroNOMECONTA"));
    timed("filter text", [&] { filter->setText(QStringLiteral("pao")); });
    timed("clear", [&] { filter->clear(); });
    filter = pane->findChild<QLineEdit*>(QStringLiteral("FiltroVLRORCADO"));
    timed("filter number, comparison", [&] { filter->setText(QStringLiteral(">50000")); });
    timed("filter number, part", [&] { filter->setText(QStringLiteral("1234")); });
    filter->clear();
    timed("quick search that finds nothing", [&] {
        pane->search(QStringLiteral("999999999,99"));
        pane->findNext(true);
    });
    timed("group by establishment", [&] { pane->groupBy("FILIAL", true); });
    timed("collapse all", [&] { pane->expandAll(false); });
    timed("expand all", [&] { pane->expandAll(true); });
    timed("page down, 100 times", [&] {
        for (int i = 0; i < 100; ++i) {
            pane->view().setCurrentIndex(pane->view().model()->index(i * 500, 3));
            QCoreApplication::processEvents();
        }
    });
    const auto resident = bench::memory("VmRSS") - before; // what is copied is not the grid's
    timed("copy all", [&] { pane->copyAll(); });
    QGuiApplication::clipboard()->clear();
    const auto megabytes = [](std::size_t count) { return static_cast<double>(count) / (1024 * 1024); };
    std::printf("dataset %.1f MB; the grid holds %.1f MB, and the process grew by %.1f MB\n", megabytes(bytes),
                megabytes(bench::heapInUse() - heap), resident);
}

void measurePaper(std::size_t lines) {
    apoio::GradeBalanco balance;
    balance.encher(lines);
    const suite::table::Table table(balance.grade);
    const auto file = std::filesystem::temp_directory_path() / ("orcreal-" + std::to_string(::getpid()) + ".pdf");
    const auto spent = bench::seconds([&] { suite::paint::writeTablePdf(table, file, {}); });
    std::printf("%zu lines on paper: %.3f s, %.1f MB, process at its peak %.0f MB\n", lines, spent,
                static_cast<double>(std::filesystem::file_size(file)) / (1024 * 1024), bench::memory("VmHWM"));
    std::filesystem::remove(file);
}

void measureExports(std::size_t lines, const std::filesystem::path& folder) {
    apoio::GradeBalanco balance;
    balance.encher(lines, 50, false);
    const suite::exporting::Exporter exporter;
    for (const char* ending : {".csv", ".json", ".html", ".xlsx"})
        std::printf("export %-27s %7.3f s\n", ending, bench::seconds([&] {
                        const suite::table::Table table(balance.grade);
                        exporter.write(table, folder / (std::string("bancada") + ending), {});
                    }));
}

void paint(GridPane& pane, const QString& file) {
    pane.resize(1400, 620);
    pane.show();
    settle();
    pane.grab().save(file);
}

void paintImages(const QString& folder) {
    for (const bool dark : {false, true}) {
        const auto name = folder + (dark ? QStringLiteral("/escuro-%1.png") : QStringLiteral("/claro-%1.png"));
        if (dark)
            QApplication::setPalette(darkPalette());
        apoio::GradeBalanco balance;
        balance.encher(300, 23);
        balance.grade.Significados = balance.legenda();
        GridPane pane(balance.grade);
        paint(pane, name.arg(QStringLiteral("balanco")));
        pane.sortBy(5, true, false);
        pane.sortBy(4, false, true);
        pane.findChild<QLineEdit*>(QStringLiteral("FiltroNOMECONTA"))->setText(QStringLiteral("energia"));
        pane.search(QStringLiteral("12"));
        pane.view().setCurrentIndex(pane.view().model()->index(3, pane.view().model()->columnCount() - 1));
        paint(pane, name.arg(QStringLiteral("filtro")));
        apoio::GradePeriodos periods;
        periods.encher(40, 6);
        GridPane months(periods.grade);
        paint(months, name.arg(QStringLiteral("periodos")));
    }
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    aplicacao();
    const std::string action = argc > 1 ? argv[1] : "";
    if (action == "medir")
        measureGrid(argc > 2 ? static_cast<std::size_t>(std::atoll(argv[2])) : 200'000, argc > 3);
    else if (action == "papel")
        measurePaper(argc > 2 ? static_cast<std::size_t>(std::atoll(argv[2])) : 20'000);
    else if (action == "exportar" && argc > 3)
        measureExports(static_cast<std::size_t>(std::atoll(argv[2])), argv[3]);
    else if (action == "imagens" && argc > 2)
        paintImages(QString::fromLocal8Bit(argv[2]));
    else
        return 2;
    return 0;
}
