#pragma once

#include "host/Formularios.h"

#include <string>
#include <vector>

class QWidget;

namespace suite::desktop {

class FormBinding;

// Where the controls of a dialog stand, by their names: columns of titled boxes, and in a box rows of a label and its
// fields. The fields of a row with a panel stand in it, under the label.
struct LayoutRow {
    std::string label; // empty: the fields stand under those of the row above
    std::vector<std::string> fields;
    std::string panel{};
};

struct LayoutBox {
    std::string title;
    std::vector<LayoutRow> rows;
};

struct DialogLayout {
    std::string form;
    std::vector<std::vector<LayoutBox>> columns;
    std::vector<std::string> buttons;    // right-aligned at the bottom; the first is the default
    std::vector<std::string> searches{}; // lookups that show their button alone
};

// The layout made for a form, otherwise one generated from the order of its controls.
DialogLayout layoutOf(const host::TForm& form);
DialogLayout selectionLayout();
DialogLayout actualsLayout();
DialogLayout generatedLayout(const host::TForm& form);

// Places the widgets. A name that the form does not have is its TFalha; a control that stands nowhere stays unbound.
void placeWidgets(const DialogLayout& layout, FormBinding& binding, QWidget& window);

} // namespace suite::desktop
