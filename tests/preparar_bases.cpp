// Makes the databases that tests copy: the schema alone, and the demo database.
#include "apoio/Bases.h"
#include "demo/Demo.h"
#include "demo/Esquema.h"
#include "suite/firebird/Script.h"

#include <iostream>

int main() {
    try {
        const auto vazia = apoio::arquivoBase(apoio::Base::Vazia);
        const auto demonstracao = apoio::arquivoBase(apoio::Base::Demo);
        std::filesystem::remove_all(vazia.parent_path());
        std::filesystem::create_directories(vazia.parent_path());
        auto ligacao = suite::firebird::Attachment::create(suite::firebird::Target(vazia.string()));
        suite::firebird::runScript(ligacao, demo::EsquemaDasTabelas());
        suite::firebird::runScript(ligacao, demo::EsquemaDasChaves());
        ligacao.detach();
        demo::Criar({demonstracao, 1, {}});
        return 0;
    } catch (const std::exception& falha) {
        std::cerr << falha.what() << "\n";
        return 1;
    }
}
