#include "suite/desktop/form/ControlWidgets.h"

#include "base/Falhas.h"
#include "host/Grade.h"
#include "host/Lookup.h"
#include "suite/desktop/form/DateEdit.h"
#include "suite/desktop/form/FormBinding.h"
#include "suite/desktop/form/LookupEdit.h"
#include "suite/desktop/form/LookupWindow.h"
#include "suite/desktop/grid/GridPane.h"
#include "suite/desktop/look/ColourLabel.h"
#include "suite/desktop/look/PanelBox.h"
#include "suite/desktop/look/Text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>

namespace suite::desktop {

namespace {

// The widgets outlive the binding, which is what listens for them.
template <class TWidget, class TShow>
TWidget* following(host::TControle& control, TWidget* widget, FormBinding& binding, TShow show) {
    binding.follow(control, [&control, widget, show] {
        widget->setEnabled(control.Enabled());
        if (widget->isHidden() == control.Visible() && !widget->isWindow())
            widget->setVisible(control.Visible());
        show();
    });
    return widget;
}

QWidget* checkBox(host::TZTCheckBox& control, FormBinding& binding, QWidget* parent) {
    auto* box = new QCheckBox(parent);
    QObject::connect(box, &QCheckBox::clicked, &binding, [&control, &binding, box](bool checked) {
        binding.attempt([&] { control.SetChecked(checked); });
        box->setChecked(control.Checked()); // a rule may have said otherwise
    });
    return following(control, box, binding, [&control, box] {
        box->setText(fromUtf8(control.Caption()));
        box->setChecked(control.Checked());
    });
}

QWidget* comboBox(host::TZTComboBox& control, FormBinding& binding, QWidget* parent) {
    auto* combo = new QComboBox(parent);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    constexpr int Characters = 20;
    combo->setMinimumContentsLength(Characters);
    combo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    QObject::connect(combo, &QComboBox::activated, &binding, [&control, &binding, combo](int index) {
        binding.attempt([&] { control.SetItemIndex(index); });
        combo->setCurrentIndex(control.ItemIndex());
    });
    return following(control, combo, binding, [&control, combo] {
        QStringList items;
        for (const auto& item : control.Itens())
            items.push_back(fromUtf8(item).trimmed());
        QStringList shown;
        for (int i = 0; i < combo->count(); ++i)
            shown.push_back(combo->itemText(i));
        if (items != shown) {
            combo->clear();
            combo->addItems(items);
        }
        combo->setCurrentIndex(control.ItemIndex() < combo->count() ? control.ItemIndex() : -1);
        combo->setToolTip(combo->currentText());
    });
}

QWidget* dateEdit(host::TZTDateEdit& control, FormBinding& binding, QWidget* parent) {
    auto* date = new DateEdit(parent);
    QObject::connect(date, &DateEdit::edited, &binding, [&control, &binding](const QString& text) {
        binding.attempt([&] { control.SetTexto(toUtf8(text)); });
    });
    return following(control, date, binding, [&control, date] { date->setShown(fromUtf8(control.Texto())); });
}

QWidget* lookupEdit(host::TZTLookupEx& control, FormBinding& binding, QWidget* parent) {
    auto* edit = new LookupEdit(control, parent);
    QObject::connect(edit, &LookupEdit::searchAsked, &binding, [&control, &binding, edit] {
        binding.focus(control); // the button takes no focus of its own
        binding.attempt([&] { searchIn(control, edit->window()); });
        edit->follow(); // a code that was typed and not searched for is given up
    });
    QObject::connect(edit, &LookupEdit::dropAsked, &binding,
                     [&control, &binding] { binding.attempt([&] { control.Digitar({}); }); });
    return following(control, edit, binding, [edit] { edit->follow(); });
}

QWidget* label(host::TControle& control, FormBinding& binding, QWidget* parent) {
    const auto* coloured = dynamic_cast<const host::TLabelColorido*>(&control);
    auto* widget = coloured ? new ColourLabel(*coloured, parent) : new QLabel(parent);
    const bool swatch = coloured && coloured->Amostra(); // whose caption nobody could read
    return following(control, widget, binding, [&control, widget, swatch] {
        widget->setText(swatch ? QString() : fromMessage(control.Caption()));
    });
}

// Actions of the frame may lack a caption of their own.
QString captionOf(const host::TAction& action) {
    const auto name = fromUtf8(action.Nome());
    if (!action.Caption().empty())
        return fromUtf8(action.Caption());
    return name.startsWith(QLatin1String("act"), Qt::CaseInsensitive) ? name.mid(3) : name;
}

QWidget* button(host::TAction& action, FormBinding& binding, QWidget* parent) {
    auto* widget = new QPushButton(parent);
    QObject::connect(widget, &QPushButton::clicked, &binding, [&action, &binding] { binding.execute(action); });
    return following(action, widget, binding, [&action, widget] {
        widget->setText(captionOf(action));
        widget->setToolTip(fromUtf8(action.Hint()));
    });
}

QWidget* panel(host::TPanel& control, FormBinding& binding, QWidget* parent) {
    auto* box = new PanelBox(parent);
    return following(control, box, binding, [&control, box] { box->setCaption(fromUtf8(control.Caption())); });
}

std::string_view withoutPrefix(std::string_view name) {
    for (const std::string_view prefix : {"Lbl", "Lkp", "Cb", "De", "Pnl", "Chk", "Dbg"})
        if (name.starts_with(prefix))
            return name.substr(prefix.size());
    return name;
}

bool isLabel(const host::TControle& control) { return dynamic_cast<const host::TLabel*>(&control) != nullptr; }

} // namespace

QWidget* makeWidget(host::TControle& control, FormBinding& binding, QWidget* parent) {
    if (auto* box = dynamic_cast<host::TZTCheckBox*>(&control))
        return checkBox(*box, binding, parent);
    if (auto* combo = dynamic_cast<host::TZTComboBox*>(&control))
        return comboBox(*combo, binding, parent);
    if (auto* date = dynamic_cast<host::TZTDateEdit*>(&control))
        return dateEdit(*date, binding, parent);
    if (auto* lookup = dynamic_cast<host::TZTLookupEx*>(&control))
        return lookupEdit(*lookup, binding, parent);
    if (auto* grid = dynamic_cast<host::TGrade*>(&control))
        return following(control, new GridPane(*grid, parent), binding, [] {});
    if (auto* action = dynamic_cast<host::TAction*>(&control))
        return button(*action, binding, parent);
    if (auto* group = dynamic_cast<host::TPanel*>(&control))
        return panel(*group, binding, parent);
    if (isLabel(control))
        return label(control, binding, parent);
    throw base::TFalha("O controle \"" + control.Nome() + "\" não tem representação na tela.");
}

host::TControle* labelled(const host::TForm& form, const host::TControle& label) {
    const auto& all = form.Controles();
    const auto stands = [&](const host::TControle& control) {
        return !isLabel(control) && !dynamic_cast<const host::TAction*>(&control);
    };
    for (auto* control : all)
        if (stands(*control) && withoutPrefix(control->Nome()) == withoutPrefix(label.Nome()))
            return control;
    for (std::size_t i = 0; i + 1 < all.size(); ++i)
        if (all[i] == &label && stands(*all[i + 1]))
            return all[i + 1];
    return nullptr;
}

const host::TControle* labelOf(const host::TForm& form, const host::TControle& control) {
    for (const auto* label : form.Controles())
        if (isLabel(*label) && labelled(form, *label) == &control)
            return label;
    return nullptr;
}

QString spokenName(const host::TForm& form, const host::TControle& control) {
    const auto* label = labelOf(form, control);
    auto name = fromUtf8((label ? *label : control).Caption());
    name.remove(QLatin1Char('&'));
    while (name.endsWith(QLatin1Char(':')) || name.endsWith(QLatin1Char(' ')))
        name.chop(1);
    return name;
}

void tieLabel(host::TControle& label, QWidget& labelWidget, host::TControle& control, QWidget& widget,
              FormBinding& binding) {
    if (auto* text = qobject_cast<QLabel*>(&labelWidget))
        text->setBuddy(&widget);
    for (auto* followed : {&label, &control})
        binding.follow(*followed, [&label, &control, &labelWidget] {
            labelWidget.setEnabled(label.Enabled() && control.Enabled());
        });
}

} // namespace suite::desktop
