#include "suite/firebird/Target.h"

#include "base/Falhas.h"

#include <cctype>

namespace suite::firebird {

Target::Target(std::string text) : text_(std::move(text)) {
    if (text_.empty())
        throw base::TFalha("Informe o banco de dados: um arquivo, ou servidor/porta:caminho.");
    // A colon ends the server's part; a path of this system has it only behind a slash, unless it is a file's that is
    // there.
    const auto colon = text_.find(':');
    const auto slash = text_.find('/');
    const bool url = text_.find("://") != std::string::npos;
    const bool server = url || (colon != std::string::npos && (slash == std::string::npos || colon < slash));
    // "host/port:path"
    const bool port = colon != std::string::npos && slash != std::string::npos && slash > 0 && slash + 1 < colon &&
                      text_.find_first_not_of("0123456789", slash + 1) == colon;
    std::error_code unreadable;
    embedded_ = (!server && !port) || std::filesystem::exists(text_, unreadable);
    if (embedded_)
        text_ = std::filesystem::absolute(text_).lexically_normal().string();
}

} // namespace suite::firebird
