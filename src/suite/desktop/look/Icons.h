#pragma once

#include <QIcon>

namespace suite::desktop {

enum class Symbol { Select, Print, Export, Actual, Repeat, Demo, File, Server, Search, Calendar };

// Icons drawn by the program in the colours of the palette in force, sharp at any size.
QIcon icon(Symbol symbol);
// The program's own: bars of budget and actual.
QIcon programIcon();

} // namespace suite::desktop
