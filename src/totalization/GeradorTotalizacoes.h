#pragma once

#include "core/Un04618Selecao.h"
#include "host/Conexao.h"
#include "host/DataSet.h"
#include "host/Dialogos.h"

#include <memory>

namespace pct04618 {

// One run of the totals of a configurable statement: what its procedures share, and the procedures. Each of them reads
// the current row of the datasets. The rebuild of one statement in one projection is one transaction: it stands whole,
// or the projection is as it was.
class TGeradorTotalizacoes {
  public:
    // The projections of LListaIDs, which must not be empty, and the statement FIDDemac.
    explicit TGeradorTotalizacoes(const TSelecao& ASelecao);
    // Throws base::Abort when the user stops it or when a statement fails, which the user has then been told.
    void Gerar();

  private:
    static constexpr int NivelProjecoes = 0; // of the progress dialog
    static constexpr int NivelEtapas = 1;

    // What is run (GeradorTotalizacoesRelatorios.cpp)
    void RecusarCiclos();
    void ConfirmarDependenciaRelatorios(host::TZTClientDataSet& ARelatorios);
    void BuscarRelatoriosATotalizar(host::TZTClientDataSet& ARelatorios);

    // The loops (GeradorTotalizacoes.cpp)
    void GerarRelatorio();
    void GerarProjecao();
    void ReservarProjecao();
    void ExcluirTotalizacoes();
    void ConfirmarProjecao();

    // The six stages (GeradorTotalizacoesEtapas.cpp)
    void GerarDetalhamentosContas();
    void GerarTotaisAnaliticosSomenteContas();
    void GerarTotaisAnaliticosComOutrosEContas();
    void GerarTotaisAnaliticosVinculados();
    void GerarTotaisSinteticos();
    void GerarTotaisSinteticosVinculados();
    void PrepararEtapa(const char* ATexto, const char* AInstrucao);
    void ConcluirEtapa(const char* ANome, const char* AMensagem);

    // Runs FScript inside the projection's transaction. A failure rolls back, is shown behind AMensagem, and aborts.
    void Executar(const char* ANome, const char* AMensagem);
    [[noreturn]] void Falhar(const char* AMensagem, const std::string& AErro,
                             const std::optional<base::TFalhaBanco>& ACausa);
    std::int64_t Projecao() const { return FProjecoes->GetInt64FieldValue("IDCTBORCADAINF"); }
    std::int64_t Relatorio() const { return FRelatorios->GetInt64FieldValue("IDDEMAC"); }
    std::string Periodo() const;

    const TSelecao& FSelecao;
    std::unique_ptr<host::TZTClientDataSet> FRelatorios;
    std::unique_ptr<host::TZTClientDataSet> FProjecoes;
    host::TZTBarraProgressoDlg FProgresso;
    std::unique_ptr<host::TZTTransacao> FTransacao;
    std::string FScript;
    std::string FFiltro; // condition of the statements to run; empty for the selected one and all that it depends on
};

} // namespace pct04618
