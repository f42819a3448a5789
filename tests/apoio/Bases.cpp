#include "apoio/Bases.h"

#include "suite/firebird/Script.h"

#include <cstdlib>
#include <fstream>
#include <map>
#include <stdexcept>
#include <unistd.h>

namespace apoio {

namespace {

const std::filesystem::path Pasta = ORCREAL_PASTA_TESTE;

// What the test server wrote about itself when it started.
std::string doServidor(const std::string& nome) {
    std::ifstream arquivo(Pasta / "servidor" / "ambiente");
    for (std::string linha; std::getline(arquivo, linha);)
        if (linha.starts_with(nome + "="))
            return linha.substr(nome.size() + 1);
    throw std::runtime_error("the test server is not running: no " + nome);
}

} // namespace

std::filesystem::path arquivoBase(Base base) {
    return Pasta / "bases" / (base == Base::Demo ? "demo.fdb" : "vazia.fdb");
}

bool peloServidor() {
    const char* alvo = std::getenv("ORCREAL_TESTE_ALVO");
    return alvo && std::string(alvo) == "servidor";
}

suite::firebird::Credentials credenciais() {
    if (peloServidor())
        return {"SYSDBA", doServidor("ORCREAL_SENHA")};
    return {};
}

Copia::Copia(Base base) {
    static int numero = 0;
    const auto pasta = Pasta / "copias";
    std::filesystem::create_directories(pasta);
    arquivo_ = pasta / (std::to_string(::getpid()) + "-" + std::to_string(++numero) + ".fdb");
    std::filesystem::copy_file(arquivoBase(base), arquivo_);
}

Copia::~Copia() {
    std::error_code ignorado;
    std::filesystem::remove(arquivo_, ignorado);
}

std::string Copia::alvo() const {
    return peloServidor() ? "127.0.0.1/" + doServidor("ORCREAL_TESTE_PORTA") + ":" + arquivo_.string()
                          : arquivo_.string();
}

std::unique_ptr<suite::firebird::Connection> Copia::conectar() const {
    return std::make_unique<suite::firebird::Connection>(suite::firebird::Target(alvo()), credenciais());
}

void Copia::executar(const std::string& roteiro) const {
    suite::firebird::Attachment ligacao{suite::firebird::Target(alvo()), credenciais()};
    suite::firebird::runScript(ligacao, roteiro);
    ligacao.detach();
}

} // namespace apoio
