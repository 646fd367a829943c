#pragma once
#pragma GCC visibility push(default)
// The names of TColor values: the fixed colours, the system colours (resolved through the
// application palette by ColorToRGB, GXTypes.h), clNone and clDefault. Names are compared without
// regard to case and written as the table has them.


#include "platform/GXTypes.h"
#include "platform/NamedValues.h"

namespace Tarvo {

inline constexpr TColor clSilver = 0xC0C0C0;

// The name of AColor, else its eight hexadecimal digits after "$" ("$00A0B0C0").
String ColorToString(TColor AColor);
// A name, or a number as StrToInt reads it ("255", "$FF0000", "-16777211"); EConvertError
// otherwise.
TColor StringToColor(const String& AText);
Boolean IdentToColor(const String& AIdent, TColor& AColor);
Boolean ColorToIdent(TColor AColor, String& AIdent);
// Calls AProc with each name, fixed colours first, then system colours, then clNone and clDefault.
void GetColorValues(const TGetStrProc& AProc);

} // namespace Tarvo

#pragma GCC visibility pop
