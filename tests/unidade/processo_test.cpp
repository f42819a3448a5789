// What ends a process that no longer ends by itself.
#include "suite/firebird/Api.h"
#include "suite/program/Interrupt.h"
#include "suite/program/ProcessStart.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <unistd.h>

namespace {

using suite::firebird::Status;
using suite::program::Interrupt;
using namespace std::chrono_literals;

void gastar(std::chrono::milliseconds tempo) {
    const auto fim = std::chrono::steady_clock::now() + tempo;
    while (std::chrono::steady_clock::now() < fim) {
    }
}

class Processo : public testing::Test {
  protected:
    Processo() { testing::GTEST_FLAG(death_test_style) = "threadsafe"; }
};

} // namespace

TEST_F(Processo, UmaEsperaSemFimNaBibliotecaTerminaComUmaFrase) {
    EXPECT_EXIT(
        {
            Interrupt interrupt(300ms);
            interrupt.boundWaits(true);
            const Status chamada;
            std::this_thread::sleep_for(20s);
        },
        testing::ExitedWithCode(3), "parou de responder");
    EXPECT_EXIT(
        {
            Interrupt interrupt(300ms);
            {
                const Status servidor; // may take its time
                std::this_thread::sleep_for(600ms);
            }
            interrupt.boundWaits(true);
            std::this_thread::sleep_for(600ms); // not in the library
            const Status trabalho;
            gastar(600ms);
            std::_Exit(0);
        },
        testing::ExitedWithCode(0), "");
}

TEST_F(Processo, UmaQuedaSoEDoBancoDentroDaBiblioteca) {
    const auto cair = [](int sinal, bool dentro) {
        suite::program::prepareProcess();
        const auto chamada = dentro ? std::make_unique<Status>() : nullptr;
        std::raise(sinal);
        std::_Exit(0);
    };
    EXPECT_EXIT(cair(SIGSEGV, true), testing::ExitedWithCode(3), "danificado");
    EXPECT_EXIT(cair(SIGBUS, true), testing::ExitedWithCode(3), "Libere espaço");
    EXPECT_EXIT(cair(SIGABRT, false), testing::KilledBySignal(SIGABRT), "");
}

TEST_F(Processo, UmPedidoDeFimNaoEspera) {
    EXPECT_EXIT(
        {
            Interrupt interrupt;
            interrupt.onRequest([] { std::this_thread::sleep_for(20s); });
            ::kill(::getpid(), SIGTERM);
            std::this_thread::sleep_for(20s);
        },
        testing::ExitedWithCode(4), "cancelada");
}
