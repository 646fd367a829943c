#pragma once
#pragma GCC visibility push(default)
// Bases of generated component names.

#include "rtl/Object.h"

namespace Tarvo {

// The class name without its leading "T": the base of generated names such as "Shape1".
String GetClassNameBase(TClass AClass);
String GetClassNameBase(TObject* AObject);

} // namespace Tarvo

#pragma GCC visibility pop
