#pragma once

#include "consultation/EstruturaGrades.h"
#include "consultation/RegrasCelulas.h"
#include "host/Grade.h"

#include <algorithm>
#include <array>
#include <functional>

namespace apoio {

using host::TTipoColuna;

// A dataset whose rows a function makes, one at a time.
class Dados : public host::TDataSet {
  public:
    using Linha = std::vector<base::TValor>;
    using host::TDataSet::TDataSet;
    std::vector<host::TDescricaoColuna> colunas;
    std::size_t quantas = 0;
    std::function<Linha(std::size_t)> linha;

    void deLinhas(std::vector<Linha> linhas) {
        quantas = linhas.size();
        linha = [linhas = std::move(linhas)](std::size_t i) { return linhas[i]; };
    }

  private:
    struct Cursor : host::TCursor {
        explicit Cursor(const Dados& dados) : origem(dados) {}
        const std::vector<host::TDescricaoColuna>& Colunas() const override { return origem.colunas; }
        std::size_t Ler(host::TColunas& destino, std::size_t maximo) override {
            const auto antes = lidas;
            for (; lidas < origem.quantas && lidas - antes < maximo; ++lidas) {
                const auto valores = origem.linha(lidas);
                for (std::size_t c = 0; c < destino.size(); ++c)
                    destino[c].Acrescentar(valores[c]);
            }
            return lidas - antes;
        }
        const Dados& origem;
        std::size_t lidas = 0;
    };
    std::unique_ptr<host::TCursor> AbrirCursor() override { return std::make_unique<Cursor>(*this); }
};

inline host::TDescricaoColuna texto(const char* nome) { return {nome, TTipoColuna::Texto, 0, 60, ""}; }
inline host::TDescricaoColuna numero(const char* nome, int escala = 0) {
    return {nome, TTipoColuna::Inteiro, escala, 0, ""};
}

// A dataset behind the columns and rules of the balance grid.
struct GradeBalanco {
    Dados dados{"CdsMostraCtbOrcada"};
    host::TDataSource fonte{"Ds"};
    host::TGrade grade{"DbgCtbOrcada", fonte};
    std::size_t perguntas = 0; // to the rule

    GradeBalanco() {
        dados.colunas = {texto("CLASSIFCONTAB"),  numero("CONTA"),         numero("CODIGO"),
                         numero("CCUSTO"),        texto("DESCCCUSTO"),     numero("FILIAL"),
                         texto("NOMECONTA"),      numero("TPATUALIZBASE"), numero("INDICEATBASE", 6),
                         numero("VLRBASE", 6),    numero("TPPROJECAO"),    numero("TPBASEPROJ"),
                         numero("PERCORCADO", 4), numero("VLRORCADO", 6),  numero("VLRREALIZADO", 6),
                         numero("DELTAVLR", 6),   numero("DELTAPERC", 6),  numero("DELTAVARIACAO", 6),
                         texto("RECDESP"),        numero("CTATITULO"),     numero("IDPLANO")};
        fonte.DataSet = &dados;
        grade.SetColunas(pct04618::ColunasDbtvCtbOrcada());
        grade.Linhas = pct04618::LinhasDbtvCtbOrcada();
        grade.RegraDaCelula = [this](const host::TCelula& celula) {
            ++perguntas;
            return AparenciaDaCelula(pct04618::LerCelulaBalanco(celula));
        };
    }

    // A line with what tells lines apart; amounts in whole units.
    static Dados::Linha linha(const std::string& classe, int conta, int filial, const std::string& nome,
                              std::int64_t base, std::int64_t orcado, std::int64_t realizado, bool receita,
                              bool titulo) {
        const auto milhoes = [](std::int64_t valor) { return base::TDecimal{valor, 6}; };
        const std::int64_t variacao = orcado < 1'000'000 ? 0 : (realizado - orcado) / (orcado / 1'000'000) * 100;
        return {classe,
                base::Inteiro(conta),
                base::Inteiro(0),
                base::Inteiro(conta % 7 == 0 ? 12 : 0),
                std::string("Administração"),
                base::Inteiro(filial),
                nome,
                base::Inteiro(0),
                milhoes(0),
                milhoes(base),
                base::Inteiro(1),
                base::Inteiro(0),
                base::TDecimal{5 * 10'000, 4},
                milhoes(orcado),
                milhoes(realizado),
                milhoes(realizado - orcado),
                milhoes(variacao + 100'000'000),
                milhoes(receita ? variacao : -variacao),
                std::string(receita ? "Receita" : "Despesa"),
                base::Inteiro(titulo ? 1 : 2),
                base::Inteiro(conta)};
    }

    // A chart of accounts of a bakery, in as many establishments as it takes.
    void encher(std::size_t quantas, std::size_t porFilial = 50, bool nomesDistintos = false) {
        static const std::array<std::pair<const char*, bool>, 10> nomes{
            {{"RECEITAS OPERACIONAIS", true},
             {"Venda de pães", true},
             {"Venda de cafés e salgados", true},
             {"Serviços de buffet", true},
             {"DESPESAS OPERACIONAIS", false},
             {"Salários e ordenados", false},
             {"Energia elétrica", false},
             {"Água e esgoto", false},
             {"Aluguéis e condomínios", false},
             {"Manutenção de fornos, máquinas e veículos da frota própria", false}}};
        dados.quantas = quantas;
        dados.linha = [=](std::size_t i) {
            const auto conta = i % porFilial;
            const auto [nome, receita] = nomes[conta % nomes.size()];
            const bool titulo = conta % 10 == 0 || conta % 10 == 4;
            const auto valor = static_cast<std::int64_t>((i * 7919 + 13) % 9'999'991) * 10'000 * (titulo ? 10 : 1);
            const auto realizado = i % 11 == 3 ? 0 : valor + (static_cast<std::int64_t>(i * 31 % 41) - 20) * 5'000'000;
            const auto orcado = i % 11 == 3 ? 0 : valor;
            auto classe = std::string(receita ? "3." : "4.") + (titulo ? "" : "01.") + std::to_string(100 + conta);
            const auto proprio = nomesDistintos ? std::string(nome) + " " + std::to_string(i * 7919 % quantas) : nome;
            return linha(classe, static_cast<int>(1000 + conta), static_cast<int>(i / porFilial + 1), proprio,
                         orcado / 10 * 9, orcado, realizado, receita, titulo);
        };
        dados.Open();
    }

    std::map<host::TCor, std::string> legenda() const {
        return {{pct04618::cores::Azul, "Receita realizada > projetada"},
                {pct04618::cores::Vermelho, "Receita realizada < projetada"},
                {pct04618::cores::Roxo, "Despesa realizada > projetada"},
                {pct04618::cores::VerdeAzulado, "Despesa realizada < projetada"}};
    }
};

// The periods grid: lines of base, budget and actual values of each account.
struct GradePeriodos {
    Dados dados{"CdsMostraCtbOrcMensal"};
    host::TDataSource fonte{"Ds"};
    host::TGrade grade{"DbgMostraCtbOrcMensal", fonte};

