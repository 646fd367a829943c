#pragma once
#pragma GCC visibility push(default)
// The stock cursors by name and number, and the shape each one has on screen.

#include <Qt>

#include <optional>

#include "platform/NamedValues.h"
#include "runtime/NamedTypes.h"

namespace Tarvo {

// The cursor's name; the number itself for a cursor that has none.
String CursorToString(TCursor ACursor);
// The number of a cursor name, in any case; false for a name that is none.
Boolean IdentToCursor(const String& AIdent, Integer& ACursor);
// Each cursor name, from crDefault down through the stock numbers.
void GetCursorValues(const TGetStrProc& AProc);
// The shape the screen shows for a cursor number; none for crNone and for numbers no cursor has.
std::optional<Qt::CursorShape> ScreenCursor(Integer ACursor);

} // namespace Tarvo

#pragma GCC visibility pop
