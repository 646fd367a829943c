#pragma once
// Runs an action and expects an exception of kind E with exactly the given message.

#include <gtest/gtest.h>

#include "rtl/Exceptions.h"

namespace Tarvo::Testing {

template <class E = EConvertError, class F> void ExpectError(F AAction, const std::string& AMessage) {
  try {
    AAction();
    ADD_FAILURE() << "nothing raised, expected: " << AMessage;
  } catch (const E& e) {
    EXPECT_EQ(e.Message(), AMessage);
  }
}

} // namespace Tarvo::Testing
