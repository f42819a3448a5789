#include "suite/program/Options.h"

#include "host/Falhas.h"

#include <CLI/CLI.hpp>

#include <cstdlib>
#include <fstream>

namespace suite::program {

namespace {

std::string environment(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

std::string readPassword(const std::string& file) {
    if (file.empty())
        return environment("ORCREAL_SENHA");
    std::ifstream in(file);
    std::string line;
    if (!in || !std::getline(in, line))
        throw host::TFalha("Não foi possível ler a senha do arquivo " + file +
                           ". Verifique o caminho e as permissões.");
    if (!line.empty() && line.back() == '\r')
        line.pop_back();
    return line;
}

// The library's complaints are English; these say what to do.
std::string complaint(const CLI::App& app, const CLI::ParseError& error) {
    const std::string name = error.get_name();
    std::string text;
    if (name == "ExtrasError")
        text = "Opção ou comando desconhecido: " +
               std::string(error.what()).substr(std::string(error.what()).rfind(": ") + 2) + ".";
    else if (name == "FileError" || name == "ConfigError" || name == "INIError")
        text = "O arquivo de opções não pôde ser lido: " + std::string(error.what()) + ".";
    else if (name == "ArgumentMismatch")
        text = "Falta o valor de uma opção: " +
               std::string(error.what()).substr(0, std::string(error.what()).find(':')) + ".";
    else
        text = "Valor inválido: " + std::string(error.what()) + ".";
    return text + " Veja \"" + app.get_name() + " --ajuda\".\n";
}

CLI::Validator oneOf(std::vector<std::string> values) {
    std::string list;
    for (const auto& value : values)
        list += (list.empty() ? "" : ", ") + value;
    return {[values, list](std::string& given) {
                return std::find(values.begin(), values.end(), given) != values.end()
                           ? std::string()
                           : "\"" + given + "\" não é um de " + list;
            },
            list};
}

CLI::Validator number(std::int64_t least, std::int64_t most) {
    return {[least, most](std::string& given) {
                std::int64_t value = 0;
                const bool read = CLI::detail::lexical_cast(given, value);
                return read && value >= least && value <= most
                           ? std::string()
                           : "\"" + given + "\" não é um número de " + std::to_string(least) + " a " +
                                 std::to_string(most);
            },
            "N"};
}

constexpr std::int64_t LargestCode = 999'999'999'999;

void translateHelp(CLI::App& app) {
    auto formatter = std::make_shared<CLI::Formatter>();
    formatter->column_width(34);
    for (const auto& [label, text] : {std::pair{"OPTIONS", "OPÇÕES"}, {"SUBCOMMAND", "COMANDO"},
                                      {"SUBCOMMANDS", "COMANDOS"}, {"Usage", "Uso"}, {"TEXT", "TEXTO"},
                                      {"Options", "Opções"}, {"Subcommands", "Comandos"}, {"Env", "Ambiente"}})
        formatter->label(label, text);
    app.formatter(formatter);
}

} // namespace

std::filesystem::path defaultDemoFile() {
    std::filesystem::path folder = environment("XDG_DATA_HOME");
    if (folder.empty() || folder.is_relative())
        folder = std::filesystem::path(environment("HOME")) / ".local" / "share";
    return folder / "orcreal" / "demonstracao.fdb";
}

ParsedLine parseCommandLine(int argc, const char* const* argv, const std::string& version) {
    Options options;
    std::string passwordFile;
    ConsultOptions consult;
    DemoOptions demo;

    CLI::App app("Orçado x realizado: compara o que as projeções orçaram com o que o diário contabilizou.", "orcreal");
    translateHelp(app);
    app.set_help_flag("-h,--help,--ajuda", "mostra esta ajuda");
    app.set_version_flag("--version,--versao", version, "mostra a versão");
    app.set_config("--config", "", "arquivo com as mesmas opções, uma por linha (chave = valor)");
    app.require_subcommand(0, 1);
    app.fallthrough();
    app.add_option("--banco", options.database,
                   "banco de dados: um arquivo, ou servidor/porta:caminho de um servidor Firebird; sem ela, o banco de "
                   "demonstração")
        ->envname("ORCREAL_BANCO")
        ->type_name("ALVO");
    app.add_option("--usuario-banco", options.credentials.user, "usuário do banco de dados")->type_name("U");
    app.add_option("--senha-arquivo", passwordFile,
                   "arquivo cuja primeira linha é a senha do banco (ou a variável ORCREAL_SENHA)")
        ->type_name("F");
    app.add_option("--empresa", options.login.company, "empresa logada, pelo código")->check(number(0, LargestCode));
    app.add_option("--filial", options.login.establishment, "estabelecimento logado, pelo número")
        ->check(number(0, LargestCode));
    app.add_option("--usuario", options.login.user, "usuário logado, pelo código")->check(number(0, LargestCode));

    auto* consultCommand = app.add_subcommand("consultar", "faz uma consulta e mostra suas linhas");
    consultCommand
        ->add_option("--visualizar", "base da consulta: o plano de contas")
        ->check(oneOf({"balanco"}));
    consultCommand
        ->add_option("--modo", consult.mode,
                     "1 agrupando períodos intermediários, 2 pesquisando período exato (padrão 1)")
        ->check(oneOf({"1", "2"}));
    consultCommand->add_option("--de", consult.from, "data inicial, o primeiro dia de um mês")->type_name("dd/mm/aaaa");
    consultCommand->add_option("--ate", consult.to, "data final, o último dia de um mês")->type_name("dd/mm/aaaa");
    consultCommand->add_option("--cenario", consult.scenario, "0 normal, 1 otimista, 2 pessimista (padrão 0)")
        ->check(oneOf({"0", "1", "2"}));
    consultCommand->add_flag("--agrupar", consult.groupEstablishments, "soma os estabelecimentos numa linha");
    consultCommand->add_option("--formato", consult.format, "tabela, csv ou json (padrão tabela)")
        ->check(oneOf({"tabela", "csv", "json"}));
    consultCommand->add_option("--saida", consult.output, "arquivo que recebe o resultado")->type_name("F");

    auto* demoCommand = app.add_subcommand("demo", "cria o banco de dados de demonstração");
    demoCommand->add_option("--destino", demo.destination, "arquivo a criar; sem ela, na pasta de dados do usuário")
        ->type_name("F");
    demoCommand->add_option("--escala", demo.scale, "multiplica projeções, contas e diário")->check(number(1, 1000));
    for (auto* command : {consultCommand, demoCommand}) {
        command->set_help_flag("-h,--help,--ajuda", "mostra esta ajuda");
        command->formatter(app.get_formatter());
    }

    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        return {{}, app.help(), false};
    } catch (const CLI::CallForVersion&) {
        return {{}, version + "\n", false};
    } catch (const CLI::ParseError& error) {
        return {{}, complaint(app, error), true};
    }
    options.credentials.password = readPassword(passwordFile);
    if (consultCommand->parsed())
        options.consult = consult;
    if (demoCommand->parsed())
        options.demo = demo;
    return {options, {}, false};
}

} // namespace suite::program
