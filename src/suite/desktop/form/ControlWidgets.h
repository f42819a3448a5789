#pragma once

#include "host/Formularios.h"

#include <QString>

class QWidget;

namespace suite::desktop {

class FormBinding;

// The widget of a control by its kind, following the control and giving back what the user does, through the binding.
QWidget* makeWidget(host::TControle& control, FormBinding& binding, QWidget* parent);

// The control that a label stands for: the one whose name ends as the label's does ("LblX", "LkpX"), otherwise the one
// that comes next in the form. Null for a label that stands for itself.
host::TControle* labelled(const host::TForm& form, const host::TControle& label);
// The label of a control, null without one.
const host::TControle* labelOf(const host::TForm& form, const host::TControle& control);
// What a control is called: its label, otherwise its own caption, without marks and colon.
QString spokenName(const host::TForm& form, const host::TControle& control);
// Ties a label's widget to the widget of what it stands for.
void tieLabel(host::TControle& label, QWidget& labelWidget, host::TControle& control, QWidget& widget,
              FormBinding& binding);

} // namespace suite::desktop
