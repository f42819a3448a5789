#pragma once

#include "host/Grade.h"

#include <vector>

namespace suite::table {

// What the rows of a grid's dataset say of themselves, by the rule that the grid's owner has told. A row is one of the
// dataset's columns. Valid while the dataset stays as it is.
class Lines {
  public:
    Lines() = default;
    explicit Lines(const host::TGrade& grid); // whose dataset is open

    enum class Kind { Analytic, Title, Unmarked };
    Kind kind(std::size_t row) const;
    bool tellsTitles() const { return title_ != nullptr; }
    bool tellsTypes() const { return type_ != nullptr; }
    int type(std::size_t row) const;               // 1 base, 2 budget, 3 actual; 0: none is told
    bool holdsOthers(std::size_t row) const;       // a totalizer, which holds accounts that stand beside it
    bool worse(std::size_t row) const;             // than its budget
    bool same(std::size_t a, std::size_t b) const; // rows of one line
    // The second one goes on with the block of rows of the first, which stands before it.
    bool follows(std::size_t above, std::size_t row) const;
    bool isBelow(std::size_t above, std::size_t row) const; // by the account's classification

  private:
    const host::TColuna* title_ = nullptr;
    const host::TColuna* type_ = nullptr;
    const host::TColuna* account_ = nullptr;
    const host::TColuna* sign_ = nullptr;
    const host::TColuna* level_ = nullptr;
    std::vector<const host::TColuna*> key_;
};

} // namespace suite::table
