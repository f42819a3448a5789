#pragma once

#include <filesystem>
#include <string>

namespace suite::firebird {

// Where a database is: a file for the embedded engine, or a connection string of a server
// ("host:path", "host/port:path", "inet://host:port/path").
class Target {
  public:
    explicit Target(std::string text);

    bool embedded() const { return embedded_; }
    const std::string& text() const { return text_; }    // as given; a file's path is absolute
    std::filesystem::path file() const { return text_; } // of an embedded target

  private:
    std::string text_;
    bool embedded_;
};

struct Credentials {
    std::string user;     // empty: SYSDBA
    std::string password; // embedded engine: not asked
};

} // namespace suite::firebird
