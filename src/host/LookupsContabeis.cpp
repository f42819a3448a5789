#include "host/LookupsContabeis.h"

#include "base/Texto.h"

namespace host {

namespace {

constexpr const char* NaoEncontrado = "Registro não encontrado!";

TDefinicaoLookup Filial(std::string ATextoZero, bool AMultiSelecao) {
    return {
        .Titulo = "Pesquisa de estabelecimentos",
        .CampoPesquisa = "FILIAL",
        .CampoChave = "IDFILIAL",
        .CampoDescricao = "NOME",
        .Ordem = "FILIAL",
        .Instrucao = "SELECT SC00_FILIAL.IDFILIAL, SC00_FILIAL.FILIAL, SC00_FILIAL.NOME, "
                     "SC00_FILIAL.NOMEFANTASIA FROM SC00_FILIAL",
        .Colunas = {{"FILIAL", "Filial"},
                    {"NOME", "Razão Social"},
                    {"NOMEFANTASIA", "Nome Fantasia"},
                    {"IDFILIAL", "Registro"}},
        .MultiSelecao = AMultiSelecao,
        .PermiteZero = true,
        .TextoZero = std::move(ATextoZero),
        .TextoNaoAchou = NaoEncontrado,
        .ValorInvalido = -1,
    };
}

TDefinicaoLookup CentroCusto(std::string ATextoZero) {
    return {
        .Titulo = "Pesquisa de centros de custo",
        .CampoPesquisa = "CODIGO",
        .CampoChave = "IDCENTROCUSTO",
        .CampoDescricao = "DESCRICAO",
        .Ordem = "CLASSIFCENTRO;CODIGO",
        .Instrucao = "SELECT CO01_CENTROCUSTO.IDCENTROCUSTO, CO01_CENTROCUSTO.CODIGO, CO01_CENTROCUSTO.DESCRICAO, "
                     "CO01_CENTROCUSTO.CLASSIFCENTRO FROM CO01_CENTROCUSTO",
        .Colunas = {{"CLASSIFCENTRO", "Classificação"},
                    {"CODIGO", "Código"},
                    {"DESCRICAO", "Descrição"},
                    {"IDCENTROCUSTO", "Registro"}},
        .MultiSelecao = true,
        .PermiteZero = true,
        .TextoZero = std::move(ATextoZero),
        .TextoNaoAchou = NaoEncontrado,
    };
}

TDefinicaoLookup Conta() {
    return {
        .Titulo = "Pesquisa de contas",
        .CampoPesquisa = "CONTA",
        .CampoChave = "IDPLANO",
        .CampoDescricao = "NOME",
        .Ordem = "CLASSIFCONTAB;CONTA",
        .Instrucao = "SELECT CO01_PLANO.IDPLANO, CO01_PLANO.CONTA, CO01_PLANO.CLASSIFCONTAB, CO01_PLANO.NOME, "
                     "CO01_PLANO.CTATITULO FROM CO01_PLANO",
        .Colunas = {{"CLASSIFCONTAB", "Classificação"},
                    {"CONTA", "Conta"},
                    {"NOME", "Nome da Conta"},
                    {"IDPLANO", "Registro"}},
        .MultiSelecao = true,
        .PermiteZero = true,
        .TextoZero = "TODAS AS CONTAS",
    };
}

} // namespace

TframeZTLookupFilial::TframeZTLookupFilial(std::string ANome, std::string ATextoZero, bool AMultiSelecao)
    : TZTLookupEx(std::move(ANome), Filial(std::move(ATextoZero), AMultiSelecao)) {
    AntesDeBuscar = [this](TBusca& ABusca) {
        ABusca.Condicao = base::Format("SC00_FILIAL.IDEMPRESA = %d", {IDEmpresa()});
    };
}

TFrameZTTandorLookupCentroCusto::TFrameZTTandorLookupCentroCusto(std::string ANome, std::string ATextoZero)
    : TZTLookupEx(std::move(ANome), CentroCusto(std::move(ATextoZero))) {
    AntesDeBuscar = [this](TBusca& ABusca) {
        ABusca.Condicao = base::Format("CO01_CENTROCUSTO.IDEMPRESA = %d", {IDEmpresa()});
    };
}

TLookupConta::TLookupConta(std::string ANome) : TZTLookupEx(std::move(ANome), Conta()) {
    AntesDeBuscar = [this](TBusca& ABusca) {
        ABusca.Condicao = base::Format("CO01_PLANO.IDEMPRESA = %d", {IDEmpresaPlano()});
        if (CondicaoPesquisaConta)
            ABusca.Condicao += " AND " + CondicaoPesquisaConta();
    };
}

std::string TLookupConta::GetClassifContab() const {
    const auto* LCampo = GetResultSet().Active() ? GetResultSet().FindField("CLASSIFCONTAB") : nullptr;
    return LCampo ? LCampo->AsString() : std::string();
}

} // namespace host
