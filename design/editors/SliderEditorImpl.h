#pragma once
// The slider editor's definitions, for the sources that instantiate it with their editors.

#include <type_traits>

#include "design/editors/InplaceFormEditorImpl.h"
#include "design/editors/SliderEditor.h"
#include "design/paint/PropertyRange.h"
#include "forms/RangedInplaceForm.h"

namespace Tarvo {

// The sliders' controllers and their lists of forms, compiled once (instances/).
TARVO_INPLACE_FORM_INSTANCES(extern, TNumericInplaceForm)
TARVO_INPLACE_FORM_INSTANCES(extern, TRealInplaceFormUnit)

template <class TBase, class TForm> TValue TNumericSliderEditor<TBase, TForm>::InplaceValue(const TValue& AValue) {
  if constexpr (std::is_same_v<TForm, TNumericInplaceForm>) return TValue(AValue.AsOrdinal());
  else return TValue::From<Double>(Double(AValue.AsExtended()));
}

template <class TBase, class TForm>
void TNumericSliderEditor<TBase, TForm>::InitCreate(TSinglePropertyEditor* AInstance) {
  TBase::InitCreate(AInstance);
  if (OffersInplaceForm(this->GetFirstMember())) this->MakeFormController();
}

template <class TBase, class TForm> void TNumericSliderEditor<TBase, TForm>::MakeForm(TForm* AForm) {
  AForm->OnValueChange = this->Guarded([this](QWidget* ASender) {
    this->WriteFromForm(ASender, [this](TForm* AChanged) { this->SetInstanceValues(AChanged->GetValue()); });
  });
  AForm->OnEditorEnter = this->Guarded([this](QWidget* ASender) { this->FormEditorEnter(ASender); });
  AForm->OnEditorLeave = this->Guarded([this](QWidget* ASender) { this->FormEditorLeave(ASender); });
  // The range is taken now and held as the form holds values, so that a Cardinal's declared
  // maximum, which reads -1, is its 4294967295.
  if constexpr (std::is_base_of_v<IPropertySuggestedRange, TBase>)
    AForm->SetLimits(
        New<TPropertyRange>(InplaceValue(this->GetSuggestedMinValue()), InplaceValue(this->GetSuggestedMaxValue())));
  else AForm->SetLimits(New<TPropertyRange>(InplaceValue(this->GetMinValue()), InplaceValue(this->GetMaxValue())));
  if (const TRef<IValueArrayList> values = this->GetInstanceValues(nullptr); values->GetCount() > 0)
    AForm->SetValue(values->GetItem(0));
}

template <class TBase, class TForm> void TNumericSliderEditor<TBase, TForm>::ShowValue(TForm* AForm) {
  if (const TRef<IValueArrayList> values = this->GetInstanceValues(nullptr); values->GetCount() > 0)
    AForm->SetValue(InplaceValue(values->GetItem(0)));
}

} // namespace Tarvo
