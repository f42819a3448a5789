#include "base/Texto.h"
#include "core/Progresso.h"
#include "host/Depurador.h"
#include "totalization/GeradorTotalizacoes.h"
#include "totalization/SqlDetalhamentos.h"
#include "totalization/SqlTotaisPelosPais.h"
#include "totalization/SqlTotaisPelosVinculos.h"

namespace pct04618 {

void TGeradorTotalizacoes::PrepararEtapa(const char* ATexto, const char* AInstrucao) {
    FProgresso.BuscarBarraProgresso(NivelEtapas).SetTexto(ATexto);
    FScript = base::Format(AInstrucao, {Projecao(), Relatorio()});
}

void TGeradorTotalizacoes::ConcluirEtapa(const char* ANome, const char* AMensagem) {
    Executar(ANome, AMensagem);
    IncrementarBarraProgresso(NivelEtapas, FProgresso, [this] { FTransacao.reset(); });
}

void TGeradorTotalizacoes::GerarDetalhamentosContas() {
    PrepararEtapa("Gerando detalhamentos totalizadores analíticos.", sql::DetalhamentosContas);
    host::GravarParaDepuracao("\\3073_DetContaPorTotalizadorAnaliticos.txt", FScript);
    ConcluirEtapa("GerarDetalhamentosContas",
                  "Não foi possível inserir os detalhamentos de contas por totalizadores.\r\rErros : ");
}

void TGeradorTotalizacoes::GerarTotaisAnaliticosSomenteContas() {
    PrepararEtapa("Gerando totalizações de totalizadores analíticos com somente contas.",
                  sql::TotaisAnaliticosSomenteContas);
    ConcluirEtapa("GerarTotaisAnaliticosSomenteContas",
                  "Não foi possível inserir os registros de totalização dos totalizadores \ranalíticos com vinculação "
                  "de contas.\r\rErros : ");
}

void TGeradorTotalizacoes::GerarTotaisAnaliticosComOutrosEContas() {
    PrepararEtapa("Gerando totalizações de totalizadores analíticos com outros tots. e contas.",
                  sql::TotaisAnaliticosComOutrosEContas);
    ConcluirEtapa("GerarTotaisAnaliticosComOutrosEContas",
                  "Não foi possível inserir os registros de totalização dos totalizadores \ranalíticos com vinculação "
                  "de outros totalizadores e contas.\r\rErros : ");
}

void TGeradorTotalizacoes::GerarTotaisAnaliticosVinculados() {
    PrepararEtapa("Gerando totalizações de totalizadores analíticos com vinc. de outros totalizadores.",
                  sql::TotaisAnaliticosVinculados);
    ConcluirEtapa("GerarTotaisAnaliticosVinculados",
                  "Não foi possível inserir os registros de totalização dos totalizadores \ranalíticos com vinculação "
                  "de outros totalizadores.\r\rErros : ");
}

void TGeradorTotalizacoes::GerarTotaisSinteticos() {
    PrepararEtapa("Gerando totalizações de totalizadores sintéticos.", sql::TotaisSinteticos);
    ConcluirEtapa("GerarTotaisSinteticos",
                  "Não foi possível inserir os registros de totalização dos totalizadores sintéticos.\r\rErros : ");
}

void TGeradorTotalizacoes::GerarTotaisSinteticosVinculados() {
    PrepararEtapa("Gerando totalizações de totalizadores sintéticos com vinc. de outros totalizadores.",
                  sql::TotaisSinteticosVinculados);
    ConcluirEtapa("GerarTotaisSinteticosVinculados",
                  "Não foi possível inserir os registros de totalização dos totalizadores \rsintéticos com vinculação "
                  "de outros totalizadores sintéticos.\r\rErros: ");
}

} // namespace pct04618
