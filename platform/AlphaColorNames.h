#pragma once
#pragma GCC visibility push(default)
// The names of alpha colours: the CSS colour keywords, written "cla" and the keyword in camel
// case ("claAliceBlue", "claRed"), each opaque, and "claTransparent" for 0. A name is read in
// any case, with or without its "cla".

#include <vector>

#include "platform/GXTypes.h"

namespace Tarvo {

// The name of AColor when one has exactly that value, else "#AARRGGBB".
String RGBAColorToString(TAlphaColor AColor);
// A name, "#AARRGGBB", "#RRGGBB" (opaque), or a number as StrToInt64 reads it within 32 bits
// ("4278190335", "$FF0000FF"); EConvertError otherwise.
TAlphaColor StringToRGBAColor(const String& AText);
// Every name, in alphabetical order of the keywords.
std::vector<String> GetStandardRGBAColorNames();

} // namespace Tarvo

#pragma GCC visibility pop
