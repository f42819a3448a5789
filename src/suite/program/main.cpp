#include "suite/program/Program.h"

int main(int argc, char** argv) { return static_cast<int>(suite::program::run(argc, argv)); }
