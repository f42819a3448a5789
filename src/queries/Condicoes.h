#pragma once

#include <string>

namespace pct04618 {

class TDM04618;

// The establishments of the selection as a condition on value rows: several win over a single one; empty for all.
std::string CondicaoFilial(const TDM04618& ADm);

} // namespace pct04618
