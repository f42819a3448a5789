#pragma once

#include "host/Conexao.h"
#include "suite/desktop/shell/Aside.h"

namespace suite::desktop {

// The suite's connection for the window: each call runs aside on another connection, and the module waits for it.
// Datasets keep their reference to this one when the other is exchanged. All calls belong to the window's thread.
class AsideConnection final : public host::TZTConnection, public host::TSQLConnection {
  public:
    struct Inner {
        std::shared_ptr<host::TZTConnection> connection;
        std::function<void()> cancel;       // ends the running statement; called while another thread waits for it
        std::function<void()> forgetCancel; // takes back a cancel that came too late for its statement
    };

    AsideConnection(Aside& aside, Inner inner) : aside_(aside), inner_(std::move(inner)) {}
    ~AsideConnection() override;

    // From now on everything new runs on the other connection. The former one goes with its last transaction.
    void exchange(Inner inner);
    // Ends the call under way with base::TTipoFalhaBanco::Cancelado. A write that was faster stands. Idle: nothing.
    void cancel();
    // From the start of the query opened last until its last row so far.
    std::chrono::duration<double> lastQuery() const { return lastQuery_; }

    std::unique_ptr<host::TZTTransacao> IniciarTransacao() override;
    std::unique_ptr<host::TZTTransacao> IniciarTransacaoSomenteLeitura() override;
    void FinalizarTransacao(host::TZTTransacao& transaction) override;
    void CancelarTransacao(host::TZTTransacao& transaction) override;
    host::TResultStatus ExecutouSQL(std::span<const host::TInstrucao> statements, bool durable) override;
    std::vector<std::string> AplicarAlteracoesNoBD(std::span<host::TZTClientDataSet* const> dataSets,
                                                   bool durable) override;
    host::TSQLConnection& GetSQLConnection() override { return *this; }
    std::int64_t BuscarProximoID(std::string_view table) override;

    std::unique_ptr<host::TCursor> AbrirCursor(const host::TInstrucao& statement) override;
    void ExecuteDirect(const std::string& text) override;

  private:
    class Transaction;
    class Cursor;
    enum class Kind { Read, Write };

    template <class F>
    auto call(Kind kind, F&& deed);
    std::unique_ptr<host::TZTTransacao> begin(std::unique_ptr<host::TZTTransacao> (host::TZTConnection::*way)());

    Aside& aside_;
    Inner inner_;
    bool cancelled_ = false; // the call under way
    std::chrono::steady_clock::time_point queryBegin_;
    std::chrono::duration<double> lastQuery_{0};
};

} // namespace suite::desktop
