#include "consultation/Un04618Form.h"

#include "base/Falhas.h"
#include "core/Un04618Const.h"
#include "host/Servicos.h"

namespace pct04618 {

TForm04618::TForm04618()
    : TFormZTTandorPadraoSelecao("TForm04618", "Consultas e relatórios Orçamento x Realizado"),
      ActAtualizarRealizado("ActAtualizarRealizado", [this] { ActAtualizarRealizadoExecute(); }) {
    ConfigurarControles();
    ConfigurarGrades();
    Registrar({&DsMostraCtbOrcada, &DsMostraCtbOrcMensal});
    Registrar({&ActAtualizarRealizado, &PnlTitulo, &PnlGrades, &DbgCtbOrcada, &DbgMostraCtbOrcMensal, &GdlConsultarProj,
               &GdlMostraCtbOrcMensal, &PnlLegenda, &LblCorRecRealizMaiorProj, &LblRecRealizMaiorProj,
               &LblCorRecRealizMenorProj, &LblRecRealizMenorProj, &LblCorDespRealizMaiorProj, &LblDespRealizMaiorProj,
               &LblCorDespRealizMenorProj, &LblDespRealizMenorProj, &PnlLegendaGradeOrcMensal,
               &LblLegendaGradeOrcMensal});
}

TForm04618::~TForm04618() { FormDestroy(); }

void TForm04618::InitializeForm() {
    TFormZTTandorPadraoSelecao::InitializeForm();
    FDataModule = std::make_unique<TDM04618>();
    auto& LDm = GetDm04618();
    DsMostraCtbOrcada.DataSet = &LDm.CdsMostraCtbOrcada;
    DsMostraCtbOrcMensal.DataSet = &LDm.CdsMostraCtbOrcMensal;
    const auto& LEmpresaLogada = host::BuscarInstanciaZTEmpresaLogada();
    LDm.FIDEmpresa = LEmpresaLogada.GetIDEmpresa();
    LDm.FIDEmpresaPlano = LEmpresaLogada.BuscarIDEmpresaPlano(LDm.FIDEmpresa);
    LDm.FIDEmpresaHolding = LEmpresaLogada.BuscarIDHolding(LDm.FIDEmpresa);
    LDm.CarregarFiliais();
    InicializarGrades();
}

TDM04618& TForm04618::GetDm04618() const { return static_cast<TDM04618&>(*FDataModule); }

TForm04618Selecao& TForm04618::GetFormSelecao() {
    if (!FFormSelecao)
        FFormSelecao = std::make_unique<TForm04618Selecao>(GetDm04618());
    return *FFormSelecao;
}

TForm04618AtualizarRealizado& TForm04618::GetFormAtualizarRealizado() {
    if (!FFormAtualizarRealizado)
        FFormAtualizarRealizado = std::make_unique<TForm04618AtualizarRealizado>(GetDm04618());
    return *FFormAtualizarRealizado;
}

void TForm04618::ActSelecionarExecute(host::TControle* ASender) {
    TFormZTTandorPadraoSelecao::ActSelecionarExecute(ASender);
    const auto& LDm = GetDm04618();
    if (!LDm.CdsMostraCtbOrcMensal.Active() && !LDm.CdsMostraCtbOrcada.Active()) {
        DbgCtbOrcada.SetVisible(true);
        DbgMostraCtbOrcMensal.SetVisible(false);
    }
    try {
        ExecutarSelecao(ASender);
    } catch (const base::TFalha&) {
        MostrarResultado(); // a failed query has closed the results: title and grid must not go on naming them
        throw;
    }
    MostrarResultado();
    if (!GetFormSelecao().Cancelou() &&
        (LDm.FDetalharSelecao == ModoMatricial || LDm.FDetalharSelecao == ModoRazaoTotalizadores))
        ActImprimirRelatorioExecute();
}

void TForm04618::ExecutarSelecao(host::TControle* ASender) {
    auto& LDialogo = GetFormSelecao();
    if (ASender != &ActAtualizarRealizado) {
        LDialogo.ShowModal();
        return;
    }
    const auto& LDm = GetDm04618();
    LDialogo.AtribuirDadosSelecao(LDm.FIDFilial, LDm.FDataInicio, LDm.FDataFim, 0, LDm.FDetalharSelecao, LDm.FCenario);
    LDialogo.ActOKExecute(ASender);
}

// The query module decides, however the dialog was left.
void TForm04618::MostrarResultado() {
    auto& LDm = GetDm04618();
    DbgCtbOrcada.SetVisible(LDm.FDetalharSelecao == ModoAgrupandoPeriodos || LDm.FDetalharSelecao == ModoPeriodoExato);
    DbgMostraCtbOrcMensal.SetVisible(LDm.FDetalharSelecao == ModoPeriodosEmColunas &&
                                     !LDm.CdsMostraCtbOrcMensal.IsEmpty());
    if (LDm.FInformacoesCtbOrcadaInf.LListaIDs.empty()) {
        if (DbgCtbOrcada.Visible())
            LDm.CdsMostraCtbOrcada.Close();
        else if (DbgMostraCtbOrcMensal.Visible())
            LDm.CdsMostraCtbOrcMensal.Close();
    }
    if (DbgMostraCtbOrcMensal.Visible() && !LDm.CdsMostraCtbOrcMensal.IsEmpty())
        EstruturarColGridCtbOrcMensal();
    PnlLegenda.SetVisible(DbgCtbOrcada.Visible());
    PnlLegendaGradeOrcMensal.SetVisible(DbgMostraCtbOrcMensal.Visible());
    AtualizarTituloRelatorio();
}

// Every commit closes the earlier result, so that an open one is that of the last.
std::vector<host::TCriterio> TForm04618::Criterios() const {
    const auto& LDm = GetDm04618();
    const bool LTem = FFormSelecao && (LDm.CdsMostraCtbOrcada.Active() || LDm.CdsMostraCtbOrcMensal.Active());
    return LTem ? FFormSelecao->Criterios() : std::vector<host::TCriterio>();
}

void TForm04618::ActAtualizarRealizadoExecute() {
    if (GetFormAtualizarRealizado().ShowModal() == TForm04618AtualizarRealizado::ResultadoVisualizar)
        ActSelecionarExecute(&ActAtualizarRealizado);
}

std::string TForm04618::DescreverUltimaAtualizacao() const {
    return FFormAtualizarRealizado ? FFormAtualizarRealizado->DescreverResultado() : std::string();
}

void TForm04618::FormDestroy() {
    DsMostraCtbOrcada.DataSet = nullptr;
    DsMostraCtbOrcMensal.DataSet = nullptr;
    FDataModule.reset();
    FFormSelecao.reset();
    FFormAtualizarRealizado.reset();
}

} // namespace pct04618
