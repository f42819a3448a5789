#pragma once

#include <filesystem>
#include <functional>

namespace suite::script {

// Has a file written beside its place and puts it there when it is whole: an earlier one stays until then. A
// std::system_error of the writer, and what the folder refuses, is a host::TFalha; nothing partial stays.
void writeWhole(const std::filesystem::path& file, const std::function<void(const std::filesystem::path&)>& write);

} // namespace suite::script
