#pragma once
#pragma GCC visibility push(default)
// Globally unique identifiers of interfaces, with their text form "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}".

#include <array>
#include <bit>
#include <cstdint>
#include <string>
#include <string_view>

#include "rtl/Exceptions.h"

namespace Tarvo {

struct TGUID {
  std::uint32_t D1 = 0;
  std::uint16_t D2 = 0;
  std::uint16_t D3 = 0;
  std::array<std::uint8_t, 8> D4{};

  // Parses "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}" (braces optional); false on any misfit.
  static constexpr bool TryParse(std::string_view AText, TGUID& AResult);
  // Compile-time form for interface identifiers; a malformed literal fails to compile.
  static consteval TGUID Parse(std::string_view AText);
  static TGUID FromString(std::string_view AText); // raises EConvertError

  std::string ToString() const;
  constexpr bool IsEmpty() const { return *this == TGUID{}; }
  // Every interface query compares identifiers, so this is two word compares.
  friend constexpr bool operator==(const TGUID& A, const TGUID& B) {
    using TWords = std::array<std::uint64_t, 2>;
    const TWords a = std::bit_cast<TWords>(A);
    const TWords b = std::bit_cast<TWords>(B);
    return a[0] == b[0] && a[1] == b[1];
  }
  friend constexpr auto operator<=>(const TGUID&, const TGUID&) = default;
};
static_assert(sizeof(TGUID) == 16, "an identifier is two words without padding");

constexpr bool TGUID::TryParse(std::string_view AText, TGUID& AResult) {
  if (AText.size() == 38) {
    if (AText.front() != '{' || AText.back() != '}') return false;
    AText = AText.substr(1, 36);
  }
  if (AText.size() != 36) return false;
  // Positions of the 32 hex digits; the dashes stand at 8, 13, 18 and 23.
  std::uint8_t bytes[16]{};
  int digit = 0;
  for (std::size_t i = 0; i < AText.size(); ++i) {
    const char c = AText[i];
    if (i == 8 || i == 13 || i == 18 || i == 23) {
      if (c != '-') return false;
      continue;
    }
    int v;
    if (c >= '0' && c <= '9') v = c - '0';
    else if (c >= 'a' && c <= 'f') v = c - 'a' + 10;
    else if (c >= 'A' && c <= 'F') v = c - 'A' + 10;
    else return false;
    bytes[digit / 2] = static_cast<std::uint8_t>(bytes[digit / 2] << 4 | v);
    ++digit;
  }
  TGUID g;
  g.D1 = std::uint32_t(bytes[0]) << 24 | std::uint32_t(bytes[1]) << 16 | std::uint32_t(bytes[2]) << 8 | bytes[3];
  g.D2 = static_cast<std::uint16_t>(bytes[4] << 8 | bytes[5]);
  g.D3 = static_cast<std::uint16_t>(bytes[6] << 8 | bytes[7]);
  for (int i = 0; i < 8; ++i) g.D4[i] = bytes[8 + i];
  AResult = g;
  return true;
}

consteval TGUID TGUID::Parse(std::string_view AText) {
  TGUID g;
  if (!TryParse(AText, g)) throw "malformed GUID literal";
  return g;
}

} // namespace Tarvo

#pragma GCC visibility pop
