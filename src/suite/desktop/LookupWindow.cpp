#include "suite/desktop/LookupWindow.h"

namespace suite::desktop {

void searchIn(host::TZTLookupEx&, QWidget*) {}

} // namespace suite::desktop
