#include "suite/desktop/Failures.h"

#include "host/Falhas.h"
#include "suite/desktop/MessageDialog.h"
#include "suite/desktop/Text.h"

#include <optional>

namespace suite::desktop {

namespace {

constexpr int First = 6;

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
std::optional<host::TFalhaBanco> offerReconnect(const host::TFalhaBanco& failure,
                                                const std::function<void()>& reconnect, QWidget* parent) {
    if (show(QStyle::SP_MessageBoxWarning, fromUtf8(failure.what()), fromUtf8(failure.Diagnostico()),
             {QStringLiteral("Conectar &novamente"), QStringLiteral("&Fechar")}, parent) != First)
        return {};
    try {
        reconnect();
    } catch (const host::TFalhaBanco& again) {
        if (again.Tipo() == host::TTipoFalhaBanco::Cancelado)
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
    const auto* ofDatabase = dynamic_cast<const host::TFalhaBanco*>(&failure);
    return ofDatabase && ofDatabase->Tipo() == host::TTipoFalhaBanco::Cancelado;
}

void showFailure(const std::exception& failure, const std::function<void()>& reconnect, QWidget* parent) {
    if (dynamic_cast<const host::Abort*>(&failure) || isCancel(failure))
        return;
    if (const auto* ofDatabase = dynamic_cast<const host::TFalhaBanco*>(&failure)) {
        if (ofDatabase->Tipo() != host::TTipoFalhaBanco::Conexao || !reconnect) {
            show(QStyle::SP_MessageBoxCritical, fromUtf8(failure.what()), fromUtf8(ofDatabase->Diagnostico()), JustOk,
                 parent);
            return;
        }
        for (std::optional<host::TFalhaBanco> last = *ofDatabase; last;)
            last = offerReconnect(*last, reconnect, parent);
    } else if (dynamic_cast<const host::TFalha*>(&failure)) {
        show(QStyle::SP_MessageBoxCritical, fromUtf8(failure.what()), {}, JustOk, parent);
    } else {
        show(QStyle::SP_MessageBoxCritical,
             QStringLiteral("O programa encontrou uma falha interna e não concluiu a operação. O que já estava gravado "
                            "permanece."),
             fromUtf8(failure.what()), JustOk, parent);
    }
}

} // namespace suite::desktop
