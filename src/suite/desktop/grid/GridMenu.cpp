#include "suite/desktop/grid/GridMenu.h"

#include "suite/desktop/grid/GridLayouts.h"
#include "suite/desktop/grid/GridModel.h"
#include "suite/desktop/grid/GridPane.h"
#include "suite/desktop/grid/GridView.h"
#include "suite/desktop/grid/MenuEntries.h"
#include "suite/desktop/look/Text.h"

namespace suite::desktop {

void GridMenu::fill(QMenu& menu) {
    auto& pane = pane_;
    const bool any = pane.model().columnCount() > 0;
    const bool groups = pane.table().rows().groupCount() > 0;
    const bool selected = pane.view().currentIndex().isValid();
    addEntry(
        menu, QStringLiteral("&Copiar\tCtrl+C"), [&pane] { pane.copy(true); }, selected);
    addEntry(
        menu, QStringLiteral("Copiar sem &títulos\tCtrl+Shift+C"), [&pane] { pane.copy(false); }, selected);
    addEntry(
        menu, QStringLiteral("Co&piar tudo"), [&pane] { pane.copyAll(); }, any);
    menu.addSeparator();
    addEntry(
        menu, QStringLiteral("&Localizar...\tCtrl+F"), [&pane] { pane.search({}); }, any);
    addEntry(
        menu, QStringLiteral("&Filtrar a coluna\tCtrl+L"), [&pane] { pane.filterColumn(pane.currentColumn()); }, any);
    addEntry(menu, QStringLiteral("Li&mpar filtros\tCtrl+Shift+L"), [&pane] { pane.clearFilters(); });
    addMark(menu, QStringLiteral("Ocultar linhas &zeradas"), pane.hidesZeros(),
            [&pane](bool on) { pane.hideZeros(on); });
    menu.addSeparator();
    if (any)
        addColumn(menu, pane.currentColumn());
    addChoice(*menu.addMenu(QStringLiteral("A&grupar por")), true);
    addEntry(
        menu, QStringLiteral("&Expandir tudo\tCtrl+Shift++"), [&pane] { pane.expandAll(true); }, groups);
    addEntry(
        menu, QStringLiteral("&Recolher tudo\tCtrl+Shift+-"), [&pane] { pane.expandAll(false); }, groups);
    menu.addSeparator();
    addChoice(*menu.addMenu(QStringLiteral("Col&unas")), false);
    addEntry(menu, QStringLiteral("Escol&her colunas...\tCtrl+K"), [&pane] { pane.chooseColumns(); });
    addEntry(menu, QStringLiteral("A&justar todas as larguras"), [&pane] { pane.fitColumns(); });
    addMark(menu, QStringLiteral("Fi&xar as colunas de identificação"), pane.model().freezes(),
            [&pane](bool on) { pane.freeze(on); });
    auto* size = menu.addMenu(QStringLiteral("T&amanho"));
    addEntry(*size, QStringLiteral("&Aumentar\tCtrl++"), [&pane] { pane.zoom(1); });
    addEntry(*size, QStringLiteral("&Diminuir\tCtrl+-"), [&pane] { pane.zoom(-1); });
    addEntry(*size, QStringLiteral("&Normal\tCtrl+0"), [&pane] { pane.zoom(0); });
    if (auto* layouts = pane.layouts())
        layouts->fillMenu(*menu.addMenu(QStringLiteral("Le&iaute")));
}

void GridMenu::fillForColumn(QMenu& menu, int column) {
    addColumn(menu, column);
    menu.addSeparator();
    addChoice(*menu.addMenu(QStringLiteral("Col&unas")), false);
}

void GridMenu::addColumn(QMenu& menu, int column) {
    auto& pane = pane_;
    const auto field = pane.columnAt(column);
    addEntry(menu, QStringLiteral("Ordem cresce&nte\tAlt+↑"), [&pane, column] { pane.sortBy(column, false, false); });
    addEntry(menu, QStringLiteral("Ordem &decrescente\tAlt+↓"), [&pane, column] { pane.sortBy(column, true, false); });
    addEntry(
        menu, QStringLiteral("Ordem &original"), [&pane] { pane.unsort(); }, !pane.sorts().empty());
    menu.addSeparator();
    addEntry(menu, QStringLiteral("Agrupar por esta coluna\tCtrl+G"), [&pane, field] { pane.groupBy(field, true); });
    addEntry(menu, QStringLiteral("Mover para a esquerda\tAlt+←"),
             [&pane, column] { pane.moveColumn(column, column - 1); });
    addEntry(menu, QStringLiteral("Mover para a direita\tAlt+→"),
             [&pane, column] { pane.moveColumn(column, column + 1); });
    addEntry(menu, QStringLiteral("Ajustar a largura"), [&pane, column] { pane.fitColumn(column); });
    addEntry(
        menu, QStringLiteral("Ocultar a coluna"), [&pane, field] { pane.showColumn(field, false); },
        pane.model().columnCount() > 1);
}

void GridMenu::addChoice(QMenu& menu, bool groups) {
    auto& pane = pane_;
    const auto& all = pane.grid().Colunas();
    for (std::size_t i = 0; i < all.size(); ++i)
        if (table::isOffered(all, i))
            addMark(menu, asEntry(fromUtf8(table::headingOf(all[i]))), groups ? all[i].Grupo >= 0 : all[i].Visivel,
                    [&pane, groups, field = all[i].Campo](bool on) {
                        if (groups)
                            pane.groupBy(field, on);
                        else
                            pane.showColumn(field, on);
                    });
}

} // namespace suite::desktop
