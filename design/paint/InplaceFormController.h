#pragma once
// TInplaceEditorFormController<F> makes and tracks the in-place forms of class F for an editor.

#include <memory>

#include "design/paint/InplaceForm.h"
#include "platform/ControlColor.h"
#include "platform/EventHook.h"
#include "reflection/RowAttributes.h"

namespace Tarvo {

// Whether the row of AMember offers a form in place: a published member without a fixed list.
inline Boolean OffersInplaceForm(const TRef<IMemberInfo>& AMember) {
  return !AMember->HasCustomAttribute(PropertyFixedListDesignAttribute::ClassInfo(), true) &&
         AMember->GetVisibility() == mvPublished;
}

// An open form of class F with the grid handle it was opened for; the form is nil once gone.
template <class F> struct TInplaceFormInfo {
  F* Form = nullptr;
  TRef<IMemberUIUpdate> UIUpdate;
};

template <class F> class IInplaceEditorFormController : public virtual IPropertyEditorInplace {
  TARVO_INTERFACE(IInplaceEditorFormController, "{737ED2EE-42E9-49CE-9472-9A428336815F}", IPropertyEditorInplace)
public:
  // A snapshot of the forms opened and not dropped, in opening order.
  virtual TRef<IArrayList<TInplaceFormInfo<F>>> GetForms() = 0;
  // The grid handle of the form opened last.
  virtual TRef<IMemberUIUpdate> GetUIUpdate() = 0;
};

template <class F>
class TInplaceEditorFormController : public TImplements<TInterfaced, IInplaceEditorFormController<F>> {
public:
  // Makes a new form, unparented, for the rectangle it will open at.
  using TMakeFormInstance = TFunc<TIGXRect, F*>;
  // Wires a new form's events and gives it its first value.
  using TUpdateForm = TProc<F*>;

  explicit TInplaceEditorFormController(TMakeFormInstance AOnMakeInstance, TUpdateForm AOnUpdateForm = nullptr)
      : FOnMakeInstance(std::move(AOnMakeInstance)), FOnUpdateForm(std::move(AOnUpdateForm)) {
    TARVO_ASSERT(FOnMakeInstance != nullptr);
  }

  TRef<IInplaceForm> GetInplaceForm(QWidget* AParent, const TRef<IPaintObjects>& APaintObjects,
                                    const TRef<IMemberUIUpdate>& AUIUpdate, const TIGXRect& ARect) override {
    F* form = FOnMakeInstance(ARect);
    TARVO_ASSERT(form != nullptr);
    HookEvent(form, QEvent::Close, [handler = std::weak_ptr<const TProc<>>(FCloseHandler)](QEvent*) {
      if (const auto close = handler.lock()) (*close)();
    });
    const TRef<IInplaceForm> result = New<TInplaceForm>(form, AUIUpdate);
    FInplaceForms->Add(result);
    FUIUpdate = AUIUpdate;
    if (FOnUpdateForm) FOnUpdateForm(form);
    form->setParent(AParent);
    // A form and its row match until the row's state changes.
    SetControlColor(form, APaintObjects->GetListSet()->GetNone()->GetBkgColor());
    result->UpdateRect(ARect);
    form->show();
    return result;
  }

  void DropForm(const TRef<IInplaceForm>& AForm) override { FInplaceForms->RemoveOne(AForm); }

  TRef<IArrayList<TInplaceFormInfo<F>>> GetForms() override {
    const auto result = New<TArrayList<TInplaceFormInfo<F>>>();
    for (const TRef<IInplaceForm>& form : *FInplaceForms)
      result->Add({static_cast<F*>(form->GetForm()), form->GetUIUpdate()});
    return result;
  }

  TRef<IMemberUIUpdate> GetUIUpdate() override { return FUIUpdate; }

private:
  // A form closed by its user ends the editing of the row and has the grid read it again.
  void FormClose() {
    if (!FUIUpdate) return;
    const TRef<IMemberUIUpdate> update = FUIUpdate;
    update->EndEdit();
    update->Refresh(true);
  }

  TMakeFormInstance FOnMakeInstance;
  TUpdateForm FOnUpdateForm;
  TRef<IArrayList<TRef<IInplaceForm>>> FInplaceForms = New<TArrayList<TRef<IInplaceForm>>>();
  TRef<IMemberUIUpdate> FUIUpdate;
  // Forms may outlive the controller; they hold this handler weakly.
  const std::shared_ptr<const TProc<>> FCloseHandler = std::make_shared<const TProc<>>([this] { FormClose(); });
};

} // namespace Tarvo

// The controller of the forms of class F and the list of them cost seconds to compile: a source
// file that shares them declares them with TARVO_INPLACE_FORM_INSTANCES(extern, F), and one source
// file compiles them with TARVO_INPLACE_FORM_INSTANCES(, F). Use inside namespace Tarvo.
#define TARVO_INPLACE_FORM_INSTANCES(AExtern, F)                                                                       \
  TARVO_ARRAY_LIST_INSTANCES(AExtern, TInplaceFormInfo<F>)                                                             \
  AExtern template class TInplaceEditorFormController<F>;
