#pragma once
#pragma GCC visibility push(default)
// The platform's tables of numbers known by name (cursors, charsets): an entry type with a Value
// and a Name, looked up either way. Names are matched without regard to case, as a user types them.

#include <functional>
#include <span>

#include "rtl/SysUtils.h"

namespace Tarvo {

// Called with each name of a table, in table order.
using TGetStrProc = std::function<void(const String& AName)>;

template <class TEntry> const TEntry* FindIdentByValue(std::span<const TEntry> AMap, Integer AValue) {
  for (const TEntry& entry : AMap)
    if (entry.Value == AValue) return &entry;
  return nullptr;
}

template <class TEntry> const TEntry* FindIdentByName(std::span<const TEntry> AMap, std::string_view AName) {
  for (const TEntry& entry : AMap)
    if (SameText(entry.Name, AName)) return &entry;
  return nullptr;
}

} // namespace Tarvo

#pragma GCC visibility pop
