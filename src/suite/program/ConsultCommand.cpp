#include "suite/program/ConsultCommand.h"

#include "host/Falhas.h"
#include "host/Registro.h"
#include "host/Texto.h"
#include "suite/script/FormDriver.h"
#include "suite/script/Rows.h"

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <sys/ioctl.h>
#include <unistd.h>

namespace suite::program {

namespace {

using script::ShownColumn;

constexpr std::array<ShownColumn, 18> BalanceColumns{{
    {"CLASSIFCONTAB", "Classificação"},
    {"CONTA", "Conta", 6, false, true},
    {"NOMECONTA", "Nome da Conta", 0, true},
    {"CODIGO", "Sub", 4, false, true},
    {"FILIAL", "Filial", 0, false, true},
    {"CCUSTO", "C.Custo", 0, false, true},
    {"DESCCCUSTO", "Desc.Custo", 9},
    {"TPATUALIZBASE", "TP Atualiz.", 8, false, true},
    {"INDICEATBASE", "% Atualiz.", 8, false, true},
    {"VLRBASE", "Valor Base", 3},
    {"TPPROJECAO", "Proj.", 7, false, true},
    {"TPBASEPROJ", "Base Proj.", 7, false, true},
    {"PERCORCADO", "% Orçado", 8, false, true},
    {"VLRORCADO", "Valor Orçado"},
    {"VLRREALIZADO", "Valor Realizado"},
    {"DELTAVLR", "Variação"},
    {"DELTAPERC", "% Realizado", 1},
    {"DELTAVARIACAO", "% Variação", 2},
}};

constexpr std::size_t DefaultWidth = 120;

// Of the terminal, or of a page where there is none.
std::size_t tableWidth(bool terminal) {
    winsize size{};
    if (terminal && ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0)
        return std::max<std::size_t>(size.ws_col, 80);
    return DefaultWidth;
}

void fillIn(script::FormDriver& dialog, const ConsultOptions& options) {
    dialog.define("CbCenario", options.scenario);
    dialog.define("DeDataIni", options.from);
    dialog.define("DeDataFim", options.to);
    dialog.define("CbDetalharSelecao", options.mode);
    // Dates that are none stop at the commit with their message; only good ones decide what else may be chosen.
    if (!options.groupEstablishments)
        return;
    dialog.leave("DeDataIni");
    dialog.leave("DeDataFim");
    dialog.leave("CbDetalharSelecao");
    if (!dialog.enabled("ChkAgruparValFiliais"))
        throw host::TFalha("A opção --agrupar não se aplica: as projeções deste período não são detalhadas por "
                           "estabelecimento. Retire a opção.");
    dialog.define("ChkAgruparValFiliais", "1");
}

std::string itemOf(const host::TForm& dialog, const char* combo) {
    const auto& control = dynamic_cast<const host::TZTComboBox&>(dialog.Controle(combo));
    return host::Trim(control.Itens()[static_cast<std::size_t>(control.ItemIndex())]);
}

std::string heading(const host::TForm& dialog, const ConsultOptions& options, const Login& login) {
    return "Orçado x realizado por conta: " + itemOf(dialog, "CbDetalharSelecao") + "\n" +
           std::to_string(login.company().Codigo) + " - " + login.company().Nome + "\nPeríodo de " + options.from +
           " a " + options.to + ", cenário " + itemOf(dialog, "CbCenario") + "\n\n";
}

void write(std::ostream& out, const host::TDataSet& rows, const ConsultOptions& options, const std::string& heading,
           bool terminal) {
    if (options.format == "json") {
        script::writeJson(out, rows);
    } else if (options.format == "csv") {
        script::writeCsv(out, rows, BalanceColumns);
    } else {
        out << heading;
        script::writeTable(out, rows, BalanceColumns, tableWidth(terminal), terminal);
    }
}

// Whole or not at all: an earlier file stays until the new one is complete.
void writeFile(const host::TDataSet& rows, const ConsultOptions& options, const std::string& heading) {
    const std::filesystem::path partial = options.output + ".parcial";
    {
        std::ofstream out(partial, std::ios::binary);
        if (options.format == "csv")
            out << "\xEF\xBB\xBF"; // without it spreadsheets take the accents for another character set
        write(out, rows, options, heading, false);
        out.close();
        if (!out) {
            std::error_code ignored;
            std::filesystem::remove(partial, ignored);
            throw host::TFalha("Não foi possível gravar " + options.output +
                               ". Verifique a pasta, as permissões e o espaço em disco.");
        }
    }
    std::filesystem::rename(partial, options.output);
}

} // namespace

ExitCode runConsult(const ConsultOptions& options, const Login& login, script::Headless& interaction) {
    const auto factory = host::FindClass("TForm04618");
    if (!factory)
        throw host::TFalha("O módulo carregado não tem a janela de consulta.");
    const auto window = factory();
    window->InitializeForm();
    std::string title;
    interaction.onModal = [&](host::TFormZTTandorPadraoResult& form) {
        script::FormDriver dialog(form);
        fillIn(dialog, options);
        title = heading(form, options, login);
        dialog.click("actOK");
    };
    window->Executar(window->Acao("ActSelecionar"));
    const auto& rows = window->DataSet("CdsMostraCtbOrcada");
    if (!rows.Active())
        return ExitCode::Refused; // the rules have said why
    if (!options.output.empty()) {
        writeFile(rows, options, title);
        return ExitCode::Done;
    }
    write(std::cout, rows, options, title, ::isatty(STDOUT_FILENO) != 0);
    std::cout.flush();
    if (!std::cout)
        throw host::TFalha("Não foi possível escrever o resultado na saída.");
    return ExitCode::Done;
}

} // namespace suite::program
