#pragma once
// The names of an owner's components, indexed as SameText compares them, so that finding a
// component by name, checking a rename and making a free name take constant time however many
// components the owner holds. Only the owner's TComponent code uses it.

#include <string_view>
#include <unordered_map>

#include "rtl/SysUtils.h"

namespace Tarvo {

class TComponent;

class TComponentNames {
public:
  TComponent* Find(std::string_view AName) const;
  // AName is not empty and not taken.
  void Add(const String& AName, TComponent* AComponent);
  void Remove(const String& AName);
  // ABaseName followed by the lowest number from 1 that makes a name no component has.
  String UniqueName(const String& ABaseName);

private:
  struct TTextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view AText) const { return HashText(AText); }
  };
  struct TTextEqual {
    using is_transparent = void;
    bool operator()(std::string_view A, std::string_view B) const { return SameText(A, B); }
  };
  template <class V> using TTextMap = std::unordered_map<String, V, TTextHash, TTextEqual>;

  // A freed name of a base that numbers were made for may be the lowest free one again.
  void Freed(std::string_view AName);

  TTextMap<TComponent*> FComponents;
  // Per base: every lower number is taken, so the search for a free one starts here.
  TTextMap<Integer> FNextNumbers;
};

} // namespace Tarvo
