#include "suite/program/Options.h"

#include "base/Falhas.h"
#include "suite/program/OptionChecks.h"
#include "suite/program/UserFolder.h"

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
        throw base::TFalha("Não foi possível ler a senha do arquivo " + file +
                           ". Verifique o caminho e as permissões.");
    if (!line.empty() && line.back() == '\r')
        line.pop_back();
    return line;
}

std::string behind(const std::string& text, const std::string& mark) {
    const auto position = text.rfind(mark);
    return position == std::string::npos ? text : text.substr(position + mark.size());
}

// The library's complaints are English; ours say what to do.
ParsedLine wrongUse(const std::string& what) { return {{}, what + ". Veja \"orcreal --ajuda\".\n", true}; }

void translateHelp(CLI::App& app) {
    auto formatter = std::make_shared<CLI::Formatter>();
    formatter->column_width(34);
    for (const auto& [label, text] : {std::pair{"OPTIONS", "OPÇÕES"},
                                      {"SUBCOMMAND", "COMANDO"},
                                      {"SUBCOMMANDS", "COMANDOS"},
                                      {"Usage", "Uso"},
                                      {"TEXT", "TEXTO"},
                                      {"Env", "variável"}})
        formatter->label(label, text);
    app.formatter(formatter);
}

void addSelectionOptions(CLI::App& command, ConsultOptions& options) {
    const auto add = [&](const char* name, std::string& value, const char* text, const char* type) {
        return command.add_option(name, value, text)->type_name(type);
    };
    const auto flag = [&](const char* name, bool& value, const char* text) {
        command.add_flag(name, value, text)->multi_option_policy(CLI::MultiOptionPolicy::Throw);
    };
    add("--visualizar", options.view, "balanco: plano de contas (padrão); demonstracao: demonstração configurável", "V")
        ->check(oneOf({"balanco", "demonstracao"}));
    add("--de", options.from, "data inicial, o primeiro dia de um mês", "dd/mm/aaaa");
    add("--ate", options.to, "data final, o último dia de um mês", "dd/mm/aaaa");
    add("--cenario", options.scenario, "0 normal (padrão), 1 otimista, 2 pessimista", "N")
        ->check(oneOf({"0", "1", "2"}));
    add("--relatorio", options.statement, "demonstração configurável, pelo código", "CODIGO")
        ->transform(number(0, LargestCode));
    add("--totalizadores", options.totalizers, "totalizadores da demonstração, pelos códigos", "C,C")
        ->transform(list(code));
    add("--estabelecimentos", options.establishments, "estabelecimentos, pelos números", "N,N")->transform(list(code));
    flag("--agrupar", options.groupEstablishments, "soma os estabelecimentos numa linha");
    add("--centros", options.centres, "centros de custo, pelos códigos", "C,C")->transform(list(code));
    add("--contas", options.accounts, "contas, pelos códigos; uma só traz as contas abaixo dela", "C,C")
        ->transform(list(code));
    add("--empresas", options.companies, "consolida a holding: empresa/estabelecimento", "N/F,N/F")
        ->transform(list(companyAndEstablishment));
    add("--detalhar", options.details, "abre os totalizadores: contas", "D,D")->transform(list());
    add("--linhas", options.lines, "linhas do modo 3: B base, O orçado, R realizado (padrão: todas)", "B,O,R")
        ->transform(list());
    add("--percentual", options.percentage, "orcado, base ou vertical", "P")
        ->check(oneOf({"orcado", "base", "vertical"}));
    flag("--diferenca", options.difference, "percentual pelo valor da diferença");
    flag("--periodos-sem-movimento", options.idlePeriods, "mostra também os períodos sem movimento");
    add("--totais", options.totals, "demonstração com totais já gerados: consultar como estão, ou reatualizar antes",
        "T")
        ->check(oneOf({"consultar", "reatualizar"}));
    add("--dependencias", options.dependencies,
        "demonstração que depende de outras: gerar só os totais do selecionado, com os das outras como estão gravados, "
        "ou de todos; as que usam o selecionado não são geradas: reatualize-as depois",
        "D")
        ->check(oneOf({"selecionado", "todos"}));
    add("--saida", options.output, "grava o resultado no arquivo F", "F")->check(notEmpty());
}

