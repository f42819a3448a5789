#include "host/Dialogos.h"

#include "host/Servicos.h"

namespace host {

namespace {

// Buttons of a question by its type; 6 is the plain acknowledgement.
std::vector<std::string> BotoesDoTipo(int ATipoBotao) {
    if (ATipoBotao == 6)
        return {"OK"};
    return {"Sim", "Não"};
}

void Avisar(TEventoProgresso AEvento) { Servicos().Interacao->Progresso(AEvento); }

} // namespace

void TZTUtilsDialogs::Informacao(const std::string& ATexto) const {
    Servicos().Interacao->Mensagem({TNivelMensagem::Informacao, "Informação:", ATexto, {"OK"}});
}

void TZTUtilsDialogs::Erro(const std::string& ATexto, const std::optional<base::TFalhaBanco>& ACausa) const {
    Servicos().Interacao->Mensagem({TNivelMensagem::Erro, "Erro:", ATexto, {"OK"}, TResposta::Primeira, ACausa});
}

int TZTUtilsDialogs::Confirmacao(const std::string& ATexto, int ATipoBotao, const std::string& ATitulo) const {
    return Servicos().Interacao->Mensagem({TNivelMensagem::Confirmacao, ATitulo, ATexto, BotoesDoTipo(ATipoBotao)});
}

int TZTUtilsDialogs::ConfirmacaoCustomizada(const std::string& ATexto, TNivelMensagem ANivel, int APadrao,
                                            const std::string& ATitulo, std::vector<std::string> ABotoes,
                                            const std::string& ADetalhes) const {
    return Servicos().Interacao->Mensagem({ANivel, ATitulo, ATexto, std::move(ABotoes), APadrao, {}, ADetalhes});
}

using TTipo = TEventoProgresso::TTipo;

void TFrameZTBarraProgressoItem::SetTexto(const std::string& ATexto) { Avisar({TTipo::Texto, FNivel, ATexto, 0}); }

void TFrameZTBarraProgressoItem::SetValorMaximo(int AValor) {
    FPosicao = 0;
    Avisar({TTipo::Maximo, FNivel, {}, AValor});
}

void TFrameZTBarraProgressoItem::AvancarProgresso(int APosicao) {
    FPosicao = APosicao > 0 ? APosicao : FPosicao + 1;
    Avisar({TTipo::Passo, FNivel, {}, FPosicao});
}

void TFrameZTBarraProgressoItem::IniciarSimulacaoProcesso() { SetValorMaximo(0); }

void TFrameZTBarraProgressoItem::PararSimulacaoProcesso() { SetValorMaximo(1); }

TZTBarraProgressoDlg::TZTBarraProgressoDlg(int ANiveis) {
    for (int I = 0; I < ANiveis; ++I)
        FNiveis.emplace_back(I);
}

TZTBarraProgressoDlg::~TZTBarraProgressoDlg() {
    try {
        FecharBarraProgresso();
    } catch (...) { // NOLINT: a picture that will not close must not hide the failure that closes it
    }
}

void TZTBarraProgressoDlg::SetTitulo(const std::string& ATexto) { Avisar({TTipo::Titulo, 0, ATexto, 0}); }

void TZTBarraProgressoDlg::MostrarBarraProgresso() {
    FVisivel = true;
    Avisar({TTipo::Mostrar, 0, {}, 0});
}

void TZTBarraProgressoDlg::FecharBarraProgresso() {
    if (!FVisivel)
        return;
    FVisivel = false;
    Avisar({TTipo::Fechar, 0, {}, 0});
}

bool TZTBarraProgressoDlg::GetProcessoCancelado() const { return Servicos().Interacao->ProgressoCancelado(); }

TFrameZTBarraProgressoItem& TZTBarraProgressoDlg::BuscarBarraProgresso(int ANivel) {
    return FNiveis.at(static_cast<std::size_t>(ANivel));
}

} // namespace host
