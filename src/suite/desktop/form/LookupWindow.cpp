#include "suite/desktop/form/LookupWindow.h"

#include "suite/desktop/form/LookupRows.h"
#include "suite/desktop/form/SearchDialog.h"

namespace suite::desktop {

void searchIn(host::TZTLookupEx& lookup, QWidget* parent) {
    const auto search = lookup.Pesquisar();
    SearchDialog dialog(lookup, *search, parent);
    const int result = dialog.exec();
    if (parent)
        parent->activateWindow(); // not every window manager gives the focus back
    if (result != QDialog::Accepted)
        return;
    if (dialog.byMarks())
        lookup.Marcar(*search, dialog.rows().marked());
    else
        lookup.Escolher(*search, dialog.currentPosition());
}

} // namespace suite::desktop