void addConsultOptions(CLI::App& command, ConsultOptions& options) {
    command.add_option("--modo", options.mode, "1 agrupando períodos, 2 período exato, 3 períodos em colunas")
        ->type_name("M")
        ->check(oneOf({"1", "2", "3"}));
    addSelectionOptions(command, options);
    command.add_option("--formato", options.format, "tabela (padrão), csv, json, xlsx ou html")
        ->type_name("T")
        ->check(oneOf({"tabela", "csv", "json", "xlsx", "html"}));
    command.add_flag("--criterios", options.criteria, "escreve no csv, antes das linhas, o que foi pedido")
        ->multi_option_policy(CLI::MultiOptionPolicy::Throw);
}

void addPrintOptions(CLI::App& command, ConsultOptions& options) {
    options.format = "pdf";
    command
        .add_option("--modo", options.mode,
                    "1 agrupando períodos, 2 período exato, 3 períodos em colunas, 5 razão dos totalizadores")
        ->type_name("M")
        ->check(oneOf({"1", "2", "3", "4", "5"}));
    addSelectionOptions(command, options);
    command.add_option("--formato", options.format, "pdf (padrão), html ou xlsx, que pedem --saida, ou texto")
        ->type_name("T")
        ->check(oneOf({"pdf", "texto", "html", "xlsx"}));
}

void addActualsOptions(CLI::App& command, ActualsOptions& options) {
    command.add_option("--de", options.from, "data inicial, o primeiro dia de um mês")->type_name("dd/mm/aaaa");
    command.add_option("--ate", options.to, "data final, o último dia de um mês")->type_name("dd/mm/aaaa");
    command.add_option("--cenarios", options.scenarios, "0 normal (padrão), 1 otimista, 2 pessimista")
        ->type_name("N,N")
        ->transform(list(number(0, 2)));
    command
        .add_option("--confrontar", options.confront,
                    "mensais: cada mês com as projeções desse mês (padrão); periodo: o período todo, de uma vez")
        ->type_name("C")
        ->check(oneOf({"mensais", "periodo"}));
    command
        .add_option("--estabelecimento", options.establishment, "um só estabelecimento, pelo número (padrão: todos)")
        ->type_name("N")
        ->transform(number(1, LargestCode));
    command.add_option("--formato", options.format, "o que mudou, em tabela (padrão) ou json")
        ->type_name("T")
        ->check(oneOf({"tabela", "json"}));
}

} // namespace

std::filesystem::path defaultDemoFile() { return userFolder("XDG_DATA_HOME", ".local/share") / "demonstracao.fdb"; }

