#pragma once
// The strip of picture buttons in place that the cursor and canvas enumeration editors offer: one
// button a name of the list, the first selected object's value pressed. A click writes the name to
// every selected object. Made for published members only.

#include "design/editors/InplaceFormEditor.h"

namespace Tarvo {

class TEnumCanvasInplaceForm;

// TBase is the editor the strip is added to.
template <class TBase> class TARVO_API TEnumButtonsEditor : public TInplaceFormEditor<TBase, TEnumCanvasInplaceForm> {
public:
  using TInplaceFormEditor<TBase, TEnumCanvasInplaceForm>::TInplaceFormEditor;

  // Writes the name of the button at AIndex, then has the grid end the edit and read the rows.
  void FormButtonClick(TEnumCanvasInplaceForm* AForm, Integer AIndex);

protected:
  void InitCreate(TSinglePropertyEditor* AInstance) override;
  void MakeForm(TEnumCanvasInplaceForm* AForm) override;
  // Presses the button of the first selected object's value.
  void ShowValue(TEnumCanvasInplaceForm* AForm) override;
  // The names on offer, one button each.
  virtual TRef<IStringArrayList> ButtonNames();
  // The picture on the button of AName; nil for none.
  virtual TRef<IGXBitmap> ButtonPicture(const String& AName);

  // The names of the buttons of the form made last.
  TRef<IStringArrayList> FValues;

private:
  // The index in FValues of the first selected object's value; -1 when it has none.
  Integer SelectedIndex();
};

} // namespace Tarvo
