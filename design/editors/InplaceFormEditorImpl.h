#pragma once
// The in-place form editor's definitions, for the sources that instantiate it with their editors.

#include "design/editors/InplaceFormEditor.h"
#include "design/paint/InplaceFormController.h"

namespace Tarvo {

template <class TBase, class TForm> void TInplaceFormEditor<TBase, TForm>::MakeFormController() {
  // The controller lives as long as the editor, so the editor may be captured bare.
  FFormController = New<TInplaceEditorFormController<TForm>>([](const TIGXRect&) { return new TForm(); },
                                                             [this](TForm* AForm) { MakeForm(AForm); });
}

template <class TBase, class TForm>
HRESULT TInplaceFormEditor<TBase, TForm>::QueryInterface(const TGUID& AIID, void** AObj) {
  if (AIID == IPropertyEditorInplace::IID && !FFormController) {
    *AObj = nullptr;
    return E_NOINTERFACE;
  }
  return TImplements<TBase, IPropertyEditorInplace>::QueryInterface(AIID, AObj);
}

template <class TBase, class TForm>
TRef<IInplaceForm> TInplaceFormEditor<TBase, TForm>::GetInplaceForm(QWidget* AParent,
                                                                    const TRef<IPaintObjects>& APaintObjects,
                                                                    const TRef<IMemberUIUpdate>& AUIUpdate,
                                                                    const TIGXRect& ARect) {
  return FFormController->GetInplaceForm(AParent, APaintObjects, AUIUpdate, ARect);
}

template <class TBase, class TForm> void TInplaceFormEditor<TBase, TForm>::DropForm(const TRef<IInplaceForm>& AForm) {
  FFormController->DropForm(AForm);
}

template <class TBase, class TForm> void TInplaceFormEditor<TBase, TForm>::SetInstanceValues(const TValue& AValue) {
  TBase::SetInstanceValues(AValue);
  // A base with a form of its own calls UpdateInplace itself, which reaches the override here.
  if constexpr (!std::is_base_of_v<IPropertyEditorInplace, TBase>) UpdateInplace();
}

template <class TBase, class TForm> void TInplaceFormEditor<TBase, TForm>::UpdateInplace() {
  if (!FFormController) return;
  for (const TInplaceFormInfo<TForm>& info : QueryAs<IInplaceEditorFormController<TForm>>(FFormController)->GetForms())
    if (info.Form) ShowValue(info.Form);
}

template <class TBase, class TForm>
template <class FWrite>
void TInplaceFormEditor<TBase, TForm>::WriteFromForm(QWidget* ASender, FWrite AWrite) {
  if (!FFormController) return;
  for (const TInplaceFormInfo<TForm>& info :
       QueryAs<IInplaceEditorFormController<TForm>>(FFormController)->GetForms()) {
    if (info.Form != ASender) continue;
    AWrite(info.Form);
    if (info.UIUpdate) {
      info.UIUpdate->EndEdit();
      info.UIUpdate->Refresh(true);
    }
  }
}

} // namespace Tarvo
