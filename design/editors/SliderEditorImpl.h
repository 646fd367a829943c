#pragma once
// The slider editor's definitions, for the sources that instantiate it with their editors.

#include <type_traits>

#include "design/editors/SliderEditor.h"
#include "design/paint/InplaceFormController.h"
#include "design/paint/PropertyRange.h"
#include "forms/RangedInplaceForm.h"

namespace Tarvo {

template <class TBase, class TForm> TValue TNumericSliderEditor<TBase, TForm>::InplaceValue(const TValue& AValue) {
  if constexpr (std::is_same_v<TForm, TNumericInplaceForm>) return TValue(AValue.AsOrdinal());
  else return TValue::From<Double>(Double(AValue.AsExtended()));
}

template <class TBase, class TForm>
void TNumericSliderEditor<TBase, TForm>::InitCreate(TSinglePropertyEditor* AInstance) {
  TBase::InitCreate(AInstance);
  if (!OffersInplaceForm(this->GetFirstMember())) return;
  // The controller lives as long as the editor, so the editor may be captured bare.
  FFormController = New<TInplaceEditorFormController<TForm>>([](const TIGXRect&) { return new TForm(); },
                                                             [this](TForm* AForm) { MakeForm(AForm); });
}

template <class TBase, class TForm> TNumericSliderEditor<TBase, TForm>::~TNumericSliderEditor() {
  if (!FFormController) return;
  for (const TInplaceFormInfo<TForm>& info : QueryAs<IInplaceEditorFormController<TForm>>(FFormController)->GetForms())
    if (info.Form) info.Form->OnValueChange = info.Form->OnEditorEnter = info.Form->OnEditorLeave = nullptr;
}

template <class TBase, class TForm> void TNumericSliderEditor<TBase, TForm>::MakeForm(TForm* AForm) {
  AForm->OnValueChange = [this](QWidget* ASender) { FormValueChange(ASender); };
  AForm->OnEditorEnter = [this](QWidget* ASender) { FormEditorEnter(ASender); };
  AForm->OnEditorLeave = [this](QWidget* ASender) { FormEditorLeave(ASender); };
  // The range is taken now and held as the form holds values, so that a Cardinal's declared
  // maximum, which reads -1, is its 4294967295.
  if constexpr (std::is_base_of_v<IPropertySuggestedRange, TBase>)
    AForm->SetLimits(
        New<TPropertyRange>(InplaceValue(this->GetSuggestedMinValue()), InplaceValue(this->GetSuggestedMaxValue())));
  else AForm->SetLimits(New<TPropertyRange>(InplaceValue(this->GetMinValue()), InplaceValue(this->GetMaxValue())));
  if (const TRef<IValueArrayList> values = this->GetInstanceValues(nullptr); values->GetCount() > 0)
    AForm->SetValue(values->GetItem(0));
}

template <class TBase, class TForm>
HRESULT TNumericSliderEditor<TBase, TForm>::QueryInterface(const TGUID& AIID, void** AObj) {
  if (AIID == IPropertyEditorInplace::IID && !FFormController) {
    *AObj = nullptr;
    return E_NOINTERFACE;
  }
  return TImplements<TBase, IPropertyEditorInplace>::QueryInterface(AIID, AObj);
}

template <class TBase, class TForm>
TRef<IInplaceForm>
TNumericSliderEditor<TBase, TForm>::GetInplaceForm(QWidget* AParent, const TRef<IPaintObjects>& APaintObjects,
                                                   const TRef<IMemberUIUpdate>& AUIUpdate, const TIGXRect& ARect) {
  return FFormController->GetInplaceForm(AParent, APaintObjects, AUIUpdate, ARect);
}

template <class TBase, class TForm> void TNumericSliderEditor<TBase, TForm>::DropForm(const TRef<IInplaceForm>& AForm) {
  FFormController->DropForm(AForm);
}

template <class TBase, class TForm> void TNumericSliderEditor<TBase, TForm>::SetInstanceValues(const TValue& AValue) {
  TBase::SetInstanceValues(AValue);
  UpdateInplace();
}

template <class TBase, class TForm> void TNumericSliderEditor<TBase, TForm>::UpdateInplace() {
  if (!FFormController) return;
  const auto controller = QueryAs<IInplaceEditorFormController<TForm>>(FFormController);
  for (const TInplaceFormInfo<TForm>& info : controller->GetForms()) {
    const TRef<IValueArrayList> values = this->GetInstanceValues(nullptr);
    if (info.Form && values->GetCount() > 0) info.Form->SetValue(InplaceValue(values->GetItem(0)));
  }
}

template <class TBase, class TForm> void TNumericSliderEditor<TBase, TForm>::FormValueChange(QWidget* ASender) {
  if (!FFormController) return;
  const auto controller = QueryAs<IInplaceEditorFormController<TForm>>(FFormController);
  for (const TInplaceFormInfo<TForm>& info : controller->GetForms()) {
    if (info.Form != ASender) continue;
    SetInstanceValues(info.Form->GetValue());
    if (info.UIUpdate) {
      info.UIUpdate->EndEdit();
      info.UIUpdate->Refresh(true);
    }
  }
}

template <class TBase, class TForm> void TNumericSliderEditor<TBase, TForm>::FormEditorEnter(QWidget*) {
  this->BeginModify();
}

template <class TBase, class TForm> void TNumericSliderEditor<TBase, TForm>::FormEditorLeave(QWidget*) {
  this->EndModify();
}

} // namespace Tarvo