ParsedLine parseCommandLine(int argc, const char* const* argv, const std::function<std::string()>& version) {
    Options options;
    std::string passwordFile;
    ConsultOptions consult;
    ConsultOptions print;
    ActualsOptions actuals;
    DemoOptions demo;
    ScriptOptions script;

    CLI::App app("Orçado x realizado: compara o que as projeções orçaram com o que o diário contabilizou.", "orcreal");
    translateHelp(app);
    app.option_defaults()->group("Opções gerais");
    app.set_help_flag("-h,--help,--ajuda", "mostra esta ajuda")->group("Opções gerais");
    app.set_version_flag("--version,--versao", version, "mostra a versão")->group("Opções gerais");
    app.set_config("--config", "", "arquivo com as mesmas opções (chave = valor)")
        ->type_name("F")
        ->check(notEmpty())
        ->group("Opções gerais");
    // A value is one text, with whatever commas and blanks it has.
    app.get_config_formatter_base()->arrayDelimiter('\x1F');
    app.allow_config_extras(CLI::config_extras_mode::error);
    app.require_subcommand(0, 1);
    app.fallthrough();
    app.add_option("--banco", options.database, "arquivo, ou servidor/porta:caminho; sem ela, o banco de demonstração")
        ->envname("ORCREAL_BANCO")
        ->check(notEmpty())
        ->type_name("ALVO");
    app.add_option("--usuario-banco", options.credentials.user, "usuário do banco de dados")->type_name("U");
    app.add_option("--senha-arquivo", passwordFile, "a senha na primeira linha de F (ou em ORCREAL_SENHA)")
        ->type_name("F")
        ->check(notEmpty());
    app.add_option("--empresa", options.login.company, "empresa logada, pelo código (padrão: a menor)")
        ->type_name("N")
        ->transform(number(0, LargestCode));
    app.add_option("--filial", options.login.establishment, "estabelecimento logado, pelo número (padrão: o menor)")
        ->type_name("N")
        ->transform(number(0, LargestCode));
    app.add_option("--usuario", options.login.user, "usuário logado, pelo código (padrão: o menor)")
        ->type_name("N")
        ->transform(number(0, LargestCode));
    app.add_option("--pasta-log", options.login.logFolder, "pasta de log do hospedeiro")
        ->type_name("D")
        ->check(notEmpty());

    auto* windowCommand = app.add_subcommand("janela", "abre a janela (também sem nenhum comando)");

    auto* consultCommand = app.add_subcommand("consultar", "faz uma consulta e mostra suas linhas");
    addConsultOptions(*consultCommand, consult);

    auto* printCommand = app.add_subcommand("imprimir", "faz uma consulta e o seu relatório");
    addPrintOptions(*printCommand, print);

    auto* actualsCommand =
        app.add_subcommand("realizado", "atualiza o realizado das projeções pelo diário, ou o exclui");
    actualsCommand->require_subcommand(1);
    auto* updateCommand = actualsCommand->add_subcommand("atualizar", "confronta as projeções com o diário");
    auto* removeCommand = actualsCommand->add_subcommand("excluir", "zera o realizado das projeções");
    addActualsOptions(*updateCommand, actuals);
    addActualsOptions(*removeCommand, actuals);
    updateCommand->add_flag("--totais", actuals.totals, "gera de novo os totais das demonstrações que já os tinham")
        ->multi_option_policy(CLI::MultiOptionPolicy::Throw);
    removeCommand->add_flag("--sim", actuals.confirmed, "não pergunta antes de excluir")
        ->multi_option_policy(CLI::MultiOptionPolicy::Throw);

    auto* demoCommand = app.add_subcommand("demo", "cria o banco de dados de demonstração");
    demoCommand->add_option("--destino", demo.destination, "arquivo a criar (padrão: na pasta de dados do usuário)")
        ->type_name("F")
        ->check(notEmpty());
    demoCommand->add_option("--escala", demo.scale, "multiplica projeções, contas e diário (padrão 1)")
        ->type_name("N")
        ->transform(number(1, 1000));

    auto* scriptCommand =
        app.add_subcommand("roteiro", "executa um roteiro na janela e escreve o que acontece em JSON");
    scriptCommand->add_option("F", script.file, "o roteiro, um passo por linha; - lê a entrada padrão")
        ->type_name("")
        ->required()
        ->check(readable());
    auto* verifyCommand = app.add_subcommand("verificar", "diz se o banco de dados serve, e o que lhe falta");
    for (auto* command : {windowCommand, consultCommand, printCommand, actualsCommand, updateCommand, removeCommand,
                          demoCommand, scriptCommand, verifyCommand}) {
        command->group("Comandos");
        command->set_help_flag("-h,--help,--ajuda", "mostra esta ajuda")->group("Opções do comando");
        command->formatter(app.get_formatter());
        for (auto* option : command->get_options())
            option->group("Opções do comando");
    }

    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        return {{}, app.help(), false}; // of the command, where one stands before it
    } catch (const CLI::CallForVersion& called) {
        return {{}, std::string(called.what()) + "\n", false};
    } catch (const CLI::ExtrasError& error) {
        return wrongUse("Opção ou comando desconhecido: " + behind(error.what(), ": "));
    } catch (const CLI::FileError&) {
        return wrongUse("O arquivo de opções " + app.get_config_ptr()->as<std::string>() + " não pôde ser lido");
    } catch (const CLI::ConversionError& error) { // of a flag; other values have been looked at
        return wrongUse("Valor inválido em " + behind(error.what(), ": "));
    } catch (const CLI::ConfigError& error) {
        return wrongUse("O arquivo de opções tem uma linha que não se entende: " + behind(error.what(), "parse "));
    } catch (const CLI::RequiredError&) {
        if (actualsCommand->parsed())
            return wrongUse("O comando realizado pede atualizar ou excluir");
        return wrongUse("Falta o arquivo do roteiro; \"-\" lê a entrada padrão");
    } catch (const CLI::ArgumentMismatch& error) {
        const std::string text = error.what();
        const auto name = text.substr(0, text.find(':'));
        return wrongUse(text.find("At Most") == std::string::npos ? "Falta o valor da opção " + name
                                                                  : "A opção " + name + " foi dada mais de uma vez");
    } catch (const CLI::ParseError& error) {
        return wrongUse("Valor inválido em " + std::string(error.what()));
    }
    options.credentials.password = readPassword(passwordFile);
    if (consultCommand->parsed())
        options.consult = consult;
    if (printCommand->parsed())
        options.print = print;
    if (actualsCommand->parsed()) {
        actuals.remove = removeCommand->parsed();
        options.actuals = actuals;
    }
    if (demoCommand->parsed())
        options.demo = demo;
    if (scriptCommand->parsed())
        options.script = script;
    options.verify = verifyCommand->parsed();
    return {options, {}, false};
}

} // namespace suite::program
