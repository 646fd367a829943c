#pragma once
// Members that stand in where a row has no real property behind it: an object shown as an item,
// a part of a value, members an editor makes up.

#include <functional>

#include "reflection/MemberInfo.h"

namespace Tarvo {

// One object as a read-only published property of its class type: its value is the object,
// whatever the instance asked about, and writing it does nothing. Its attributes are those of
// the object's class.
class TARVO_API TVirtualMember : public TImplements<TMemberInfo, IPropertyInfo, ISinglePropertyInfo> {
public:
  TVirtualMember(TObject* AObject, String AName, String ASaveName);

  String GetName() override { return FName; }
  String GetDisplayName() override { return FName; }
  String GetSaveName() override { return FSaveName; }
  // The object's class type, with the members it adds at run time.
  TRef<ITypeInfo> GetTypeInfo() override;
  TMemberVisibility GetVisibility() override { return mvPublished; }

  TValue GetValue(TObject*) override { return TValue(FObject); }
  void SetValue(TObject*, const TValue&) override {}
  void SetFromString(TObject*, const String&) override {}
  TValue GetDefault(TObject*) override { return TValue(FObject); }
  bool GetHasDefault() override { return false; }
  bool GetIsDefault(TObject*, bool) override { return false; }
  bool GetIsReadable() override { return true; }
  bool GetIsWritable() override { return false; }
  bool GetHasReadMethod() override { return true; }
  bool GetHasWriteMethod() override { return false; }
  bool GetHasStored(TObject*) override { return false; }
  bool GetIsStored(TObject*) override { return true; }

private:
  TObject* FObject;
  String FName;
  String FSaveName;
};

// An item of a list: saved as "_<index>", named "Item [<index>]" until asked, then by AOnGetName
// each time, so that the row follows an item whose name changes.
class TARVO_API TNamedVirtualMember : public TVirtualMember {
public:
  TNamedVirtualMember(TObject* AObject, Integer AIndex, std::function<String()> AOnGetName);
  String GetName() override { return FOnGetName ? FOnGetName() : TVirtualMember::GetName(); }
  String GetDisplayName() override { return GetName(); }

private:
  std::function<String()> FOnGetName;
};

// The base of members that live inside another member (a set's element, a variant's type): no
// attributes of their own or of their type, the owner's visibility; subclasses give the value.
class TARVO_API TNestedValueMemberInfo : public TValueMemberInfo {
public:
  TNestedValueMemberInfo(TRef<IValueMemberInfo> AOwner, PTypeInfo AType, String AName);

  using IAttributesInfo::GetCustomAttribute;
  using IAttributesInfo::HasCustomAttribute;
  bool GetCustomAttribute(TClass, bool, TCustomAttribute*& AAttribute) override { return AAttribute = nullptr, false; }
  bool HasCustomAttribute(TClass, bool) override { return false; }
  TMemberVisibility GetVisibility() override { return FOwner->GetVisibility(); }
  TRef<IValueMemberInfo> GetOwner() { return FOwner; }

protected:
  TRef<IAttributesInfo> CreateAccessAttributes() override;

private:
  TRef<IValueMemberInfo> FOwner;
};

// Members an editor made up, handed out as a type's members are.
class TARVO_API TDynamicMembers : public TMembersInfo {};

} // namespace Tarvo
