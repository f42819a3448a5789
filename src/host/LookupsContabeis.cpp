#include "host/LookupsContabeis.h"

#include "host/Texto.h"

namespace host {

namespace {

constexpr const char* NaoEncontrado = "Registro não encontrado!";

TDefinicaoLookup Filial(std::string ATextoZero) {
    TDefinicaoLookup LDefinicao;
    LDefinicao.Titulo = "Pesquisa de estabelecimentos";
    LDefinicao.CampoPesquisa = "FILIAL";
    LDefinicao.CampoChave = "IDFILIAL";
    LDefinicao.CampoDescricao = "NOME";
    LDefinicao.Ordem = "FILIAL";
    LDefinicao.Instrucao = "SELECT SC00_FILIAL.IDFILIAL, SC00_FILIAL.FILIAL, SC00_FILIAL.NOME, "
                           "SC00_FILIAL.NOMEFANTASIA FROM SC00_FILIAL";
    LDefinicao.Colunas = {
        {"FILIAL", "Filial"}, {"NOME", "Razão Social"}, {"NOMEFANTASIA", "Nome Fantasia"}, {"IDFILIAL", "Registro"}};
    LDefinicao.MultiSelecao = true;
    LDefinicao.PermiteZero = true;
    LDefinicao.TextoZero = std::move(ATextoZero);
    LDefinicao.TextoNaoAchou = NaoEncontrado;
    LDefinicao.ValorInvalido = -1;
    return LDefinicao;
}

TDefinicaoLookup CentroCusto(std::string ATextoZero) {
    TDefinicaoLookup LDefinicao;
    LDefinicao.Titulo = "Pesquisa de centros de custo";
    LDefinicao.CampoPesquisa = "CODIGO";
    LDefinicao.CampoChave = "IDCENTROCUSTO";
    LDefinicao.CampoDescricao = "DESCRICAO";
    LDefinicao.Ordem = "CLASSIFCENTRO;CODIGO";
    LDefinicao.Instrucao = "SELECT CO01_CENTROCUSTO.IDCENTROCUSTO, CO01_CENTROCUSTO.CODIGO, CO01_CENTROCUSTO.DESCRICAO, "
                           "CO01_CENTROCUSTO.CLASSIFCENTRO FROM CO01_CENTROCUSTO";
    LDefinicao.Colunas = {{"CLASSIFCENTRO", "Classificação"},
                          {"CODIGO", "Código"},
                          {"DESCRICAO", "Descrição"},
                          {"IDCENTROCUSTO", "Registro"}};
    LDefinicao.MultiSelecao = true;
    LDefinicao.PermiteZero = true;
    LDefinicao.TextoZero = std::move(ATextoZero);
    LDefinicao.TextoNaoAchou = NaoEncontrado;
    return LDefinicao;
}

TDefinicaoLookup Conta() {
    TDefinicaoLookup LDefinicao;
    LDefinicao.Titulo = "Pesquisa de contas";
    LDefinicao.CampoPesquisa = "CONTA";
    LDefinicao.CampoChave = "IDPLANO";
    LDefinicao.CampoDescricao = "NOME";
    LDefinicao.Ordem = "CLASSIFCONTAB;CONTA";
    LDefinicao.Instrucao = "SELECT CO01_PLANO.IDPLANO, CO01_PLANO.CONTA, CO01_PLANO.CLASSIFCONTAB, CO01_PLANO.NOME, "
                           "CO01_PLANO.CTATITULO FROM CO01_PLANO";
    LDefinicao.Colunas = {
        {"CLASSIFCONTAB", "Classificação"}, {"CONTA", "Conta"}, {"NOME", "Nome da Conta"}, {"IDPLANO", "Registro"}};
    LDefinicao.MultiSelecao = true;
    LDefinicao.PermiteZero = true;
    LDefinicao.TextoZero = "TODAS AS CONTAS";
    return LDefinicao;
}

} // namespace

TframeZTLookupFilial::TframeZTLookupFilial(std::string ANome, std::string ATextoZero)
    : TZTLookupEx(std::move(ANome), Filial(std::move(ATextoZero))) {
    AntesDeBuscar = [this](TBusca& ABusca) {
        ABusca.Condicao = Format("SC00_FILIAL.IDEMPRESA = %d", {IDEmpresa()});
    };
}

TFrameZTTandorLookupCentroCusto::TFrameZTTandorLookupCentroCusto(std::string ANome, std::string ATextoZero)
    : TZTLookupEx(std::move(ANome), CentroCusto(std::move(ATextoZero))) {
    AntesDeBuscar = [this](TBusca& ABusca) {
        ABusca.Condicao = Format("CO01_CENTROCUSTO.IDEMPRESA = %d", {IDEmpresa()});
    };
}

TLookupConta::TLookupConta(std::string ANome) : TZTLookupEx(std::move(ANome), Conta()) {
    AntesDeBuscar = [this](TBusca& ABusca) {
        ABusca.Condicao = Format("CO01_PLANO.IDEMPRESA = %d", {IDEmpresaPlano()});
        if (CondicaoPesquisaConta)
            ABusca.Condicao += " AND " + CondicaoPesquisaConta();
    };
}

std::string TLookupConta::GetClassifContab() const {
    const auto* LCampo = GetResultSet().Active() ? GetResultSet().FindField("CLASSIFCONTAB") : nullptr;
    return LCampo ? LCampo->AsString() : std::string();
}

} // namespace host
