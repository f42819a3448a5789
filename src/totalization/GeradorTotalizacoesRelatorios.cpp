#include "base/Falhas.h"
#include "base/Grafo.h"
#include "base/Texto.h"
#include "host/DbManager.h"
#include "totalization/GeradorTotalizacoes.h"
#include "totalization/SqlDependencias.h"

namespace pct04618 {

namespace {

using base::Format;

constexpr int SomenteOSelecionado = host::TResposta::Primeira;
constexpr int Todos = host::TResposta::Segunda;
constexpr int Cancelar = host::TResposta::Terceira;

std::unique_ptr<host::TDataSet> Consultar(const char* ATexto, const char* ANome) {
    return host::BuscarInstanciaZTUtilsDbManager().AbrirConsultaSQL(ATexto, ANome);
}

// The totalizers of all statements as the recursive statements walk them.
struct TTotalizadores {
    TTotalizadores() {
        const auto LTotalizadores = Consultar(sql::Totalizadores, "totalizadores");
        for (LTotalizadores->First(); !LTotalizadores->Eof(); LTotalizadores->Next()) {
            const auto LId = LTotalizadores->GetInt64FieldValue("IDDEMACTOT");
            const auto LRelatorio = LTotalizadores->GetInt64FieldValue("IDDEMAC");
            RelatorioDe[LId] = LRelatorio;
            DoRelatorio[LRelatorio].insert(LId);
            Nome[LId] = "totalizador " + LTotalizadores->FieldByName("CODIGO").AsString() + " do relatório " +
                        LTotalizadores->FieldByName("CODIGODEMAC").AsString();
            if (const auto LPai = LTotalizadores->FieldByName("IDDEMACTOTPAI").AsInt64())
                Pais.Ligar(LId, *LPai);
        }
        const auto LVinculos = Consultar(sql::VinculosDeTotalizadores, "vínculos de totalizadores");
        for (LVinculos->First(); !LVinculos->Eof(); LVinculos->Next()) {
            const auto LDono = LVinculos->GetInt64FieldValue("IDDEMACTOT");
            const auto LRelacionado = LVinculos->GetInt64FieldValue("IDDEMACTOTRELAC");
            if (!Nome.count(LDono) || !Nome.count(LRelacionado))
                continue; // the statements join the totalizer of either end
            Relacionados.Ligar(LDono, LRelacionado);
            QueVinculam.Ligar(LRelacionado, LDono);
        }
    }

    // Those of the statement and of every statement that it depends on.
    std::set<std::int64_t> Envolvidos(std::int64_t ARelatorio) const {
        std::set<std::int64_t> LTodos;
        std::set<std::int64_t> LVistos;
        const auto LInicio = DoRelatorio.find(ARelatorio);
        if (LInicio == DoRelatorio.end())
            return LTodos;
        for (const auto LId : Relacionados.Alcancados(LInicio->second))
            if (const auto LDono = RelatorioDe.at(LId); LVistos.insert(LDono).second)
                LTodos.insert(DoRelatorio.at(LDono).begin(), DoRelatorio.at(LDono).end());
        return LTodos;
    }

    std::string Descrever(const std::vector<std::int64_t>& ACiclo) const {
        std::string LTexto;
        for (const auto LId : ACiclo)
            LTexto += Nome.at(LId) + " → ";
        return LTexto + Nome.at(ACiclo.front());
    }

    std::map<std::int64_t, std::int64_t> RelatorioDe;
    std::map<std::int64_t, std::set<std::int64_t>> DoRelatorio;
    std::map<std::int64_t, std::string> Nome;
    base::TGrafo Pais;
    base::TGrafo Relacionados;
    base::TGrafo QueVinculam;
};

} // namespace

// The statements walk parents upwards and links both ways, and have no end where these form a cycle.
void TGeradorTotalizacoes::RecusarCiclos() {
    const TTotalizadores LTotalizadores;
    const auto LEnvolvidos = LTotalizadores.Envolvidos(FSelecao.FIDDemac);
    std::string LCiclos;
    for (const auto& LCiclo : LTotalizadores.Pais.Ciclos(LEnvolvidos))
        LCiclos += "Totalizador superior: " + LTotalizadores.Descrever(LCiclo) + "\r";
    auto LDeVinculos = LTotalizadores.Relacionados.Ciclos(LEnvolvidos);
    if (LDeVinculos.empty()) // else the way back would name the same ones again
        LDeVinculos = LTotalizadores.QueVinculam.Ciclos(LEnvolvidos);
    for (const auto& LCiclo : LDeVinculos)
        LCiclos += "Vínculo: " + LTotalizadores.Descrever(LCiclo) + "\r";
    if (LCiclos.empty())
        return;
    host::GZTUtilsDialogs.Erro("Há totalizadores que dependem de si mesmos, e por isso os totais não podem ser "
                               "gerados; nada foi alterado.\r\r" +
                               LCiclos + "\rCorrija o cadastro da demonstração e tente novamente.");
    throw base::Abort();
}

void TGeradorTotalizacoes::ConfirmarDependenciaRelatorios(host::TZTClientDataSet& ARelatorios) {
    FFiltro.clear();
    ARelatorios.Close();
    ARelatorios.CommandText =
        Format(sql::RelatoriosDependentes,
               {FSelecao.FIDDemac, Format("WHERE HIERARQUIA.IDDEMAC <> %0:d", {FSelecao.FIDDemac})});
    ARelatorios.Open();
    std::string LLista;
    for (ARelatorios.First(); !ARelatorios.Eof(); ARelatorios.Next())
        LLista += std::to_string(ARelatorios.FieldByName("CODIGO").AsInt64OuZero()) + " - " +
                  ARelatorios.FieldByName("DESCRICAO").AsString() + "\r";
    if (LLista.empty())
        return;
    const int LResposta = host::GZTUtilsDialogs.ConfirmacaoCustomizada(
        "O relatório selecionado possui dependência com os seguintes relatórios:\r\r" + LLista +
            "\rDeseja somente atualizar o relatório selecionado ou atualizar o relatório \rselecionado e seus "
            "dependentes?",
        host::TNivelMensagem::Confirmacao, Todos, "Confirmação:", {"Selecionado", "Todos", "Cancelar"});
    if (LResposta == Cancelar)
        throw base::Abort();
    if (LResposta == SomenteOSelecionado)
        FFiltro = Format("WHERE HIERARQUIA.IDDEMAC = %d", {FSelecao.FIDDemac});
}

void TGeradorTotalizacoes::BuscarRelatoriosATotalizar(host::TZTClientDataSet& ARelatorios) {
    ARelatorios.Close();
    ARelatorios.CommandText = Format(sql::RelatoriosDependentes, {FSelecao.FIDDemac, FFiltro});
    ARelatorios.Open();
}

} // namespace pct04618
