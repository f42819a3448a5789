#include "suite/desktop/grid/GridPane.h"

#include "suite/desktop/grid/FilterRow.h"
#include "suite/desktop/grid/GridView.h"
#include "suite/desktop/grid/PaneColumns.h"
#include "suite/desktop/look/Text.h"

#include <QCheckBox>
#include <QInputDialog>
#include <QMenu>

#include <algorithm>

namespace suite::desktop {

namespace {

// A key stands behind a tab: it is shown, and the pane itself answers to it.
template <class Deed>
QAction* add(QMenu& menu, const QString& text, Deed deed, bool enabled = true) {
    auto* action = menu.addAction(text);
    action->setEnabled(enabled);
    QObject::connect(action, &QAction::triggered, &menu, deed);
    return action;
}

template <class Deed>
void addMark(QMenu& menu, const QString& text, bool on, Deed deed, bool enabled = true) {
    auto* action = menu.addAction(text);
    action->setCheckable(true);
    action->setChecked(on);
    action->setEnabled(enabled);
    QObject::connect(action, &QAction::toggled, &menu, deed);
}

QString escaped(QString title) { return title.replace(QLatin1Char('&'), QLatin1String("&&")); }

} // namespace

void GridPane::fillMenu(QMenu& menu) {
    const bool any = model_->columnCount() > 0;
    const bool groups = rows_->groupCount() > 0;
    const bool selected = view_->currentIndex().isValid();
    add(
        menu, QStringLiteral("&Copiar\tCtrl+C"), [this] { copy(true); }, selected);
    add(
        menu, QStringLiteral("Copiar sem &títulos\tCtrl+Shift+C"), [this] { copy(false); }, selected);
    add(
        menu, QStringLiteral("Co&piar tudo"), [this] { copyAll(); }, any);
    menu.addSeparator();
    add(
        menu, QStringLiteral("&Localizar...\tCtrl+F"), [this] { search({}); }, any);
    add(
        menu, QStringLiteral("&Filtrar a coluna\tCtrl+L"), [this] { filters_->focus(currentColumn()); }, any);
    add(menu, QStringLiteral("Li&mpar filtros\tCtrl+Shift+L"), [this] { clearFilters(); });
    addMark(menu, QStringLiteral("Ocultar linhas &zeradas"), zeros_->isChecked(), [this](bool on) { hideZeros(on); });
    menu.addSeparator();
    fillColumnMenu(menu, any ? currentColumn() : -1);
    fillChoiceMenu(*menu.addMenu(QStringLiteral("A&grupar por")), true);
    add(
        menu, QStringLiteral("&Expandir tudo\tCtrl+Shift++"), [this] { expandAll(true); }, groups);
    add(
        menu, QStringLiteral("&Recolher tudo\tCtrl+Shift+-"), [this] { expandAll(false); }, groups);
    menu.addSeparator();
    fillChoiceMenu(*menu.addMenu(QStringLiteral("Col&unas")), false);
    add(menu, QStringLiteral("Escol&her colunas...\tCtrl+K"), [this] { chooseColumns(); });
    add(menu, QStringLiteral("A&justar todas as larguras"), [this] {
        ownWidths_.clear();
        fitColumns();
    });
    addMark(menu, QStringLiteral("Fi&xar as colunas de identificação"), freeze_, [this](bool on) { freeze(on); });
    auto* size = menu.addMenu(QStringLiteral("T&amanho"));
    add(*size, QStringLiteral("&Aumentar\tCtrl++"), [this] { zoom(1); });
    add(*size, QStringLiteral("&Diminuir\tCtrl+-"), [this] { zoom(-1); });
    add(*size, QStringLiteral("&Normal\tCtrl+0"), [this] { zoom(0); });
    if (layouts_)
        fillLayoutMenu(*menu.addMenu(QStringLiteral("Le&iaute")));
}

void GridPane::fillColumnMenu(QMenu& menu, int column) {
    if (column < 0 || column >= model_->columnCount())
        return;
    const auto field = model_->column(column).Campo;
    add(menu, QStringLiteral("Ordem cresce&nte\tAlt+↑"), [this, column] { sortBy(column, false, false); });
    add(menu, QStringLiteral("Ordem &decrescente\tAlt+↓"), [this, column] { sortBy(column, true, false); });
    add(
        menu, QStringLiteral("Ordem &original"), [this] { unsort(); }, !sorts_.empty());
    menu.addSeparator();
    add(menu, QStringLiteral("Agrupar por esta coluna\tCtrl+G"), [this, field] { groupBy(field, true); });
    add(menu, QStringLiteral("Mover para a esquerda\tAlt+←"), [this, column] { moveColumn(column, column - 1); });
    add(menu, QStringLiteral("Mover para a direita\tAlt+→"), [this, column] { moveColumn(column, column + 1); });
    add(menu, QStringLiteral("Ajustar a largura"), [this, column] { fitColumn(column); });
    add(
        menu, QStringLiteral("Ocultar a coluna"), [this, field] { showColumn(field, false); },
        model_->columnCount() > 1);
}

void GridPane::fillChoiceMenu(QMenu& menu, bool groups) {
    const auto& all = grid_.Colunas();
    for (std::size_t i = 0; i < all.size(); ++i)
        if (isOffered(all, i))
            addMark(menu, escaped(fullTitle(all, i)), groups ? all[i].Grupo >= 0 : all[i].Visivel,
                    [this, groups, field = all[i].Campo](bool on) {
                        if (groups)
                            groupBy(field, on);
                        else
                            showColumn(field, on);
                    });
}

void GridPane::fillLayoutMenu(QMenu& menu) {
    const auto chosen = layouts_->Escolhido();
    addMark(menu, QStringLiteral("&Padrão"), chosen.empty(), [this](bool) { chooseLayout({}); });
    for (const auto& name : layouts_->Leiautes())
        addMark(menu, escaped(fromUtf8(name)), name == chosen, [this, name](bool) { chooseLayout(name); });
    menu.addSeparator();
    add(menu, QStringLiteral("&Salvar leiaute como..."), [this] { askLayoutName(); });
    add(
        menu,
        chosen.empty() ? QStringLiteral("&Excluir leiaute")
                       : QStringLiteral("&Excluir leiaute \"%1\"").arg(escaped(fromUtf8(chosen))),
        [this, chosen] { deleteLayout(chosen); }, !chosen.empty());
}

void GridPane::askLayoutName() {
    QInputDialog dialog(this);
    dialog.setWindowTitle(QStringLiteral("Salvar leiaute"));
    dialog.setLabelText(QStringLiteral("Nome do leiaute:"));
    dialog.setTextValue(fromUtf8(layouts_->Escolhido()));
    dialog.setOkButtonText(QStringLiteral("OK"));
    dialog.setCancelButtonText(QStringLiteral("Cancelar"));
    if (dialog.exec() == QDialog::Accepted)
        saveLayout(toUtf8(dialog.textValue()));
}

void GridPane::openMenu(const QPoint& global, int column) {
    QMenu menu(this);
    if (column >= 0) {
        fillColumnMenu(menu, column);
        menu.addSeparator();
        fillChoiceMenu(*menu.addMenu(QStringLiteral("Col&unas")), false);
    } else {
        fillMenu(menu);
    }
    menu.exec(global);
}

} // namespace suite::desktop
