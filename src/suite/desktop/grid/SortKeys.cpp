#include "suite/desktop/grid/SortKeys.h"

#include "suite/desktop/look/Text.h"

#include <QCollator>

#include <algorithm>
#include <utility>

namespace suite::desktop {

namespace {

constexpr std::uint64_t Sign = std::uint64_t{1} << 63;

std::vector<std::uint32_t> collate(const host::TColuna& values) {
    struct Text {
        QCollatorSortKey key;
        std::string_view bytes;
        std::uint32_t code;
    };
    std::vector<bool> seen;
    std::vector<Text> texts;
    QCollator collator(QLocale(QLocale::Portuguese, QLocale::Brazil));
    for (std::size_t row = 0; row < values.Tamanho(); ++row) {
        const auto code = values.Codigo(row);
        if (code >= seen.size())
            seen.resize(code + std::size_t{1});
        if (code == 0 || seen[code])
            continue;
        seen[code] = true;
        texts.push_back({collator.sortKey(fromUtf8(values.Texto(row))), values.Texto(row), code});
    }
    std::sort(texts.begin(), texts.end(), [](const Text& a, const Text& b) {
        const int order = a.key.compare(b.key);
        return order != 0 ? order < 0 : a.bytes < b.bytes;
    });
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

} // namespace suite::desktop
