#include "suite/table/SortKeys.h"

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string>
#include <tuple>
#include <unicode/ucol.h>
#include <unicode/unistr.h>

namespace suite::table {

namespace {

constexpr std::uint64_t Sign = std::uint64_t{1} << 63;

struct CloseCollator {
    void operator()(UCollator* collator) const { ucol_close(collator); }
};
using Collator = std::unique_ptr<UCollator, CloseCollator>;

Collator brazilian() {
    UErrorCode state = U_ZERO_ERROR;
    Collator collator(ucol_open("pt_BR", &state));
    if (U_FAILURE(state))
        throw std::runtime_error(u_errorName(state));
    return collator;
}

std::string sortKey(const UCollator& collator, std::string_view text) {
    const auto wide = icu::UnicodeString::fromUTF8(icu::StringPiece(text.data(), static_cast<int>(text.size())));
    std::string key(2 * text.size() + 16, '\0');
    const auto fill = [&] {
        return static_cast<std::size_t>(ucol_getSortKey(&collator, wide.getBuffer(), wide.length(),
                                                        reinterpret_cast<std::uint8_t*>(key.data()),
                                                        static_cast<std::int32_t>(key.size())));
    };
    const auto size = fill();
    const bool short_ = size > key.size();
    key.resize(size);
    if (short_)
        fill();
    return key;
}

std::vector<std::uint32_t> collate(const host::TColuna& values) {
    struct Text {
        std::string key;
        std::string_view bytes;
        std::uint32_t code;
    };
    std::vector<bool> seen;
    std::vector<Text> texts;
    const auto collator = brazilian();
    for (std::size_t row = 0; row < values.Tamanho(); ++row) {
        const auto code = values.Codigo(row);
        if (code >= seen.size())
            seen.resize(code + std::size_t{1});
        if (code == 0 || seen[code])
            continue;
        seen[code] = true;
        texts.push_back({sortKey(*collator, values.Texto(row)), values.Texto(row), code});
    }
    std::sort(texts.begin(), texts.end(),
              [](const Text& a, const Text& b) { return std::tie(a.key, a.bytes) < std::tie(b.key, b.bytes); });
    std::vector<std::uint32_t> ranks(seen.size());
    for (std::size_t i = 0; i < texts.size(); ++i)
        ranks[texts[i].code] = static_cast<std::uint32_t>(i + 1);
    return ranks;
}

} // namespace

std::uint64_t SortKeys::Column::operator()(std::size_t row) const {
    if (ranks_)
        return (*ranks_)[values_->Codigo(row)];
    if (values_->Nulo(row))
        return 0;
    const auto units = static_cast<std::uint64_t>(values_->Unidades(row));
    // A floating number's bits go backwards below zero.
    const bool real = values_->Descricao().Tipo == host::TTipoColuna::Real;
    const auto key = real && (units & Sign) != 0 ? ~units : units ^ Sign;
    return std::max<std::uint64_t>(key, 1);
}

SortKeys::Column SortKeys::of(const host::TColunas& columns, std::size_t field) {
    Column column;
    column.values_ = &columns[field];
    if (column.values_->Descricao().Tipo == host::TTipoColuna::Texto) {
        auto found = ranks_.find(field);
        if (found == ranks_.end())
            found = ranks_.emplace(field, collate(*column.values_)).first;
        column.ranks_ = &found->second;
    }
    return column;
}

} // namespace suite::table
