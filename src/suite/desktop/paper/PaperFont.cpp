#include "suite/desktop/paper/PaperFont.h"

#include "suite/desktop/look/Text.h"

#include <QFontMetricsF>
#include <QList>

#include <array>
#include <memory>
#include <unordered_map>

namespace suite::desktop::paper {

namespace {

constexpr double LeastSpacing = 1.0 / 64; // any at all keeps "fi" two letters
constexpr int Reference = 1000;           // pixels of an em

// The advance of each letter, looked up once.
class Letters {
  public:
    explicit Letters(bool bold) : metrics_(reference(bold)) { quick_.fill(-1); }

    double width(std::string_view text) {
        double sum = 0;
        for (std::size_t i = 0; i < text.size(); ++i) {
            const auto byte = static_cast<unsigned char>(text[i]);
            if (byte >= quick_.size())
                return sum + slow(fromUtf8(text.substr(i)));
            auto& known = quick_[byte];
            if (known < 0)
                known = advance(byte);
            sum += known;
        }
        return sum;
    }

  private:
    static QFont reference(bool bold) {
        auto font = paperFont(bold);
        font.setPixelSize(Reference);
        return font;
    }
    double advance(char32_t letter) const {
        return metrics_.horizontalAdvance(QString::fromUcs4(&letter, 1)) / Reference;
    }
    double slow(const QString& text) {
        double sum = 0;
        for (const auto letter : text.toUcs4()) {
            const auto [known, fresh] = others_.try_emplace(letter, 0);
            if (fresh)
                known->second = advance(letter);
            sum += known->second;
        }
        return sum;
    }

    QFontMetricsF metrics_;
    std::array<double, 128> quick_;
    std::unordered_map<char32_t, double> others_;
};

} // namespace

QFont paperFont(bool bold) {
    QFont font;
    font.setFamilies({QStringLiteral("Liberation Sans"), QStringLiteral("Arial"), QStringLiteral("DejaVu Sans")});
    font.setBold(bold);
    font.setKerning(false);
    font.setLetterSpacing(QFont::AbsoluteSpacing, LeastSpacing);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

Measure paperMeasure() {
    return [plain = std::make_shared<Letters>(false), strong = std::make_shared<Letters>(true)](
               std::string_view text, bool bold) { return (bold ? strong : plain)->width(text); };
}

} // namespace suite::desktop::paper
