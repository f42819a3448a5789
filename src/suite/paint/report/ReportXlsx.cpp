#include "suite/paint/report/ReportXlsx.h"

#include "base/Falhas.h"
#include "base/Texto.h"
#include "paper/Rulers.h"
#include "suite/export/XlsxNumbers.h"

#include <algorithm>
#include <map>
#include <set>

namespace suite::paint {

namespace {

using base::TElementoFaixa;
using base::TEspecieElemento;

constexpr double Character = 1'000; // of the rulers
constexpr double WidestColumn = 60; // characters

std::size_t rulerWithMost(const base::TDefinicaoRelatorio& report) {
    const auto& all = report.Reguas;
    const auto most =
        std::max_element(all.begin(), all.end(), [](const auto& a, const auto& b) { return a.size() < b.size(); });
    return static_cast<std::size_t>(most - all.begin());
}

class Sheet {
  public:
    Sheet(exporting::XlsxBook& book, const base::TDefinicaoRelatorio& report)
        : book_(book), sheet_(book.addSheet("Relatório")), main_(static_cast<std::uint8_t>(rulerWithMost(report))),
          columns_(report.Reguas[main_].size()),
          rulers_(
              report, [](std::string_view text, bool) { return static_cast<double>(base::Caracteres(text)); },
              paper::settingOfText()),
          plain_(book.numberFormat("")), date_(book.numberFormat("dd/mm/yyyy")) {
        for (std::size_t c = 0; c < columns_; ++c) {
            const auto wide = (rulers_.right(place(c)) - rulers_.left(place(c))) / Character;
            book.check(worksheet_set_column(sheet_, static_cast<lxw_col_t>(c), static_cast<lxw_col_t>(c),
                                            std::min(WidestColumn, wide + 2), nullptr));
        }
        if (report.Papel.Paisagem)
            worksheet_set_landscape(sheet_);
        worksheet_set_paper(sheet_, 9); // A4
        worksheet_fit_to_pages(sheet_, 1, 0);
    }

    void write(const base::TFaixa& band) {
        std::map<int, std::vector<const TElementoFaixa*>> lines;
        const TElementoFaixa* ground = nullptr;
        for (const auto& element : band.Elementos)
            if (element.Especie == TEspecieElemento::Forma)
                ground = &element;
            else if (element.Especie == TEspecieElemento::Texto)
                lines[element.Lugar.Linha].push_back(&element);
        for (const auto& [number, elements] : lines) {
            std::set<std::size_t> taken;
            if (row_ >= LXW_ROW_MAX)
                throw base::TFalha("O relatório tem mais linhas do que cabem numa planilha (1.048.576). Salve-o em "
                                   "PDF.");
            for (const auto* element : elements) {
                auto column = columnOf(*element);
                while (!taken.insert(column).second)
                    ++column;
                cell(*element, column, ground);
            }
            ++row_;
        }
    }

  private:
    base::TLugar place(std::size_t column) const { return {0, main_, static_cast<std::uint8_t>(column), 1}; }

    // Of the ruler with most columns its own; others stand where they begin, or end if they are set to the right.
    std::size_t columnOf(const TElementoFaixa& element) const {
        const bool right = element.Alinhamento == base::TAlinhamento::Direita;
        if (element.Lugar.Regua == main_)
            return element.Lugar.Coluna + (right ? element.Lugar.Colunas - 1U : 0U);
        const auto at = right ? rulers_.right(element.Lugar) - 1 : rulers_.left(element.Lugar);
        std::size_t column = 0;
        while (column + 1 < columns_ && rulers_.right(place(column)) <= at)
            ++column;
        return column;
    }

    void cell(const TElementoFaixa& element, std::size_t column, const TElementoFaixa* ground) {
        host::TAparencia look;
        look.Negrito = element.Negrito;
        look.Fundo = element.Fundo ? element.Fundo : ground ? ground->Fundo : std::nullopt;
        const auto at = static_cast<lxw_col_t>(column);
        std::optional<double> number;
        auto format = plain_;
        if (const auto* decimal = std::get_if<base::TDecimal>(&element.Valor)) {
            number = exporting::sheetNumber(*decimal);
            format = lookOf(element.Formato, decimal->Escala).of(*decimal);
        } else if (const auto* date = std::get_if<base::TDataHora>(&element.Valor)) {
            number = exporting::sheetDate(*date);
            format = date_;
        }
        if (number)
            book_.check(worksheet_write_number(sheet_, row_, at, *number, book_.format(look, format)));
        else if (!element.Texto.empty())
            book_.check(worksheet_write_string(sheet_, row_, at, base::SemControles(element.Texto).c_str(),
                                               book_.format(look, plain_)));
    }

    const exporting::NumberLook& lookOf(const std::string& format, int scale) {
        auto& look = looks_[{format, scale}];
        if (!look)
            look.emplace(book_, base::TFormatoNumerico(format, scale));
        return *look;
    }

    exporting::XlsxBook& book_;
    lxw_worksheet* sheet_;
    std::uint8_t main_;
    std::size_t columns_;
    paper::Rulers rulers_;
    std::size_t plain_;
    std::size_t date_;
    std::map<std::pair<std::string, int>, std::optional<exporting::NumberLook>> looks_;
    lxw_row_t row_ = 0;
};

} // namespace

void writeXlsx(const base::TRelatorio& report, const std::filesystem::path& file, const Document& document) {
    exporting::XlsxBook book(file);
    Sheet sheet(book, report.Definicao());
    const auto bands = report.Faixas();
    for (base::TFaixa band; bands->Proxima(band);)
        if (band.Especie != base::TEspecieFaixa::RodapePagina)
            sheet.write(band);
    book.describe(document.title, document.made);
    book.close();
}

} // namespace suite::paint
