#pragma once

#include "suite/firebird/Attachment.h"
#include "suite/firebird/Connection.h"

#include <filesystem>
#include <memory>
#include <string>

namespace apoio {

// The databases that tests copy: Vazia has the schema alone. Made once a run by the test "bases".
enum class Base { Vazia, Demo };
std::filesystem::path arquivoBase(Base base);

// Whether this run goes through the test server; otherwise through the embedded engine.
bool peloServidor();
suite::firebird::Credentials credenciais();

// A database of one test, gone with it.
class Copia {
  public:
    explicit Copia(Base base);
    ~Copia();
    Copia(const Copia&) = delete;
    Copia& operator=(const Copia&) = delete;

    const std::filesystem::path& arquivo() const { return arquivo_; }
    std::string alvo() const; // as --banco takes it
    std::unique_ptr<suite::firebird::Connection> conectar() const;
    void executar(const std::string& roteiro) const; // a SQL script, UTF-8

  private:
    std::filesystem::path arquivo_;
};

} // namespace apoio
