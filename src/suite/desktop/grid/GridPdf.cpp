#include "suite/desktop/grid/GridPdf.h"

#include "base/ArquivoInteiro.h"
#include "base/Falhas.h"
#include "suite/desktop/grid/CellPainter.h"
#include "suite/desktop/grid/GridPane.h"
#include "suite/desktop/grid/GridView.h"
#include "suite/desktop/look/CellColours.h"
#include "suite/desktop/look/Text.h"

#include <QFontInfo>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>
#include <system_error>

namespace suite::desktop {

namespace {

constexpr int Resolution = 300;
constexpr double ScreenResolution = 96;
constexpr double LargestScale = 0.8; // of what the screen shows
constexpr int MostRows = 20'000;
constexpr QMarginsF Margins(10, 10, 10, 10); // millimetres

QPalette paper() {
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    return palette;
}

// All lengths are those of the screen; the painter makes them those of the paper.
class Picture {
  public:
    Picture(const GridPane& pane, QPdfWriter& writer, std::span<const std::string> title)
        : view_(pane.view()), grid_(static_cast<const GridModel&>(*view_.model())), writer_(writer), title_(title),
          font_(view_.font()), bold_(font_) {
        font_.setPixelSize(QFontInfo(view_.font()).pixelSize());
        bold_ = font_;
        bold_.setBold(true);
        rowHeight_ = QFontMetrics(bold_).height() + 4;
        for (int i = 0; i < grid_.columnCount(); ++i) {
            lefts_.push_back(width_);
            width_ += view_.columnWidth(i);
            banded_ = banded_ || !grid_.column(i).Faixa.empty();
        }
        lefts_.push_back(width_);
    }

    bool paint() {
        if (!painter_.begin(&writer_))
            return false;
        const double scale = std::min(Resolution / ScreenResolution * LargestScale,
                                      writer_.width() / static_cast<double>(std::max(1, width_)));
        painter_.scale(scale, scale);
        pageHeight_ = static_cast<int>(writer_.height() / scale);
        pageWidth_ = static_cast<int>(writer_.width() / scale);
        paintTitle();
        paintHeader();
        for (int row = 0; row < grid_.rowCount(); ++row) {
            makeRoom();
            grid_.isGroup(row) ? paintGroup(row) : paintLine(row);
            top_ += rowHeight_;
        }
        makeRoom();
        paintSums(grid_.rows().totalSet(), QStringLiteral("Total (contas analíticas)"), QColor(0xE8E8E8));
        paintPageNumber();
        return painter_.end();
    }

  private:
    QRect cellAt(int column) const {
        return {lefts_[static_cast<std::size_t>(column)], top_, view_.columnWidth(column), rowHeight_};
    }
    void text(const QRect& cell, int alignment, const QString& text, const QFont& font) {
        const auto room = cell.adjusted(CellPainter::Padding, 0, -CellPainter::Padding, 0);
        painter_.setFont(font);
        painter_.drawText(room, alignment | Qt::AlignVCenter | Qt::TextSingleLine,
                          QFontMetrics(font).elidedText(text, Qt::ElideRight, room.width()));
    }
    int alignmentOf(int column) const {
        return grid_.columns()[static_cast<std::size_t>(column)].number ? Qt::AlignRight : Qt::AlignLeft;
    }

    void paintTitle() {
        painter_.setPen(Qt::black);
        for (const auto& line : title_) {
            text({0, top_, pageWidth_, rowHeight_}, Qt::AlignLeft, fromMessage(line), bold_);
            top_ += rowHeight_;
        }
        if (!title_.empty())
            top_ += rowHeight_ / 2;
    }

    void paintHeader() {
        painter_.setPen(Qt::black);
        for (int i = 0; banded_ && i < grid_.columnCount();) {
            int end = i + 1;
            while (end < grid_.columnCount() && grid_.column(end).Faixa == grid_.column(i).Faixa)
                ++end;
            const QRect band(lefts_[static_cast<std::size_t>(i)], top_,
                             lefts_[static_cast<std::size_t>(end)] - lefts_[static_cast<std::size_t>(i)], rowHeight_);
            text(band, Qt::AlignHCenter, fromUtf8(grid_.column(i).Faixa), bold_);
            i = end;
        }
        top_ += banded_ ? rowHeight_ : 0;
        for (int i = 0; i < grid_.columnCount(); ++i)
            text(cellAt(i), alignmentOf(i), fromUtf8(grid_.column(i).Titulo), bold_);
        top_ += rowHeight_;
        painter_.drawLine(0, top_ - 1, width_, top_ - 1);
    }

