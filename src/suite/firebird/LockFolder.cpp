#include "suite/firebird/LockFolder.h"

#include "base/Falhas.h"

#include <ibase.h>

#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>
#include <utility>

namespace suite::firebird {

namespace {

using std::filesystem::path;

constexpr const char* FolderName = ".orcreal-lock";
constexpr std::uint64_t Reserve = 4 << 20; // what the engine's files take, and something over

class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&&) = delete;
    ~Descriptor() {
        if (number_ >= 0)
            ::close(number_);
    }
    int get() const { return number_; }
    explicit operator bool() const { return number_ >= 0; }

  private:
    int number_;
};

struct stat statusOf(const Descriptor& file) {
    struct stat status {};
    ::fstat(file.get(), &status);
    return status;
}

[[noreturn]] void refuse(const path& folder, const std::string& why, long code = isc_lock_dir_access) {
    throw base::TFalhaBanco(base::TTipoFalhaBanco::Conexao, why, "08001", {code}, "pasta de travas", folder.string());
}

class LockFolder {
  public:
    explicit LockFolder(const path& database)
        : path_(database.parent_path() / FolderName), parent_(openParent(database)), owner_(ownerOf(database)),
          shared_(isShared(database)), folder_(openFolder()) {
        checkOwner();
        checkMode();
        forEachFile([&](const char* name, const struct stat& status) { checkFile(name, status); });
        checkSpace();
        pointEngine();
    }

