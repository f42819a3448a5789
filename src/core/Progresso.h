#pragma once

#include "host/Dialogos.h"

#include <functional>

namespace pct04618 {

// One step on a level of the dialog, then PararSeCancelado.
void IncrementarBarraProgresso(std::int32_t ANivel, host::TZTBarraProgressoDlg& AZTBarraProgressoDlg,
                               const std::function<void()>& ADesfazer = {});
// When the user has cancelled: ADesfazer, a message, the dialog closed, and an abort.
void PararSeCancelado(host::TZTBarraProgressoDlg& AZTBarraProgressoDlg, const std::function<void()>& ADesfazer = {});

} // namespace pct04618
