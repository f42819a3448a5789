#include "actuals/Confronto.h"

#include "actuals/SqlDiario.h"
#include "actuals/SqlProjecoesRealizado.h"
#include "actuals/SqlTotaisDasContas.h"
#include "base/Texto.h"
#include "core/Lista.h"
#include "core/Un04618Const.h"
#include "host/DataSet.h"
#include "host/Utilidades.h"

namespace pct04618 {

namespace {

using base::Format;
using base::TDataHora;

std::string Literal(TDataHora AData) { return host::GUtilGeral.FormataData(AData, true); }

// A journal may keep the time of day: the last day ends where the next one begins.
std::string LiteralDoDiaSeguinte(TDataHora AData) {
    return Literal(TDataHora::DeDecimos(AData.SemHora().Decimos() + TDataHora::DecimosPorDia));
}

std::string Listar(std::initializer_list<std::pair<bool, const char*>> AItens) {
    std::string LLista;
    for (const auto& [LVale, LItem] : AItens)
        if (LVale)
            LLista += (LLista.empty() ? "" : ", ") + std::string(LItem);
    return LLista;
}

std::string LivrosDoDiario(std::int64_t ALivros) {
    return Listar({{(ALivros & LivroNormal) != 0, "0"},
                   {(ALivros & LivroSocietario) != 0, "1"},
                   {(ALivros & LivroFiscal) != 0, "2"}});
}

std::string ContaConfrontada(const TSelecao& ASelecao) {
    return Format(sql::ContaConfrontada, {ASelecao.FIDEmpresa, ASelecao.FIDEmpresaHolding, ASelecao.FIDEmpresaPlano});
}

std::string DaFilial(const char* ACondicao, const TConfronto& AConfronto) {
    return AConfronto.IDFilial > 0 ? Format(ACondicao, {AConfronto.IDFilial}) : std::string();
}

} // namespace

TConfronto TConfronto::Do(host::TZTClientDataSet& ACabecalhos, std::int64_t AIDFilial, const std::string& AFiliais) {
    TConfronto LConfronto;
    const auto LData = [&](const char* ACampo) {
        return ACabecalhos.FieldByName(ACampo).AsDateTime().value_or(TDataHora());
    };
    const auto LNumero = [&](const char* ACampo) { return ACabecalhos.FieldByName(ACampo).AsInt64OuZero(); };
    LConfronto.IDCtbOrcadaInf = ACabecalhos.GetInt64FieldValue("IDCTBORCADAINF");
    LConfronto.DataInicio = LData("DATAINICIO");
    LConfronto.DataFim = LData("DATAFIM");
    LConfronto.Cenario = static_cast<std::int32_t>(LNumero("TPCENARIO"));
    LConfronto.Livros = LNumero("TPCTB");
    LConfronto.DetalharFilial = LNumero("TPDETALHE") == DetalhadaPorEstabelecimento;
    LConfronto.DetalharCCusto = LNumero("TPCCUSTO") == 1;
    LConfronto.IDFilial = LConfronto.DetalharFilial ? AIDFilial : 0;
    LConfronto.Filiais = LConfronto.IDFilial > 0 ? std::to_string(LConfronto.IDFilial) : AFiliais;
    return LConfronto;
}

std::string TConfronto::Periodo() const { return DataInicio.SemHora().Texto() + " a " + DataFim.SemHora().Texto(); }

std::string TConfronto::NomeDoCenario() const {
    constexpr const char* LNomes[] = {"Normal", "Otimista", "Pessimista"};
    return Cenario >= 0 && Cenario < 3 ? LNomes[Cenario] : std::to_string(Cenario);
}

std::string InstrucaoCabecalhosRealizado(std::int64_t AIDEmpresa, int ACenarios, TDataHora ADataInicial,
                                         TDataHora ADataFinal, bool AIntervalo) {
    return Format(sql::CabecalhosRealizado,
                  {AIDEmpresa,
                   Listar({{(ACenarios & 1) != 0, "0"}, {(ACenarios & 2) != 0, "1"}, {(ACenarios & 4) != 0, "2"}}),
                   Format(AIntervalo ? sql::CabecalhosNoIntervalo : sql::CabecalhosDoPeriodo,
                          {Literal(ADataInicial), Literal(ADataFinal)})});
}

std::string InstrucaoSomasDoDiario(const TSelecao& ASelecao, const TConfronto& AConfronto) {
    const bool LCentro = AConfronto.DetalharCCusto;
    return Format(sql::SomasDoDiario,
                  {EstaNaLista("CO01_DIARIO.IDFILIAL", AConfronto.Filiais), Literal(AConfronto.DataInicio),
                   LiteralDoDiaSeguinte(AConfronto.DataFim),
                   AConfronto.DetalharFilial ? "CO01_DIARIO.IDFILIAL" : "NULL AS IDFILIAL",
                   LivrosDoDiario(AConfronto.Livros), ContaConfrontada(ASelecao),
                   LCentro ? "COALESCE(CO01_DIARIOCUSTO.IDCENTROCUSTO, 0) AS IDCENTROCUSTO" : "NULL AS IDCENTROCUSTO",
                   LCentro ? "CO01_DIARIOCUSTO" : "CO01_DIARIO", LCentro ? sql::QuotasDoDiario : "",
                   AConfronto.IDCtbOrcadaInf, AConfronto.DetalharFilial ? sql::BaseDaFilial : "",
                   LCentro ? sql::BaseDoCentro : ""});
}

std::string InstrucaoDestinosDoDiario(const TSelecao& ASelecao, const TConfronto& AConfronto) {
    const auto LLivros = LivrosDoDiario(AConfronto.Livros);
    const auto LEntraria = Format(sql::Entraria, {LLivros});
    return Format(sql::DestinosDoDiario, {EstaNaLista("CO01_DIARIO.IDFILIAL", AConfronto.Filiais),
                                          Literal(AConfronto.DataInicio), LiteralDoDiaSeguinte(AConfronto.DataFim),
                                          Format(sql::OutroLivro, {LLivros}), ContaConfrontada(ASelecao),
                                          AConfronto.DetalharCCusto ? LEntraria + sql::SemQuota : "1 = 0", LEntraria});
}

std::string InstrucaoContasQueTotalizam(const TSelecao& ASelecao, const std::string& AIDsOrcadaInf,
                                        TDataHora ADataInicial, TDataHora ADataFinal) {
    return Format(sql::ContasQueTotalizam,
                  {EstaNaLista("CO01_CTBORCADAVLR.IDCTBORCADAINF", AIDsOrcadaInf), Literal(ADataInicial),
                   LiteralDoDiaSeguinte(ADataFinal), ContaConfrontada(ASelecao)});
}

std::string InstrucaoValores(const TConfronto& AConfronto, bool ASomenteSinteticas) {
    return Format(sql::ValoresDaProjecao,
                  {AConfronto.IDCtbOrcadaInf,
                   (ASomenteSinteticas ? sql::SomenteSinteticas : "") + DaFilial(sql::ValoresDaFilial, AConfronto)});
}

std::string InstrucaoSituacao(const TConfronto& AConfronto) {
    return Format(sql::SituacaoDaProjecao, {AConfronto.IDCtbOrcadaInf, DaFilial(sql::ValoresDaFilial, AConfronto)});
}

std::string InstrucaoTotaisDasContas(const TConfronto& AConfronto) {
    return Format(sql::TotaisDasContas, {AConfronto.IDCtbOrcadaInf, DaFilial(sql::ValoresDaFilial, AConfronto)});
}

std::string InstrucaoZerar(const TConfronto& AConfronto) {
    return Format(sql::ZerarRealizadoDaProjecao,
                  {AConfronto.IDCtbOrcadaInf, DaFilial(sql::ValoresDaFilial, AConfronto)});
}

} // namespace pct04618
