#include "design/MemberFilter.h"

#include "rtl/SysUtils.h"

namespace Tarvo {

// ---- Masks ----

namespace {

char Upper(char AChar) { return AChar >= 'a' && AChar <= 'z' ? char(AChar - 'a' + 'A') : AChar; }

// Whether AChar is in the set that starts after "[" at ASet; ASet is left after the "]". A set
// without its "]" is taken as ending with the mask.
bool InSet(std::string_view AMask, std::size_t& AAt, char AChar) {
  const bool negated = AAt < AMask.size() && AMask[AAt] == '!';
  if (negated) ++AAt;
  bool found = false;
  while (AAt < AMask.size() && AMask[AAt] != ']') {
    const char low = Upper(AMask[AAt]);
    char high = low;
    if (AAt + 2 < AMask.size() && AMask[AAt + 1] == '-' && AMask[AAt + 2] != ']') {
      high = Upper(AMask[AAt + 2]);
      AAt += 2;
    }
    found = found || (Upper(AChar) >= low && Upper(AChar) <= high);
    ++AAt;
  }
  if (AAt < AMask.size()) ++AAt; // the "]"
  return found != negated;
}

// Matches from the given places on; a "*" tries every length, the shortest first.
bool MatchFrom(std::string_view AMask, std::size_t AMaskAt, std::string_view AText, std::size_t ATextAt) {
  while (AMaskAt < AMask.size()) {
    const char m = AMask[AMaskAt];
    if (m == '*') {
      while (AMaskAt < AMask.size() && AMask[AMaskAt] == '*') ++AMaskAt;
      for (std::size_t at = ATextAt; at <= AText.size(); ++at)
        if (MatchFrom(AMask, AMaskAt, AText, at)) return true;
      return false;
    }
    if (ATextAt >= AText.size()) return false;
    if (m == '[') {
      ++AMaskAt;
      if (!InSet(AMask, AMaskAt, AText[ATextAt])) return false;
    } else {
      if (m != '?' && Upper(m) != Upper(AText[ATextAt])) return false;
      ++AMaskAt;
    }
    ++ATextAt;
  }
  return ATextAt == AText.size();
}

} // namespace

Boolean TMask::Matches(const String& AText) { return MatchFrom(FMask, 0, AText, 0); }

TWordsMatch::TWordsMatch(const String& APattern) : FPattern(UpperCase(Trim(APattern))) {}

Boolean TWordsMatch::Matches(const String& AText) {
  String text = UpperCase(AText);
  for (std::string_view word : SplitString(FPattern, ' ')) {
    const std::size_t at = text.find(word);
    if (at == String::npos) return false;
    text.erase(at, word.size());
  }
  return true;
}

// ---- Member filters ----

TMemberFilter::TMemberFilter(const String& AMemberNameMask, TClass AComponentClass, TRef<ITypeInfo> AMemberType)
    : FComponentClass(AComponentClass), FMemberType(std::move(AMemberType)),
      FMask(AMemberNameMask.empty() ? nullptr : New<TWordsMatch>(AMemberNameMask)) {}

Boolean TMemberFilter::Matches(TClass AClass, const String& AName, const TRef<ITypeInfo>& AType) {
  if (AClass && FComponentClass && !AClass->InheritsFrom(FComponentClass)) return false;
  if (!AType || !FMemberType) return false;
  const bool sameType =
      AType == FMemberType || (AType->GetTypeKind() == tkClass && FMemberType->GetTypeKind() == tkClass &&
                               AType->InheritsFrom(FMemberType, true));
  if (!sameType) return false;
  return !FMask || FMask->Matches(AName);
}

Boolean TMemberFilter::IsEqual(const TRef<IMemberFilter>& AOther) {
  return FComponentClass == AOther->GetComponentClass() && FMemberType == AOther->GetMemberType() &&
         FMask == AOther->GetMask();
}

} // namespace Tarvo
