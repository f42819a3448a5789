#include "queries/Cabecalho.h"

#include "base/Texto.h"
#include "core/Lista.h"
#include "core/Projecoes.h"
#include "core/Un04618Const.h"
#include "queries/Condicoes.h"
#include "queries/Periodo.h"
#include "queries/SqlCabecalho.h"

namespace pct04618 {

using base::Format;

std::string InstrucaoCabecalho(const TSelecao& ASelecao, TDetalharSelecao ADetalharSelecao) {
    const auto LProjecoes = CondicaoProjecoes(ASelecao, "CO01_CTBORCADAINF.IDCTBORCADAINF");
    return ADetalharSelecao == ModoPeriodosEmColunas
               ? Format(sql::CabecalhoPorProjecao, {LProjecoes})
               : Format(sql::CabecalhoPorPeriodo, {LProjecoes, DescricaoDoPeriodo(7), ProjecaoMensal});
}

std::string InstrucaoZerarRealizado(const std::string& AIDsOrcadaInf) {
    return Format(sql::ZerarRealizado, {EstaNaLista("CO01_CTBORCADAVLR.IDCTBORCADAINF", AIDsOrcadaInf)});
}

} // namespace pct04618
