#include "host/Lookup.h"

#include "base/Falhas.h"
#include "base/Texto.h"
#include "host/DbManager.h"
#include "host/Dialogos.h"
#include "host/Grade.h"

#include <algorithm>
#include <stdexcept>

namespace host {

namespace {

class TCursorDeLinhas : public TCursor {
  public:
    TCursorDeLinhas(const TDataSet& AOrigem, const std::vector<std::size_t>& ALinhas)
        : FOrigem(AOrigem), FLinhas(ALinhas) {
        for (const auto& LColuna : AOrigem.Colunas())
            FColunas.push_back(LColuna.Descricao());
    }
    const std::vector<TDescricaoColuna>& Colunas() const override { return FColunas; }
    std::size_t Ler(TColunas& ADestino, std::size_t AMaximo) override {
        std::size_t LLidas = 0;
        for (; LLidas < AMaximo && FProxima < FLinhas.size(); ++LLidas, ++FProxima)
            for (std::size_t I = 0; I < ADestino.size(); ++I)
                ADestino[I].Acrescentar(FOrigem.Colunas()[I].Valor(FLinhas[FProxima]));
        return LLidas;
    }

  private:
    const TDataSet& FOrigem;
    const std::vector<std::size_t>& FLinhas;
    std::vector<TDescricaoColuna> FColunas;
    std::size_t FProxima = 0;
};

// The first row, in the order of the search, with that code in the field; the number of rows when there is none.
std::size_t Procurar(const TDataSet& ADataSet, const std::string& ACampo, const std::string& ATexto) {
    const auto* LCampo = ADataSet.FindField(ACampo);
    if (!LCampo)
        throw base::TFalha("A pesquisa " + ADataSet.Nome() + " não traz o campo " + ACampo + ".");
    const auto& LCodigos = ADataSet.Colunas()[LCampo->Indice()];
    std::size_t I = 0;
    while (I < ADataSet.RecordCount() && !EhOCodigo(LCodigos.Valor(ADataSet.LinhaDe(I)), ATexto))
        ++I;
    return I;
}

} // namespace

bool EhOCodigo(const base::TValor& ACodigo, std::string_view ATexto) {
    if (std::holds_alternative<base::TDecimal>(ACodigo))
        while (ATexto.size() > 1 && ATexto.front() == '0')
            ATexto.remove_prefix(1);
    return !base::EhNulo(ACodigo) && base::TextoDe(ACodigo) == ATexto;
}

void TDataSetEscolhido::Carregar(const TDataSet& AOrigem, std::vector<std::size_t> ALinhas) {
    Close();
    FOrigem = &AOrigem;
    FLinhas = std::move(ALinhas);
    Open();
    FOrigem = nullptr;
}

std::unique_ptr<TCursor> TDataSetEscolhido::AbrirCursor() {
    if (!FOrigem)
        throw std::logic_error(Nome() + " opens by Carregar alone");
    return std::make_unique<TCursorDeLinhas>(*FOrigem, FLinhas);
}

TZTLookupEx::TZTLookupEx(std::string ANome, TDefinicaoLookup ADefinicao)
    : TControle(ANome), FDefinicao(std::move(ADefinicao)), FAchado(ANome), FMarcados(std::move(ANome)) {
    Clear();
}

std::unique_ptr<TZTClientDataSet> TZTLookupEx::Pesquisar() const {
    TBusca LBusca;
    if (AntesDeBuscar)
        AntesDeBuscar(LBusca);
    auto LPesquisa = BuscarInstanciaZTUtilsDbManager().CreateClientDataSetWithConnection(Nome());
    LPesquisa->CommandText = LBusca.Instrucao.empty() ? FDefinicao.Instrucao : LBusca.Instrucao;
    if (!LBusca.Condicao.empty())
        LPesquisa->CommandText += " WHERE " + LBusca.Condicao;
    if (!FDefinicao.Final.empty())
        LPesquisa->CommandText += " " + FDefinicao.Final;
    LPesquisa->SetIndexFieldNames(FDefinicao.Ordem);
    LPesquisa->Open();
    return LPesquisa;
}

std::vector<std::size_t> TZTLookupEx::Filtrar(const TDataSet& APesquisa, std::string_view ATexto) const {
    const auto LProcurado = base::SemAcentos(base::Trim(ATexto));
    std::vector<std::size_t> LPosicoes;
    for (std::size_t I = 0; I < APesquisa.RecordCount(); ++I)
        if (std::any_of(FDefinicao.Colunas.begin(), FDefinicao.Colunas.end(), [&](const TColunaLookup& C) {
                const auto* LCampo = APesquisa.FindField(C.Campo);
                const auto& LColuna = APesquisa.Colunas()[LCampo->Indice()];
                const auto LTexto = TextoExibido(LColuna.Valor(APesquisa.LinhaDe(I)), LCampo->FormatoExibicao);
                return base::SemAcentos(LTexto).find(LProcurado) != std::string::npos;
            }))
            LPosicoes.push_back(I + 1);
    return LPosicoes;
}

void TZTLookupEx::MostrarTexto(std::string ACodigo, std::string ATexto) {
    Mudar(FCodigo, std::move(ACodigo));
    Mudar(FTexto, std::move(ATexto));
}

void TZTLookupEx::Clear() {
    FID = 0;
    FAchado.Close();
    FMarcados.Close();
    MostrarTexto("", FDefinicao.PermiteZero ? FDefinicao.TextoZero : "");
}

std::int64_t TZTLookupEx::ChaveDe(TDataSet& APesquisa, std::size_t ARecNo) const {
    APesquisa.IrPara(ARecNo);
    const auto LChave = APesquisa.FieldByName(FDefinicao.CampoChave).AsInt64();
    if (!LChave)
        throw base::TFalha("O registro escolhido não tem o campo " + FDefinicao.CampoChave +
                           ", que o identifica. Corrija o cadastro.");
    return *LChave;
}

void TZTLookupEx::Achar(TDataSet& APesquisa, std::size_t ARecNo) {
    const auto LID = ChaveDe(APesquisa, ARecNo);
    FMarcados.Close();
    FAchado.Carregar(APesquisa, {APesquisa.LinhaDe(ARecNo - 1)});
    FID = LID;
    MostrarTexto(FAchado.FieldByName(FDefinicao.CampoPesquisa).AsString(),
                 FAchado.FieldByName(FDefinicao.CampoDescricao).AsString());
}

void TZTLookupEx::SetID(std::int64_t AID) {
    Clear();
    if (AID <= 0)
        return;
    const auto LPesquisa = Pesquisar();
    const auto LPosicao = Procurar(*LPesquisa, FDefinicao.CampoChave, std::to_string(AID));
    if (LPosicao < LPesquisa->RecordCount())
        Achar(*LPesquisa, LPosicao + 1);
}

void TZTLookupEx::Digitar(const std::string& ACodigo) {
    const auto LCodigo = base::Trim(ACodigo);
    Clear();
    if (LCodigo.empty() || (FDefinicao.PermiteZero && LCodigo.find_first_not_of('0') == std::string::npos))
        return;
    const auto LPesquisa = Pesquisar();
    const auto LPosicao = Procurar(*LPesquisa, FDefinicao.CampoPesquisa, LCodigo);
    if (LPosicao < LPesquisa->RecordCount()) {
        Achar(*LPesquisa, LPosicao + 1);
        if (BuscaAchou)
            BuscaAchou();
        return;
    }
    FID = FDefinicao.ValorInvalido;
    MostrarTexto(LCodigo, "");
    if (!FDefinicao.TextoNaoAchou.empty())
        GZTUtilsDialogs.Informacao(FDefinicao.TextoNaoAchou);
    if (BuscaNaoAchou)
        BuscaNaoAchou();
}

void TZTLookupEx::Escolher(TDataSet& APesquisa, std::size_t ARecNo) {
    Achar(APesquisa, ARecNo);
    if (BuscaAchou)
        BuscaAchou();
}

void TZTLookupEx::Marcar(TDataSet& APesquisa, const std::vector<std::size_t>& ARecNos) {
    if (!FDefinicao.MultiSelecao)
        throw std::logic_error(Nome() + " takes one record");
    std::vector<std::size_t> LLinhas;
    for (const auto LRecNo : ARecNos) {
        static_cast<void>(ChaveDe(APesquisa, LRecNo));
        LLinhas.push_back(APesquisa.LinhaDe(LRecNo - 1));
    }
    Clear();
    FMarcados.Carregar(APesquisa, std::move(LLinhas));
    const bool LTodos = !TextoTodosMarcados.empty() && FMarcados.RecordCount() == APesquisa.RecordCount();
    if (!FMarcados.IsEmpty())
        MostrarTexto("", LTodos ? TextoTodosMarcados : TextoVarios);
    if (BuscaAchou)
        BuscaAchou();
}

} // namespace host
