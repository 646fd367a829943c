#pragma once
// The strip of picture buttons in place that the cursor and canvas enumeration editors offer: one
// button a name of the list, the first selected object's value pressed. A click writes the name to
// every selected object. Made for published members only; the editor answers
// IPropertyEditorInplace itself, so that a grid holding it holds the editor its forms report to.

#include "design/SinglePropertyEditor.h"
#include "design/paint/InplaceForm.h"

namespace Tarvo {

class TEnumCanvasInplaceForm;

// TBase is the editor the strip is added to.
template <class TBase> class TARVO_API TEnumButtonsEditor : public TImplements<TBase, IPropertyEditorInplace> {
public:
  using TImplements<TBase, IPropertyEditorInplace>::TImplements;
  // Forms the grid still shows stop reporting to the editor.
  ~TEnumButtonsEditor() override;

  // Refuses IPropertyEditorInplace where there is no strip.
  HRESULT QueryInterface(const TGUID& AIID, void** AObj) override;
  TRef<IInplaceForm> GetInplaceForm(QWidget* AParent, const TRef<IPaintObjects>& APaintObjects,
                                    const TRef<IMemberUIUpdate>& AUIUpdate, const TIGXRect& ARect) override;
  void DropForm(const TRef<IInplaceForm>& AForm) override;
  void SetInstanceValues(const TValue& AValue) override;
  // Presses, in every open form, the button of the first selected object's value.
  virtual void UpdateInplace();
  // Writes the name of the button at AIndex, then has the grid end the edit and read the rows.
  void FormButtonClick(TEnumCanvasInplaceForm* AForm, Integer AIndex);

protected:
  void InitCreate(TSinglePropertyEditor* AInstance) override;
  // The names on offer, one button each.
  virtual TRef<IStringArrayList> ButtonNames();
  // The picture on the button of AName; nil for none.
  virtual TRef<IGXBitmap> ButtonPicture(const String& AName);

  // The names of the buttons of the form made last.
  TRef<IStringArrayList> FValues;
  TRef<IPropertyEditorInplace> FFormController;

private:
  void MakeForm(TEnumCanvasInplaceForm* AForm);
  // The index in FValues of the first selected object's value; -1 when it has none.
  Integer SelectedIndex();
};

} // namespace Tarvo
