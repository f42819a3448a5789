#pragma once

#include <string_view>

namespace suite::firebird {

class Attachment;

// Runs the statements of a SQL script (";" ends one, "SET TERM x y" changes the end, "--" and "/* */" are comments,
// "COMMIT" ends the transaction of the moment). Each statement that defines something is committed before the next.
void runScript(Attachment& attachment, std::string_view script);

} // namespace suite::firebird
