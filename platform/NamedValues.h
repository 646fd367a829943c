#pragma once
#pragma GCC visibility push(default)
// The platform's tables of values known by name (colours, cursors, charsets, keys): entries with a
// Value and a Name, looked up either way. Names match without regard to case, as a user types
// them; where a value has two names, the first entry wins.

#include <functional>
#include <iterator>
#include <string_view>

#include "rtl/SysUtils.h"

namespace Tarvo {

template <class V> struct TNamedValue {
  V Value;
  const char* Name;
};

// Called with each name of a table, in table order.
using TGetStrProc = std::function<void(const String& AName)>;

// The first entry named AName; nil when none is.
template <class TTable> auto FindNamedValue(const TTable& ATable, std::string_view AName) {
  for (const auto& entry : ATable)
    if (SameText(AName, entry.Name)) return &entry;
  return static_cast<decltype(&*std::begin(ATable))>(nullptr);
}

// The first entry of AValue; nil when none is.
template <class TTable, class V> auto FindValueName(const TTable& ATable, V AValue) {
  for (const auto& entry : ATable)
    if (entry.Value == AValue) return &entry;
  return static_cast<decltype(&*std::begin(ATable))>(nullptr);
}

} // namespace Tarvo

#pragma GCC visibility pop
