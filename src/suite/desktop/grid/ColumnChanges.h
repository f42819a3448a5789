#pragma once

#include "host/Grade.h"

#include <vector>

namespace suite::desktop {

// What a user does to the columns of a grid.

// With one moved to where another stands. It stays inside its band: the order comes back unchanged if the other has
// another one.
std::vector<host::TColunaGrade> moved(std::vector<host::TColunaGrade> columns, std::size_t from, std::size_t to);
// With a column put at the end of the grouping or taken out of it; levels have no gaps.
std::vector<host::TColunaGrade> grouped(std::vector<host::TColunaGrade> columns, std::size_t place, bool on);

} // namespace suite::desktop