    GradePeriodos() {
        dados.colunas = {texto("CLASSIFCONTAB"), numero("CONTA"),    numero("SUBCONTA"), numero("CCUSTO"),
                         numero("FILIAL"),       texto("NOMECONTA"), texto("ANO"),       numero("CTATITULO"),
                         numero("TIPOLINHA"),    numero("IDPLANO"),  numero("TOTAL", 2), numero("PERCTOT", 4)};
        for (int i = 1; i <= 12; ++i) {
            dados.colunas.push_back(numero(("VAL" + std::to_string(i)).c_str(), 2));
            dados.colunas.push_back(numero(("PERC" + std::to_string(i)).c_str(), 4));
            dados.colunas.push_back(texto(("PER" + std::to_string(i)).c_str()));
        }
        fonte.DataSet = &dados;
        grade.SetColunas(pct04618::ColunasDbtvMostraCtbOrcMensal());
        grade.Linhas = pct04618::LinhasDbtvMostraCtbOrcMensal();
        grade.RegraDaCelula = [](const host::TCelula& celula) {
            pct04618::TCelulaPeriodos dela;
            dela.LinhaVlrBase = dela.LinhaVlrOrcado = dela.LinhaVlrRealizado = true;
            dela.TipoLinha = base::TDecimal::De(TextoDe(celula.Valor("TIPOLINHA"))) == base::TDecimal{1, 0}   ? 1
                             : base::TDecimal::De(TextoDe(celula.Valor("TIPOLINHA"))) == base::TDecimal{2, 0} ? 2
                                                                                                              : 3;
            dela.CtaTitulo = TextoDe(celula.Valor("CTATITULO")) == "1" ? 1 : 2;
            dela.IDPlano = TextoDe(celula.Valor("IDPLANO"));
            dela.Coluna = celula.Coluna->Campo;
            dela.Selecionada = celula.Selecionada;
            dela.Texto = celula.Texto();
            return AparenciaDaCelula(dela);
        };
    }

    // Accounts of three lines each, over the first months; the second is a title.
    void encher(int contas, int meses, bool totalizador = false) {
        static const char* const nomesDosMeses[] = {"Jan/2024", "Fev/2024", "Mar/2024", "Abr/2024",
                                                    "Mai/2024", "Jun/2024", "Jul/2024", "Ago/2024",
                                                    "Set/2024", "Out/2024", "Nov/2024", "Dez/2024"};
        static const char* const nomes[] = {"Venda de pães", "Despesas com pessoal", "Energia elétrica",
                                            "Água e esgoto"};
        dados.quantas = static_cast<std::size_t>(contas) * 3;
        dados.linha = [=](std::size_t i) {
            const auto conta = static_cast<int>(i / 3);
            const auto tipo = static_cast<int>(i % 3) + 1;
            Dados::Linha linha{"3.01." + std::to_string(100 + conta),
                               base::Inteiro(1000 + conta),
                               base::Inteiro(0),
                               base::Inteiro(0),
                               base::Inteiro(1),
                               std::string(nomes[conta % 4]),
                               std::string(tipo == 1   ? "2024 - B"
                                           : tipo == 2 ? "2024 - O"
                                                       : "2024 - R"),
                               base::Inteiro(conta % 4 == 1 ? 1 : 2),
                               base::Inteiro(tipo),
                               totalizador && conta % 4 == 0 ? base::Nulo : base::Inteiro(conta),
                               base::TDecimal{0, 2},
                               base::TDecimal{1'000'000, 4}};
            std::int64_t total = 0;
            for (int mes = 1; mes <= 12; ++mes) {
                const auto valor = (contas - conta) * 10'000 + tipo * 100 + mes;
                total += mes <= meses ? valor : 0;
                linha.push_back(mes <= meses ? base::TValor(base::TDecimal{valor, 2}) : base::Nulo);
                linha.push_back(mes <= meses ? base::TValor(base::TDecimal{83'333, 4}) : base::Nulo);
                linha.emplace_back(std::in_place_type<std::string>, mes <= meses ? nomesDosMeses[mes - 1] : "");
            }
            linha[10] = base::TDecimal{total, 2};
            return linha;
        };
        dados.Open();
        grade.SetColunas(pct04618::EstruturarColunasPeriodo(grade.Colunas(), dados));
    }
};

} // namespace apoio
