#include "suite/firebird/Charset.h"

#include "base/Falhas.h"

namespace suite::firebird {

std::string toUtf8(std::string_view latin1) {
    std::string utf8;
    utf8.reserve(latin1.size());
    for (const char c : latin1) {
        const auto code = static_cast<unsigned char>(c);
        if (code < 0x80) {
            utf8 += c;
        } else {
            utf8 += static_cast<char>(0xC0 | code >> 6);
            utf8 += static_cast<char>(0x80 | (code & 0x3F));
        }
    }
    return utf8;
}

std::string toLatin1(std::string_view utf8, std::string_view place) {
    std::string latin1;
    latin1.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto lead = static_cast<unsigned char>(utf8[i]);
        if (lead < 0x80) {
            latin1 += utf8[i];
            continue;
        }
        const auto next = i + 1 < utf8.size() ? static_cast<unsigned char>(utf8[i + 1]) : 0U;
        if ((lead != 0xC2 && lead != 0xC3) || (next & 0xC0U) != 0x80) {
            std::size_t end = i + 1;
            while (end < utf8.size() && (static_cast<unsigned char>(utf8[end]) & 0xC0U) == 0x80)
                ++end;
            throw base::TFalha("O caractere \"" + std::string(utf8.substr(i, end - i)) + "\" em " + std::string(place) +
                               " não pode ser gravado no banco de dados. Troque-o por outro.");
        }
        latin1 += static_cast<char>((lead & 3U) << 6 | (next & 0x3FU));
        ++i;
    }
    return latin1;
}

} // namespace suite::firebird
