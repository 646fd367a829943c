#pragma once
// The form in place of a row that several editor families offer (a slider, a colour form, a strip
// of buttons): one form of class TForm per open row, made through a form controller for the
// members the family offers it to, each showing the first selected object's value. Where there
// is no controller the editor refuses IPropertyEditorInplace. The editor answers the interface
// itself, so that a grid holding it holds the editor its forms report to.

#include <memory>
#include <utility>

#include "design/SinglePropertyEditor.h"
#include "design/paint/InplaceForm.h"

namespace Tarvo {

template <class F> struct TInplaceFormInfo;

// TBase is the editor the form is added to. A base that offers a form of its own keeps it hidden
// behind this one.
//
// An editor may stack a second form over a base that has one (the alpha colour editor over the
// Cardinal editor's slider): its hooks then overload the base's on another form class, and its
// UpdateInplace overrides the base's. Both are meant.
#ifdef __clang__
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Woverloaded-virtual"
#pragma clang diagnostic ignored "-Winconsistent-missing-override"
#endif
template <class TBase, class TForm>
class TARVO_API TInplaceFormEditor : public TImplements<TBase, IPropertyEditorInplace> {
public:
  using TImplements<TBase, IPropertyEditorInplace>::TImplements;

  HRESULT QueryInterface(const TGUID& AIID, void** AObj) override;
  TRef<IInplaceForm> GetInplaceForm(QWidget* AParent, const TRef<IPaintObjects>& APaintObjects,
                                    const TRef<IMemberUIUpdate>& AUIUpdate, const TIGXRect& ARect) override;
  void DropForm(const TRef<IInplaceForm>& AForm) override;
  // The inherited write, then every open form shows the new value.
  void SetInstanceValues(const TValue& AValue) override;
  // Shows the first selected object's value in every open form.
  virtual void UpdateInplace();

protected:
  // Makes the controller; the family's InitCreate calls it for the members it offers a form to.
  void MakeFormController();
  // Wires a new form's events (each through Guarded) and gives it its first value.
  virtual void MakeForm(TForm* AForm) = 0;
  // Shows the first selected object's value in AForm.
  virtual void ShowValue(TForm* AForm) = 0;
  // When ASender is an open form: runs AWrite, then has the grid end the edit of the form's row and
  // read the rows again.
  template <class FWrite> void WriteFromForm(QWidget* ASender, FWrite AWrite);
  void FormEditorEnter(QWidget*) { this->BeginModify(); }
  void FormEditorLeave(QWidget*) { this->EndModify(); }
  // AHandler, made harmless once the editor is gone: the grid may still show its forms then.
  template <class FHandler> auto Guarded(FHandler AHandler) const {
    return [alive = std::weak_ptr<const bool>(FAlive), AHandler](auto&&... AArgs) {
      if (alive.lock()) AHandler(std::forward<decltype(AArgs)>(AArgs)...);
    };
  }

  TRef<IPropertyEditorInplace> FFormController;

private:
  std::shared_ptr<const bool> FAlive = std::make_shared<const bool>(true);
};
#ifdef __clang__
#pragma clang diagnostic pop
#endif

} // namespace Tarvo
