#include "design/editors/VariantEditors.h"

#include <array>

#include "design/Registry.h"
#include "design/editors/EditorFamilies.h"
#include "rtl/SysUtils.h"
#include "rtl/Variant.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TVariantPropertyEditor)
TARVO_IMPLEMENT_CLASS(TVariantTypePropertyEditor)

namespace {

// The names of the type codes below 21; the empty places have none.
constexpr std::array<const char*, 21> TypeNames = {
    "Unassigned", "Null", "Smallint", "Integer", "Single", "Double",   "Currency", "Date", "OleStr",   "",     "",
    "Boolean",    "",     "",         "",        "",       "Shortint", "Byte",     "Word", "LongWord", "Int64"};

constexpr const char* StringTypeName = "String";
constexpr const char* NullText = "(Null)";

Variant VariantOf(const TValue& AValue) { return AValue.IsEmpty() ? Variant() : AValue.AsVariant(); }

TValue ValueOf(const Variant& AVariant) { return TValue::From<Variant>(AVariant, &TypeInfo_Variant); }

} // namespace

// ---- The type member ----

TVariantTypeMember::TVariantTypeMember(TRef<IValueMemberInfo> AOwner)
    : TImplements(std::move(AOwner), &TypeInfo_Integer, "Type") {}

TValue TVariantTypeMember::GetValue(TObject* AInstance) {
  return TValue(Integer(VariantOf(GetOwner()->GetValue(AInstance)).VarType() & 0xFFFF));
}

TValue TVariantTypeMember::GetDefault(TObject* AInstance) {
  return TValue(Integer(VariantOf(GetOwner()->GetDefault(AInstance)).VarType() & 0xFFFF));
}

void TVariantTypeMember::SetValue(TObject* AInstance, const TValue& AValue) {
  const Variant old = VariantOf(GetOwner()->GetValue(AInstance));
  const Integer code = AValue.AsInteger();
  // A cast to the string code gives the runtime's one string type, code 258.
  const Variant changed = code == varEmpty  ? Variant()
                          : code == varNull ? Variant::Null()
                                            : VarCast(old, code == varString ? varUString : TVarType(code));
  GetOwner()->SetValue(AInstance, ValueOf(changed));
}

// ---- The value row ----

Boolean TVariantPropertyEditor::GetSubMembers(TRef<IMembersInfo>& AResult, Boolean) {
  const TRef<TDynamicMembers> members = New<TDynamicMembers>();
  if (const TRef<IValueMemberInfo> owner = QueryAs<IValueMemberInfo>(GetFirstMember()))
    members->Add(New<TVariantTypeMember>(owner));
  AResult = members;
  return true;
}

TRef<IStringArrayList> TVariantPropertyEditor::GetStringValues(const TRef<IObjectArrayList>& AObjectsList) {
  const TRef<IStringArrayList> result = New<TStringArrayList>();
  for (const TValue& value : GetInstanceValues(AObjectsList)) {
    const Variant variant = VariantOf(value);
    switch (variant.VarType()) {
    case varDispatch:
      result->Add("ERROR");
      break; // an object reference has no text here
    case varCurrency:
      result->Add(CurrToStr(variant.AsCurrency()));
      break;
    case varBoolean:
      result->Add(BoolToStr(variant.AsBoolean(), true));
      break;
    default:
      result->Add(VarToStrDef(variant, NullText));
    }
  }
  return result;
}

void TVariantPropertyEditor::SetStringValue(const String& AValue) {
  const TRef<IValueArrayList> values = GetInstanceValues(nullptr);
  const TVarType oldType = values->GetCount() > 0 ? VariantOf(values->GetItem(0)).VarType() : varEmpty;
  Variant result(AValue);
  if (AValue.empty()) result = Variant();
  else if (CompareText(AValue, NullText) == 0) result = Variant::Null();
  else {
    try {
      result = VarCast(result, oldType);
    } catch (const EVariantError&) {
      // The text does not fit the old type: it stays a string.
    }
  }
  SetInstanceValues(ValueOf(result));
}

// ---- The type row ----

TRef<IStringArrayList> TVariantTypePropertyEditor::GetStringValues(const TRef<IObjectArrayList>& AObjectsList) {
  const TRef<IStringArrayList> result = New<TStringArrayList>();
  for (const TValue& value : GetInstanceValues(AObjectsList)) {
    const Integer code = value.AsInteger() & varTypeMask;
    if (code < Integer(TypeNames.size())) result->Add(TypeNames[code]);
    else if (code == varUString) result->Add(StringTypeName);
    else result->Add("(Unknown)");
  }
  return result;
}

void TVariantTypePropertyEditor::SetStringValue(const String& AValue) {
  Integer code = -1;
  for (std::size_t i = 0; i < TypeNames.size(); ++i)
    if (*TypeNames[i] && AValue == TypeNames[i]) code = Integer(i);
  if (code < 0 && AValue == StringTypeName) code = varString;
  SetInstanceValues(TValue(code));
}

TRef<IStringArrayList> TVariantTypePropertyEditor::GetStringListValues() {
  const TRef<IStringArrayList> result = New<TStringArrayList>();
  for (const char* name : TypeNames)
    if (*name) result->Add(name);
  result->Add(StringTypeName);
  return result;
}

// ---- Start-up ----

void RegisterVariantEditors() {
  DefaultEditorClasses.ByTypeKind[tkVariant] = TVariantPropertyEditor::ClassInfo();
  DefaultEditorClasses.VariantTypeEditor = TVariantTypePropertyEditor::ClassInfo();
}

} // namespace Tarvo
