#pragma once
#pragma GCC visibility push(default)
// The exception family of the runtime. Every error the runtime raises is an Exception with
// a message; the kinds below let callers catch by meaning.

#include <stdexcept>
#include <string>

namespace Tarvo {

// Every exception class has its destructor, and with it its table of virtual functions, in the
// library that declares it: an exception a component module raises is often caught and freed
// after the module has been unloaded, when code of the module's own could no longer run.
class Exception : public std::exception {
public:
  explicit Exception(std::string AMessage) : FMessage(std::move(AMessage)) {}
  ~Exception() override;
  const char* what() const noexcept override { return FMessage.c_str(); }
  const std::string& Message() const noexcept { return FMessage; }

private:
  std::string FMessage;
};

// Declares an exception class that adds nothing but its meaning; TARVO_IMPLEMENT_EXCEPTION in one
// source file of its library gives it its destructor.
#define TARVO_DECLARE_EXCEPTION(AName, AParent)                                                                        \
  class AName : public AParent {                                                                                       \
  public:                                                                                                              \
    using AParent::AParent;                                                                                            \
    ~AName() override;                                                                                                 \
  };
#define TARVO_IMPLEMENT_EXCEPTION(AName) AName::~AName() = default;

TARVO_DECLARE_EXCEPTION(EConvertError, Exception)
TARVO_DECLARE_EXCEPTION(EInvalidCast, Exception)
TARVO_DECLARE_EXCEPTION(EVariantError, Exception)
TARVO_DECLARE_EXCEPTION(EVariantTypeCastError, EVariantError)
TARVO_DECLARE_EXCEPTION(EAssertionFailed, Exception)
TARVO_DECLARE_EXCEPTION(ERangeError, Exception)
TARVO_DECLARE_EXCEPTION(EArgumentException, Exception)
TARVO_DECLARE_EXCEPTION(EArgumentOutOfRangeException, EArgumentException)
TARVO_DECLARE_EXCEPTION(EListError, Exception)
TARVO_DECLARE_EXCEPTION(EModuleError, Exception)
TARVO_DECLARE_EXCEPTION(EComponentError, Exception)
TARVO_DECLARE_EXCEPTION(EInvalidOperation, Exception)
TARVO_DECLARE_EXCEPTION(EDesignPropertyError, Exception)

// Raises EAssertionFailed with "Assertion failure (file, line N)"; never aborts, so argument
// checks stay testable.
[[noreturn]] void RaiseAssertion(const char* AFile, int ALine, const char* AExpression);

} // namespace Tarvo

#define TARVO_ASSERT(ACondition)                                                                                       \
  do {                                                                                                                 \
    if (!(ACondition)) ::Tarvo::RaiseAssertion(__FILE__, __LINE__, #ACondition);                                       \
  } while (false)

#pragma GCC visibility pop
