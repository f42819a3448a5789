#pragma once

#include "base/Falhas.h"
#include "suite/export/Exporter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace exportacao {

// A connection that gives the same rows to whoever asks.
class Conexao : public host::TSQLConnection {
  public:
    std::vector<host::TDescricaoColuna> colunas;
    std::vector<std::vector<base::TValor>> linhas;

    std::unique_ptr<host::TCursor> AbrirCursor(const host::TInstrucao&) override {
        return std::make_unique<Cursor>(*this);
    }
    void ExecuteDirect(const std::string&) override {}

  private:
    class Cursor : public host::TCursor {
      public:
        explicit Cursor(const Conexao& conexao) : conexao_(conexao) {}
        const std::vector<host::TDescricaoColuna>& Colunas() const override { return conexao_.colunas; }
        std::size_t Ler(host::TColunas& destino, std::size_t) override {
            if (lido_ == conexao_.linhas.size())
                return 0;
            for (std::size_t i = 0; i < destino.size(); ++i)
                destino[i].Acrescentar(conexao_.linhas[lido_][i]);
            ++lido_;
            return 1;
        }

      private:
        const Conexao& conexao_;
        std::size_t lido_ = 0;
    };
};

inline std::string conteudo(const std::filesystem::path& arquivo) {
    std::ifstream entrada(arquivo, std::ios::binary);
    return {std::istreambuf_iterator<char>(entrada), {}};
}

// A part of an archive, as another program unpacks it.
inline std::string parte(const std::filesystem::path& arquivo, const std::string& nome) {
    auto* saida = ::popen(("unzip -p '" + arquivo.string() + "' '" + nome + "'").c_str(), "r");
    std::string texto;
    char bloco[4096];
    while (const auto lido = std::fread(bloco, 1, sizeof bloco, saida))
        texto.append(bloco, lido);
    EXPECT_EQ(0, ::pclose(saida)) << nome;
    return texto;
}

inline std::string entre(const std::string& texto, const std::string& abre, const std::string& fecha) {
    const auto inicio = texto.find(abre);
    if (inicio == std::string::npos)
        return "";
    return texto.substr(inicio + abre.size(), texto.find(fecha, inicio + abre.size()) - inicio - abre.size());
}

class Exportacao : public testing::Test {
  protected:
    Exportacao() {
        std::filesystem::create_directories(pasta);
        sds.SetSQLConnection(conexao);
        sds.CommandText = "SELECT";
        conexao.colunas = {
            {"CLASSE", host::TTipoColuna::Texto, 0, 20, ""}, {"CONTA", host::TTipoColuna::Inteiro, 0, 0, ""},
            {"NOME", host::TTipoColuna::Texto, 0, 60, ""},   {"VALOR", host::TTipoColuna::Inteiro, 2, 0, ""},
            {"PERC", host::TTipoColuna::Inteiro, 4, 0, ""},  {"REAL", host::TTipoColuna::Inteiro, 2, 0, ""},
            {"DATA", host::TTipoColuna::Data, 0, 0, ""},     {"TITULO", host::TTipoColuna::Inteiro, 0, 0, ""}};
        const base::TValor data = *base::TDataHora::De(2024, 1, 31);
        conexao.linhas = {
            {std::string("3"), base::Inteiro(0), std::string("Receita & \"ação\" <b>"), base::TDecimal{123450, 2},
             base::Nulo, base::TDecimal{-123456, 2}, data, base::Inteiro(1)},
            {std::string("3.01"), base::Inteiro(4711), std::string("=1+1"), base::TDecimal{123456789012345, 2},
             base::TDecimal{-49, 4}, base::Nulo, base::Nulo, base::Inteiro(0)},
            {std::string("03"), base::Inteiro(999'999'999'999'999), base::Nulo, base::TDecimal{1234567890123456, 2},
             base::TDecimal{-50, 4}, base::TDecimal{5, 2}, *base::TDataHora::De(1900, 2, 28), base::Inteiro(0)}};
        grade.SetColunas({{"CLASSE", "Classificação", "", true, "", -1, true},
                          {"CONTA", "Conta", "", false, "", 0, true},
                          {"TITULO", "Oculta", "", false, "", -1, false},
                          {"NOME", "Nome <da> Conta", "", true, "", -1, false},
                          {"VALOR", "Valor", "Valor Orçado", true, ",0.00", -1, false},
                          {"PERC", "%", "Valor Orçado", true, ",0.00", -1, false},
                          {"REAL", "Valor", "Realizado", true, ",0.00;(,0.00)", -1, false},
                          {"DATA", "Data", "", true, "", -1, true}});
        grade.RegraDaCelula = [](const host::TCelula& celula) {
            host::TAparencia aparencia;
            aparencia.Negrito = TextoDe(celula.Valor("TITULO")) == "1";
            if (aparencia.Negrito)
                aparencia.Fundo = 0xD8E4F8;
            if (celula.Coluna->Campo == "REAL")
                aparencia.Fonte = 0x0000FF;
            if (celula.Coluna->Campo == "CLASSE")
                aparencia.Fonte = 0x000000;
            aparencia.Vazio = celula.Coluna->Campo == "CONTA" && celula.Texto() == "0";
            return aparencia;
        };
    }
    ~Exportacao() override { std::filesystem::remove_all(pasta); }

    std::filesystem::path exportar(const std::string& nome) {
        cds.Open();
        suite::exporting::Exporter().write(suite::table::Table(grade), pasta / nome, titulo);
        return pasta / nome;
    }
    std::string falha(const std::filesystem::path& arquivo) {
        cds.Open();
        try {
            suite::exporting::Exporter().write(suite::table::Table(grade), arquivo, titulo);
        } catch (const base::TFalha& f) {
            return f.what();
        }
        return "(sem falha)";
    }
    std::vector<std::string> arquivos() const {
        std::vector<std::string> nomes;
        for (const auto& entrada : std::filesystem::directory_iterator(pasta))
            nomes.push_back(entrada.path().filename().string());
        return nomes;
    }

    std::filesystem::path pasta =
        std::filesystem::path(ORCREAL_PASTA_TESTE) / ("exportacao" + std::to_string(::getpid()));
    suite::exporting::Heading titulo{
        {{"Consulta", "Orçado x realizado"}, {"Empresa", "1 - Fábrica & Cia"}, {"Período", "01/01/2024 a 31/12/2024"}},
        {}};
    Conexao conexao;
    host::TZTSQLDataSet sds{"Sds"};
    host::TZTDataSetProvider dsp{"Dsp", sds};
    host::TZTClientDataSet cds{"Cds", dsp};
    host::TDataSource fonte = [this] {
        host::TDataSource f{"Ds"};
        f.DataSet = &cds;
        return f;
    }();
    host::TGrade grade{"Grade", fonte};
};

} // namespace exportacao
