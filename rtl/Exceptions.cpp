#include "rtl/Exceptions.h"

namespace Tarvo {

void RaiseAssertion(const char* AFile, int ALine, const char* AExpression) {
  throw EAssertionFailed(std::string("Assertion failure: ") + AExpression + " (" + AFile + ", line " +
                         std::to_string(ALine) + ")");
}

} // namespace Tarvo
