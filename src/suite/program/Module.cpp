#include "suite/program/Module.h"

#include "base/Falhas.h"

#include <dlfcn.h>
#include <link.h>

namespace suite::program {

namespace {

// A text of the module's, which may have left it null.
std::string text(std::string_view given) { return given.data() ? std::string(given) : std::string(); }

// Null unless it is a function: calling what a file holds as data under that name would be the end.
void* functionAt(void* address) {
    Dl_info place{};
    const ElfW(Sym)* symbol = nullptr;
    const bool known =
        ::dladdr1(address, &place, reinterpret_cast<void**>(const_cast<ElfW(Sym)**>(&symbol)), RTLD_DL_SYMENT) != 0;
    return known && symbol && ELF64_ST_TYPE(symbol->st_info) == STT_FUNC ? address : nullptr;
}

} // namespace

void Module::Unload::operator()(void* handle) const noexcept { ::dlclose(handle); }

Module::Module(const std::filesystem::path& file) : handle_(::dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL)) {
    if (!handle_)
        throw base::TFalha("O módulo " + file.filename().string() +
                           " não pôde ser carregado. Refaça a instalação do programa. (" + ::dlerror() + ")");
    auto* const address = ::dlsym(handle_.get(), "InformacoesDoPacote");
    if (const auto function =
            reinterpret_cast<host::TFuncaoInformacoesDoPacote>(address ? functionAt(address) : nullptr))
        information_ = function();
    if (!information_)
        throw base::TFalha("O arquivo " + file.string() + " não é um módulo deste programa.");
}

std::string_view Module::versionRecord(std::string_view key) const {
    const auto& record = information_->RegistroDeVersao;
    if (record.data())
        for (const auto& [name, value] : record)
            if (name == key)
                return value;
    return {};
}

std::string Module::description() const {
    return text(information_->Nome) + ": " + text(information_->Descricao) + " (banco de dados a partir da versão " +
           text(versionRecord("MinVersionDatabase")) + ")";
}

std::filesystem::path moduleFile() {
    return std::filesystem::read_symlink("/proc/self/exe").parent_path() / "Pct04618.so";
}

std::string versionText(const Module* module) {
    return "orcreal " ORCREAL_VERSAO + (module ? "\n" + module->description() : std::string());
}

} // namespace suite::program
