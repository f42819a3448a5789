#pragma once

#include <QIcon>

class QWidget;

namespace suite::desktop {

// Small pictures in the text colour of a widget: no icon theme is needed, and a dark palette serves as well.
QIcon searchIcon(const QWidget& widget);
QIcon calendarIcon(const QWidget& widget);

} // namespace suite::desktop
