#include "host/Formularios.h"

#include "base/Falhas.h"
#include "host/Servicos.h"

#include <utility>

namespace host {

namespace {

template <class TLista, class TNomear>
[[noreturn]] void NaoExiste(const std::string& AForm, std::string_view ANome, const TLista& AExistentes,
                            TNomear ANomear) {
    std::string LLista;
    for (const auto* LItem : AExistentes)
        LLista += (LLista.empty() ? "" : ", ") + ANomear(*LItem);
    throw base::TFalha(AForm + " não tem \"" + std::string(ANome) + "\". Existem: " + LLista + ".");
}

} // namespace

void TForm::Registrar(std::initializer_list<TControle*> AControles) { FControles.insert(FControles.end(), AControles); }

void TForm::Registrar(std::initializer_list<TDataSource*> AFontes) { FFontes.insert(FFontes.end(), AFontes); }

TControle& TForm::Controle(std::string_view ANome) const {
    for (auto* LControle : FControles)
        if (LControle->Nome() == ANome)
            return *LControle;
    NaoExiste(FNome, ANome, FControles, [](const TControle& C) { return C.Nome(); });
}

TAction& TForm::Acao(std::string_view ANome) const {
    if (auto* LAcao = dynamic_cast<TAction*>(&Controle(ANome)))
        return *LAcao;
    throw base::TFalha(FNome + ": \"" + std::string(ANome) + "\" não é uma ação.");
}

TDataSet& TForm::DataSet(std::string_view ANome) const {
    for (const auto* LFonte : FFontes)
        if (LFonte->DataSet && LFonte->DataSet->Nome() == ANome)
            return *LFonte->DataSet;
    NaoExiste(FNome, ANome, FFontes, [](const TDataSource& F) { return F.DataSet ? F.DataSet->Nome() : F.Nome(); });
}

bool TForm::Realizar(const std::function<void()>& AAto) {
    try {
        AAto();
        return true;
    } catch (const base::Abort&) { // the rule has told the user
        return false;
    }
}

bool TForm::SairDe(TControle& AControle) {
    return Realizar([&] {
        ValidarCampos(&AControle);
        if (AControle.OnExit)
            AControle.OnExit();
    });
}

void TForm::Executar(TAction& AAcao) {
    Realizar([&] { AAcao.Execute(); });
}

bool TForm::Teclar(TControle& AControle, TTecla ATecla) {
    bool LConsumida = false;
    const bool LInteira =
        Realizar([&] { LConsumida = (AControle.OnKeyDown && AControle.OnKeyDown(ATecla)) || FormKeyDown(ATecla); });
    return LConsumida || !LInteira;
}

void TDmZTTandorPadrao::Conectar(std::initializer_list<TZTSQLDataSet*> ADataSets) {
    for (auto* LDataSet : ADataSets)
        LDataSet->SetSQLConnection(ZTConnection().GetSQLConnection());
}

TFormZTTandorPadraoSelecao::TFormZTTandorPadraoSelecao(std::string ANome, std::string ATitulo)
    : TForm(std::move(ANome), std::move(ATitulo)),
      ActSelecionar("ActSelecionar", [this] { ActSelecionarExecute(&ActSelecionar); }),
      ActImprimir("ActImprimir", [this] { ActImprimirExecute(); }),
      ActImprimirRelatorio("ActImprimirRelatorio", [this] { ActImprimirRelatorioExecute(); }),
      ActImprimirGrade("ActImprimirGrade", [this] { ActImprimirGradeExecute(); }) {
    ActSelecionar.SetCaption("&Selecionar");
    ActImprimir.SetCaption("&Imprimir");
    ActImprimirRelatorio.SetCaption("&Relatório...");
    ActImprimirGrade.SetCaption("&Grade...");
    Registrar({&ActSelecionar, &ActImprimir, &ActImprimirRelatorio, &ActImprimirGrade});
}

TFormZTTandorPadraoResult::TFormZTTandorPadraoResult(std::string ANome, std::string ATitulo)
    : TForm(std::move(ANome), std::move(ATitulo)), ActOK("actOK", [this] { ActOKExecute(&ActOK); }),
      ActSair("actSair", [this] { ActSairExecute(); }) {
    Registrar({&ActOK, &ActSair});
}

int TFormZTTandorPadraoResult::ShowModal() {
    const struct TExibicao {
        bool& Modal;
        ~TExibicao() { Modal = false; }
    } LExibicao{FModal};
    FModal = FAberto = true;
    FModalResult = 0;
    FFalha = nullptr;
    FormShow();
    Servicos().Interacao->MostrarModal(*this);
    if (FFalha)
        std::rethrow_exception(std::exchange(FFalha, nullptr));
    return FModalResult;
}

bool TFormZTTandorPadraoResult::Realizar(const std::function<void()>& AAto) {
    try {
        return TForm::Realizar(AAto);
    } catch (const std::exception& LErro) {
        const auto* LFalha = dynamic_cast<const base::TFalha*>(&LErro);
        if (!FModal)
            throw;
        if (!FAberto)
            FFalha = std::current_exception();
        else if (!LFalha || !Servicos().Interacao->Falha(*LFalha)) // a fault of the program is for whoever runs it
            throw;
        return false;
    }
}

bool TFormZTTandorPadraoResult::FormKeyDown(TTecla ATecla) {
    if (ATecla == TTecla::Esc)
        ActSair.Execute();
    return ATecla == TTecla::Esc;
}

void TFormZTTandorPadraoResult::Fechar(int AResultado) {
    FAberto = false;
    FModalResult = AResultado;
}

TFormZTTandorPadraoCalculos::TFormZTTandorPadraoCalculos(std::string ANome, std::string ATitulo)
    : TFormZTTandorPadraoResult(std::move(ANome), std::move(ATitulo)),
      ActExecutar("ActExecutar", [this] { ActExecutarExecute(&ActExecutar); }),
      ActExcluir("ActExcluir", [this] { ActExcluirExecute(&ActExcluir); }) {
    Registrar({&ActExecutar, &ActExcluir});
}

} // namespace host
