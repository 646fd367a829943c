#pragma once
// Table-driven tests: every row of a table carries a Name, and a check that fails while a row is
// walked says which row it was in.

#include <gtest/gtest.h>

namespace Tarvo::Testing {

// Calls ACheck(row) for each row of ARows with the row's Name in the trace of every failure.
template <class Rows, class Check> void ForEachRow(const Rows& ARows, Check&& ACheck) {
  for (const auto& row : ARows) {
    SCOPED_TRACE(testing::Message() << "row \"" << row.Name << "\"");
    ACheck(row);
  }
}

} // namespace Tarvo::Testing
