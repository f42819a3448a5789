#include "suite/desktop/chart/ChartPainter.h"

#include "suite/desktop/look/Text.h"

#include <QFontMetricsF>
#include <QLocale>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <set>

namespace suite::desktop {

namespace {

using table::ChartData;
using table::ChartKind;

constexpr double Space = 8;
constexpr int ShortName = 3; // of a month, where the names do not fit

// For positions on a screen alone; every figure that is read comes from the exact value.
double sizeOf(const base::TDecimal& value) {
    return static_cast<double>(value.Unidades) / std::pow(10.0, value.Escala);
}

QColor colourOf(ChartKind kind, bool dark) {
    switch (kind) {
    case ChartKind::Base:
        return dark ? QColor(0xA8A8A8) : QColor(0x707070);
    case ChartKind::Budget:
    case ChartKind::Better:
        return dark ? QColor(0x6FA8E8) : QColor(0x2F6DB5);
    case ChartKind::Actual:
    case ChartKind::Worse:
        return dark ? QColor(0xF0A050) : QColor(0xB85C00);
    }
    return {};
}

class Chart {
  public:
    Chart(QPainter& painter, const QRectF& area, const ChartData& data, const QPalette& palette)
        : painter_(painter), area_(area), data_(data), palette_(palette), metrics_(painter.fontMetrics()),
          dark_(palette.color(QPalette::Base).lightness() < 128) {}

    void paint() {
        painter_.fillRect(area_, palette_.color(QPalette::Base));
        area_.adjust(Space, Space, -Space, -Space);
        paintTitle();
        if (data_.categories.empty())
            return;
        paintLegend();
        measure();
        data_.byRows ? paintRows() : paintColumns();
    }

  private:
    QColor text() const { return palette_.color(QPalette::Text); }
    double lineHeight() const { return metrics_.height(); }

    void paintTitle() {
        auto font = painter_.font();
        painter_.save();
        font.setBold(true);
        painter_.setFont(font);
        painter_.setPen(text());
        const auto box = painter_.boundingRect(area_, Qt::AlignHCenter | Qt::TextWordWrap, fromUtf8(data_.title));
        painter_.drawText(area_, Qt::AlignHCenter | Qt::TextWordWrap, fromUtf8(data_.title));
        painter_.restore();
        area_.setTop(box.bottom() + Space);
    }

    void paintBar(const QRectF& bar, ChartKind kind) {
        const auto colour = colourOf(kind, dark_);
        const bool hatched = kind == ChartKind::Actual || kind == ChartKind::Worse;
        painter_.setPen(QPen(colour, 1));
        painter_.setBrush(kind == ChartKind::Base ? QBrush(Qt::NoBrush)
                                                  : QBrush(colour, hatched ? Qt::BDiagPattern : Qt::SolidPattern));
        painter_.drawRect(bar.normalized());
    }

    void paintLegend() {
        std::set<ChartKind> kinds;
        for (const auto& category : data_.categories)
            for (const auto& value : category.values)
                kinds.insert(value.kind);
        double left = area_.left();
        const double side = metrics_.ascent();
        for (const auto kind : kinds) {
            const auto caption = fromUtf8(table::captionOf(kind));
            const double width = side + Space / 2 + metrics_.horizontalAdvance(caption);
            if (left > area_.left() && left + width > area_.right()) {
                left = area_.left();
                area_.setTop(area_.top() + lineHeight());
            }
            paintBar({left, area_.top() + 1, side, side}, kind);
            painter_.setPen(text());
            painter_.drawText(QPointF(left + side + Space / 2, area_.top() + metrics_.ascent()), caption);
            left += width + 2 * Space;
        }
        area_.setTop(area_.top() + lineHeight() + Space);
    }

    void measure() {
        double least = 0;
        double most = 0;
        for (const auto& category : data_.categories)
            for (const auto& value : category.values)
                if (value.value) {
                    least = std::min(least, sizeOf(*value.value));
                    most = std::max(most, sizeOf(*value.value));
                }
        axis_ = axisOver(least, most);
    }

