#pragma once

#include "host/Registro.h"

#include <filesystem>
#include <memory>
#include <string>

namespace suite::program {

// A loaded module. Loading registers its classes, the destructor unloads it; whatever was made of its classes must be
// gone by then.
class Module {
  public:
    // Throws base::TFalha when the file is not there or is no module.
    explicit Module(const std::filesystem::path& file);

    const host::TInformacoesPacote& information() const { return *information_; }
    // The value of a key of the version record, empty without it.
    std::string_view versionRecord(std::string_view key) const;
    // What a user is told of it: name, description, oldest version of the database.
    std::string description() const;

  private:
    struct Unload {
        void operator()(void* handle) const noexcept;
    };
    std::unique_ptr<void, Unload> handle_;
    const host::TInformacoesPacote* information_ = nullptr;
};

// The module's file beside the running program.
std::filesystem::path moduleFile();

// The program's version, and the module's where there is one.
std::string versionText(const Module* module);

} // namespace suite::program
