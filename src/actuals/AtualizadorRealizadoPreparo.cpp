#include "actuals/AtualizadorRealizado.h"
#include "actuals/SqlTotaisDasContas.h"
#include "base/Falhas.h"
#include "base/Grafo.h"
#include "base/Texto.h"
#include "core/SqlProjecoes.h"
#include "host/DbManager.h"
#include "host/Servicos.h"
#include "host/Utilidades.h"

#include <algorithm>

namespace pct04618 {

namespace {

std::unique_ptr<host::TDataSet> Consultar(std::string ATexto, const char* ANome) {
    return host::BuscarInstanciaZTUtilsDbManager().AbrirConsultaSQL(std::move(ATexto), ANome);
}

} // namespace

void TAtualizadorRealizado::MontarPeriodos() {
    if (FPedido.Periodicidade == TPeriodicidadeRealizado::prDoPerInformado) {
        FPeriodos.push_back({FPedido.DataInicial, FPedido.DataFinal});
        return;
    }
    auto LInicio = FPedido.DataInicial;
    const int LMeses = host::GUtilGeral.EspacoEntreDatas(LInicio, FPedido.DataFinal, "MESES", "PARCIAL") + 1;
    for (int I = 0; I < LMeses; ++I) {
        const auto LFim = host::TZTUtilsDatas::BuscarUltimoDiaMes(LInicio);
        FPeriodos.push_back({LInicio, LFim});
        LInicio = base::TDataHora::DeDecimos(LFim.Decimos() + base::TDataHora::DecimosPorDia);
    }
}

// Once a run, since to join them to each entry costs as much as to read it. A company without any has no entries.
void TAtualizadorRealizado::ListarFiliais() {
    const auto LFiliais = Consultar(base::Format(sql::Filiais, {FDm04618.FIDEmpresa}), "estabelecimentos");
    for (; !LFiliais->Eof(); LFiliais->Next())
        FFiliais += (FFiliais.empty() ? "" : ", ") + LFiliais->FieldByName("IDFILIAL").AsString();
    if (FFiliais.empty())
        FFiliais = "0";
}

// What would stop the run halfway stops it before it begins.
void TAtualizadorRealizado::RecusarProjecoes() {
    auto LCabecalhos =
        host::BuscarInstanciaZTUtilsDbManager().CreateClientDataSetWithConnection("projeções a atualizar");
    LCabecalhos->CommandText = InstrucaoCabecalhosRealizado(FDm04618.FIDEmpresa, FPedido.Cenarios, FPedido.DataInicial,
                                                            FPedido.DataFinal, true);
    LCabecalhos->Open();
    std::vector<TConfronto> LProjecoes;
    std::string LSemLivro;
    for (; !LCabecalhos->Eof(); LCabecalhos->Next()) {
        const auto LProjecao = TConfronto::Do(*LCabecalhos, FPedido.IDFilial, FFiliais);
        const bool LVisitada = std::any_of(FPeriodos.begin(), FPeriodos.end(), [&](const TPeriodo& P) {
            return P.Inicio == LProjecao.DataInicio && P.Fim == LProjecao.DataFim;
        });
        if (!LVisitada)
            continue;
        LProjecoes.push_back(LProjecao);
        if (!LProjecao.TemLivro())
            LSemLivro += LProjecao.Periodo() + " - " + LProjecao.NomeDoCenario() + "\r";
    }
    if (!LSemLivro.empty())
        Falhar("Há projeções que não dizem com que livro do diário são confrontadas; nada foi alterado.\r\r" +
               LSemLivro + "\rIndique o tipo de contabilidade na projeção e tente novamente.");
    if (!LProjecoes.empty())
        RecusarCiclos(LProjecoes);
}

// The totals walk both links upwards, and have no end where these form a cycle. Only the accounts that a value starts
// from are looked up, and only where the chart has a cycle at all.
void TAtualizadorRealizado::RecusarCiclos(const std::vector<TConfronto>& AProjecoes) {
    base::TGrafo LContas;
    std::map<std::int64_t, std::string> LNomes;
    const auto LPlano = Consultar(sql::LigacoesDasContas, "ligações das contas");
    for (; !LPlano->Eof(); LPlano->Next()) {
        const auto LId = LPlano->GetInt64FieldValue("IDPLANO");
        LNomes[LId] = LPlano->FieldByName("CLASSIFCONTAB").AsString();
        for (const char* LCampo : {"IDPLANOPAI", "CTASUPERIOR"})
            if (const auto LAcima = LPlano->FieldByName(LCampo).AsInt64())
                LContas.Ligar(LId, *LAcima);
    }
    if (LContas.Ciclos().empty())
        return;
    std::string LIds;
    for (const auto& LProjecao : AProjecoes)
        LIds += (LIds.empty() ? "" : ", ") + std::to_string(LProjecao.IDCtbOrcadaInf);
    const auto LInicios = Consultar(InstrucaoContasQueTotalizam(FDm04618, LIds, FPedido.DataInicial, FPedido.DataFinal),
                                    "contas que totalizam");
    std::set<std::int64_t> LIniciais;
    for (; !LInicios->Eof(); LInicios->Next())
        LIniciais.insert(LInicios->GetInt64FieldValue("IDPLANO"));
    std::string LTexto;
    for (const auto& LCiclo : LContas.Ciclos(LIniciais)) {
        for (const auto LId : LCiclo)
            LTexto += LNomes[LId] + " → ";
        LTexto += LNomes[LCiclo.front()] + "\r";
    }
    if (!LTexto.empty())
        Falhar(
            "Há contas que descarregam em si mesmas, pela conta superior ou pela conta pai, e por isso os títulos não "
            "podem ser somados; nada foi alterado.\r\r" +
            LTexto + "\rCorrija o plano de contas e tente novamente.");
}

} // namespace pct04618
