#include "suite/script/WholeFile.h"

#include "host/Falhas.h"

#include <cerrno>
#include <fstream>
#include <system_error>

namespace suite::script {

namespace {

using std::filesystem::path;

// The file under its passing name: gone at the end, unless it has taken its place.
class PartialFile {
  public:
    explicit PartialFile(const path& target) : path_(target.string() + ".parcial") {
        if (std::ofstream(path_, std::ios::binary))
            return;
        const int cause = errno;
        const auto folder = std::filesystem::absolute(target).parent_path().string();
        if (cause == ENOENT || cause == ENOTDIR)
            throw host::TFalha("A pasta " + folder + " não existe. Crie-a ou escolha outra.");
        if (cause == EACCES || cause == EPERM || cause == EROFS)
            throw host::TFalha("Não há permissão para gravar na pasta " + folder + ". Escolha outra.");
        throw std::system_error(cause, std::generic_category());
    }
    ~PartialFile() {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }
    PartialFile(const PartialFile&) = delete;
    PartialFile& operator=(const PartialFile&) = delete;

    const path& name() const { return path_; }

  private:
    path path_;
};

} // namespace

void writeWhole(const path& file, const std::function<void(const path&)>& write) {
    try {
        const PartialFile partial(file);
        write(partial.name());
        std::filesystem::rename(partial.name(), file);
    } catch (const std::system_error&) {
        throw host::TFalha("Não foi possível gravar " + file.string() +
                           ". Verifique o espaço em disco e as permissões; nada foi gravado.");
    }
}

} // namespace suite::script
