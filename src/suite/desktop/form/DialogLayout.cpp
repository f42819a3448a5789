#include "suite/desktop/form/DialogLayout.h"

#include "host/Grade.h"
#include "suite/desktop/form/ControlWidgets.h"
#include "suite/desktop/form/FormBinding.h"
#include "suite/desktop/form/LookupEdit.h"
#include "suite/desktop/look/Text.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace suite::desktop {

namespace {

constexpr int Gap = 8;

// The fields of a row in a line; where none stretches they stay to the left.
QWidget* fieldsOf(const LayoutRow& row, FormBinding& binding, QWidget& parent) {
    if (row.panel.empty() && row.fields.size() == 1)
        return binding.widget(row.fields.front()); // hidden and shown by itself
    auto* place = row.panel.empty() ? new QWidget(&parent) : binding.widget(row.panel);
    auto* line = new QHBoxLayout(place);
    line->setSpacing(Gap);
    line->setContentsMargins(row.panel.empty() ? QMargins() : QMargins(Gap, Gap / 2, Gap, Gap / 2));
    bool stretches = false;
    for (const auto& name : row.fields) {
        auto* widget = binding.widget(name);
        if (qobject_cast<QLabel*>(widget) && &name != &row.fields.front())
            line->addSpacing(Gap);
        line->addWidget(widget);
        stretches = stretches || widget->sizePolicy().horizontalPolicy() == QSizePolicy::Expanding;
    }
    if (!stretches)
        line->addStretch();
    return place;
}

QGroupBox* boxOf(const LayoutBox& box, FormBinding& binding, QWidget& parent) {
    auto* group = new QGroupBox(fromUtf8(box.title), &parent);
    auto* rows = new QGridLayout(group);
    rows->setColumnStretch(1, 1);
    rows->setHorizontalSpacing(Gap);
    rows->setVerticalSpacing(Gap / 2 + 1);
    rows->setContentsMargins(Gap + 4, Gap, Gap + 4, Gap);
    // Without fields beside labels there is no column of fields to keep to.
    const bool fieldColumn = std::any_of(box.rows.begin(), box.rows.end(),
                                         [](const LayoutRow& row) { return !row.label.empty() && row.panel.empty(); });
    int line = 0;
    for (const auto& row : box.rows) {
        const bool panel = !row.panel.empty();
        const bool wide = panel || !fieldColumn;
        if (panel && line > 0)
            rows->setRowMinimumHeight(line++, 1); // a label stands nearer to its own panel
        auto* fields = fieldsOf(row, binding, *group);
        if (!row.label.empty())
            rows->addWidget(binding.widget(row.label), panel ? line++ : line, 0, 1, panel ? 2 : 1);
        const bool fixed = fields->sizePolicy().horizontalPolicy() == QSizePolicy::Fixed;
        rows->addWidget(fields, line++, wide ? 0 : 1, 1, wide ? 2 : 1, fixed ? Qt::AlignLeft : Qt::Alignment());
    }
    return group;
}

// Fields stand under one another through all boxes of a column.
void alignLabels(const std::vector<QGroupBox*>& boxes) {
    int width = 0;
    const auto labelsOf = [](const QGroupBox* box) { return static_cast<QGridLayout*>(box->layout()); };
    for (const auto* box : boxes)
        for (int row = 0; row < labelsOf(box)->rowCount(); ++row)
            if (const auto* item = labelsOf(box)->itemAtPosition(row, 0);
                item && item != labelsOf(box)->itemAtPosition(row, 1))
                width = std::max(width, item->widget()->sizeHint().width());
    for (const auto* box : boxes)
        labelsOf(box)->setColumnMinimumWidth(0, width);
}

bool isLabel(const host::TControle& control) { return dynamic_cast<const host::TLabel*>(&control) != nullptr; }

bool isSwatch(const host::TControle& control) {
    const auto* coloured = dynamic_cast<const host::TLabelColorido*>(&control);
    return coloured && coloured->Amostra();
}

} // namespace

DialogLayout layoutOf(const host::TForm& form) {
    for (const auto& layout : {selectionLayout(), actualsLayout()})
        if (layout.form == form.Nome())
            return layout;
    return generatedLayout(form);
}

DialogLayout generatedLayout(const host::TForm& form) {
    DialogLayout layout{.form = form.Nome(), .columns = {{{form.Titulo(), {}}}}, .buttons = {}};
    auto& rows = layout.columns.front().front().rows;
    bool swatch = false; // has just been placed
    for (const auto* control : form.Controles()) {
        if (dynamic_cast<const host::TAction*>(control)) {
            layout.buttons.push_back(control->Nome());
        } else if (isSwatch(*control)) {
            rows.push_back({"", {control->Nome()}});
            swatch = true;
            continue;
        } else if (isLabel(*control) && swatch) {
            rows.back().fields.push_back(control->Nome()); // the text that says what the colour means
        } else if (isLabel(*control)) {
            rows.push_back({control->Nome(), {}});
        } else if (!rows.empty() && rows.back().fields.empty() && rows.back().panel.empty() &&
                   labelOf(form, *control) && labelOf(form, *control)->Nome() == rows.back().label) {
            if (dynamic_cast<const host::TPanel*>(control))
                rows.back().panel = control->Nome();
            else
                rows.back().fields.push_back(control->Nome());
        } else if (dynamic_cast<const host::TPanel*>(control)) {
            rows.push_back({"", {}, control->Nome()});
        } else if (!rows.empty() && !rows.back().panel.empty() && dynamic_cast<const host::TZTCheckBox*>(control)) {
            rows.back().fields.push_back(control->Nome()); // the boxes that follow a panel are in it
        } else {
            rows.push_back({"", {control->Nome()}});
        }
        swatch = false;
    }
    // Leaving stands last, what the dialog is for first.
    std::stable_partition(layout.buttons.begin(), layout.buttons.end(),
                          [](const std::string& name) { return name != "actSair"; });
    return layout;
}

void placeWidgets(const DialogLayout& layout, FormBinding& binding, QWidget& window) {
    for (const auto& name : layout.searches)
        if (auto* lookup = qobject_cast<LookupEdit*>(binding.widget(name)))
            lookup->setButtonOnly();
    auto* whole = new QVBoxLayout(&window);
    auto* columns = new QHBoxLayout;
    columns->setSpacing(Gap * 2);
    for (const auto& column : layout.columns) {
        auto* room = new QVBoxLayout;
        room->setSpacing(Gap);
        std::vector<QGroupBox*> boxes;
        for (const auto& box : column) {
            boxes.push_back(boxOf(box, binding, window));
            room->addWidget(boxes.back());
        }
        alignLabels(boxes);
        room->addStretch();
        columns->addLayout(room, 1);
    }
    whole->addLayout(columns, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    for (const auto& name : layout.buttons)
        buttons->addWidget(binding.widget(name));
    whole->addLayout(buttons);
}

} // namespace suite::desktop
