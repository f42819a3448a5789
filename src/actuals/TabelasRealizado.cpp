#include "actuals/TabelasRealizado.h"

#include "base/FormatoNumerico.h"

#include <utility>

namespace pct04618 {

namespace {

using base::Inteiro;
using base::TMoeda;
using base::TValor;
using host::TTipoColuna;

class TCursorDoResultado final : public host::TCursor {
  public:
    TCursorDoResultado(std::vector<host::TDescricaoColuna> AColunas, const std::vector<std::vector<TValor>>& ALinhas)
        : FColunas(std::move(AColunas)), FLinhas(ALinhas) {}
    const std::vector<host::TDescricaoColuna>& Colunas() const override { return FColunas; }
    std::size_t Ler(host::TColunas& ADestino, std::size_t) override {
        for (; FLidas < FLinhas.size(); ++FLidas)
            for (std::size_t I = 0; I < ADestino.size(); ++I)
                ADestino[I].Acrescentar(FLinhas[FLidas][I]);
        return std::exchange(FRestam, 0);
    }

  private:
    std::vector<host::TDescricaoColuna> FColunas;
    const std::vector<std::vector<TValor>>& FLinhas;
    std::size_t FLidas = 0;
    std::size_t FRestam = FLinhas.size();
};

host::TDescricaoColuna Numero(const char* ANome, int AEscala = 0) {
    return {ANome, TTipoColuna::Inteiro, AEscala, 0, {}};
}
host::TDescricaoColuna Dia(const char* ANome) { return {ANome, TTipoColuna::Data, 0, 0, {}}; }
host::TDescricaoColuna Texto(const char* ANome) { return {ANome, TTipoColuna::Texto, 0, 100, {}}; }
// Two decimals, as amounts are stored.
TValor Valor(TMoeda AValor) { return AValor.Decimal().ComEscala(2); }

std::string Contagem(std::int64_t AValor) { return base::FormatarNumero({AValor, 0}, ",0"); }
std::string Dinheiro(TMoeda AValor) { return base::FormatarNumero(AValor.Decimal(), ",0.00"); }

} // namespace

void TDataSetResultado::Carregar(std::vector<host::TDescricaoColuna> AColunas,
                                 std::vector<std::vector<TValor>> ALinhas) {
    Close();
    FDescricoes = std::move(AColunas);
    FLinhas = std::move(ALinhas);
    Open();
}

std::unique_ptr<host::TCursor> TDataSetResultado::AbrirCursor() {
    return std::make_unique<TCursorDoResultado>(FDescricoes, FLinhas);
}

TTabelaResultado::TTabelaResultado(const std::string& ANome, const char* ATitulo)
    : Cds("Cds" + ANome), Ds("Ds" + ANome), Dbg("Dbg" + ANome, Ds) {
    Ds.DataSet = &Cds;
    Dbg.SetCaption(ATitulo);
    Dbg.SetVisible(false); // told, and not placed in the dialog
}

TTabelasRealizado::TTabelasRealizado()
    : Projecoes("Realizado", "Projeções"), NaoEntraram("NaoEntraram", "Lançamentos que não entraram"),
      Defasadas("Defasadas", "Demonstrações com totais de antes, a gerar novamente") {
    using host::TPapelColuna;
    const auto LColuna = [](const char* ACampo, const char* ATitulo, const char* AFormato = "",
                            TPapelColuna APapel = TPapelColuna::Comum) {
        host::TColunaGrade LNova;
        LNova.Campo = ACampo;
        LNova.Titulo = ATitulo;
        LNova.Formato = AFormato;
        LNova.Papel = APapel;
        return LNova;
    };
    const auto LDinheiro = [&](const char* ACampo, const char* ATitulo) {
        return LColuna(ACampo, ATitulo, ",0.00", TPapelColuna::Dinheiro);
    };
    Projecoes.Dbg.SetColunas(
        {LColuna("DATAINICIO", "Início"), LColuna("DATAFIM", "Fim"), LColuna("CENARIO", "Cenário"),
         LColuna("LIDOS", "Lidos", ",0"), LColuna("CONFRONTADOS", "Confront.", ",0"),
         LColuna("ZERADAS", "Zeradas", ",0"), LColuna("ALTERADAS", "Alteradas", ",0"), LColuna("NOVAS", "Novas", ",0"),
         LDinheiro("ANTES", "Antes"), LDinheiro("DEPOIS", "Depois"), LDinheiro("DIFERENCA", "Diferença"),
         LColuna("SEGUNDOS", "Segundos", "0.0"), LColuna("OBSERVACAO", "Observação", "", TPapelColuna::Nome)});
    NaoEntraram.Dbg.SetColunas({LColuna("MOTIVO", "Motivo"), LColuna("LANCAMENTOS", "Lançamentos", ",0"),
                                LDinheiro("DEBITOS", "Débitos"), LDinheiro("CREDITOS", "Créditos")});
    Defasadas.Dbg.SetColunas({LColuna("CODIGO", "Código"), LColuna("TITULO", "Título")});
}

void TTabelasRealizado::Carregar(const TResultadoRealizado& AResultado) {
    std::vector<std::vector<TValor>> LLinhas;
    for (const auto& P : AResultado.Projecoes)
        LLinhas.push_back({P.DataInicio.SemHora(), P.DataFim.SemHora(), P.Cenario, Inteiro(P.Lidos),
                           Inteiro(P.Confrontados()), Inteiro(P.Zeradas), Inteiro(P.Alteradas), Inteiro(P.Novas),
                           Valor(P.Antes), Valor(P.Depois), Valor(P.Depois - P.Antes),
                           base::TDecimal{P.Milissegundos, 3},
                           P.Observacao.empty() ? base::Nulo : TValor(P.Observacao)});
    Projecoes.Cds.Carregar({Dia("DATAINICIO"), Dia("DATAFIM"), Texto("CENARIO"), Numero("LIDOS"),
                            Numero("CONFRONTADOS"), Numero("ZERADAS"), Numero("ALTERADAS"), Numero("NOVAS"),
                            Numero("ANTES", 2), Numero("DEPOIS", 2), Numero("DIFERENCA", 2), Numero("SEGUNDOS", 3),
                            Texto("OBSERVACAO")},
                           std::exchange(LLinhas, {}));
    for (const auto LDestino : Destinos)
        if (const auto LTotal = AResultado.Total(LDestino); LTotal.Lancamentos > 0)
            LLinhas.push_back(
                {DescricaoDo(LDestino), Inteiro(LTotal.Lancamentos), Valor(LTotal.Debitos), Valor(LTotal.Creditos)});
    NaoEntraram.Cds.Carregar({Texto("MOTIVO"), Numero("LANCAMENTOS"), Numero("DEBITOS", 2), Numero("CREDITOS", 2)},
                             std::exchange(LLinhas, {}));
    for (const auto& LDemonstracao : AResultado.Defasadas)
        LLinhas.push_back({Inteiro(LDemonstracao.Codigo), LDemonstracao.Titulo});
    Defasadas.Cds.Carregar({Numero("CODIGO"), Texto("TITULO")}, std::move(LLinhas));
}

std::string Descrever(const TResultadoRealizado& AResultado) {
    if (AResultado.Vazio())
        return {};
    std::string LTexto;
    for (const auto& P : AResultado.Projecoes) {
        LTexto += P.DataInicio.SemHora().Texto() + " a " + P.DataFim.SemHora().Texto() + " - " + P.Cenario + "\r";
        LTexto += "  Lançamentos: " + Contagem(P.Lidos) + " lidos, " + Contagem(P.Confrontados()) +
                  " confrontados. Linhas: " + Contagem(P.Zeradas) + " zeradas, " + Contagem(P.Alteradas) +
                  " alteradas, " + Contagem(P.Novas) + " novas.\r";
        LTexto += "  Realizado: antes " + Dinheiro(P.Antes) + ", depois " + Dinheiro(P.Depois) + ", diferença " +
                  Dinheiro(P.Depois - P.Antes) + ". Tempo: " + base::FormatarNumero({P.Milissegundos, 3}, "0.0") +
                  " s.\r";
        if (!P.Observacao.empty())
            LTexto += "  " + P.Observacao + "\r";
    }
    bool LTitulo = false;
    for (const auto LDestino : Destinos) {
        const auto LTotal = AResultado.Total(LDestino);
        if (LTotal.Lancamentos == 0)
            continue;
        LTexto += std::exchange(LTitulo, true) ? "" : "\rLançamentos que não entraram:\r";
        LTexto += std::string("  ") + DescricaoDo(LDestino) + ": " + Contagem(LTotal.Lancamentos) + ", débitos " +
                  Dinheiro(LTotal.Debitos) + ", créditos " + Dinheiro(LTotal.Creditos) + "\r";
    }
    if (!AResultado.Defasadas.empty())
        LTexto += "\rDemonstrações com totais de antes desta atualização, a gerar novamente:\r";
    for (const auto& LDemonstracao : AResultado.Defasadas)
        LTexto += "  " + std::to_string(LDemonstracao.Codigo) + " - " + LDemonstracao.Titulo + "\r";
    return LTexto;
}

} // namespace pct04618
