#include "selection/DefinicoesLookups.h"

#include "selection/SqlSelecao.h"

namespace pct04618 {

host::TDefinicaoLookup LookupPesquisaPerOrcConsulta() {
    host::TDefinicaoLookup LDefinicao;
    LDefinicao.Titulo = "Pesquisa orçamentos";
    LDefinicao.CampoPesquisa = "IDCTBORCADAINF";
    LDefinicao.CampoChave = "IDCTBORCADAINF";
    LDefinicao.CampoDescricao = "TPCENARIO";
    LDefinicao.Ordem = "DATAINICIO";
    LDefinicao.Instrucao = sql::PesquisaOrcamentos;
    LDefinicao.TextoNaoAchou = "Período inválido";
    LDefinicao.Colunas = {{"FILIAL", "Filial"},
                          {"DATAINICIO", "Data inicial"},
                          {"DATAFIM", "Data final"},
                          {"TPCENARIO", "Cenário"},
                          {"TPDETALHE", "Tipo detalhamento"},
                          {"DATAIBALANCOREF", "Data ini balanc ref"},
                          {"DATAFBALANCOREF", "Data fim balanc ref"},
                          {"MESESPROJETADOS", "Meses proj."},
                          {"IDCTBORCADAINF", "Registro"}};
    return LDefinicao;
}

host::TDefinicaoLookup LookupEmpresa() {
    host::TDefinicaoLookup LDefinicao; // its statement is given at each search
    LDefinicao.CampoPesquisa = "EMPRESA";
    LDefinicao.CampoChave = "IDFILIAL";
    LDefinicao.CampoDescricao = "NOMEFILIAL";
    LDefinicao.Ordem = "TIPO;EMPRESA;FILIAL";
    LDefinicao.MultiSelecao = true;
    LDefinicao.Colunas = {{"EMPRESA", "Empresa"},
                          {"FILIAL", "Filial"},
                          {"NOMEFILIAL", "Razão Social"},
                          {"NOMEFANTASIA", "Nome Fantasia"},
                          {"IDFILIAL", "Registro"}};
    return LDefinicao;
}

host::TDefinicaoLookup LookupRelatorioDemonstConfig() {
    host::TDefinicaoLookup LDefinicao;
    LDefinicao.Titulo = "Pesquisa de Demonstrações Acessorias Configuráveis";
    LDefinicao.CampoPesquisa = "CODIGO";
    LDefinicao.CampoChave = "IDDEMAC";
    LDefinicao.CampoDescricao = "TITULO";
    LDefinicao.Ordem = "CODIGO";
    LDefinicao.Instrucao = sql::PesquisaRelatorios;
    LDefinicao.Final = "ORDER BY CO01_DEMAC.CODIGO";
    LDefinicao.Colunas = {
        {"CODIGO", "Código"}, {"TITULO", "Título"}, {"DESCRICAO", "Descrição"}, {"IDDEMAC", "Registro"}};
    return LDefinicao;
}

host::TDefinicaoLookup LookupTotalizadorDemonstConfig() {
    host::TDefinicaoLookup LDefinicao;
    LDefinicao.Titulo = "Pesquisa de Totalizadores de Demonstrações Configuráveis";
    LDefinicao.CampoPesquisa = "CODIGO";
    LDefinicao.CampoChave = "IDDEMACTOT";
    LDefinicao.CampoDescricao = "DESCRICAO";
    LDefinicao.Ordem = "CLASSIF;CODIGO";
    LDefinicao.Instrucao = sql::PesquisaTotalizadores;
    LDefinicao.MultiSelecao = true;
    LDefinicao.PermiteZero = true;
    LDefinicao.TextoZero = "TODOS OS TOTALIZADORES";
    LDefinicao.TextoNaoAchou.clear();
    LDefinicao.Colunas = {{"CLASSIF", "Classificação"}, {"CODIGO", "Código"}, {"DESCRICAO", "Descrição"},
                          {"DESCTITULO", "Título"},     {"GRAU", "Grau"},     {"CODTOTPAI", "Tot. Pai"},
                          {"IDDEMACTOT", "Registro"}};
    return LDefinicao;
}

host::TDefinicaoLookup LookupUsuarioAtrib() {
    host::TDefinicaoLookup LDefinicao;
    LDefinicao.Titulo = "Pesquisa de usuários/atribuições";
    LDefinicao.CampoPesquisa = "CODIGO";
    LDefinicao.CampoChave = "IDUSUARIOATRIB";
    LDefinicao.CampoDescricao = "NOMEUSU";
    LDefinicao.Ordem = "CODIGO";
    LDefinicao.Instrucao = sql::PesquisaUsuarios;
    LDefinicao.Final = "ORDER BY US09_USUARIO.NOME";
    LDefinicao.MultiSelecao = true;
    LDefinicao.PermiteZero = true;
    LDefinicao.TextoZero = "TODOS OS USUÁRIOS / ATRIBUIÇÕES";
    LDefinicao.Colunas = {{"CODUSU", "Cód. usuário"},
                          {"NOMEUSU", "Nome do usuário"},
                          {"CODATRIB", "Cód. atribuição"},
                          {"NOMEATRIB", "Nome da atribuição"},
                          {"IDUSUARIOATRIB", "Registro"}};
    return LDefinicao;
}

host::TDefinicaoLookup LookupSubConta() {
    host::TDefinicaoLookup LDefinicao;
    LDefinicao.Titulo = "Pesquisa de subcontas";
    LDefinicao.CampoPesquisa = "CODIGO";
    LDefinicao.CampoChave = "IDPLANOSUB";
    LDefinicao.CampoDescricao = "DESCRICAO";
    LDefinicao.Ordem = "CODIGO";
    LDefinicao.Instrucao = sql::PesquisaSubContas;
    LDefinicao.MultiSelecao = true;
    LDefinicao.PermiteZero = true;
    LDefinicao.TextoZero = "TODAS AS SUBCONTAS";
    LDefinicao.ValorInvalido = -1;
    LDefinicao.Colunas = {{"CODIGO", "Código"}, {"DESCRICAO", "Descrição"}, {"IDPLANOSUB", "Registro"}};
    return LDefinicao;
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
