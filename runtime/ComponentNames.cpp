#include "runtime/ComponentNames.h"

#include <algorithm>

#include "rtl/Exceptions.h"

namespace Tarvo {

TComponent* TComponentNames::Find(std::string_view AName) const {
  const auto found = FComponents.find(AName);
  return found == FComponents.end() ? nullptr : found->second;
}

void TComponentNames::Add(const String& AName, TComponent* AComponent) {
  TARVO_ASSERT(!AName.empty());
  const bool added = FComponents.try_emplace(AName, AComponent).second;
  TARVO_ASSERT(added);
}

void TComponentNames::Remove(const String& AName) {
  FComponents.erase(AName);
  if (!FNextNumbers.empty()) Freed(AName);
}

String TComponentNames::UniqueName(const String& ABaseName) {
  Integer& number = FNextNumbers.try_emplace(ABaseName, 1).first->second;
  for (;; ++number)
    if (String candidate = ABaseName + IntToStr(number); !Find(candidate)) return candidate;
}

void TComponentNames::Freed(std::string_view AName) {
  // Every split of the trailing digits that UniqueName could have made: "Scope12" is "Scope" 12
  // and "Scope1" 2. Numbers are written without leading zeros and fit an Integer.
  std::size_t start = AName.size();
  while (start > 0 && AName[start - 1] >= '0' && AName[start - 1] <= '9') --start;
  for (std::size_t split = std::max(start, AName.size() - std::min<std::size_t>(AName.size(), 9)); split < AName.size();
       ++split) {
    if (AName[split] == '0') continue;
    const auto hint = FNextNumbers.find(AName.substr(0, split));
    if (hint == FNextNumbers.end()) continue;
    Integer number = 0;
    for (const char digit : AName.substr(split)) number = number * 10 + (digit - '0');
    hint->second = std::min(hint->second, number);
  }
}

} // namespace Tarvo
