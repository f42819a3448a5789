#include "suite/desktop/grid/GridLayouts.h"

#include "host/Dialogos.h"
#include "host/Leiaute.h"
#include "suite/desktop/grid/MenuEntries.h"
#include "suite/desktop/look/Text.h"

#include <QInputDialog>

#include <exception>

namespace suite::desktop {

namespace {

template <class Deed>
void attempt(const Deed& deed) {
    try {
        deed();
    } catch (const std::exception& failure) {
        host::GZTUtilsDialogs.Erro(failure.what());
    }
}

} // namespace

void GridLayouts::choose(const std::string& name) {
    attempt([&] { layouts_.Escolher(name); });
}

void GridLayouts::save(const std::string& name) {
    attempt([&] { layouts_.Salvar(name); });
}

void GridLayouts::erase(const std::string& name) {
    attempt([&] { layouts_.Excluir(name); });
}

void GridLayouts::fillMenu(QMenu& menu) {
    const auto chosen = layouts_.Escolhido();
    addMark(menu, QStringLiteral("&Padrão"), chosen.empty(), [this](bool) { choose({}); });
    for (const auto& name : layouts_.Leiautes())
        addMark(menu, asEntry(fromUtf8(name)), name == chosen, [this, name](bool) { choose(name); });
    menu.addSeparator();
    addEntry(menu, QStringLiteral("&Salvar leiaute como..."), [this] { askName(); });
    addEntry(
        menu,
        chosen.empty() ? QStringLiteral("&Excluir leiaute")
                       : QStringLiteral("&Excluir leiaute \"%1\"").arg(asEntry(fromUtf8(chosen))),
        [this, chosen] { erase(chosen); }, !chosen.empty());
}

void GridLayouts::askName() {
    QInputDialog dialog(&window_);
    dialog.setWindowTitle(QStringLiteral("Salvar leiaute"));
    dialog.setLabelText(QStringLiteral("Nome do leiaute:"));
    dialog.setTextValue(fromUtf8(layouts_.Escolhido()));
    dialog.setOkButtonText(QStringLiteral("OK"));
    dialog.setCancelButtonText(QStringLiteral("Cancelar"));
    if (dialog.exec() == QDialog::Accepted)
        save(toUtf8(dialog.textValue()));
}

} // namespace suite::desktop
