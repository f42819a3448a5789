#include "consultation/Un04618Form.h"

#include "host/Servicos.h"

namespace pct04618 {

TForm04618::TForm04618()
    : TFormZTTandorPadraoSelecao("TForm04618", "Consultas e relatórios Orçamento x Realizado") {
    Registrar({&DsMostraCtbOrcada, &DsMostraCtbOrcMensal});
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
}

TDM04618& TForm04618::GetDm04618() const { return static_cast<TDM04618&>(*FDataModule); }

TForm04618Selecao& TForm04618::GetFormSelecao() {
    if (!FFormSelecao)
        FFormSelecao = std::make_unique<TForm04618Selecao>(GetDm04618());
    return *FFormSelecao;
}

void TForm04618::ActSelecionarExecute(host::TControle* ASender) {
    TFormZTTandorPadraoSelecao::ActSelecionarExecute(ASender);
    GetFormSelecao().ShowModal();
}

void TForm04618::FormDestroy() {
    DsMostraCtbOrcada.DataSet = nullptr;
    DsMostraCtbOrcMensal.DataSet = nullptr;
    FDataModule.reset();
    FFormSelecao.reset();
}

} // namespace pct04618
