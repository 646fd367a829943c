#pragma once
// In-place forms: small forms that open inside the member grid under the row being edited. A
// property editor offers them through IPropertyEditorInplace, and TInplaceForm is the grid's
// handle on one of them.

#include <QPointer>
#include <QWidget>

#include "containers/ArrayList.h"
#include "design/Interfaced.h"
#include "design/paint/EditorPaint.h"

namespace Tarvo {

class TARVO_API IInplaceForm : public virtual IInterface {
  TARVO_INTERFACE(IInplaceForm, "{3646D2DC-956D-445C-B3A2-B4D08C5441A9}", IInterface)
public:
  // The form decides its height; the grid opens the row that far. 0 once the form is gone.
  virtual Integer GetHeight() = 0;
  virtual void UpdateColor(TColor AColor) = 0;
  // Moves and widens the form; its height stays its own.
  virtual void UpdateRect(const TIGXRect& ARect) = 0;
  // Nil once the form is gone.
  virtual QWidget* GetForm() = 0;
  virtual TRef<IMemberUIUpdate> GetUIUpdate() = 0;
};

// The form's own life decides: when its parent takes it down first, the handle answers as for no
// form; when the handle goes first, it takes the form with it.
class TARVO_API TInplaceForm : public TImplements<TInterfaced, IInplaceForm> {
public:
  TInplaceForm(QWidget* AInplaceForm, TRef<IMemberUIUpdate> AUIUpdate);
  ~TInplaceForm() override;

  Integer GetHeight() override;
  void UpdateColor(TColor AColor) override;
  void UpdateRect(const TIGXRect& ARect) override;
  QWidget* GetForm() override { return FInplaceForm; }
  TRef<IMemberUIUpdate> GetUIUpdate() override { return FUIUpdate; }

private:
  QPointer<QWidget> FInplaceForm;
  TRef<IMemberUIUpdate> FUIUpdate;
};

TARVO_ARRAY_LIST_INSTANCES(extern, TRef<IInplaceForm>)

class TARVO_API IPropertyEditorInplace : public virtual IInterface {
  TARVO_INTERFACE(IPropertyEditorInplace, "{3C652DC0-F9DA-4B44-900B-A778CE0FF2AB}", IInterface)
public:
  // Opens a form on AParent (the grid's widget) at ARect, in the colour of a plain list row.
  virtual TRef<IInplaceForm> GetInplaceForm(QWidget* AParent, const TRef<IPaintObjects>& APaintObjects,
                                            const TRef<IMemberUIUpdate>& AUIUpdate, const TIGXRect& ARect) = 0;
  // Forgets the form.
  virtual void DropForm(const TRef<IInplaceForm>& AForm) = 0;
};

} // namespace Tarvo
