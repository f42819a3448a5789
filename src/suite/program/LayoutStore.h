#pragma once

#include "host/Leiaute.h"

#include <filesystem>
#include <functional>

namespace suite::program {

// Grid layouts as small text files, one a layout: FOLDER/user/key/name.leiaute. A file that cannot be read is never
// overwritten: whoever stores another under its name finds it moved aside, with ".danificado" behind its name.
class LayoutStore final : public host::TArmazemLeiautes {
  public:
    // The folder need not exist yet. It is looked for when first asked for a layout; without one none are listed.
    explicit LayoutStore(std::function<std::filesystem::path()> folder) : folder_(std::move(folder)) {}
    explicit LayoutStore(std::filesystem::path folder) : LayoutStore([folder = std::move(folder)] { return folder; }) {}

    std::vector<std::string> Listar(const host::TDonoLeiautes& owner) const override;
    host::TLeiaute Ler(const host::TDonoLeiautes& owner, const std::string& name) const override;
    void Gravar(const host::TDonoLeiautes& owner, const std::string& name, const host::TLeiaute& layout) override;
    void Excluir(const host::TDonoLeiautes& owner, const std::string& name) override;

  private:
    std::filesystem::path folderOf(const host::TDonoLeiautes& owner) const;
    std::filesystem::path fileOf(const host::TDonoLeiautes& owner, const std::string& name) const;

    std::function<std::filesystem::path()> folder_;
};

} // namespace suite::program
