#include "suite/desktop/DialogWindow.h"

namespace suite::desktop {

DialogWindow::DialogWindow(host::TFormZTTandorPadraoResult& form, QWidget* parent)
    : QDialog(parent), binding_(form, *this), form_(form) {}

void DialogWindow::run() { exec(); }

} // namespace suite::desktop
