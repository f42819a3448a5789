#include "selection/DefinicoesLookups.h"

#include "selection/SqlSelecao.h"

namespace pct04618 {

host::TDefinicaoLookup LookupPesquisaPerOrcConsulta() {
    return {
        .Titulo = "Pesquisa orçamentos",
        .CampoPesquisa = "IDCTBORCADAINF",
        .CampoChave = "IDCTBORCADAINF",
        .CampoDescricao = "TPCENARIO",
        .Ordem = "DATAINICIO",
        .Instrucao = sql::PesquisaOrcamentos,
        .Colunas = {{"FILIAL", "Filial"},
                    {"DATAINICIO", "Data inicial"},
                    {"DATAFIM", "Data final"},
                    {"TPCENARIO", "Cenário"},
                    {"TPDETALHE", "Tipo detalhamento"},
                    {"DATAIBALANCOREF", "Data ini balanc ref"},
                    {"DATAFBALANCOREF", "Data fim balanc ref"},
                    {"MESESPROJETADOS", "Meses proj."},
                    {"IDCTBORCADAINF", "Registro"}},
        .TextoNaoAchou = "Período inválido",
    };
}

host::TDefinicaoLookup LookupEmpresa() {
    return {
        .CampoPesquisa = "EMPRESA",
        .CampoChave = "IDFILIAL",
        .CampoDescricao = "NOMEFILIAL",
        .Ordem = "TIPO;EMPRESA;FILIAL",
        .Colunas = {{"EMPRESA", "Empresa"},
                    {"FILIAL", "Filial"},
                    {"NOMEFILIAL", "Razão Social"},
                    {"NOMEFANTASIA", "Nome Fantasia"},
                    {"IDFILIAL", "Registro"}},
        .MultiSelecao = true,
    };
}

host::TDefinicaoLookup LookupRelatorioDemonstConfig() {
    return {
        .Titulo = "Pesquisa de Demonstrações Acessorias Configuráveis",
        .CampoPesquisa = "CODIGO",
        .CampoChave = "IDDEMAC",
        .CampoDescricao = "TITULO",
        .Ordem = "CODIGO",
        .Instrucao = sql::PesquisaRelatorios,
        .Final = "ORDER BY CO01_DEMAC.CODIGO",
        .Colunas = {{"CODIGO", "Código"}, {"TITULO", "Título"}, {"DESCRICAO", "Descrição"}, {"IDDEMAC", "Registro"}},
    };
}

host::TDefinicaoLookup LookupTotalizadorDemonstConfig() {
    return {
        .Titulo = "Pesquisa de Totalizadores de Demonstrações Configuráveis",
        .CampoPesquisa = "CODIGO",
        .CampoChave = "IDDEMACTOT",
        .CampoDescricao = "DESCRICAO",
        .Ordem = "CLASSIF;CODIGO",
        .Instrucao = sql::PesquisaTotalizadores,
        .Colunas = {{"CLASSIF", "Classificação"},
                    {"CODIGO", "Código"},
                    {"DESCRICAO", "Descrição"},
                    {"DESCTITULO", "Título"},
                    {"GRAU", "Grau"},
                    {"CODTOTPAI", "Tot. Pai"},
                    {"IDDEMACTOT", "Registro"}},
        .MultiSelecao = true,
        .PermiteZero = true,
        .TextoZero = "TODOS OS TOTALIZADORES",
        .TextoNaoAchou = "",
    };
}

host::TDefinicaoLookup LookupUsuarioAtrib() {
    return {
        .Titulo = "Pesquisa de usuários/atribuições",
        .CampoPesquisa = "CODIGO",
        .CampoChave = "IDUSUARIOATRIB",
        .CampoDescricao = "NOMEUSU",
        .Ordem = "CODIGO",
        .Instrucao = sql::PesquisaUsuarios,
        .Final = "ORDER BY US09_USUARIO.NOME",
        .Colunas = {{"CODUSU", "Cód. usuário"},
                    {"NOMEUSU", "Nome do usuário"},
                    {"CODATRIB", "Cód. atribuição"},
                    {"NOMEATRIB", "Nome da atribuição"},
                    {"IDUSUARIOATRIB", "Registro"}},
        .MultiSelecao = true,
        .PermiteZero = true,
        .TextoZero = "TODOS OS USUÁRIOS / ATRIBUIÇÕES",
    };
}

host::TDefinicaoLookup LookupSubConta() {
    return {
        .Titulo = "Pesquisa de subcontas",
        .CampoPesquisa = "CODIGO",
        .CampoChave = "IDPLANOSUB",
        .CampoDescricao = "DESCRICAO",
        .Ordem = "CODIGO",
        .Instrucao = sql::PesquisaSubContas,
        .Colunas = {{"CODIGO", "Código"}, {"DESCRICAO", "Descrição"}, {"IDPLANOSUB", "Registro"}},
        .MultiSelecao = true,
        .PermiteZero = true,
        .TextoZero = "TODAS AS SUBCONTAS",
        .ValorInvalido = -1,
    };
}

std::string BuscarIDsMultiselecao(host::TZTLookupEx& ALookupEx, const std::string& ACondicao,
                                  const std::string& ACampoID, const std::string& ACondicaoFiltro,
                                  const std::string& ACampoCondicaoFiltro) {
    auto& LMarcados = ALookupEx.GetResultSetMultiSelecao();
    if (!LMarcados.Active())
        return ALookupEx.GetID() > 0 ? ACondicao + std::to_string(ALookupEx.GetID()) : std::string();
    std::string LCondicao;
    for (LMarcados.First(); !LMarcados.Eof(); LMarcados.Next()) {
        if (!ACondicaoFiltro.empty() && LMarcados.FieldByName(ACampoCondicaoFiltro).AsString() != ACondicaoFiltro)
            continue;
        LCondicao += (LCondicao.empty() ? "" : "\rOR ") + ACondicao + LMarcados.FieldByName(ACampoID).AsString();
    }
    return LCondicao;
}

} // namespace pct04618
