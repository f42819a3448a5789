// What an event of the selection dialog costs where no query is due: ticking boxes that exclude and force one another,
// picking in a combo, a date typed and left.
//
//   bench_selecao FILE      a database made by "orcreal demo"
#include "host/Servicos.h"
#include "selection/Un04618FormSelecao.h"
#include "suite/firebird/Connection.h"
#include "suite/program/Login.h"
#include "suite/script/FormDriver.h"
#include "suite/terminal/Headless.h"

#include <chrono>
#include <cstdio>
#include <functional>
#include <iostream>

namespace {

constexpr int Rounds = 20'000;

void measure(const char* what, int eventsPerRound, const std::function<void(int)>& round) {
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < Rounds; ++i)
        round(i);
    const std::chrono::duration<double, std::micro> spent = std::chrono::steady_clock::now() - start;
    std::printf("%-55s %8.3f microseconds an event\n", what, spent.count() / (double{Rounds} * eventsPerRound));
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2)
        return 2;
    suite::firebird::Connection connection(suite::firebird::Target(argv[1]), {});
    suite::terminal::Headless interaction(std::cerr, false);
    host::TServicos services;
    services.Conexao = &connection;
    services.Interacao = &interaction;
    const host::TInstalacaoServicos connected(services);
    suite::program::Login login({});
    services.EmpresaLogada = &login;
    services.Contabil = &login;
    const host::TInstalacaoServicos loggedIn(services);
    pct04618::TDM04618 dm;
    dm.FIDEmpresa = login.GetIDEmpresa();
    dm.CarregarFiliais();
    pct04618::TForm04618Selecao form(dm);
    form.FormShow();
    suite::script::FormDriver user(form);
    user.define("DeDataIni", "01/01/2024");
    user.leave("DeDataIni");
    user.define("DeDataFim", "30/06/2024");
    user.leave("DeDataFim");
    user.define("CbSelecionar", "2");
    user.leave("CbSelecionar");
    user.leave("CbDetalharSelecao");

    const char* const percentages[] = {"ChkDetPercRealizadoXOrcado", "ChkDetPercRealizadoXBase",
                                       "ChkDetPercAnaliseVertical"};
    measure("percentage box ticked (two others and lines follow)", 1,
            [&](int i) { user.define(percentages[i % 3], "1"); });
    measure("line box unticked and ticked", 2, [&](int) {
        user.define("ChkLinhaVlrBase", "0");
        user.define("ChkLinhaVlrBase", "1");
    });
    measure("date typed and left (validated)", 1, [&](int i) {
        user.define("DeDataIni", i % 2 == 0 ? "01/02/2024" : "01/01/2024");
        user.leave("DeDataIni");
    });
    measure("view left (lists of the modes made anew)", 1, [&](int) { user.leave("CbSelecionar"); });
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < 50; ++i)
        user.leave("CbDetalharSelecao");
    const std::chrono::duration<double, std::milli> spent = std::chrono::steady_clock::now() - start;
    std::printf("%-55s %8.3f milliseconds (with its queries)\n", "mode left (the main pass)", spent.count() / 50);
    return 0;
}
