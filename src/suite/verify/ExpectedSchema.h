#pragma once

#include <string_view>

namespace suite::verify {

// A table that the statements name. Its columns stand in lists of names, by what their type must be able to do.
struct ExpectedTable {
    std::string_view name;
    bool written = false;          // else only read, and a view will do
    std::string_view keys = {};    // whole numbers; of 64 bits where they are written
    std::string_view codes = {};   // whole numbers
    std::string_view amounts = {}; // exact, with two decimals or more; of 64 bits where they are written
    std::string_view rates = {};   // exact
    std::string_view dates = {};   // with or without the time of day
    std::string_view texts =
        {}; // not a BLOB, by which no row can be grouped; "NAME:LENGTH" where less would fail a write
    std::string_view others = {};  // of any type that reads
    std::string_view nulls = {};   // written as NULL in some kind of row
    std::string_view omitted = {}; // left out in some kind of row
};

inline constexpr ExpectedTable ExpectedTables[] = {
    {.name = "SC00_EMPRESA", .keys = "IDEMPRESA IDHOLDING", .codes = "EMPRESA", .texts = "NOME"},
    {.name = "SC00_FILIAL", .keys = "IDFILIAL IDEMPRESA", .codes = "FILIAL", .texts = "NOME NOMEFANTASIA"},
    {.name = "US09_USUARIO", .keys = "IDUSUARIO", .texts = "NOME", .others = "CODIGO"},
    {.name = "US09_ATRIBUICAO", .keys = "IDATRIBUICAO", .texts = "DESCRICAO", .others = "CODIGO"},
    {.name = "US09_USUARIOATRIB", .keys = "IDUSUARIOATRIB IDUSUARIO IDATRIBUICAO"},
    {.name = "CO01_PLANO",
     .keys = "IDPLANO IDEMPRESA IDPLANOPAI CTASUPERIOR CONTA",
     .codes = "CTATITULO TPCONTA",
     .texts = "CLASSIFCONTAB NOME"},
    {.name = "CO01_PLANOSUB", .keys = "IDPLANOSUB", .codes = "CODIGO", .texts = "DESCRICAO"},
    {.name = "CO01_PLANOCFG",
     .keys = "IDPLANOCFG IDPLANO IDEMPRESA",
     .codes = "ORIGEM ESPECIE",
     .others = "INFORMACAO1"},
    {.name = "CO01_CENTROCUSTO",
     .keys = "IDCENTROCUSTO IDEMPRESA",
     .codes = "CODIGO CENTROTITULO",
     .texts = "DESCRICAO CLASSIFCENTRO"},
    {.name = "CO01_DEMAC", .keys = "IDDEMAC", .codes = "CODIGO", .texts = "TITULO", .others = "DESCRICAO"},
    {.name = "CO01_DEMACTOT",
     .keys = "IDDEMACTOT IDDEMAC IDDEMACTOTPAI",
     .codes = "CODIGO GRAU TITULO",
     .texts = "CLASSIF DESCRICAO"},
    {.name = "CO01_DEMACTOTREL", .keys = "IDDEMACTOT IDPLANO IDPLANOSUB IDCENTROCUSTO IDDEMACTOTRELAC"},
    {.name = "CO01_DEMACTOTVERT", .keys = "IDDEMACTOT IDDEMACTOTBASE"},
    {.name = "CO01_DEMACTOTUSUATRIB", .keys = "IDDEMACTOT IDUSUARIOATRIB IDEMPRESA IDFILIAL"},
    {.name = "CO01_CTBORCADAINF",
     .keys = "IDCTBORCADAINF IDEMPRESA IDFILIAL",
     .codes = "TPCENARIO MESESPROJETADOS TPDETALHE TPCCUSTO TPCTB",
     .dates = "DATAINICIO DATAFIM DATAIBALANCOREF DATAFBALANCOREF"},
    {.name = "CO01_CTBORCADAVLR",
     .written = true,
     .keys = "IDCTBORCADAVLR IDCTBORCADAINF IDEMPRESA IDFILIAL IDPLANO IDPLANOSUB IDCENTROCUSTO IDDEMACTOT",
     .codes = "TPBASEPROJ TPATUALIZBASE TPPROJECAO TIPOGERACAO",
     .amounts = "VLRBASE VLRORCADO PERCORCADO VLRREALIZADO",
     .rates = "INDICEATBASE",
     .nulls = "IDFILIAL IDPLANO IDPLANOSUB IDCENTROCUSTO IDDEMACTOT TPBASEPROJ TPATUALIZBASE TPPROJECAO INDICEATBASE "
              "PERCORCADO",
     .omitted = "VLRBASE VLRORCADO TIPOGERACAO"},
    {.name = "CO01_DIARIO",
     .keys = "IDDIARIO IDFILIAL IDPLANO IDPLANOSUB",
     .codes = "TPLANCTO ORIGEM TPCTB",
     .amounts = "VALOR",
     .dates = "DATA",
     .others = "HISTORICO"},
    {.name = "CO01_DIARIOCUSTO", .keys = "IDDIARIO IDCENTROCUSTO", .amounts = "VALOR"},
    {.name = "TMP_CO_ORCMATRICIAL",
     .written = true,
     .keys = "IDCTBORCADAINF IDDEMACTOT IDFILIAL IDCENTROCUSTO IDPLANO IDPLANOSUB CODIGO",
     .codes = "QUEBRA ORDEMCOL PERIODO TPLINHA NIVEL TITULO TPANOREF",
     .amounts = "VALOR PERCENTUAL",
     .texts = "ORDEMCLASSIF:50 GESTOR:200 SUPERVISOR:200 CLASSIFICACAO:50 DESCRICAO:400 ANOREF:6 DESCPERIODO:10",
     .nulls = "IDCTBORCADAINF IDFILIAL IDCENTROCUSTO IDPLANO IDPLANOSUB GESTOR SUPERVISOR CLASSIFICACAO CODIGO TITULO "
              "PERCENTUAL"},
};

inline constexpr std::string_view ValueTable = "CO01_CTBORCADAVLR";
inline constexpr std::string_view ValueKey = "IDCTBORCADAVLR";
inline constexpr std::string_view WorkTable = "TMP_CO_ORCMATRICIAL";

// An index that the statements need, with what it wins as its owner is told.
struct ExpectedIndex {
    std::string_view name;
    std::string_view table;
    std::string_view columns; // the first ones of the index. "|" parts those whose order among themselves is free
    std::string_view gain;
    bool nullAsZero = false; // the index is on COALESCE(column, 0), as the statements compare it
};

// Small tables that are read whole anyway have none here, and neither has what no statement was faster with.
inline constexpr ExpectedIndex ExpectedIndexes[] = {
    {"IX_ORCVLR_LINHA", "CO01_CTBORCADAVLR", "IDCTBORCADAINF | IDDEMACTOT IDPLANO",
     "toda consulta e todo total procuram por ele as linhas de uma projeção; sem conta e totalizador no índice, os "
     "totais de 20.000 linhas levaram 262 s, e 0,5 s com eles"},
    {"IX_ORCVLR_CHAVE", "CO01_CTBORCADAVLR", "IDCTBORCADAVLR",
     "sem ele, a atualização do realizado lê a tabela inteira para cada linha que grava"},
    {"IX_ORCDIARIO_PLANO_DATA", "CO01_DIARIO", "IDPLANO | DATA",
     "sem ele, o realizado de um mês lê todos os anos do diário"},
    {"IX_ORCDIARIOCUSTO_DIARIO", "CO01_DIARIOCUSTO", "IDDIARIO",
     "sem ele, o realizado por centro de custo lê a tabela inteira para cada lançamento"},
    {"IX_ORCPLANOCFG_PLANO", "CO01_PLANOCFG", "IDPLANO",
     "a consulta procura por ele o tipo, receita ou despesa, da conta de cada linha; sem ele, uma consulta de 0,8 s "
     "levou 19 s"},
    {"IX_ORCPLANO_CHAVE", "CO01_PLANO", "IDPLANO", "sem ele, o plano inteiro é lido para cada linha de valor"},
    {"IX_ORCPLANOSUB_CHAVE", "CO01_PLANOSUB", "IDPLANOSUB",
     "sem ele, todas as subcontas são lidas para cada linha de valor"},
    {"IX_ORCCENTRO_CHAVE", "CO01_CENTROCUSTO", "IDCENTROCUSTO",
     "sem ele, todos os centros de custo são lidos para cada linha de valor"},
    {"IX_ORCTOT_CHAVE", "CO01_DEMACTOT", "IDDEMACTOT",
     "os totais sobem por ele de totalizador em totalizador; sem ele, leem todos a cada passo"},
    {"IX_ORCTOTREL_TOT", "CO01_DEMACTOTREL", "IDDEMACTOT",
     "os totais procuram por ele as ligações de cada totalizador; sem ele, leem todas a cada passo"},
    {"IX_ORCTOTREL_RELAC", "CO01_DEMACTOTREL", "IDDEMACTOTRELAC",
     "os totais procuram por ele quem soma cada totalizador; sem ele, leem todas as ligações a cada passo"},
    {"IX_ORCTOTREL_PLANO", "CO01_DEMACTOTREL", "IDPLANO",
     "o razão procura por ele os totalizadores de cada conta; sem ele, lê todas as ligações para cada uma"},
    {"IX_ORCTOTVERT_TOT", "CO01_DEMACTOTVERT", "IDDEMACTOT",
     "a análise vertical procura por ele a base de cada linha; sem ele, lê a tabela inteira para cada uma"},
    {"IX_ORCTOTUSU_TOT", "CO01_DEMACTOTUSUATRIB", "IDDEMACTOT",
     "o relatório matricial procura por ele o gestor de cada linha; sem ele, lê a tabela inteira para cada uma"},
    {"IX_ORCMATRICIAL_TOT", "TMP_CO_ORCMATRICIAL", "IDDEMACTOT",
     "sem os três índices desta tabela, o relatório matricial cresce com o quadrado das linhas: um período de 2.000 "
     "linhas levou 74 s, e 4 s com eles",
     true},
    {"IX_ORCMATRICIAL_PLANO", "TMP_CO_ORCMATRICIAL", "IDPLANO", "o mesmo, no detalhe por conta", true},
    {"IX_ORCMATRICIAL_FILIAL", "TMP_CO_ORCMATRICIAL", "IDFILIAL", "o mesmo, no detalhe por estabelecimento", true},
};

} // namespace suite::verify
