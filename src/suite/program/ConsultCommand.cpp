#include "suite/program/ConsultCommand.h"

#include "host/Falhas.h"
#include "host/Lookup.h"
#include "host/Registro.h"
#include "host/Texto.h"
#include "suite/program/FillSelection.h"
#include "suite/program/ResultColumns.h"
#include "suite/script/Rows.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <sys/ioctl.h>
#include <unistd.h>

namespace suite::program {

namespace {

constexpr std::size_t DefaultWidth = 120;

// Of the terminal, or of a page where there is none.
std::size_t tableWidth(bool terminal) {
    winsize size{};
    if (terminal && ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0)
        return std::max<std::size_t>(size.ws_col, 80);
    return DefaultWidth;
}

std::string itemOf(const host::TForm& dialog, const char* combo) {
    const auto& control = dynamic_cast<const host::TZTComboBox&>(dialog.Controle(combo));
    return host::Trim(control.Itens()[static_cast<std::size_t>(control.ItemIndex())]);
}

std::string heading(const host::TForm& dialog, const ConsultOptions& options, const Login& login) {
    std::string what = "por conta";
    if (options.view == "demonstracao") {
        const auto& statement = dynamic_cast<const host::TZTLookupEx&>(dialog.Controle("LkpRelatorioDemonstConfig"));
        what = "- " + statement.Codigo() + " - " + statement.Texto();
    }
    return "Orçado x realizado " + what + ": " + itemOf(dialog, "CbDetalharSelecao") + "\n" +
           std::to_string(login.company().Codigo) + " - " + login.company().Nome + "\nPeríodo de " + options.from +
           " a " + options.to + ", cenário " + itemOf(dialog, "CbCenario") + "\n\n";
}

void write(std::ostream& out, const host::TDataSet& rows, const ConsultOptions& options, const std::string& heading,
           bool terminal) {
    if (options.format == "json") {
        script::writeJson(out, rows);
    } else if (options.format == "csv") {
        script::writeCsv(out, rows, resultColumns(rows));
    } else {
        out << heading;
        script::writeTable(out, rows, resultColumns(rows), tableWidth(terminal), terminal);
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
        fillSelection(form, options, interaction);
        title = heading(form, options, login);
    };
    window->Executar(window->Acao("ActSelecionar"));
    const auto& balance = window->DataSet("CdsMostraCtbOrcada");
    const auto& rows = balance.Active() ? balance : window->DataSet("CdsMostraCtbOrcMensal");
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
