#include "queries/Periodo.h"

#include "base/Texto.h"
#include "core/Projecoes.h"

namespace pct04618 {

namespace {

constexpr const char* Descricao = R"(CASE
    WHEN %0:s
        THEN CASE EXTRACT(MONTH FROM CO01_CTBORCADAINF.DATAINICIO)
                 WHEN 1 THEN 'Janeiro'
                 WHEN 2 THEN 'Fevereiro'
                 WHEN 3 THEN 'Março'
                 WHEN 4 THEN 'Abril'
                 WHEN 5 THEN 'Maio'
                 WHEN 6 THEN 'Junho'
                 WHEN 7 THEN 'Julho'
                 WHEN 8 THEN 'Agosto'
                 WHEN 9 THEN 'Setembro'
                 WHEN 10 THEN 'Outubro'
                 WHEN 11 THEN 'Novembro'
                 WHEN 12 THEN 'Dezembro'
             END
    ELSE CAST(EXTRACT(YEAR FROM CO01_CTBORCADAINF.DATAINICIO) AS VARCHAR(4))
END)";

} // namespace

std::string DescricaoDoPeriodo(std::size_t ARecuo) {
    return Recuado(base::Format(Descricao, {ProjecaoMensal}), ARecuo);
}

std::string Recuado(std::string_view ATexto, std::size_t ARecuo) {
    std::string LTexto;
    for (char C : ATexto) {
        LTexto += C;
        if (C == '\n')
            LTexto.append(ARecuo, ' ');
    }
    return LTexto;
}

} // namespace pct04618