    void settle() const {
        forEachFile([&](const char* name, const struct stat&) {
            const Descriptor file(::openat(folder_.get(), name, O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
            if (!file)
                return; // of another member of the group, or gone already
            const auto status = statusOf(file);
            if (!S_ISREG(status.st_mode) || status.st_nlink > 1)
                return;
            const uid_t owner = ::geteuid() == 0 ? owner_ : static_cast<uid_t>(-1);
            static_cast<void>(!::fchown(file.get(), owner, statusOf(folder_).st_gid));
            ::fchmod(file.get(), shared_ ? 0660 : 0600);
            static_cast<void>(!::fallocate(file.get(), 0, 0, status.st_size)); // some file systems cannot
        });
    }

  private:
    Descriptor openParent(const path& database) const {
        Descriptor parent(::open(database.parent_path().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        if (!parent)
            refuse(path_, "Não foi possível abrir a pasta do banco de dados, " + database.parent_path().string() +
                              ". Confira o caminho e as permissões.");
        return parent;
    }
    static uid_t ownerOf(const path& database) {
        struct stat status {};
        return ::stat(database.c_str(), &status) == 0 ? status.st_uid : ::geteuid();
    }
    // Whether a group keeps the database: its folder hands the group on to what is made in it.
    bool isShared(const path& database) const {
        const auto folder = statusOf(parent_);
        struct stat file {};
        return (folder.st_mode & S_ISGID) && (folder.st_mode & S_IWGRP) &&
               (::stat(database.c_str(), &file) != 0 || (file.st_gid == folder.st_gid && (file.st_mode & S_IWGRP)));
    }
    Descriptor openFolder() const {
        const bool made = ::mkdirat(parent_.get(), FolderName, 0700) == 0;
        if (!made && errno != EEXIST)
            refuse(path_, errno == ENOSPC || errno == EDQUOT
                              ? fullDisk()
                              : "Não há permissão para criar a pasta de travas " + path_.string() +
                                    ". Peça permissão de gravação nessa pasta, ou use um servidor Firebird.");
        Descriptor folder(::openat(parent_.get(), FolderName, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
        if (!folder && (errno == ELOOP || errno == ENOTDIR))
            refuse(path_, path_.string() + " não é uma pasta, e deveria ser a das travas do banco de dados. Remova-o "
                                           "e tente novamente.");
        if (!folder)
            refuse(path_, belongsToAnother());
        if (made && ::geteuid() == 0)
            static_cast<void>(!::fchown(folder.get(), owner_, static_cast<gid_t>(-1)));
        return folder;
    }

    std::string belongsToAnother() const {
        return "A pasta de travas " + path_.string() +
               " não é do dono do banco de dados. Com o banco fechado em todos os programas, remova-a, ou peça a "
               "quem a criou, e tente novamente.";
    }
    std::string fullDisk() const {
        return "Não há espaço no disco do banco de dados para as travas em " + path_.string() +
               ". Libere espaço e tente novamente; nada foi alterado.";
    }

    // The engine reads the setting once a process, so that it names a descriptor, which can be turned to another
    // folder. By a descriptor, too, nobody can put another folder in this one's place, and its name may have any
    // letter.
    void pointEngine() const {
        static int pointer = -1;
        if (pointer >= 0) {
            ::dup3(folder_.get(), pointer, O_CLOEXEC);
            return;
        }
        pointer = ::fcntl(folder_.get(), F_DUPFD_CLOEXEC, 0);
        ::setenv("FIREBIRD_LOCK", ("/proc/self/fd/" + std::to_string(pointer)).c_str(), 1);
    }

    void checkOwner() {
        const auto status = statusOf(folder_);
        if (::geteuid() == 0) {
            if (status.st_uid != owner_ && status.st_uid != 0 && !shared_)
                refuse(path_, belongsToAnother());
            if (status.st_uid == 0 && owner_ != 0)
                static_cast<void>(!::fchown(folder_.get(), owner_, static_cast<gid_t>(-1)));
            return;
        }
        if (shared_ && status.st_gid == statusOf(parent_).st_gid)
            return;
        if (::geteuid() != owner_)
            refuse(path_, "O banco de dados em " + path_.parent_path().string() +
                              " pertence a outro usuário. Para vários usuários, use um servidor Firebird, ou ponha o "
                              "banco numa pasta de um grupo comum (chmod g+ws na pasta, chmod g+rw no arquivo).");
        if (status.st_uid != owner_)
            refuse(path_, belongsToAnother());
    }
    // What an earlier version or a hand has opened too far is closed again before the files are looked at.
    void checkMode() {
        const mode_t wanted = shared_ ? 02770 : 0700;
        if ((statusOf(folder_).st_mode & 07777) == wanted || ::fchmod(folder_.get(), wanted) == 0)
            return;
        if (statusOf(folder_).st_mode & (shared_ ? S_IWOTH : S_IWOTH | S_IWGRP))
            refuse(path_, belongsToAnother());
    }
    void checkFile(const char* name, const struct stat& status) {
        const bool ours = shared_ || ::geteuid() == 0 || status.st_uid == owner_;
        if (!ours || !S_ISREG(status.st_mode) || status.st_nlink > 1)
            refuse(path_, "Na pasta de travas " + path_.string() +
                              " há um arquivo que não é do programa ou é de outro " + "usuário (" + name +
                              "). Com o banco fechado em todos os programas, remova a pasta e " + "tente novamente.");
    }
    void checkSpace() {
        struct statvfs disk {};
        if (::fstatvfs(folder_.get(), &disk) == 0 && disk.f_blocks > 0 && disk.f_bavail * disk.f_frsize < Reserve)
            refuse(path_, fullDisk(), isc_io_write_err);
    }

    void forEachFile(const std::function<void(const char* name, const struct stat&)>& action) const {
        struct Close {
            void operator()(DIR* list) const { ::closedir(list); }
        };
        const std::unique_ptr<DIR, Close> list(
            ::fdopendir(::openat(folder_.get(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC)));
        while (const dirent* entry = list ? ::readdir(list.get()) : nullptr) {
            const std::string name = entry->d_name;
            struct stat status {};
            if (name != "." && name != ".." &&
                ::fstatat(folder_.get(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0)
                action(name.c_str(), status);
        }
    }

    path path_;
    Descriptor parent_;
    uid_t owner_;
    bool shared_;
    Descriptor folder_;
};

std::optional<LockFolder> inUse; // of the database opened last

} // namespace

path realFile(const path& database) {
    std::error_code absent;
    const auto file = std::filesystem::canonical(database, absent);
    if (!absent)
        return file;
    const auto folder = std::filesystem::canonical(database.parent_path(), absent);
    return absent ? database : folder / database.filename();
}

void useLockFolder(const path& database) { inUse.emplace(realFile(database)); }

void settleLockFiles() {
    if (inUse)
        inUse->settle();
}

} // namespace suite::firebird
