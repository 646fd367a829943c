#include "design/editors/OrdinalEditors.h"

#include "design/Registry.h"
#include "design/editors/AttributeRange.h"
#include "design/editors/EditorFamilies.h"
#include "design/editors/SliderEditorImpl.h"
#include "reflection/RangeAttributes.h"
#include "reflection/RowAttributes.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TOrdinalPropertyEditor)
TARVO_IMPLEMENT_CLASS(TRangedOrdinalPropertyEditor)
TARVO_IMPLEMENT_CLASS(TCardinalPropertyEditor)
TARVO_IMPLEMENT_CLASS(TBasicIntegerPropertyEditor)
TARVO_IMPLEMENT_CLASS(TIntegerPropertyEditor)
TARVO_IMPLEMENT_CLASS(TInt64PropertyEditor)

TRef<IArrayList<Boolean>> TOrdinalPropertyEditor::GetIsDefaults(const TRef<IObjectArrayList>& AObjectsList) {
  return GetIsDefaultsByText(AObjectsList, [](const TValue& AValue) { return AValue.ToString(); });
}

// ---- Ranges ----

namespace {

// The member's own limits, when it reports any.
TRef<IValueLimitsInfo> MemberLimits(const TRef<IMemberInfo>& AMember) {
  TRef<IValueLimitsInfo> limits;
  return Supports(AMember, limits) && limits->GetHasLimits() ? limits : nullptr;
}

// The declared limits of an integer type, as the 32-bit fields of its record hold them.
PTypeInfo IntegerType(const TRef<IMemberInfo>& AMember) {
  const TRef<ITypeInfo> type = AMember->GetTypeInfo();
  return type && type->GetTypeKind() == tkInteger ? type->GetHandle() : nullptr;
}

// AValue kept between AMin and AMax, the maximum applied first.
template <class T> T Clamp(T AValue, T AMin, T AMax) {
  if (AValue > AMax) AValue = AMax;
  if (AValue < AMin) AValue = AMin;
  return AValue;
}

} // namespace

HRESULT TRangedOrdinalPropertyEditor::QueryInterface(const TGUID& AIID, void** AObj) {
  if (AIID == IPropertyRange::IID && GetFirstMember()->HasCustomAttribute(SuppressRangeAttribute::ClassInfo(), true)) {
    *AObj = nullptr;
    return E_NOINTERFACE;
  }
  return inherited::QueryInterface(AIID, AObj);
}

TValue TRangedOrdinalPropertyEditor::GetMinValue() {
  if (const TRef<IValueLimitsInfo> limits = MemberLimits(GetFirstMember())) return limits->GetMinValue();
  return GetDefaultMinValue();
}

TValue TRangedOrdinalPropertyEditor::GetMaxValue() {
  const TRef<IMemberInfo> member = GetFirstMember();
  if (const TRef<IValueLimitsInfo> limits = MemberLimits(member)) return limits->GetMaxValue();
  if (const PTypeInfo type = IntegerType(member)) return TValue(type->MaxValue);
  return GetDefaultMaxValue();
}

TValue TRangedOrdinalPropertyEditor::GetSuggestedMinValue() {
  const TRef<IMemberInfo> member = GetFirstMember();
  TValue result;
  if (AttributeMinValue(member, result)) return result;
  if (const PTypeInfo type = IntegerType(member)) return TValue(type->MinValue);
  return GetMinValue();
}

TValue TRangedOrdinalPropertyEditor::GetSuggestedMaxValue() {
  TValue result;
  return AttributeMaxValue(GetFirstMember(), result) ? result : GetMaxValue();
}

TValue TRangedOrdinalPropertyEditor::ApplyConstraints(const TValue& AValue) {
  const TValue min = GetMinValue();
  const TValue max = GetMaxValue();
  if (min.AsOrdinal() <= max.AsOrdinal()) return TValue(Clamp(AValue.AsOrdinal(), min.AsOrdinal(), max.AsOrdinal()));
  // Only an unsigned reading makes sense of the range (a Cardinal's maximum reads -1).
  return TValue(Int64(Clamp(AValue.AsUInt64(), min.AsUInt64(), max.AsUInt64())));
}

// ---- The slider ----

// The Cardinal and Int64 editors' slider; the Integer editor's is compiled apart (IntegerSlider.cpp),
// each instantiation being heavy.
template class TInplaceFormEditor<TRangedOrdinalPropertyEditor, TNumericInplaceForm>;
template class TNumericSliderEditor<TRangedOrdinalPropertyEditor, TNumericInplaceForm>;

// ---- Start-up ----

void RegisterOrdinalEditors() {
  RegisterPropertyEditor(&TypeInfo_Cardinal, TCardinalPropertyEditor::ClassInfo());
  DefaultEditorClasses.ByTypeKind[tkInteger] = TIntegerPropertyEditor::ClassInfo();
  DefaultEditorClasses.ByTypeKind[tkInt64] = TInt64PropertyEditor::ClassInfo();
}

} // namespace Tarvo
