#pragma once
#pragma GCC visibility push(default)
// The base classes of reflected things. Members that no class declares (virtual members of the
// design core) derive from them as well as the members over registration tables.

#include "reflection/MemberTable.h"

namespace Tarvo {

// An attribute list seen through IAttributesInfo.
class TObjectInfo : public TImplements<TInterfacedObject, IObjectInfo> {
public:
  TRef<IAttributeList> GetCustomAttributes() override;
  TRef<IAttributeList> GetCustomAttributes(TClass AClass) override;
  bool GetCustomAttribute(TClass AClass, TCustomAttribute*& AAttribute) override;
  bool HasCustomAttribute(TClass AClass) override;
  TRef<IAttributesInfo> GetAccessAttributes() override { return this; }
  const void* GetRTTIHandle() override { return nullptr; }
  TModule* GetPackage() override { return FindModule(GetRTTIHandle()); }
  String GetDisplayName() override { return GetName(); }
  String GetSaveName() override { return GetName(); }

protected:
  virtual std::vector<TCustomAttribute*> GetAttributeList() = 0;
};

class TNamedObjectInfo : public TObjectInfo {
public:
  explicit TNamedObjectInfo(String AName) : FName(std::move(AName)) {}
  String GetName() override { return FName; }

private:
  String FName;
};

// A thing with no run-time object behind it; it owns its attributes.
class TVirtualObjectInfo : public TNamedObjectInfo {
public:
  using TNamedObjectInfo::TNamedObjectInfo;
  void AddAttribute(std::unique_ptr<TCustomAttribute> AAttribute) { FAttributes.push_back(std::move(AAttribute)); }

protected:
  std::vector<TCustomAttribute*> GetAttributeList() override;

private:
  std::vector<std::unique_ptr<TCustomAttribute>> FAttributes;
};

// A member over a table entry, or over none for a virtual member. The type is kept as its
// record, so that a member never holds its type's info alive.
class TMemberInfo : public TImplements<TVirtualObjectInfo, IMemberInfo> {
public:
  TMemberInfo(const TRef<ITypeInfo>& AType, const TMemberEntry* AEntry, String AName = String(),
              TMemberVisibility AVisibility = mvPublished);
  // By the type's record: a class's members are made before any info of their types is.
  TMemberInfo(PTypeInfo AType, const TMemberEntry* AEntry, String AName = String(),
              TMemberVisibility AVisibility = mvPublished);

  TRef<ITypeInfo> GetTypeInfo() override;
  using IAttributesInfo::GetCustomAttribute;
  using IAttributesInfo::HasCustomAttribute;
  bool GetCustomAttribute(TClass AClass, bool AInherited, TCustomAttribute*& AAttribute) override;
  bool HasCustomAttribute(TClass AClass, bool AInherited) override;
  TRef<IAttributesInfo> GetMemberAccessAttributes() override { return CreateAccessAttributes(); }
  TMemberVisibility GetVisibility() override { return FVisibility; }
  const void* GetRTTIHandle() override { return FEntry; }

protected:
  // The attributes the design core searches: the member's, then its type's.
  virtual TRef<IAttributesInfo> CreateAccessAttributes();
  std::vector<TCustomAttribute*> GetAttributeList() override;
  const TMemberEntry* Entry() const { return FEntry; }
  PTypeInfo TypeRecord() const { return FType; }

private:
  PTypeInfo FType;
  const TMemberEntry* FEntry;
  TMemberVisibility FVisibility;
};

// A member with a value. SetFromString parses into the member's current value and writes it.
class TValueMemberInfo : public TImplements<TMemberInfo, IValueMemberInfo> {
public:
  using TImplements::TImplements;
  void SetFromString(TObject* AInstance, const String& AText) override;
};

} // namespace Tarvo

#pragma GCC visibility pop
