#pragma once

// Every class that the program, the module and the tests share across library borders is exported by name:
// the rest of each library stays hidden.
#define BASE_API __attribute__((visibility("default")))
