#include "design/editors/OrdinalEditors.h"

#include "design/Registry.h"
#include "design/editors/EditorFamilies.h"
#include "design/paint/InplaceFormController.h"
#include "forms/RangedInplaceForm.h"
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

template <class A> bool AttributeValue(const TRef<IMemberInfo>& AMember, TValue (*ARead)(const A&), TValue& AResult) {
  if (const A* attribute = FindMemberAttribute<A>(AMember)) return AResult = ARead(*attribute), true;
  return false;
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
  if (AttributeValue<DesignMinAttribute>(
          member, [](const auto& A) { return A.Value(); }, result) ||
      AttributeValue<DesignRangeAttribute>(
          member, [](const auto& A) { return A.MinValue(); }, result) ||
      AttributeValue<MinValueAttribute>(
          member, [](const auto& A) { return A.Value(); }, result) ||
      AttributeValue<ValueRangeAttribute>(
          member, [](const auto& A) { return A.MinValue(); }, result))
    return result;
  if (const PTypeInfo type = IntegerType(member)) return TValue(type->MinValue);
  return GetMinValue();
}

TValue TRangedOrdinalPropertyEditor::GetSuggestedMaxValue() {
  const TRef<IMemberInfo> member = GetFirstMember();
  TValue result;
  if (AttributeValue<DesignMaxAttribute>(
          member, [](const auto& A) { return A.Value(); }, result) ||
      AttributeValue<DesignRangeAttribute>(
          member, [](const auto& A) { return A.MaxValue(); }, result) ||
      AttributeValue<MaxValueAttribute>(
          member, [](const auto& A) { return A.Value(); }, result) ||
      AttributeValue<ValueRangeAttribute>(
          member, [](const auto& A) { return A.MaxValue(); }, result))
    return result;
  return GetMaxValue();
}

TValue TRangedOrdinalPropertyEditor::ApplyConstraints(const TValue& AValue) {
  const TValue min = GetMinValue();
  const TValue max = GetMaxValue();
  if (min.AsOrdinal() <= max.AsOrdinal()) return TValue(Clamp(AValue.AsOrdinal(), min.AsOrdinal(), max.AsOrdinal()));
  // Only an unsigned reading makes sense of the range (a Cardinal's maximum reads -1).
  return TValue(Int64(Clamp(AValue.AsUInt64(), min.AsUInt64(), max.AsUInt64())));
}

// ---- The slider ----

namespace {
using TNumericFormController = TInplaceEditorFormController<TNumericInplaceForm>;
} // namespace

template <class TBase> void TNumericSliderEditor<TBase>::InitCreate(TSinglePropertyEditor* AInstance) {
  TBase::InitCreate(AInstance);
  const TRef<IMemberInfo> member = this->GetFirstMember();
  if (member->HasCustomAttribute(PropertyFixedListDesignAttribute::ClassInfo(), true)) return;
  if (member->GetVisibility() != mvPublished) return;
  // The controller lives as long as the editor, so the editor may be captured bare.
  FFormController = New<TNumericFormController>([](const TIGXRect&) { return new TNumericInplaceForm(); },
                                                [this](TNumericInplaceForm* AForm) { MakeForm(AForm); });
}

template <class TBase> TNumericSliderEditor<TBase>::~TNumericSliderEditor() {
  if (!FFormController) return;
  for (const TInplaceFormInfo<TNumericInplaceForm>& info :
       QueryAs<IInplaceEditorFormController<TNumericInplaceForm>>(FFormController)->GetForms())
    if (info.Form) info.Form->OnValueChange = info.Form->OnEditorEnter = info.Form->OnEditorLeave = nullptr;
}

template <class TBase> void TNumericSliderEditor<TBase>::MakeForm(TNumericInplaceForm* AForm) {
  AForm->OnValueChange = [this](QWidget* ASender) { FormValueChange(ASender); };
  AForm->OnEditorEnter = [this](QWidget* ASender) { FormEditorEnter(ASender); };
  AForm->OnEditorLeave = [this](QWidget* ASender) { FormEditorLeave(ASender); };
  // The slider runs over the suggested range, taken now and held as the form holds values, so
  // that a Cardinal's declared maximum, which reads -1, is its 4294967295.
  AForm->SetLimits(
      New<TPropertyRange>(InplaceValue(this->GetSuggestedMinValue()), InplaceValue(this->GetSuggestedMaxValue())));
  if (const TRef<IValueArrayList> values = this->GetInstanceValues(nullptr); values->GetCount() > 0)
    AForm->SetValue(values->GetItem(0));
}

template <class TBase> HRESULT TNumericSliderEditor<TBase>::QueryInterface(const TGUID& AIID, void** AObj) {
  if (AIID == IPropertyEditorInplace::IID && !FFormController) {
    *AObj = nullptr;
    return E_NOINTERFACE;
  }
  return TImplements<TBase, IPropertyEditorInplace>::QueryInterface(AIID, AObj);
}

template <class TBase>
TRef<IInplaceForm>
TNumericSliderEditor<TBase>::GetInplaceForm(QWidget* AParent, const TRef<IPaintObjects>& APaintObjects,
                                            const TRef<IMemberUIUpdate>& AUIUpdate, const TIGXRect& ARect) {
  return FFormController->GetInplaceForm(AParent, APaintObjects, AUIUpdate, ARect);
}

template <class TBase> void TNumericSliderEditor<TBase>::DropForm(const TRef<IInplaceForm>& AForm) {
  FFormController->DropForm(AForm);
}

template <class TBase> void TNumericSliderEditor<TBase>::SetInstanceValues(const TValue& AValue) {
  TBase::SetInstanceValues(AValue);
  UpdateInplace();
}

template <class TBase> void TNumericSliderEditor<TBase>::UpdateInplace() {
  if (!FFormController) return;
  const auto controller = QueryAs<IInplaceEditorFormController<TNumericInplaceForm>>(FFormController);
  for (const TInplaceFormInfo<TNumericInplaceForm>& info : controller->GetForms()) {
    const TRef<IValueArrayList> values = this->GetInstanceValues(nullptr);
    if (info.Form && values->GetCount() > 0) info.Form->SetValue(InplaceValue(values->GetItem(0)));
  }
}

template <class TBase> void TNumericSliderEditor<TBase>::FormValueChange(QWidget* ASender) {
  if (!FFormController) return;
  const auto controller = QueryAs<IInplaceEditorFormController<TNumericInplaceForm>>(FFormController);
  for (const TInplaceFormInfo<TNumericInplaceForm>& info : controller->GetForms()) {
    if (info.Form != ASender) continue;
    SetInstanceValues(info.Form->GetValue());
    if (info.UIUpdate) {
      info.UIUpdate->EndEdit();
      info.UIUpdate->Refresh(true);
    }
  }
}

template <class TBase> void TNumericSliderEditor<TBase>::FormEditorEnter(QWidget*) { this->BeginModify(); }

template <class TBase> void TNumericSliderEditor<TBase>::FormEditorLeave(QWidget*) { this->EndModify(); }

template class TNumericSliderEditor<TRangedOrdinalPropertyEditor>;
template class TNumericSliderEditor<TBasicIntegerPropertyEditor>;

// ---- Start-up ----

void RegisterOrdinalEditors() {
  RegisterPropertyEditor(&TypeInfo_Cardinal, TCardinalPropertyEditor::ClassInfo());
  DefaultEditorClasses.ByTypeKind[tkInteger] = TIntegerPropertyEditor::ClassInfo();
  DefaultEditorClasses.ByTypeKind[tkInt64] = TInt64PropertyEditor::ClassInfo();
}

} // namespace Tarvo
