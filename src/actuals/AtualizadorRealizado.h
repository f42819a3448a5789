#pragma once

#include "actuals/Confronto.h"
#include "actuals/ResultadoRealizado.h"
#include "datamodule/Un04618Dm.h"

#include <memory>
#include <optional>
#include <span>

namespace pct04618 {

// What a run is asked for.
struct TPedidoRealizado {
    base::TDataHora DataInicial;
    base::TDataHora DataFinal;
    TPeriodicidadeRealizado Periodicidade = TPeriodicidadeRealizado::prMensais;
    int Cenarios = 0; // a sum of 1 normal, 2 optimistic and 4 pessimistic
    std::int64_t IDFilial = 0;
};

// Opens CdsCtbOrcadaInf on the headers of FIDEmpresa: with exactly these dates, or on all that lie between them.
void BuscarDadosCabecalhoOrcamentaria(TDM04618& ADm, int ACenarios, base::TDataHora ADataInicial,
                                      base::TDataHora ADataFinal, bool AIntervalo);

// Rows of the projection with an actual value, and its sum over the accounts that are no title. Throws TFalha where the
// projection is gone.
std::pair<std::int64_t, base::TMoeda> BuscarSituacao(const TConfronto& AConfronto);
// What is there to be removed.
TProjecaoAtualizada LerAntesDeExcluir(const TConfronto& AConfronto);

// One run of the actuals: the journal of each period into the projections of exactly that period. A projection is one
// transaction, with its header row held from the beginning: it is finished, or as it was.
class TAtualizadorRealizado {
  public:
    // The result is filled while the run goes on, so that it tells of a run that ends early as well.
    TAtualizadorRealizado(TDM04618& ADm, const TPedidoRealizado& APedido, TResultadoRealizado& AResultado);
    // Throws base::Abort when the user stops it or when a write fails, which the user has then been told. The progress
    // dialog closes with the run's object.
    void AtualizarValoresRealizadosNoPeriodo();

  private:
    static constexpr int NivelPeriodos = 0; // of the progress dialog
    static constexpr int NivelProjecao = 1;
    struct TPeriodo {
        base::TDataHora Inicio;
        base::TDataHora Fim;
    };

    // Before anything is changed (AtualizadorRealizadoPreparo.cpp)
    void MontarPeriodos();
    void ListarFiliais();
    void RecusarProjecoes();
    void RecusarCiclos(const std::vector<TConfronto>& AProjecoes);

    // The loops (AtualizadorRealizado.cpp)
    void AtualizarPeriodo(const TPeriodo& APeriodo);
    void AtualizarProjecao();
    void ReservarProjecao();
    void ConfirmarProjecao();
    void BuscarDefasadas();
    void AvancarOuCancelar(int ANivel);
    void PararSeCancelado();
    [[noreturn]] void Falhar(const std::string& AMensagem, const std::optional<base::TFalhaBanco>& ACausa = {});

    // One projection (AtualizadorRealizadoValores.cpp)
    void BuscarDadosDiario();
    void ZerarRealizadoDaProjecao();
    void SomarDiarioNaProjecao();
    void SomarLinhaDoDiario();
    void IdentificarLinha();
    void ContarAlteracoes(host::TZTClientDataSet& ADataSet);
    void InserirTotaisContasSinteticoEDeDescarga(TTotalizacao ATotalizacao);
    void SalvarDadosBD(std::span<host::TZTClientDataSet* const> ADataSets);
    void BuscarDestinosDoDiario();

    TDM04618& FDm04618;
    const TPedidoRealizado FPedido;
    TResultadoRealizado& FResultado;
    std::vector<TPeriodo> FPeriodos;
    std::string FFiliais; // of the company, a list for an IN
    host::TZTBarraProgressoDlg FProgresso;
    std::unique_ptr<host::TZTTransacao> FTransacao;
    TConfronto FConfronto;           // of the projection in work
    TProjecaoAtualizada FAtualizada; // likewise
};

} // namespace pct04618
