#include "suite/desktop/paper/PdfFile.h"

#include "base/Falhas.h"
#include "suite/desktop/look/Text.h"
#include "suite/desktop/paper/PagePainter.h"
#include "suite/desktop/paper/PaperFont.h"

#include <QBuffer>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHashFunctions>
#include <QPainter>
#include <QPdfWriter>

#include <clocale>
#include <cstdio>
#include <fstream>

namespace suite::desktop {

namespace {

constexpr int Resolution = 1200;
constexpr QMarginsF Margins(10, 10, 10, 10); // millimetres

// Where no window runs, the toolkit is started for its fonts alone. It stays: it cannot be started twice.
void startToolkit() {
    if (QCoreApplication::instance())
        return;
    static int count = 3;
    static char name[] = "orcreal";
    static char option[] = "-platform";
    static char platform[] = "offscreen";
    static char* arguments[] = {name, option, platform, nullptr};
    // It takes the locale of the environment, and speaks of folders that a user without a home does not have.
    const std::string locale = std::setlocale(LC_ALL, nullptr);
    const auto before = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    new QGuiApplication(count, arguments);
    qInstallMessageHandler(before);
    std::setlocale(LC_ALL, locale.c_str());
}

// The toolkit writes the fonts of a document in the order of a hash table.
struct FixedOrder {
    FixedOrder() { QHashSeed::setDeterministicGlobalSeed(); }
    ~FixedOrder() { QHashSeed::resetRandomGlobalSeed(); }
    FixedOrder(const FixedOrder&) = delete;
    FixedOrder& operator=(const FixedOrder&) = delete;
};

// The toolkit writes the time of the clock, with a time zone or without: the places behind it move.
void setTime(QByteArray& pdf, const base::TDataHora& made) {
    char date[64] = "";
    if (!made.Vazia()) {
        const auto seconds = made.Decimos() % base::TDataHora::DecimosPorDia / 10'000;
        std::snprintf(date, sizeof date, "/CreationDate (D:%04d%02d%02d%02d%02d%02d)", made.Ano(), made.Mes(),
                      made.Dia(), static_cast<int>(seconds / 3600), static_cast<int>(seconds / 60 % 60),
                      static_cast<int>(seconds % 60));
    }
    const auto place = pdf.indexOf("/CreationDate");
    const auto length = pdf.indexOf(')', place) + 1 - place;
    const auto moved = static_cast<qsizetype>(qstrlen(date)) - length;
    constexpr qsizetype Digits = 10;
    auto start = pdf.lastIndexOf("startxref");
    for (auto entry = pdf.lastIndexOf(" 65535 f"); (entry = pdf.indexOf(" 00000 n", entry + 1)) > 0 && entry < start;) {
        const auto offset = pdf.mid(entry - Digits, Digits).toLongLong();
        if (offset > place)
            pdf.replace(entry - Digits, Digits, QByteArray::number(offset + moved).rightJustified(Digits, '0'));
    }
    start = pdf.indexOf('\n', start) + 1;
    const auto end = pdf.indexOf('\n', start);
    pdf.replace(start, end - start, QByteArray::number(pdf.mid(start, end - start).toLongLong() + moved));
    pdf.replace(place, length, date);
}

} // namespace

void writePdf(const table::Table& table, const std::filesystem::path& file, const exporting::Heading& heading) {
    startToolkit();
    if (QFontDatabase::families().isEmpty())
        throw base::TFalha("Não há nenhuma fonte de letras instalada, e um PDF precisa de uma.");
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    {
        const FixedOrder order;
        QPdfWriter writer(&bytes);
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setPageOrientation(QPageLayout::Landscape);
        writer.setPageMargins(Margins, QPageLayout::Millimeter);
        writer.setResolution(Resolution);
        writer.setTitle(fromUtf8(heading.title()));
        writer.setCreator(fromUtf8(heading.origin.program));
        PagePainter(table, heading, writer).paint();
    }
    setTime(bytes.buffer(), heading.origin.made);
    std::ofstream out(file, std::ios::binary);
    out.exceptions(std::ios::failbit | std::ios::badbit);
    out.write(bytes.buffer().constData(), bytes.buffer().size());
    out.close();
}

} // namespace suite::desktop
