#pragma once

#include "banco/ConsultaFixture.h"

namespace apoio {

using Campos = std::vector<const char*>;

// Mode 3 over the chart of accounts with all line types on, until a test says otherwise.
class Periodos : public ModuloDeConsulta {
  protected:
    Periodos() {
        auto& d = Dm();
        d.FImprimirOrcamentariaBal = true;
        d.FDetalharLinhaVlrBase = d.FDetalharLinhaVlrOrcado = d.FDetalharLinhaVlrRealizado = true;
    }
    // A month of 2024 as a header of company 1.
    void Mes(int id, const std::string& dias) { Projecao(std::to_string(id) + " 1 - 0 " + dias); }
    // A value row: header and account, then base, budget and actual.
    void Conta(const std::string& chaves, const std::string& valores) {
        Valor("IDCTBORCADAINF, IDPLANO, VLRBASE, VLRORCADO, VLRREALIZADO", chaves + ", " + valores);
    }
    Lista Abrir(const char* projecoes, const Campos& campos, bool periodosSemMovimento = false) {
        auto& d = Dm();
        d.FInformacoesCtbOrcadaInf.LListaIDs = projecoes;
        d.BuscarDadosOrcamentariaBalancoOuDemonstConfigDemonstPeriodosEmColunas(
            d.CdsMostraCtbOrcMensal, d.SdsMostraCtbOrcMensal, periodosSemMovimento);
        return LinhasDe(d.CdsMostraCtbOrcMensal, campos);
    }
    void SoLinhas(bool base, bool orcado, bool realizado) {
        auto& d = Dm();
        d.FDetalharLinhaVlrBase = base;
        d.FDetalharLinhaVlrOrcado = orcado;
        d.FDetalharLinhaVlrRealizado = realizado;
    }
    // Statement 1: totalizer 20 (title) over 21 and 22, of which 22 is measured against 20. Totalizer 9 stands apart.
    void Demonstracao() {
        copia.executar(R"(
INSERT INTO CO01_DEMAC (IDDEMAC, CODIGO, TITULO) VALUES (2, 2, 'Outra');
INSERT INTO CO01_DEMACTOT (IDDEMACTOT, IDDEMAC, CODIGO, CLASSIF, DESCRICAO, TITULO) VALUES (20, 1, 10, '2', 'Receita', 1);
INSERT INTO CO01_DEMACTOT (IDDEMACTOT, IDDEMAC, IDDEMACTOTPAI, CODIGO, CLASSIF, DESCRICAO, TITULO)
     VALUES (21, 1, 20, 11, '2.1', 'Produtos', 2);
INSERT INTO CO01_DEMACTOT (IDDEMACTOT, IDDEMAC, IDDEMACTOTPAI, CODIGO, CLASSIF, DESCRICAO, TITULO)
     VALUES (22, 1, 20, 12, '2.2', 'Serviços', 2);
INSERT INTO CO01_DEMACTOT (IDDEMACTOT, IDDEMAC, CODIGO, CLASSIF, DESCRICAO, TITULO) VALUES (30, 2, 99, '9', 'Alheio', 2);
INSERT INTO CO01_DEMACTOTVERT (IDDEMACTOT, IDDEMACTOTBASE) VALUES (20, 20);
INSERT INTO CO01_DEMACTOTVERT (IDDEMACTOT, IDDEMACTOTBASE) VALUES (22, 20);
)");
        auto& d = Dm();
        d.FImprimirOrcamentariaBal = false;
        d.FIDDemac = 1;
    }
    // A row of a totalizer in header 1: columns and values besides header and totalizer.
    void Totalizador(int id, const std::string& colunas, const std::string& valores) {
        Valor("IDCTBORCADAINF, IDDEMACTOT, " + colunas, "1, " + std::to_string(id) + ", " + valores);
    }
};

} // namespace apoio
