#include "rtl/Exceptions.h"

namespace Tarvo {

Exception::~Exception() = default;
TARVO_IMPLEMENT_EXCEPTION(EConvertError)
TARVO_IMPLEMENT_EXCEPTION(EInvalidCast)
TARVO_IMPLEMENT_EXCEPTION(EVariantError)
TARVO_IMPLEMENT_EXCEPTION(EVariantTypeCastError)
TARVO_IMPLEMENT_EXCEPTION(EAssertionFailed)
TARVO_IMPLEMENT_EXCEPTION(ERangeError)
TARVO_IMPLEMENT_EXCEPTION(EArgumentException)
TARVO_IMPLEMENT_EXCEPTION(EArgumentOutOfRangeException)
TARVO_IMPLEMENT_EXCEPTION(EListError)
TARVO_IMPLEMENT_EXCEPTION(EModuleError)
TARVO_IMPLEMENT_EXCEPTION(EComponentError)
TARVO_IMPLEMENT_EXCEPTION(EInvalidOperation)
TARVO_IMPLEMENT_EXCEPTION(EDesignPropertyError)

void RaiseAssertion(const char* AFile, int ALine, const char* AExpression) {
  throw EAssertionFailed(std::string("Assertion failure: ") + AExpression + " (" + AFile + ", line " +
                         std::to_string(ALine) + ")");
}

} // namespace Tarvo
