#pragma once
// The slider in place that the integer and float editors offer: a track-bar form per open row,
// made for members that are published and have no fixed list. Every move writes all selected
// objects; a form shows the first object's value.

#include "design/editors/InplaceFormEditor.h"

namespace Tarvo {

class TNumericInplaceForm;
class TRealInplaceFormUnit;

// TBase is the editor the slider is added to; TForm the form, TNumericInplaceForm for whole
// numbers or TRealInplaceFormUnit for real ones. The slider runs over the base's suggested range
// where it has one, else over its hard range.
template <class TBase, class TForm> class TARVO_API TNumericSliderEditor : public TInplaceFormEditor<TBase, TForm> {
public:
  using TInplaceFormEditor<TBase, TForm>::TInplaceFormEditor;

protected:
  void InitCreate(TSinglePropertyEditor* AInstance) override;
  void MakeForm(TForm* AForm) override;
  void ShowValue(TForm* AForm) override;
  // A value or a limit as the form holds it: an Int64 for whole numbers, a Double for real ones.
  virtual TValue InplaceValue(const TValue& AValue);
};

} // namespace Tarvo
