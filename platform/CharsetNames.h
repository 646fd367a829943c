#pragma once
#pragma GCC visibility push(default)
// The font charsets by name.

#include "platform/NamedValues.h"

namespace Tarvo {

// The charset's name; false for a number that names none.
Boolean CharsetToIdent(Integer ACharset, String& AIdent);
// The number of a charset name, in any case; false for a name that is none.
Boolean IdentToCharset(const String& AIdent, Integer& ACharset);
// Each charset name, in the order of their numbers.
void GetCharsetValues(const TGetStrProc& AProc);

} // namespace Tarvo

#pragma GCC visibility pop
