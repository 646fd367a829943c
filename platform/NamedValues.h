#pragma once
// Tables that give values names, read both ways: the first entry wins where a value has two names.

#include <array>
#include <string_view>

#include "rtl/SysUtils.h"

namespace Tarvo {

template <class V> struct TNamedValue {
  V Value;
  const char* Name;
};

// The first entry named AName in any case; nil when none is.
template <class V, std::size_t N>
const TNamedValue<V>* FindNamedValue(const std::array<TNamedValue<V>, N>& ATable, std::string_view AName) {
  for (const TNamedValue<V>& entry : ATable)
    if (SameText(AName, entry.Name)) return &entry;
  return nullptr;
}

// The first entry of AValue; nil when none is.
template <class V, std::size_t N>
const TNamedValue<V>* FindValueName(const std::array<TNamedValue<V>, N>& ATable, V AValue) {
  for (const TNamedValue<V>& entry : ATable)
    if (entry.Value == AValue) return &entry;
  return nullptr;
}

} // namespace Tarvo
