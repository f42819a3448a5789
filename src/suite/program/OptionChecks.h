#pragma once

#include <CLI/CLI.hpp>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace suite::program {

// What the values of options must be. Each complaint is the rest of a sentence that begins with the option's name.
CLI::Validator oneOf(std::vector<std::string> values);
CLI::Validator notEmpty();
// A file to read; "-" is standard input.
CLI::Validator readable();

// These rewrite the value, so they go in by transform. Numbers are decimal, whatever they begin with; they lose their
// leading zeros.
CLI::Validator number(std::int64_t least, std::int64_t most);
// A list with commas: no item empty, none twice. Item may rewrite an item and returns what is wrong with it.
CLI::Validator list(std::function<std::string(std::string&)> item = {});
// Items of a list: a code; an establishment as company/establishment.
std::string code(std::string& item);
std::string companyAndEstablishment(std::string& item);

constexpr std::int64_t LargestCode = 999'999'999'999;

} // namespace suite::program
