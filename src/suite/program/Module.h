#pragma once

#include "host/Registro.h"

#include <filesystem>
#include <memory>

namespace suite::program {

// A loaded module. Loading registers its classes, the destructor unloads it; whatever was made of its classes must be
// gone by then.
class Module {
  public:
    // Throws host::TFalha when the file is not there or is no module.
    explicit Module(const std::filesystem::path& file);
    Module(const Module&) = delete;
    Module& operator=(const Module&) = delete;
    ~Module();

    const host::TInformacoesPacote& information() const { return *information_; }
    // The value of a key of the version record, empty without it.
    std::string_view versionRecord(std::string_view key) const;

  private:
    void* handle_;
    const host::TInformacoesPacote* information_;
};

// The module's file beside the running program.
std::filesystem::path moduleFile();

} // namespace suite::program
