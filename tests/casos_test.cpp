// Runs the case files: data, commands of the real program, and everything it prints, to the letter.
//
//   # what the case shows
//   [base] vazia | demo | nenhuma
//   [dados] FILE        SQL run before the commands: a file beside the cases, if named, and what follows
//   [ambiente] N=V      a variable of the commands that follow; without "=" there is none of that name
//   [preparo] ...       a line of the shell before the command that follows
//   [programa] FILE     what the commands that follow run in place of the program
//   [comando] ...       one command line; @BANCO@ is the database, @PASTA@ a folder of the case,
//                       @CASOS@ the folder of the case files, @BIN@ that of the program
//   [saida] [erro]      what it prints; absent: nothing. "..." alone on a line stands for any lines
//   [codigo] N
//   [arquivo] NOME      the text of a file that the command wrote into the folder
#include "apoio/Bases.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <fstream>
#include <optional>
#include <regex>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

struct Comando {
    std::string linha;
    std::string programa;
    std::vector<std::string> ambiente;
    std::vector<std::string> preparo;
    std::string saida;
    std::string erro;
    std::optional<int> codigo;
    std::vector<std::pair<std::string, std::string>> arquivos;
};

struct Caso {
    std::string base;
    std::string dados;
    std::vector<Comando> comandos;
};

std::string ler(const fs::path& arquivo) {
    std::ifstream entrada(arquivo, std::ios::binary);
    std::stringstream texto;
    texto << entrada.rdbuf();
    return texto.str();
}

Caso lerCaso(const fs::path& arquivo) {
    Caso caso;
    std::string* secao = nullptr;
    Comando proximo;
    std::istringstream texto(ler(arquivo));
    for (std::string linha; std::getline(texto, linha);) {
        std::smatch partes;
        if (!std::regex_match(linha, partes, std::regex(R"(\[([a-z]+)\] ?(.*))"))) {
            if (secao)
                *secao += linha + "\n";
            continue;
        }
        const auto nome = partes[1].str();
        const auto resto = partes[2].str();
        if (nome == "base") {
            caso.base = resto;
            secao = nullptr;
        } else if (nome == "dados") {
            if (!resto.empty())
                caso.dados = ler(arquivo.parent_path() / resto);
            secao = &caso.dados;
        } else if (nome == "comando") {
            proximo.linha = resto;
            caso.comandos.push_back(proximo);
            proximo.preparo.clear();
            secao = nullptr;
        } else if (nome == "ambiente" || nome == "preparo") {
            (nome == "preparo" ? proximo.preparo : proximo.ambiente).push_back(resto);
            secao = nullptr;
        } else if (nome == "programa") {
            proximo.programa = resto;
            secao = nullptr;
        } else if (caso.comandos.empty()) {
            throw std::runtime_error("[" + nome + "] before a command");
        } else if (nome == "saida") {
            secao = &caso.comandos.back().saida;
        } else if (nome == "erro") {
            secao = &caso.comandos.back().erro;
        } else if (nome == "codigo") {
            caso.comandos.back().codigo = std::stoi(resto);
            secao = nullptr;
        } else if (nome == "arquivo") {
            secao = &caso.comandos.back().arquivos.emplace_back(resto, "").second;
        } else {
            throw std::runtime_error("unknown section [" + nome + "]");
        }
    }
    return caso;
}

std::string trocar(std::string texto, const std::string& de, const std::string& para) {
    for (std::size_t i = 0; (i = texto.find(de, i)) != std::string::npos; i += para.size())
        texto.replace(i, de.size(), para);
    return texto;
}

// Lines as expected, where "..." matches any number of lines.
bool confere(std::istringstream esperado, std::istringstream obtido) {
    std::vector<std::string> e;
    std::vector<std::string> o;
    for (std::string linha; std::getline(esperado, linha);)
        e.push_back(linha);
    for (std::string linha; std::getline(obtido, linha);)
        o.push_back(linha);
    const std::function<bool(std::size_t, std::size_t)> resto = [&](std::size_t i, std::size_t j) {
        for (; i < e.size() && e[i] != "..."; ++i, ++j)
            if (j >= o.size() || e[i] != o[j])
                return false;
        if (i == e.size())
            return j == o.size();
        for (std::size_t k = j; k <= o.size(); ++k)
            if (resto(i + 1, k))
                return true;
        return false;
    };
    return resto(0, 0);
}

