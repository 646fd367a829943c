#pragma once
// The button strip editor's definitions, for the sources that instantiate it with their editors.

#include "design/editors/EnumButtonsEditor.h"
#include "design/paint/InplaceFormController.h"
#include "forms/EnumCanvasInplaceForm.h"

namespace Tarvo {

// The size of a button's picture.
inline constexpr Integer EnumButtonPictureSize = 16;

template <class TBase> void TEnumButtonsEditor<TBase>::InitCreate(TSinglePropertyEditor* AInstance) {
  TBase::InitCreate(AInstance);
  if (this->GetFirstMember()->GetVisibility() != mvPublished) return;
  // The controller lives as long as the editor, so the editor may be captured bare.
  FFormController = New<TInplaceEditorFormController<TEnumCanvasInplaceForm>>(
      [](const TIGXRect&) { return new TEnumCanvasInplaceForm(); },
      [this](TEnumCanvasInplaceForm* AForm) { MakeForm(AForm); });
}

template <class TBase> TEnumButtonsEditor<TBase>::~TEnumButtonsEditor() {
  if (!FFormController) return;
  const auto controller = QueryAs<IInplaceEditorFormController<TEnumCanvasInplaceForm>>(FFormController);
  for (const TInplaceFormInfo<TEnumCanvasInplaceForm>& info : controller->GetForms())
    if (info.Form) info.Form->OnButtonClick = nullptr;
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
  AForm->OnButtonClick = [this, AForm](Integer AIndex, Integer) { FormButtonClick(AForm, AIndex); };
}

template <class TBase> HRESULT TEnumButtonsEditor<TBase>::QueryInterface(const TGUID& AIID, void** AObj) {
  if (AIID == IPropertyEditorInplace::IID && !FFormController) {
    *AObj = nullptr;
    return E_NOINTERFACE;
  }
  return TImplements<TBase, IPropertyEditorInplace>::QueryInterface(AIID, AObj);
}

template <class TBase>
TRef<IInplaceForm> TEnumButtonsEditor<TBase>::GetInplaceForm(QWidget* AParent, const TRef<IPaintObjects>& APaintObjects,
                                                             const TRef<IMemberUIUpdate>& AUIUpdate,
                                                             const TIGXRect& ARect) {
  return FFormController->GetInplaceForm(AParent, APaintObjects, AUIUpdate, ARect);
}

template <class TBase> void TEnumButtonsEditor<TBase>::DropForm(const TRef<IInplaceForm>& AForm) {
  FFormController->DropForm(AForm);
}

template <class TBase> void TEnumButtonsEditor<TBase>::SetInstanceValues(const TValue& AValue) {
  TBase::SetInstanceValues(AValue);
  UpdateInplace();
}

template <class TBase> void TEnumButtonsEditor<TBase>::UpdateInplace() {
  if (!FFormController) return;
  const auto controller = QueryAs<IInplaceEditorFormController<TEnumCanvasInplaceForm>>(FFormController);
  for (const TInplaceFormInfo<TEnumCanvasInplaceForm>& info : controller->GetForms())
    if (info.Form) info.Form->SetSelectedValue(SelectedIndex());
}

template <class TBase>
void TEnumButtonsEditor<TBase>::FormButtonClick(TEnumCanvasInplaceForm* AForm, Integer AIndex) {
  this->SetStringValue(FValues->GetItem(AIndex));
  const auto controller = QueryAs<IInplaceEditorFormController<TEnumCanvasInplaceForm>>(FFormController);
  for (const TInplaceFormInfo<TEnumCanvasInplaceForm>& info : controller->GetForms())
    if (info.Form == AForm && info.UIUpdate) {
      info.UIUpdate->EndEdit();
      info.UIUpdate->Refresh(true);
    }
}

} // namespace Tarvo
