#include "suite/program/ProcessStart.h"

#include "base/Passageiros.h"
#include "suite/firebird/Api.h"
#include "suite/program/ExitCode.h"

#include <clocale>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace suite::program {

namespace {

// Open the wrong way round, so that a use fails as it would on the closed one.
void occupyStandardDescriptors() {
    for (const auto& [number, mode] :
         {std::pair{STDIN_FILENO, O_WRONLY}, std::pair{STDOUT_FILENO, O_RDONLY}, std::pair{STDERR_FILENO, O_RDONLY}})
        if (::fcntl(number, F_GETFD) < 0 && ::open("/dev/null", mode) != number)
            ::_exit(static_cast<int>(ExitCode::Refused)); // the lowest free number is the one just looked at
}

constexpr char DamagedSentence[] =
    "O banco de dados não pôde ser lido: um arquivo dele está danificado. Restaure uma cópia de segurança, ou "
    "verifique-o com gfix. Nada ficou gravado pela metade.\n";
constexpr char FullDiskSentence[] = "O disco do banco de dados encheu durante o trabalho, ou deixou de responder. "
                                    "Libere espaço e tente novamente; nada "
                                    "ficou gravado pela metade.\n";

extern "C" void onCrash(int number) {
    if (!firebird::insideLibrary()) {
        ::signal(number, SIG_DFL);
        ::raise(number);
        return;
    }
    const char* sentence = number == SIGBUS ? FullDiskSentence : DamagedSentence;
    static_cast<void>(!::write(STDERR_FILENO, sentence, std::strlen(sentence)));
    base::RemoverPassageiros();
    ::_exit(static_cast<int>(ExitCode::DatabaseFailure));
}

void catchCrashes() {
    static char stack[64 * 1024]; // a walk over damaged pages may end by having used up the thread's own
    const stack_t apart{stack, 0, sizeof stack};
    ::sigaltstack(&apart, nullptr);
    struct sigaction action {};
    action.sa_handler = onCrash;
    action.sa_flags = SA_NODEFER | SA_ONSTACK;
    for (const int number : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT})
        ::sigaction(number, &action, nullptr);
}

} // namespace

void prepareProcess() {
    occupyStandardDescriptors();
    // The client library converts names of files from the locale's character set. Qt, and a name in UTF-8, need no
    // other.
    std::setlocale(LC_CTYPE, "C.UTF-8");
    catchCrashes();
}

} // namespace suite::program