// The command is complete: what stands in it for files of the case has been put in.
int executar(const Comando& comando, const fs::path& saida, const fs::path& erro) {
    const pid_t filho = ::fork();
    if (filho == 0) {
        ::dup2(::open(saida.c_str(), O_CREAT | O_TRUNC | O_WRONLY, 0600), STDOUT_FILENO);
        ::dup2(::open(erro.c_str(), O_CREAT | O_TRUNC | O_WRONLY, 0600), STDERR_FILENO);
        for (const auto& variavel : comando.ambiente) {
            const auto igual = variavel.find('=');
            if (igual == std::string::npos)
                ::unsetenv(variavel.c_str());
            else
                ::setenv(variavel.substr(0, igual).c_str(), variavel.substr(igual + 1).c_str(), 1);
        }
        const std::string linha = "exec '" + comando.programa + "' " + comando.linha;
        ::execl("/bin/sh", "sh", "-c", linha.c_str(), nullptr);
        ::_exit(127);
    }
    int estado = 0;
    ::waitpid(filho, &estado, 0);
    return WIFEXITED(estado) ? WEXITSTATUS(estado) : 128 + WTERMSIG(estado);
}

class TesteDeCaso : public testing::Test {
  public:
    explicit TesteDeCaso(fs::path arquivo) : arquivo_(std::move(arquivo)) {}

    void TestBody() override {
        const auto caso = lerCaso(arquivo_);
        ASSERT_FALSE(caso.comandos.empty()) << "no command";
        std::optional<apoio::Copia> copia;
        if (caso.base != "nenhuma")
            copia.emplace(caso.base == "demo" ? apoio::Base::Demo : apoio::Base::Vazia);
        if (!caso.dados.empty())
            copia->executar(caso.dados);
        const auto pasta = fs::path(ORCREAL_PASTA_TESTE) / "caso";
        fs::remove_all(pasta);
        fs::create_directories(pasta);
        for (const char* tela : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) // cases are of the terminal
            ::unsetenv(tela);
        ::setenv("ORCREAL_SENHA", apoio::credenciais().password.c_str(), 1);
        const auto preencher = [&](std::string texto) {
            for (const auto& [marca, valor] :
                 {std::pair<std::string, std::string>{"@BANCO@", copia ? copia->alvo() : "-"},
                  {"@PASTA@", pasta.string()},
                  {"@CASOS@", ORCREAL_CASOS},
                  {"@BIN@", fs::path(ORCREAL_PROGRAMA).parent_path().string()}})
                texto = trocar(texto, marca, valor);
            return texto;
        };
        for (auto comando : caso.comandos) {
            SCOPED_TRACE(comando.linha);
            ASSERT_TRUE(comando.codigo) << "no [codigo] expected";
            comando.linha = preencher(comando.linha);
            comando.programa = comando.programa.empty() ? ORCREAL_PROGRAMA : preencher(comando.programa);
            for (auto& variavel : comando.ambiente)
                variavel = preencher(variavel);
            for (const auto& linha : comando.preparo)
                ASSERT_EQ(0, std::system(preencher(linha).c_str())) << linha;
            const int codigo = executar(comando, pasta / ".saida", pasta / ".erro");
            comparar(preencher(comando.saida), ler(pasta / ".saida"), "saida");
            comparar(preencher(comando.erro), ler(pasta / ".erro"), "erro");
            EXPECT_EQ(*comando.codigo, codigo);
            for (const auto& [nome, texto] : comando.arquivos)
                comparar(preencher(texto), ler(pasta / nome), nome);
        }
    }

  private:
    static void comparar(const std::string& esperado, const std::string& obtido, const std::string& nome) {
        EXPECT_TRUE(confere(std::istringstream(esperado), std::istringstream(obtido)))
            << "[" << nome << "] expected:\n"
            << esperado << "[" << nome << "] got:\n"
            << obtido;
    }
    fs::path arquivo_;
};

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    for (const auto& item : fs::directory_iterator(ORCREAL_CASOS)) {
        const auto arquivo = item.path();
        if (arquivo.extension() != ".caso")
            continue;
        testing::RegisterTest("Casos", arquivo.stem().c_str(), nullptr, nullptr, __FILE__, __LINE__,
                              [arquivo]() -> TesteDeCaso* { return new TesteDeCaso(arquivo); });
    }
    return testing::UnitTest::GetInstance()->total_test_count() > 0 ? RUN_ALL_TESTS() : 1;
}