    void makeRoom() {
        if (top_ + 2 * rowHeight_ <= pageHeight_) // the page's number has a line of its own
            return;
        paintPageNumber();
        writer_.newPage();
        ++page_;
        top_ = 0;
        paintHeader();
    }

    void paintPageNumber() {
        painter_.setPen(Qt::black);
        text({0, pageHeight_ - rowHeight_, pageWidth_, rowHeight_}, Qt::AlignRight,
             QStringLiteral("Página %1").arg(page_), font_);
    }

    void paintSums(std::size_t set, const QString& caption, const QColor& ground) {
        painter_.fillRect(QRect(0, top_, width_, rowHeight_), ground);
        painter_.setPen(Qt::black);
        int end = width_;
        for (int i = grid_.columnCount(); i-- > 0;)
            if (const auto sum = grid_.sumText(set, i); !sum.isEmpty()) {
                text(cellAt(i), Qt::AlignRight, sum, bold_);
                end = lefts_[static_cast<std::size_t>(i)];
            }
        if (end < width_ || set != grid_.rows().totalSet())
            text({0, top_, end, rowHeight_}, Qt::AlignLeft, caption, bold_);
    }

    void paintGroup(int row) {
        paintSums(grid_.rows().groupAt(static_cast<std::size_t>(row)),
                  QString(2 * grid_.level(row), QLatin1Char(' ')) + grid_.caption(row), QColor(0xDCDCDC));
    }

    void paintLine(int row) {
        static const auto Paper = paper();
        for (int i = 0; i < grid_.columnCount(); ++i) {
            const auto cell = grid_.cell(row, i, false);
            const auto colours = coloursOf(cell.look, Paper);
            const auto place = cellAt(i);
            painter_.fillRect(place, colours.ground);
            painter_.setPen(colours.text);
            if (cell.look.Vazio)
                continue;
            auto room = place;
            const auto& font = cell.look.Negrito ? bold_ : font_;
            if (grid_.showsMark(i)) {
                const auto mark = GridModel::mark(grid_.meaning(row));
                text(place, Qt::AlignLeft, mark, font);
                room.setLeft(room.left() + QFontMetrics(font).horizontalAdvance(mark) + CellPainter::Padding);
            }
            text(room, alignmentOf(i), cell.text, font);
        }
        painter_.setPen(QColor(0xE0E0E0));
        painter_.drawLine(0, top_ + rowHeight_ - 1, width_, top_ + rowHeight_ - 1);
    }

    const GridView& view_;
    const GridModel& grid_;
    QPdfWriter& writer_;
    std::span<const std::string> title_;
    QPainter painter_;
    QFont font_;
    QFont bold_;
    std::vector<int> lefts_; // of the columns, and the end of the last
    int width_ = 0;
    int rowHeight_ = 0;
    int pageHeight_ = 0;
    int pageWidth_ = 0;
    int top_ = 0;
    int page_ = 1;
    bool banded_ = false;
};

} // namespace

void writeGridPdf(const GridPane& pane, const QString& file, std::span<const std::string> title) {
    if (pane.view().model()->rowCount() > MostRows)
        throw base::TFalha(
            "Uma figura em PDF tem no máximo 20.000 linhas. Filtre ou recolha as linhas, ou exporte para "
            "uma planilha.");
    base::GravarArquivoInteiro(toUtf8(file), [&](const std::filesystem::path& aside) {
        QPdfWriter writer(fromUtf8(aside.string()));
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setPageOrientation(QPageLayout::Landscape);
        writer.setPageMargins(Margins, QPageLayout::Millimeter);
        writer.setResolution(Resolution);
        writer.setTitle(title.empty() ? QString() : fromMessage(title.front()));
        if (!Picture(pane, writer, title).paint())
            throw std::system_error(EIO, std::generic_category());
    });
}

} // namespace suite::desktop
