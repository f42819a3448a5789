#include "suite/desktop/shell/Failures.h"

#include "base/Falhas.h"
#include "suite/desktop/look/Text.h"
#include "suite/desktop/shell/MessageDialog.h"

#include <optional>

namespace suite::desktop {

namespace {

int show(QStyle::StandardPixmap icon, const QString& text, const QString& details, const QStringList& buttons,
         QWidget* parent) {
    MessageContent content;
    content.icon = icon;
    content.title = QStringLiteral("Erro:");
    content.text = text;
    content.details = details;
    content.buttons = buttons;
    return MessageDialog(content, parent).ask();
}

const QStringList JustOk{QStringLiteral("OK")};

// The failure of the next attempt to connect, none when the user has given up or is connected again.
std::optional<base::TFalhaBanco> offerReconnect(const base::TFalhaBanco& failure,
                                                const std::function<void()>& reconnect, QWidget* parent) {
    if (show(QStyle::SP_MessageBoxWarning, fromUtf8(failure.what()), fromUtf8(failure.Diagnostico()),
             {QStringLiteral("Conectar &novamente"), QStringLiteral("&Fechar")}, parent) != host::TResposta::Primeira)
        return {};
    try {
        reconnect();
    } catch (const base::TFalhaBanco& again) {
        if (again.Tipo() == base::TTipoFalhaBanco::Cancelado)
            return {};
        return again;
    } catch (const std::exception& other) {
        showFailure(other, {}, parent);
        return {};
    }
    show(QStyle::SP_MessageBoxInformation, QStringLiteral("A conexão foi refeita. Repita a última operação."), {},
         JustOk, parent);
    return {};
}

} // namespace

bool isCancel(const std::exception& failure) {
    const auto* ofDatabase = dynamic_cast<const base::TFalhaBanco*>(&failure);
    return ofDatabase && ofDatabase->Tipo() == base::TTipoFalhaBanco::Cancelado;
}

void showFailure(const std::exception& failure, const std::function<void()>& reconnect, QWidget* parent) {
    if (dynamic_cast<const base::Abort*>(&failure) || isCancel(failure))
        return;
    if (const auto* ofDatabase = dynamic_cast<const base::TFalhaBanco*>(&failure)) {
        if (ofDatabase->Tipo() != base::TTipoFalhaBanco::Conexao || !reconnect) {
            show(QStyle::SP_MessageBoxCritical, fromUtf8(failure.what()), fromUtf8(ofDatabase->Diagnostico()), JustOk,
                 parent);
            return;
        }
        for (std::optional<base::TFalhaBanco> last = *ofDatabase; last;)
            last = offerReconnect(*last, reconnect, parent);
    } else if (dynamic_cast<const base::TFalha*>(&failure)) {
        show(QStyle::SP_MessageBoxCritical, fromUtf8(failure.what()), {}, JustOk, parent);
    } else {
        show(QStyle::SP_MessageBoxCritical,
             QStringLiteral("O programa encontrou uma falha interna e não concluiu a operação. O que já estava gravado "
                            "permanece."),
             fromUtf8(failure.what()), JustOk, parent);
    }
}

} // namespace suite::desktop