    void paintColumns() {
        double labels = 0;
        for (double mark = axis_.from; mark <= axis_.to + axis_.step / 2; mark += axis_.step)
            labels = std::max(labels, metrics_.horizontalAdvance(shortNumber(mark)));
        const QRectF plot(area_.left() + labels + Space, area_.top(), area_.width() - labels - Space,
                          area_.height() - lineHeight() - Space);
        const auto at = [&](double value) {
            return plot.bottom() - (value - axis_.from) / (axis_.to - axis_.from) * plot.height();
        };
        for (double mark = axis_.from; mark <= axis_.to + axis_.step / 2; mark += axis_.step) {
            const bool zero = std::abs(mark) < axis_.step / 2;
            painter_.setPen(QPen(palette_.color(zero ? QPalette::Text : QPalette::Midlight), 1));
            painter_.drawLine(QPointF(plot.left(), at(mark)), QPointF(plot.right(), at(mark)));
            painter_.setPen(text());
            painter_.drawText(QRectF(area_.left(), at(mark) - lineHeight() / 2, labels, lineHeight()),
                              Qt::AlignRight | Qt::AlignVCenter, shortNumber(mark));
        }
        const double width = plot.width() / static_cast<double>(data_.categories.size());
        const bool roomy = std::all_of(data_.categories.begin(), data_.categories.end(), [&](const auto& category) {
            return metrics_.horizontalAdvance(fromUtf8(category.name)) + 2 <= width;
        });
        double left = plot.left();
        for (const auto& category : data_.categories) {
            const double each = width * 0.8 / std::max<double>(1, static_cast<double>(category.values.size()));
            double bar = left + width * 0.1;
            for (const auto& value : category.values) {
                if (value.value)
                    paintBar(QRectF(QPointF(bar, at(0)), QPointF(bar + each * 0.9, at(sizeOf(*value.value)))),
                             value.kind);
                bar += each;
            }
            painter_.setPen(text());
            painter_.drawText(QRectF(left, plot.bottom() + Space / 2, width, lineHeight()), Qt::AlignCenter,
                              roomy ? fromUtf8(category.name) : fromUtf8(category.name).left(ShortName));
            left += width;
        }
    }

    void paintRows() {
        const double height =
            std::min(area_.height() / static_cast<double>(data_.categories.size()), 3.2 * lineHeight());
        const double largest = std::max(-axis_.from, axis_.to);
        double top = area_.top();
        for (const auto& category : data_.categories) {
            const auto& value = category.values.front();
            painter_.setPen(text());
            const auto figure = fromUtf8(host::TextoExibido(*value.value, ",0.00"));
            const double figureWidth = metrics_.horizontalAdvance(figure);
            painter_.drawText(QRectF(area_.left(), top, area_.width(), lineHeight()), Qt::AlignRight, figure);
            painter_.drawText(
                QRectF(area_.left(), top, area_.width(), lineHeight()), Qt::AlignLeft,
                metrics_.elidedText(fromUtf8(category.name), Qt::ElideRight, area_.width() - figureWidth - Space));
            const double length = std::abs(sizeOf(*value.value)) / largest * area_.width();
            paintBar({area_.left(), top + lineHeight(), length, std::max(3.0, height - lineHeight() - Space)},
                     value.kind);
            top += height;
        }
    }

    QPainter& painter_;
    QRectF area_;
    const ChartData& data_;
    const QPalette& palette_;
    QFontMetricsF metrics_;
    bool dark_;
    Axis axis_;
};

} // namespace

Axis axisOver(double least, double most) {
    if (least == 0 && most == 0)
        most = 1;
    const double rough = (most - least) / 5;
    const double power = std::pow(10.0, std::floor(std::log10(rough)));
    double step = power;
    for (const double factor : {2.0, 2.5, 5.0, 10.0})
        if (step < rough)
            step = factor * power;
    return {std::floor(least / step) * step, std::ceil(most / step) * step, step};
}

QString shortNumber(double value) {
    const QLocale locale(QLocale::Portuguese, QLocale::Brazil);
    const double size = std::abs(value);
    const auto text = [&](double number, const char* unit) {
        const int places = std::abs(number - std::round(number)) < 0.05 ? 0 : 1;
        return locale.toString(number, 'f', places) + unit;
    };
    if (size >= 999'500'000)
        return text(value / 1e9, " bi");
    if (size >= 999'500)
        return text(value / 1e6, " mi");
    if (size >= 9'999.5)
        return text(value / 1e3, " mil");
    return text(value, "");
}

void paintChart(QPainter& painter, const QRectF& area, const ChartData& data, const QPalette& palette) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    Chart(painter, area, data, palette).paint();
    painter.restore();
}

} // namespace suite::desktop
