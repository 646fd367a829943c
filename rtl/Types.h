#pragma once
#pragma GCC visibility push(default)
// The base value types of the runtime. Named types that share a representation (TDate and
// TDateTime, TColor and Integer) are aliases here; their distinct identity lives in their type
// records, not in the C++ type.

#include <cstdint>
#include <string>

namespace Tarvo {

using Integer = std::int32_t;
using Cardinal = std::uint32_t;
using ShortInt = std::int8_t;
using SmallInt = std::int16_t;
using Byte = std::uint8_t;
using Word = std::uint16_t;
using Int64 = std::int64_t;
using UInt64 = std::uint64_t;
using NativeInt = std::intptr_t;
using Boolean = bool;
using AnsiChar = char;
using WideChar = char16_t;
using Single = float;
using Double = double;
using Extended = long double;
using Real = double;
using String = std::string; // UTF-8

// Days since 1899-12-30; the fraction is the time of day.
using TDateTime = double;
using TDate = TDateTime;
using TTime = TDateTime;

// Fixed point with four decimals, held as a scaled 64-bit integer.
struct Currency {
  static constexpr Int64 Scale = 10000;
  Int64 Scaled = 0;

  static constexpr Currency FromScaled(Int64 AScaled) { return Currency{AScaled}; }
  // Raises EInvalidCast for a value that Fits refuses.
  static Currency FromDouble(Extended AValue);
  // Whether the value, rounded to four places, lies within the currency's range.
  static bool Fits(Extended AValue);
  Extended ToExtended() const { return static_cast<Extended>(Scaled) / Scale; }
  friend constexpr bool operator==(Currency, Currency) = default;
  friend constexpr auto operator<=>(Currency, Currency) = default;
};

} // namespace Tarvo

#pragma GCC visibility pop
