#include "suite/firebird/Attachment.h"

#include "base/Falhas.h"
#include "suite/firebird/Charset.h"
#include "suite/firebird/Error.h"
#include "suite/firebird/LockFolder.h"
#include "suite/firebird/Statement.h"
#include "suite/firebird/Transaction.h"

#include <ibase.h>

#include <cstdlib>
#include <fstream>
#include <utility>

namespace suite::firebird {

namespace {

constexpr int ConnectTimeoutSeconds = 10;
constexpr int PageSize = 16384;

class ParameterBlock {
  public:
    ParameterBlock()
        : builder_(call(OpeningName, [](auto* status) {
              return master()->getUtilInterface()->getXpbBuilder(status, Firebird::IXpbBuilder::DPB, nullptr, 0);
          })) {
        text(isc_dpb_lc_ctype, "ISO8859_1");
        number(isc_dpb_sql_dialect, 3);
    }
    void text(unsigned char tag, const std::string& value) {
        call(OpeningName, [&](auto* status) { builder_->insertString(status, tag, value.c_str()); });
    }
    void number(unsigned char tag, int value) {
        call(OpeningName, [&](auto* status) { builder_->insertInt(status, tag, value); });
    }
    unsigned length() {
        return call(OpeningName, [&](auto* status) { return builder_->getBufferLength(status); });
    }
    const unsigned char* buffer() {
        return call(OpeningName, [&](auto* status) { return builder_->getBuffer(status); });
    }

  private:
    Disposable<Firebird::IXpbBuilder> builder_;
};

[[noreturn]] void refuse(const std::filesystem::path& file, const std::string& why, long code) {
    throw base::TFalhaBanco(base::TTipoFalhaBanco::Conexao, why, "08001", {code}, std::string(OpeningName),
                            file.string());
}

// The engine takes what stands before a colon for a server, wherever in a path it is, and converts names to UTF-8.
void requireUsableName(const std::filesystem::path& file) {
    const auto whole = realFile(file).string();
    if (whole.find(':') != std::string::npos)
        refuse(file,
               "O caminho do banco de dados, " + whole +
                   ", tem dois-pontos, e o motor do banco o tomaria pelo nome de um servidor. Ponha o banco numa pasta "
                   "sem dois-pontos no nome, ou use um servidor Firebird.",
               isc_unavailable);
    if (std::mbstowcs(nullptr, whole.c_str(), 0) == static_cast<std::size_t>(-1)) // in the process's locale, as it does
        refuse(file,
               "O caminho do banco de dados tem um nome que não está em UTF-8. Renomeie a pasta ou o arquivo e tente "
               "novamente.",
               isc_transliteration_failed);
}

// A plain path must never go to a server that happens to run on this machine, and a server's name never to a file.
void setProvider(ParameterBlock& block, const Target& target) {
    if (target.embedded()) {
        requireUsableName(target.file());
        useLockFolder(target.file());
    }
    // Without the engine's own collector of old record versions: beside its only user it does nothing but contend.
    block.text(isc_dpb_config, target.embedded() ? "Providers=Engine12\nGCPolicy=cooperative" : "Providers=Remote");
}

// What the engine says of a file it cannot read is hardly for users: an absent file and a missing right look alike, and
// a file shorter than a page is a read error. Nor should a wrong path leave a lock directory beside some text file.
void requireDatabaseFile(const std::filesystem::path& file) {
    constexpr std::uintmax_t LeastPage = 1024;
    constexpr int HeaderPage = 1; // first byte of the first page
    std::error_code error;
    const auto status = std::filesystem::status(file, error);
    if (!std::filesystem::exists(status))
        refuse(file,
               "O banco de dados " + file.string() + " não existe. Confira o caminho, ou crie um com \"orcreal demo\".",
               isc_io_open_err);
    std::ifstream content(file, std::ios::binary);
    if (!std::filesystem::is_regular_file(status) || std::filesystem::file_size(file, error) < LeastPage ||
        (content && content.get() != HeaderPage))
        refuse(file, "O arquivo " + file.string() + " não é um banco de dados Firebird. Confira o caminho.",
               isc_bad_db_format);
}

Ref<Firebird::IAttachment> attach(const Target& target, ParameterBlock& block) {
    Ref<Firebird::IProvider> provider(master()->getDispatcher());
    Ref<Firebird::IAttachment> handle(call(OpeningName, [&](auto* status) {
        return provider->attachDatabase(status, target.text().c_str(), block.length(), block.buffer());
    }));
    if (target.embedded())
        settleLockFiles();
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
    Attachment created(Ref<Firebird::IAttachment>(call(OpeningName, [&](auto* status) {
        return provider->createDatabase(status, target.text().c_str(), block.length(), block.buffer());
    })));
    settleLockFiles();
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
