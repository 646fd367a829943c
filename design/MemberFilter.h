#pragma once
// Whether a text or a member matches a pattern: a wildcard mask, a set of words in any order, and
// the member filter that is the unit of membership in a category.

#include "design/Interfaced.h"
#include "design/MemberEditor.h"

namespace Tarvo {

class TARVO_API IMatches : public virtual IInterface {
  TARVO_INTERFACE(IMatches, "{0B8E2F6D-54A1-4C3B-9E7F-2D61A4C85B17}", IInterface)
public:
  virtual Boolean Matches(const String& AText) = 0;
};

// A wildcard mask: "*" stands for any run of characters, "?" for one, "[a-z]" for one of a set
// ("[!...]" for one outside it); letters compare without regard to case.
class TARVO_API TMask : public TImplements<TInterfacedObject, IMatches> {
public:
  explicit TMask(String AMask) : FMask(std::move(AMask)) {}
  Boolean Matches(const String& AText) override;

private:
  String FMask;
};

// Words separated by blanks that must all occur in the text, in any order and case; each word
// uses up the characters it matched, so a word given twice must occur twice. No words match any
// text.
class TARVO_API TWordsMatch : public TImplements<TInterfacedObject, IMatches> {
public:
  explicit TWordsMatch(const String& APattern);
  Boolean Matches(const String& AText) override;

private:
  String FPattern;
};

class TARVO_API IMemberFilter : public virtual IInterface {
  TARVO_INTERFACE(IMemberFilter, "{5D2A7C90-3E1B-4F86-A4D2-8B0C6E19F3A5}", IInterface)
public:
  virtual Boolean Matches(TClass AClass, const String& AName, const TRef<ITypeInfo>& AType) = 0;
  virtual Boolean IsEqual(const TRef<IMemberFilter>& AOther) = 0;
  virtual TClass GetComponentClass() = 0;
  virtual TRef<ITypeInfo> GetMemberType() = 0;
  virtual TRef<IMatches> GetMask() = 0;
};

class TARVO_API TMemberFilter : public TImplements<TInterfaced, IMemberFilter> {
public:
  // An empty mask matches any name; a nil class any class. A filter without a type matches no
  // member.
  TMemberFilter(const String& AMemberNameMask, TClass AComponentClass, TRef<ITypeInfo> AMemberType);

  // The class when both are given, then the type (the same, or a descendant class type), then
  // the name.
  Boolean Matches(TClass AClass, const String& AName, const TRef<ITypeInfo>& AType) override;
  // The same class, type and mask object: filters made apart with a mask are never equal.
  Boolean IsEqual(const TRef<IMemberFilter>& AOther) override;
  TClass GetComponentClass() override { return FComponentClass; }
  TRef<ITypeInfo> GetMemberType() override { return FMemberType; }
  TRef<IMatches> GetMask() override { return FMask; }

private:
  TClass FComponentClass;
  TRef<ITypeInfo> FMemberType;
  TRef<IMatches> FMask;
};

class TARVO_API IMemberFilters : public virtual IArrayList<TRef<IMemberFilter>> {
  TARVO_INTERFACE(IMemberFilters, "{9F41C6B3-2A7E-4D05-8C1B-6E3D90A27F48}", IArrayList<TRef<IMemberFilter>>)
};

class TARVO_API TMemberFilters : public TImplements<TArrayList<TRef<IMemberFilter>>, IMemberFilters> {};

// Implemented by editors of the host: whether the row matches the host's search text.
class TARVO_API IMemberEditorSearch : public virtual IInterface {
  TARVO_INTERFACE(IMemberEditorSearch, "{C7E05B21-8D4F-4A93-B6E2-1F5A37D0C964}", IInterface)
public:
  virtual Boolean MatchesSearch(const TRef<IMatches>& ASearch) = 0;
};

// Compiled once, in design/instances/.
TARVO_ARRAY_LIST_INSTANCES(extern, TRef<IMemberFilter>)

} // namespace Tarvo
