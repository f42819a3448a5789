#include "core/Progresso.h"

#include "base/Falhas.h"
#include "host/Servicos.h"

namespace pct04618 {

void IncrementarBarraProgresso(std::int32_t ANivel, host::TZTBarraProgressoDlg& AZTBarraProgressoDlg,
                               const std::function<void()>& ADesfazer) {
    AZTBarraProgressoDlg.BuscarBarraProgresso(ANivel).AvancarProgresso(0);
    PararSeCancelado(AZTBarraProgressoDlg, ADesfazer);
}

void PararSeCancelado(host::TZTBarraProgressoDlg& AZTBarraProgressoDlg, const std::function<void()>& ADesfazer) {
    if (!AZTBarraProgressoDlg.GetProcessoCancelado())
        return;
    if (ADesfazer)
        ADesfazer();
    host::GZTUtilsDialogs.Informacao("Processo Cancelado.");
    AZTBarraProgressoDlg.FecharBarraProgresso();
    host::Servicos().Interacao->ProcessarMensagens();
    throw base::Abort();
}

} // namespace pct04618
