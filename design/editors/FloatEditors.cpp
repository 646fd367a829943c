#include "design/editors/FloatEditors.h"

#include <cfloat>

#include "design/Registry.h"
#include "design/editors/AttributeRange.h"
#include "design/editors/EditorFamilies.h"
#include "design/editors/SliderEditorImpl.h"
#include "rtl/SysUtils.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TBasicFloatPropertyEditor)
TARVO_IMPLEMENT_CLASS(TFloatPropertyEditor)

TValue TBasicFloatPropertyEditor::GetDefaultValue() {
  const TValue value = inherited::GetDefaultValue();
  return value.IsEmpty() ? value : TValue(value.AsExtended());
}

TRef<IArrayList<Boolean>> TBasicFloatPropertyEditor::GetIsDefaults(const TRef<IObjectArrayList>& AObjectsList) {
  const TValue byDefault = GetDefaultValue();
  if (byDefault.IsEmpty()) return inherited::GetIsDefaults(AObjectsList);
  const Extended defaultValue = byDefault.AsExtended();
  return GetIsDefaultsBy(AObjectsList, [&](const TValue& AValue) { return AValue.AsExtended() == defaultValue; });
}

TRef<IStringArrayList> TBasicFloatPropertyEditor::GetStringValues(const TRef<IObjectArrayList>& AObjectsList) {
  const TRef<ITypeInfo> type = GetFirstMember()->GetTypeInfo();
  const Boolean single = type && type->GetHandle() == &TypeInfo_Single;
  const TRef<IStringArrayList> result = New<TStringArrayList>();
  for (const TValue& value : GetInstanceValues(AObjectsList))
    result->Add(single ? FloatToStr(Single(value.AsExtended())) : FloatToStr(value.AsExtended()));
  return result;
}

TValue TBasicFloatPropertyEditor::GetMinValue() {
  TValue result;
  return AttributeMinValue(GetFirstMember(), result) ? result : GetDefaultMinValue();
}

TValue TBasicFloatPropertyEditor::GetMaxValue() {
  TValue result;
  return AttributeMaxValue(GetFirstMember(), result) ? result : GetDefaultMaxValue();
}

Boolean TBasicFloatPropertyEditor::IsReal() {
  const TRef<ITypeInfo> type = GetFirstMember()->GetTypeInfo();
  return type && type->GetHandle() == &TypeInfo_Real;
}

TValue TBasicFloatPropertyEditor::GetDefaultMinValue() { return TValue(IsReal() ? -DBL_MAX : -Double(FLT_MAX)); }

TValue TBasicFloatPropertyEditor::GetDefaultMaxValue() { return TValue(IsReal() ? DBL_MAX : Double(FLT_MAX)); }

template class TInplaceFormEditor<TBasicFloatPropertyEditor, TRealInplaceFormUnit>;
template class TNumericSliderEditor<TBasicFloatPropertyEditor, TRealInplaceFormUnit>;

// ---- Start-up ----

void RegisterFloatEditors() { DefaultEditorClasses.ByTypeKind[tkFloat] = TFloatPropertyEditor::ClassInfo(); }

} // namespace Tarvo
