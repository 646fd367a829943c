#include "reflection/MemberInfo.h"

#include "reflection/RttiTypes.h"

#include <map>

namespace Tarvo {

namespace {

TRef<IAttributeList> ListOf(const std::vector<TCustomAttribute*>& AAttributes, TClass AClass) {
  const TRef<IAttributeList> result = New<TArrayList<TCustomAttribute*>>();
  for (TCustomAttribute* attribute : AAttributes)
    if (!AClass || attribute->InheritsFrom(AClass)) result->Add(attribute);
  return result;
}

// The attributes of a member followed by those of its type, as one IAttributesInfo.
class TAccessAttributes : public TObjectInfo {
public:
  explicit TAccessAttributes(std::vector<TCustomAttribute*> AAttributes) : FAttributes(std::move(AAttributes)) {}
  String GetName() override { return String(); }

protected:
  std::vector<TCustomAttribute*> GetAttributeList() override { return FAttributes; }

private:
  std::vector<TCustomAttribute*> FAttributes;
};

} // namespace

// ---- TObjectInfo ----

TRef<IAttributeList> TObjectInfo::GetCustomAttributes() { return ListOf(GetAttributeList(), nullptr); }

TRef<IAttributeList> TObjectInfo::GetCustomAttributes(TClass AClass) { return ListOf(GetAttributeList(), AClass); }

bool TObjectInfo::GetCustomAttribute(TClass AClass, TCustomAttribute*& AAttribute) {
  AAttribute = FindAttribute(GetAttributeList(), AClass);
  return AAttribute != nullptr;
}

bool TObjectInfo::HasCustomAttribute(TClass AClass) {
  TCustomAttribute* unused = nullptr;
  return GetCustomAttribute(AClass, unused);
}

// ---- TVirtualObjectInfo ----

std::vector<TCustomAttribute*> TVirtualObjectInfo::GetAttributeList() {
  std::vector<TCustomAttribute*> result;
  for (const auto& attribute : FAttributes) result.push_back(attribute.get());
  return result;
}

// ---- TMemberInfo ----

TMemberInfo::TMemberInfo(const TRef<ITypeInfo>& AType, const TMemberEntry* AEntry, String AName,
                         TMemberVisibility AVisibility)
    : TMemberInfo(AType ? AType->GetHandle() : nullptr, AEntry, std::move(AName), AVisibility) {}

TMemberInfo::TMemberInfo(PTypeInfo AType, const TMemberEntry* AEntry, String AName, TMemberVisibility AVisibility)
    : TImplements(AEntry ? AEntry->Name : std::move(AName)), FType(AType), FEntry(AEntry),
      FVisibility(AEntry ? AEntry->Visibility : AVisibility) {}

TRef<ITypeInfo> TMemberInfo::GetTypeInfo() { return TTypeInfoHelper::TypeInfo(FType); }

std::vector<TCustomAttribute*> TMemberInfo::GetAttributeList() {
  std::vector<TCustomAttribute*> result = TVirtualObjectInfo::GetAttributeList();
  if (FEntry) {
    const std::vector<TCustomAttribute*> own = FEntry->AttributeList();
    result.insert(result.begin(), own.begin(), own.end());
  }
  return result;
}

bool TMemberInfo::GetCustomAttribute(TClass AClass, bool AInherited, TCustomAttribute*& AAttribute) {
  if (GetCustomAttribute(AClass, AAttribute) || !AInherited || !FType) return AAttribute != nullptr;
  AAttribute = FindAttribute(TypeAttributes(FType), AClass);
  return AAttribute != nullptr;
}

bool TMemberInfo::HasCustomAttribute(TClass AClass, bool AInherited) {
  TCustomAttribute* unused = nullptr;
  return GetCustomAttribute(AClass, AInherited, unused);
}

TRef<IAttributesInfo> TMemberInfo::CreateAccessAttributes() {
  std::vector<TCustomAttribute*> attributes = GetAttributeList();
  if (FType) {
    const std::vector<TCustomAttribute*> ofType = TypeAttributes(FType);
    attributes.insert(attributes.end(), ofType.begin(), ofType.end());
  }
  return New<TAccessAttributes>(std::move(attributes));
}

// ---- TValueMemberInfo ----

void TValueMemberInfo::SetFromString(TObject* AInstance, const String& AText) {
  TValue value = GetValue(AInstance);
  if (value.IsEmpty()) value = TValue::Make(nullptr, TypeRecord());
  if (!value.FromString(AText)) throw EConvertError("'" + AText + "' is not a valid value for " + GetName());
  SetValue(AInstance, value);
}

} // namespace Tarvo
