#pragma once
#pragma GCC visibility push(default)
// UTF-8 checks for texts that reach messages: a name or a value read from a file may hold any
// bytes, and a message must stay readable text whatever they are.

#include <string_view>

#include "rtl/Types.h"

namespace Tarvo {

// Well-formed UTF-8: no stray continuation bytes, no overlong forms, no surrogates, nothing
// above U+10FFFF.
bool IsValidUtf8(std::string_view AText);
// AText with every byte that is no part of a well-formed sequence written as "\xHH" (upper-case
// hex); valid text comes back unchanged.
String EscapedUtf8(std::string_view AText);
// As EscapedUtf8, of at most AMaxBytes of AText cut where a character ends, with "..." after
// a text that was cut: a text of any length quoted in a message.
String EscapedUtf8Excerpt(std::string_view AText, std::size_t AMaxBytes);

} // namespace Tarvo

#pragma GCC visibility pop
