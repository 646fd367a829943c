#pragma once
#pragma GCC visibility push(default)
// Sets over enumerations declared with TARVO_ENUM: a bit for each value, held in the smallest of
// 1, 2 or 4 bytes, or in as many bytes as the values need beyond 32.

#include <array>
#include <initializer_list>

#include "rtl/TypeRecords.h"

namespace Tarvo {

template <class E> class TSet {
public:
  static constexpr std::size_t Count = TEnumTraits<E>::Count;
  static constexpr std::size_t Bytes = Count <= 8 ? 1 : Count <= 16 ? 2 : Count <= 32 ? 4 : (Count + 7) / 8;

  constexpr TSet() = default;
  constexpr TSet(std::initializer_list<E> AElements) {
    for (E e : AElements) Include(e);
  }

  constexpr bool Contains(E AElement) const { return FBits[Index(AElement) / 8] >> (Index(AElement) % 8) & 1; }
  constexpr TSet& Include(E AElement) {
    FBits[Index(AElement) / 8] |= static_cast<Byte>(1u << Index(AElement) % 8);
    return *this;
  }
  constexpr TSet& Exclude(E AElement) {
    FBits[Index(AElement) / 8] &= static_cast<Byte>(~(1u << Index(AElement) % 8));
    return *this;
  }
  constexpr bool IsEmpty() const { return *this == TSet(); }

  friend constexpr TSet operator+(TSet A, const TSet& B) {
    return A.Combine(B, [](Byte x, Byte y) { return Byte(x | y); });
  }
  friend constexpr TSet operator-(TSet A, const TSet& B) {
    return A.Combine(B, [](Byte x, Byte y) { return Byte(x & ~y); });
  }
  friend constexpr TSet operator*(TSet A, const TSet& B) {
    return A.Combine(B, [](Byte x, Byte y) { return Byte(x & y); });
  }
  friend constexpr bool operator==(const TSet&, const TSet&) = default;

private:
  static constexpr std::size_t Index(E AElement) { return static_cast<std::size_t>(AElement); }
  template <class F> constexpr TSet& Combine(const TSet& AOther, F AOp) {
    for (std::size_t i = 0; i < Bytes; ++i) FBits[i] = AOp(FBits[i], AOther.FBits[i]);
    return *this;
  }

  std::array<Byte, Bytes> FBits{};
};

// Declares a set type over an enumeration, with its record: TARVO_SET(TAnchors, TAnchorKind).
#define TARVO_SET(AName, AElement)                                                                                     \
  using AName = ::Tarvo::TSet<AElement>;                                                                               \
  TARVO_DECLARE_TYPE_RECORD(AName, TypeInfo_##AName)

#define TARVO_IMPLEMENT_SET(AName, AElement)                                                                           \
  constinit const ::Tarvo::TTypeInfo TypeInfo_##AName = ::Tarvo::SetTypeRecord<AName>(#AName, &TypeInfo_##AElement);

} // namespace Tarvo

#pragma GCC visibility pop
