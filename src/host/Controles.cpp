#include "host/Controles.h"

#include <algorithm>

namespace host {

void TZTCheckBox::SetChecked(bool AValor) {
    if (Mudar(FChecked, AValor) && OnClick)
        OnClick();
}

void TZTComboBox::SetItens(std::vector<std::string> AItens, std::vector<std::string> AValores) {
    FValores = std::move(AValores);
    Mudar(FItens, std::move(AItens));
    SetItemIndex(FItens.empty() ? -1 : 0);
}

void TZTComboBox::SetItemIndex(int AIndice) {
    const int LIndice = AIndice >= 0 && AIndice < static_cast<int>(FItens.size()) ? AIndice : -1;
    if (Mudar(FItemIndex, LIndice) && OnChange)
        OnChange();
}

std::string TZTComboBox::GetValorSelecionado() const {
    const auto LIndice = static_cast<std::size_t>(FItemIndex);
    return FItemIndex >= 0 && LIndice < FValores.size() ? FValores[LIndice] : std::string();
}

void TZTComboBox::SetValorSelecionado(const std::string& AValor) {
    const auto LAchado = std::find(FValores.begin(), FValores.end(), AValor);
    SetItemIndex(LAchado == FValores.end() ? -1 : static_cast<int>(LAchado - FValores.begin()));
}

void TZTDateEdit::SetDate(base::TDataHora AData) { SetTexto(AData.Vazia() ? Mascara : AData.SemHora().Texto()); }

void TZTDateEdit::SetTexto(std::string ATexto) {
    if (ATexto.empty())
        ATexto = Mascara;
    FDate = base::TDataHora::DeTexto(ATexto).value_or(base::TDataHora());
    Mudar(FTexto, std::move(ATexto));
}

} // namespace host
