#pragma once

#include "host/Exportar.h"
#include "host/Interacao.h"

namespace host {

// The suite's messages and questions. Answers are those of TResposta.
class HOST_API TZTUtilsDialogs {
  public:
    void Informacao(const std::string& ATexto) const;
    // With the failure of the database that it tells of, where it is one.
    void Erro(const std::string& ATexto, const std::optional<base::TFalhaBanco>& ACausa = {}) const;
    // A question with the buttons of that type.
    int Confirmacao(const std::string& ATexto, int ATipoBotao, const std::string& ATitulo) const;
    // Buttons by their captions.
    int ConfirmacaoCustomizada(const std::string& ATexto, TNivelMensagem ANivel, int APadrao,
                               const std::string& ATitulo, std::vector<std::string> ABotoes,
                               const std::string& ADetalhes = {}) const;
};

const inline TZTUtilsDialogs GZTUtilsDialogs;

class TZTBarraProgressoDlg;

// One level of the progress dialog.
class HOST_API TFrameZTBarraProgressoItem {
  public:
    explicit TFrameZTBarraProgressoItem(int ANivel) : FNivel(ANivel) {}
    void SetTexto(const std::string& ATexto);
    void SetValorMaximo(int AValor);     // starts the level again from zero
    void AvancarProgresso(int APosicao); // 0: one step
    void IniciarSimulacaoProcesso();     // a bar without a known length
    void PararSimulacaoProcesso();

  private:
    int FNivel;
    int FPosicao = 0;
};

// The progress dialog, made by the caller for one run and closed with it.
class HOST_API TZTBarraProgressoDlg {
  public:
    explicit TZTBarraProgressoDlg(int ANiveis = 1);
    ~TZTBarraProgressoDlg(); // closes it; never throws
    TZTBarraProgressoDlg(const TZTBarraProgressoDlg&) = delete;
    TZTBarraProgressoDlg& operator=(const TZTBarraProgressoDlg&) = delete;

    void SetTitulo(const std::string& ATexto);
    void MostrarBarraProgresso();
    void FecharBarraProgresso(); // of a closed one: nothing
    bool GetProcessoCancelado() const;
    TFrameZTBarraProgressoItem& BuscarBarraProgresso(int ANivel); // throws std::out_of_range

  private:
    std::vector<TFrameZTBarraProgressoItem> FNiveis;
    bool FVisivel = false;
};

} // namespace host
