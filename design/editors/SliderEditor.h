#pragma once
// The slider in place that the integer and float editors offer: a track-bar form per open row,
// made for members that are published and have no fixed list. Every move writes all selected
// objects; a form shows the first object's value. The editor answers IPropertyEditorInplace
// itself, so that a grid holding it holds the editor its forms report to.

#include "design/SinglePropertyEditor.h"
#include "design/paint/InplaceForm.h"

namespace Tarvo {

class TNumericInplaceForm;
class TRealInplaceFormUnit;

// TBase is the editor the slider is added to; TForm the form, TNumericInplaceForm for whole
// numbers or TRealInplaceFormUnit for real ones. The slider runs over the base's suggested range
// where it has one, else over its hard range.
template <class TBase, class TForm>
class TARVO_API TNumericSliderEditor : public TImplements<TBase, IPropertyEditorInplace> {
public:
  using TImplements<TBase, IPropertyEditorInplace>::TImplements;
  // Forms the grid still shows stop reporting to the editor.
  ~TNumericSliderEditor() override;

  // Refuses IPropertyEditorInplace where there is no slider.
  HRESULT QueryInterface(const TGUID& AIID, void** AObj) override;
  TRef<IInplaceForm> GetInplaceForm(QWidget* AParent, const TRef<IPaintObjects>& APaintObjects,
                                    const TRef<IMemberUIUpdate>& AUIUpdate, const TIGXRect& ARect) override;
  void DropForm(const TRef<IInplaceForm>& AForm) override;
  void SetInstanceValues(const TValue& AValue) override;
  // Pushes the first selected object's value into every open form.
  virtual void UpdateInplace();

  void FormValueChange(QWidget* ASender);
  void FormEditorEnter(QWidget* ASender);
  void FormEditorLeave(QWidget* ASender);

protected:
  void InitCreate(TSinglePropertyEditor* AInstance) override;
  // A value or a limit as the form holds it: an Int64 for whole numbers, a Double for real ones.
  virtual TValue InplaceValue(const TValue& AValue);

  TRef<IPropertyEditorInplace> FFormController;

private:
  void MakeForm(TForm* AForm);
};

} // namespace Tarvo
