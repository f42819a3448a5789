#include "suite/program/Module.h"

#include "host/Falhas.h"

#include <dlfcn.h>

namespace suite::program {

Module::Module(const std::filesystem::path& file) : handle_(::dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL)) {
    if (!handle_)
        throw host::TFalha("O módulo " + file.filename().string() +
                           " não pôde ser carregado. Refaça a instalação do programa. (" + ::dlerror() + ")");
    const auto function = reinterpret_cast<host::TFuncaoInformacoesDoPacote>(::dlsym(handle_, "InformacoesDoPacote"));
    if (!function) {
        ::dlclose(handle_);
        throw host::TFalha("O arquivo " + file.string() + " não é um módulo deste programa.");
    }
    information_ = function();
}

Module::~Module() { ::dlclose(handle_); }

std::string_view Module::versionRecord(std::string_view key) const {
    for (const auto& [name, value] : information_->RegistroDeVersao)
        if (name == key)
            return value;
    return {};
}

std::filesystem::path moduleFile() {
    return std::filesystem::read_symlink("/proc/self/exe").parent_path() / "Pct04618.so";
}

} // namespace suite::program
