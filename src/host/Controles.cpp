#include "host/Controles.h"

#include <algorithm>

namespace host {

void TZTCheckBox::SetChecked(bool AValor) {
    if (Mudar(FChecked, AValor) && OnClick)
        OnClick();
}

void TZTComboBox::TLista::Selecionar(int AIndice) {
    Indice = AIndice >= 0 && AIndice < static_cast<int>(Itens.size()) ? AIndice : -1;
}

void TZTComboBox::TLista::Selecionar(const std::string& AValor) {
    const auto LAchado = std::find(Valores.begin(), Valores.end(), AValor);
    Selecionar(LAchado == Valores.end() ? -1 : static_cast<int>(LAchado - Valores.begin()));
}

void TZTComboBox::SetLista(TLista ALista) {
    const auto LAntes = GetValorSelecionado();
    if (Mudar(FLista, std::move(ALista)) && GetValorSelecionado() != LAntes && OnChange)
        OnChange();
}

void TZTComboBox::SetItens(std::vector<std::string> AItens, std::vector<std::string> AValores,
                           const std::optional<std::string>& AValor) {
    TLista LLista{std::move(AItens), std::move(AValores)};
    AValor ? LLista.Selecionar(*AValor) : LLista.Selecionar(0);
    SetLista(std::move(LLista));
}

void TZTComboBox::SetItemIndex(int AIndice) {
    auto LLista = FLista;
    LLista.Selecionar(AIndice);
    SetLista(std::move(LLista));
}

std::string TZTComboBox::GetValorSelecionado() const {
    const auto LIndice = static_cast<std::size_t>(FLista.Indice);
    return FLista.Indice >= 0 && LIndice < FLista.Valores.size() ? FLista.Valores[LIndice] : std::string();
}

void TZTComboBox::SetValorSelecionado(const std::string& AValor) {
    auto LLista = FLista;
    LLista.Selecionar(AValor);
    SetLista(std::move(LLista));
}

void TZTDateEdit::SetDate(base::TDataHora AData) { SetTexto(AData.Vazia() ? Mascara : AData.SemHora().Texto()); }

void TZTDateEdit::SetTexto(std::string ATexto) {
    if (ATexto.empty())
        ATexto = Mascara;
    FDate = base::TDataHora::DeTexto(ATexto).value_or(base::TDataHora());
    Mudar(FTexto, std::move(ATexto));
}

} // namespace host
