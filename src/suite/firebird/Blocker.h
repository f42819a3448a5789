#pragma once

#include "base/Falhas.h"

namespace suite::firebird {

class Attachment;

// The failure to get a lock, with the user who holds it in its sentence as far as this user may see the connections of
// the database; else as it is.
base::TFalhaBanco withBlocker(Attachment& attachment, const base::TFalhaBanco& failure);

} // namespace suite::firebird
