#include "suite/firebird/Attachment.h"

#include "host/Falhas.h"
#include "suite/firebird/Charset.h"
#include "suite/firebird/Statement.h"
#include "suite/firebird/Transaction.h"

#include <ibase.h>

#include <cstdlib>
#include <fstream>
#include <utility>

namespace suite::firebird {

namespace {

constexpr const char* AttachName = "abertura do banco de dados";
constexpr int ConnectTimeoutSeconds = 10;
constexpr int PageSize = 16384;

// The engine keeps its locks in files. Whoever opens a database must use the same ones, so they stand beside it and
// all may write there. The client library reads the setting once a process: the first embedded database decides.
std::filesystem::path lockDirectory(const std::filesystem::path& file) { return file.parent_path() / ".orcreal-lock"; }

void useLockDirectoryBeside(const std::filesystem::path& file) {
    static const bool done = [&] {
        const auto folder = lockDirectory(file);
        std::error_code ignored; // an unusable folder is reported by the attach that needs it
        if (std::filesystem::create_directory(folder, ignored))
            std::filesystem::permissions(folder, std::filesystem::perms::all, ignored);
        ::setenv("FIREBIRD_LOCK", folder.c_str(), 1);
        return true;
    }();
    static_cast<void>(done);
}

// The engine gives its lock files to whoever comes first. They belong to all who may write the database.
void shareLockFiles(const std::filesystem::path& file) {
    using std::filesystem::perms;
    std::error_code ignored; // a file of another user is his to share
    const auto rights = std::filesystem::status(file, ignored).permissions() &
                        (perms::owner_read | perms::owner_write | perms::group_read | perms::group_write |
                         perms::others_read | perms::others_write);
    for (std::filesystem::directory_iterator i(lockDirectory(file), ignored), end; i != end; i.increment(ignored))
        std::filesystem::permissions(i->path(), rights, ignored);
}

class ParameterBlock {
  public:
    ParameterBlock()
        : builder_(call(AttachName, [](auto* status) {
              return master()->getUtilInterface()->getXpbBuilder(status, Firebird::IXpbBuilder::DPB, nullptr, 0);
          })) {
        text(isc_dpb_lc_ctype, "ISO8859_1");
        number(isc_dpb_sql_dialect, 3);
    }
    void text(unsigned char tag, const std::string& value) {
        call(AttachName, [&](auto* status) { builder_->insertString(status, tag, value.c_str()); });
    }
    void number(unsigned char tag, int value) {
        call(AttachName, [&](auto* status) { builder_->insertInt(status, tag, value); });
    }
    unsigned length() {
        return call(AttachName, [&](auto* status) { return builder_->getBufferLength(status); });
    }
    const unsigned char* buffer() {
        return call(AttachName, [&](auto* status) { return builder_->getBuffer(status); });
    }

  private:
    Disposable<Firebird::IXpbBuilder> builder_;
};

// A plain path must never go to a server that happens to run on this machine, and a server's name never to a file.
void setProvider(ParameterBlock& block, const Target& target) {
    if (target.embedded())
        useLockDirectoryBeside(target.file());
    // Without the engine's own collector of old record versions: beside its only user it does nothing but contend.
    block.text(isc_dpb_config, target.embedded() ? "Providers=Engine12\nGCPolicy=cooperative" : "Providers=Remote");
}

// What the engine says of a file it cannot read is hardly for users: an absent file and a missing right look alike, and
// a file shorter than a page is a read error. Nor should a wrong path leave a lock directory beside some text file.
void requireDatabaseFile(const std::filesystem::path& file) {
    constexpr std::uintmax_t LeastPage = 1024;
    constexpr int HeaderPage = 1; // first byte of the first page
    const auto refuse = [&](const std::string& why, long code) {
        throw host::TFalhaBanco(host::TTipoFalhaBanco::Conexao, why, "08001", {code}, AttachName, file.string());
    };
    std::error_code error;
    const auto status = std::filesystem::status(file, error);
    if (!std::filesystem::exists(status))
        refuse("O banco de dados " + file.string() + " não existe. Confira o caminho, ou crie um com \"orcreal demo\".",
               isc_io_open_err);
    std::ifstream content(file, std::ios::binary);
    if (!std::filesystem::is_regular_file(status) || std::filesystem::file_size(file, error) < LeastPage ||
        (content && content.get() != HeaderPage))
        refuse("O arquivo " + file.string() + " não é um banco de dados Firebird. Confira o caminho.",
               isc_bad_db_format);
}

Ref<Firebird::IAttachment> attach(const Target& target, ParameterBlock& block) {
    Ref<Firebird::IProvider> provider(master()->getDispatcher());
    Ref<Firebird::IAttachment> handle(call(AttachName, [&](auto* status) {
        return provider->attachDatabase(status, target.text().c_str(), block.length(), block.buffer());
    }));
    if (target.embedded())
        shareLockFiles(target.file());
    return handle;
}

} // namespace

Attachment::Attachment(const Target& target, const Credentials& credentials) {
    if (target.embedded())
        requireDatabaseFile(target.file());
    ParameterBlock block;
    setProvider(block, target);
    block.text(isc_dpb_user_name,
               credentials.user.empty() ? "SYSDBA" : toLatin1(credentials.user, "usuário do banco de dados"));
    if (!target.embedded()) {
        block.text(isc_dpb_password, credentials.password);
        block.number(isc_dpb_connect_timeout, ConnectTimeoutSeconds);
    }
    handle_ = attach(target, block);
}

Attachment Attachment::create(const Target& target) {
    ParameterBlock block;
    setProvider(block, target);
    block.text(isc_dpb_user_name, "SYSDBA");
    block.text(isc_dpb_set_db_charset, "ISO8859_1");
    block.number(isc_dpb_page_size, PageSize);
    block.number(isc_dpb_force_write, 0);
    Ref<Firebird::IProvider> provider(master()->getDispatcher());
    Attachment created(Ref<Firebird::IAttachment>(call(AttachName, [&](auto* status) {
        return provider->createDatabase(status, target.text().c_str(), block.length(), block.buffer());
    })));
    created.unsafeFile_ = target.text();
    Transaction transaction(created, TransactionMode::ReadWrite);
    execute(transaction, "ALTER CHARACTER SET ISO8859_1 SET DEFAULT COLLATION PT_BR", "colação do banco de dados");
    transaction.commit();
    return created;
}

Attachment::~Attachment() {
    if (handle_) {
        Status status;
        handle_->detach(status.get());
        if (!status.failed())
            static_cast<void>(handle_.release()); // a successful detach has released it
    }
}

void Attachment::detach() {
    call("fechamento do banco de dados", [&](auto* status) { handle_->detach(status); });
    static_cast<void>(handle_.release());
    if (!unsafeFile_.empty()) {
        ParameterBlock block;
        block.text(isc_dpb_user_name, "SYSDBA");
        block.number(isc_dpb_force_write, 1);
        const Target target(std::exchange(unsafeFile_, {}));
        setProvider(block, target);
        handle_ = attach(target, block);
        detach();
    }
}

void Attachment::cancel() noexcept {
    Status status; // "nothing to cancel" is as good an answer as any
    handle_->cancelOperation(status.get(), fb_cancel_raise);
}

void Attachment::clearPendingCancel() noexcept {
    Status status;
    handle_->cancelOperation(status.get(), fb_cancel_disable);
    handle_->cancelOperation(status.get(), fb_cancel_enable);
}

} // namespace suite::firebird
