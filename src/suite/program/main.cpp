#include "suite/program/ProcessStart.h"
#include "suite/program/Program.h"

int main(int argc, char** argv) {
    suite::program::prepareProcess();
    return static_cast<int>(suite::program::run(argc, argv));
}
