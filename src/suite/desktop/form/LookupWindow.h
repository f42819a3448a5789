#pragma once

#include "host/Lookup.h"

class QWidget;

namespace suite::desktop {

// The search of a lookup as a modal window: its columns, a filter as one types, a mark before each record where several
// may be chosen, keyboard throughout. Returns when the user has picked, marked or left. Failures pass.
void searchIn(host::TZTLookupEx& lookup, QWidget* parent);

} // namespace suite::desktop
