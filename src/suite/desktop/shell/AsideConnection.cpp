#include "suite/desktop/shell/AsideConnection.h"

#include "base/Falhas.h"

#include <algorithm>

namespace suite::desktop {

namespace {

constexpr std::size_t Chunk = 4096; // rows between two looks at a cancel
constexpr long CancelledCode = 335544794;

// What is left to do in a destructor: the thread must be the worker's, and nothing may pass.
template <class... T>
void dropAside(Aside& aside, T&... held) {
    try {
        aside.run([&] { (held.reset(), ...); });
    } catch (...) { // NOLINT: a destructor has nobody to tell
    }
}

} // namespace

template <class F>
auto AsideConnection::call(Kind kind, F&& deed) {
    // A cancel that comes too late must not hit the next statement, which may be the clean-up of this one.
    struct Forget {
        const bool& cancelled;
        const Inner& inner;
        ~Forget() {
            if (cancelled && inner.forgetCancel)
                inner.forgetCancel();
        }
    };
    cancelled_ = false;
    const auto run = [&] {
        const Forget forget{cancelled_, inner_};
        return aside_.run(deed);
    };
    const auto stopIfCancelled = [&] {
        if (cancelled_ && kind == Kind::Read)
            throw base::TFalhaBanco(base::TTipoFalhaBanco::Cancelado, "A operação foi cancelada.", "HY008",
                                    {CancelledCode}, {}, {});
    };
    if constexpr (std::is_void_v<std::invoke_result_t<F&>>) {
        run();
        stopIfCancelled();
    } else {
        auto result = run();
        stopIfCancelled();
        return result;
    }
}

class AsideConnection::Transaction final : public host::TZTTransacao {
  public:
    Transaction(Aside& aside, std::shared_ptr<host::TZTConnection> owner, std::unique_ptr<host::TZTTransacao> inner)
        : connection(std::move(owner)), held(std::move(inner)), aside_(aside) {}
    ~Transaction() override { dropAside(aside_, held, connection); }
    bool Aberta() const override { return held->Aberta(); }

    std::shared_ptr<host::TZTConnection> connection; // the one it was begun on
    std::unique_ptr<host::TZTTransacao> held;

  private:
    Aside& aside_;
};

class AsideConnection::Cursor final : public host::TCursor {
  public:
    Cursor(AsideConnection& owner, std::shared_ptr<host::TZTConnection> connection,
           std::unique_ptr<host::TCursor> inner)
        : owner_(owner), connection_(std::move(connection)), inner_(std::move(inner)) {}
    ~Cursor() override { dropAside(owner_.aside_, inner_, connection_); }
    const std::vector<host::TDescricaoColuna>& Colunas() const override { return inner_->Colunas(); }
    std::size_t Ler(host::TColunas& target, std::size_t maximum) override {
        std::size_t total = 0;
        while (total < maximum) {
            const auto wanted = std::min(Chunk, maximum - total);
            const auto read = owner_.call(Kind::Read, [&] { return inner_->Ler(target, wanted); });
            total += read;
            if (read < wanted)
                break;
        }
        owner_.lastQuery_ = std::chrono::steady_clock::now() - owner_.queryBegin_;
        return total;
    }

  private:
    AsideConnection& owner_;
    std::shared_ptr<host::TZTConnection> connection_;
    std::unique_ptr<host::TCursor> inner_;
};

AsideConnection::~AsideConnection() { dropAside(aside_, inner_.connection); }

void AsideConnection::exchange(Inner inner) {
    std::swap(inner_, inner);
    dropAside(aside_, inner.connection);
}

void AsideConnection::cancel() {
    if (!aside_.running() || !inner_.cancel)
        return;
    cancelled_ = true;
    inner_.cancel();
}

std::unique_ptr<host::TZTTransacao>
AsideConnection::begin(std::unique_ptr<host::TZTTransacao> (host::TZTConnection::*way)()) {
    auto inner = call(Kind::Write, [&] { return (*inner_.connection.*way)(); });
    return std::make_unique<Transaction>(aside_, inner_.connection, std::move(inner));
}

std::unique_ptr<host::TZTTransacao> AsideConnection::IniciarTransacao() {
    return begin(&host::TZTConnection::IniciarTransacao);
}

std::unique_ptr<host::TZTTransacao> AsideConnection::IniciarTransacaoSomenteLeitura() {
    return begin(&host::TZTConnection::IniciarTransacaoSomenteLeitura);
}

void AsideConnection::FinalizarTransacao(host::TZTTransacao& transaction) {
    auto& ours = dynamic_cast<Transaction&>(transaction);
    call(Kind::Write, [&] { ours.connection->FinalizarTransacao(*ours.held); });
}

void AsideConnection::CancelarTransacao(host::TZTTransacao& transaction) {
    auto& ours = dynamic_cast<Transaction&>(transaction);
    call(Kind::Write, [&] { ours.connection->CancelarTransacao(*ours.held); });
}

host::TResultStatus AsideConnection::ExecutouSQL(std::span<const host::TInstrucao> statements, bool durable) {
    return call(Kind::Write, [&] { return inner_.connection->ExecutouSQL(statements, durable); });
}

std::vector<std::string> AsideConnection::AplicarAlteracoesNoBD(std::span<host::TZTClientDataSet* const> dataSets,
                                                                bool durable) {
    return call(Kind::Write, [&] { return inner_.connection->AplicarAlteracoesNoBD(dataSets, durable); });
}

std::int64_t AsideConnection::BuscarProximoID(std::string_view table) {
    return call(Kind::Write, [&] { return inner_.connection->BuscarProximoID(table); });
}

std::unique_ptr<host::TCursor> AsideConnection::AbrirCursor(const host::TInstrucao& statement) {
    queryBegin_ = std::chrono::steady_clock::now();
    auto inner = call(Kind::Read, [&] { return inner_.connection->GetSQLConnection().AbrirCursor(statement); });
    return std::make_unique<Cursor>(*this, inner_.connection, std::move(inner));
}

void AsideConnection::ExecuteDirect(const std::string& text) {
    call(Kind::Write, [&] { inner_.connection->GetSQLConnection().ExecuteDirect(text); });
}

} // namespace suite::desktop
