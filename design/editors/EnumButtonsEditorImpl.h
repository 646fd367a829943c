#pragma once
// The button strip editor's definitions, for the sources that instantiate it with their editors.

#include "design/editors/EnumButtonsEditor.h"
#include "design/editors/InplaceFormEditorImpl.h"
#include "forms/EnumCanvasInplaceForm.h"

namespace Tarvo {

// The strip's controller and its list of forms, compiled once (instances/).
TARVO_INPLACE_FORM_INSTANCES(extern, TEnumCanvasInplaceForm)

// The size of a button's picture.
inline constexpr Integer EnumButtonPictureSize = 16;

template <class TBase> void TEnumButtonsEditor<TBase>::InitCreate(TSinglePropertyEditor* AInstance) {
  TBase::InitCreate(AInstance);
  if (this->GetFirstMember()->GetVisibility() == mvPublished) this->MakeFormController();
}

template <class TBase> TRef<IStringArrayList> TEnumButtonsEditor<TBase>::ButtonNames() {
  return New<TStringArrayList>();
}

template <class TBase> TRef<IGXBitmap> TEnumButtonsEditor<TBase>::ButtonPicture(const String&) { return nullptr; }

template <class TBase> Integer TEnumButtonsEditor<TBase>::SelectedIndex() {
  const TRef<IStringArrayList> texts = this->GetStringValues(nullptr);
  Integer index = -1;
  if (!FValues || texts->GetCount() == 0 || !FValues->Query()->IndexOf(texts->GetItem(0), index)) return -1;
  return index;
}

template <class TBase> void TEnumButtonsEditor<TBase>::MakeForm(TEnumCanvasInplaceForm* AForm) {
  FValues = ButtonNames();
  const Integer selected = SelectedIndex();
  for (Integer index = 0; index < FValues->GetCount(); ++index) {
    const String name = FValues->GetItem(index);
    AForm->AddButton(ButtonPicture(name), name, index == selected, index, EnumButtonPictureSize);
  }
  AForm->OnButtonClick = this->Guarded([this, AForm](Integer AIndex, Integer) { FormButtonClick(AForm, AIndex); });
}

template <class TBase> void TEnumButtonsEditor<TBase>::ShowValue(TEnumCanvasInplaceForm* AForm) {
  AForm->SetSelectedValue(SelectedIndex());
}

template <class TBase>
void TEnumButtonsEditor<TBase>::FormButtonClick(TEnumCanvasInplaceForm* AForm, Integer AIndex) {
  this->WriteFromForm(AForm, [&](TEnumCanvasInplaceForm*) { this->SetStringValue(FValues->GetItem(AIndex)); });
}

} // namespace Tarvo
