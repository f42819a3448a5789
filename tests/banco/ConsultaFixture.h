#pragma once

#include "apoio/Bases.h"
#include "apoio/Hospedeiro.h"
#include "datamodule/Un04618Dm.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>

namespace apoio {

using Lista = std::vector<std::string>;

// Companies 1 (with the chart, heading a holding) and 2; establishments 11 and 12 of company 1, 21 of company 2.
// Accounts 100 (title), 101 revenue, 102 expense, 103 without configuration.
inline const char* const Cadastro = R"(
INSERT INTO SC00_EMPRESA (IDEMPRESA, EMPRESA, NOME) VALUES (1, 10, 'Um');
INSERT INTO SC00_EMPRESA (IDEMPRESA, EMPRESA, NOME, IDHOLDING) VALUES (2, 20, 'Dois', 1);
INSERT INTO SC00_FILIAL (IDFILIAL, IDEMPRESA, FILIAL, NOME) VALUES (11, 1, 1, 'Matriz');
INSERT INTO SC00_FILIAL (IDFILIAL, IDEMPRESA, FILIAL, NOME) VALUES (12, 1, 2, 'Filial');
INSERT INTO SC00_FILIAL (IDFILIAL, IDEMPRESA, FILIAL, NOME) VALUES (21, 2, 1, 'Outra');
INSERT INTO CO01_PLANO (IDPLANO, IDEMPRESA, CONTA, CLASSIFCONTAB, NOME, CTATITULO, TPCONTA)
     VALUES (100, 1, 1, '3', 'Resultado', 1, 3);
INSERT INTO CO01_PLANO (IDPLANO, IDEMPRESA, IDPLANOPAI, CONTA, CLASSIFCONTAB, NOME, CTATITULO, TPCONTA)
     VALUES (101, 1, 100, 2, '3.1', 'Vendas', 2, 3);
INSERT INTO CO01_PLANO (IDPLANO, IDEMPRESA, IDPLANOPAI, CONTA, CLASSIFCONTAB, NOME, CTATITULO, TPCONTA)
     VALUES (102, 1, 100, 3, '3.2', 'Energia', 2, 3);
INSERT INTO CO01_PLANO (IDPLANO, IDEMPRESA, IDPLANOPAI, CONTA, CLASSIFCONTAB, NOME, CTATITULO, TPCONTA)
     VALUES (103, 1, 100, 4, '3.3d''a', 'Água', 2, 3);
INSERT INTO CO01_PLANOSUB (IDPLANOSUB, CODIGO, DESCRICAO) VALUES (7, 1, 'Fábrica');
INSERT INTO CO01_PLANOSUB (IDPLANOSUB, CODIGO, DESCRICAO) VALUES (8, 2, 'Loja');
INSERT INTO CO01_PLANOCFG (IDPLANOCFG, IDPLANO, IDEMPRESA, ORIGEM, ESPECIE, INFORMACAO1) VALUES (1, 101, 1, 20, 1, 1);
INSERT INTO CO01_PLANOCFG (IDPLANOCFG, IDPLANO, IDEMPRESA, ORIGEM, ESPECIE, INFORMACAO1) VALUES (2, 102, 1, 20, 1, 2);
INSERT INTO CO01_PLANOCFG (IDPLANOCFG, IDPLANO, IDEMPRESA, ORIGEM, ESPECIE, INFORMACAO1) VALUES (3, 103, 1, 21, 1, 1);
INSERT INTO CO01_CENTROCUSTO (IDCENTROCUSTO, IDEMPRESA, CODIGO, DESCRICAO, CLASSIFCENTRO, CENTROTITULO)
     VALUES (5, 1, 50, 'Produção', '1', 2);
INSERT INTO CO01_DEMAC (IDDEMAC, CODIGO, TITULO) VALUES (1, 1, 'DRE');
INSERT INTO CO01_DEMACTOT (IDDEMACTOT, IDDEMAC, CODIGO, CLASSIF, DESCRICAO, TITULO) VALUES (9, 1, 1, '1', 'Total', 2);
INSERT INTO US09_USUARIO (IDUSUARIO, CODIGO, NOME) VALUES (1, 1, 'Ana');
)";

inline base::TDataHora Dia(const char* texto) { return *base::TDataHora::DeTexto(texto); }

// The rows of an open dataset, the named columns of each joined by "|".
inline Lista LinhasDe(host::TDataSet& dados, const std::vector<const char*>& colunas) {
    Lista linhas;
    for (dados.First(); !dados.Eof(); dados.Next()) {
        std::string linha;
        for (const auto* coluna : colunas)
            linha += (coluna == colunas.front() ? "" : "|") + dados.FieldByName(coluna).AsString();
        linhas.push_back(linha);
    }
    return linhas;
}

// The query module on an engine of its own, with a chart and whatever projections a test gives it.
class ModuloDeConsulta : public testing::Test {
  protected:
    ModuloDeConsulta() { copia.executar(Cadastro); }

    // A header: "key company establishment|- scenario start end [detail [by cost centre]]".
    void Projecao(const std::string& texto) {
        std::istringstream partes(texto);
        std::string id, empresa, filial, cenario, inicio, fim, detalhe = "1", ccusto = "NULL";
        partes >> id >> empresa >> filial >> cenario >> inicio >> fim >> detalhe >> ccusto;
        const auto iso = [](const std::string& data) { return "'" + Dia(data.c_str()).TextoIso() + "'"; };
        copia.executar("INSERT INTO CO01_CTBORCADAINF (IDCTBORCADAINF, IDEMPRESA, IDFILIAL, TPCENARIO, DATAINICIO, "
                       "DATAFIM, DATAIBALANCOREF, DATAFBALANCOREF, TPDETALHE, TPCCUSTO) VALUES (" +
                       id + "," + empresa + "," + (filial == "-" ? "NULL" : filial) + "," + cenario + "," +
                       iso(inicio) + "," + iso(fim) + ", '2020-01-01', '2020-12-31', " + detalhe + "," + ccusto + ");");
    }
    // A value row: columns and values of what is not null.
    void Valor(const std::string& colunas, const std::string& valores) {
        copia.executar("INSERT INTO CO01_CTBORCADAVLR (" + colunas + ") VALUES (" + valores + ");");
    }

    pct04618::TDM04618& Dm() {
        if (!dm) {
            conexao = copia.conectar();
            servicos.Conexao = conexao.get();
            servicos.Interacao = &interacao;
            instalados = std::make_unique<host::TInstalacaoServicos>(servicos);
            dm = std::make_unique<pct04618::TDM04618>();
            dm->FIDEmpresa = 1;
        }
        return *dm;
    }

    Copia copia{Base::Vazia};
    Interacao interacao;
    host::TServicos servicos;
    std::unique_ptr<suite::firebird::Connection> conexao;
    std::unique_ptr<host::TInstalacaoServicos> instalados;
    std::unique_ptr<pct04618::TDM04618> dm;
};

} // namespace apoio
