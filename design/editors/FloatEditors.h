#pragma once
// The editors of real numbers. One range serves as the hard range and the slider's: the member's
// attributes, else the class defaults, which hold a Real to the double-precision bounds and every
// other float type to single-precision ones. Values are not clamped. A Single shows with
// single-precision digits, any other type with extended ones; defaults compare exactly.

#include "design/SinglePropertyEditor.h"
#include "design/editors/SliderEditor.h"
#include "design/paint/PropertyRange.h"

namespace Tarvo {

class TARVO_API TBasicFloatPropertyEditor : public TImplements<TSinglePropertyEditor, IPropertyRange> {
  TARVO_CLASS(TBasicFloatPropertyEditor, TImplements<TSinglePropertyEditor, IPropertyRange>)
public:
  using TImplements::TImplements;

  // The member's default as a real number; empty where it has none.
  TValue GetDefaultValue() override;
  // A stored specifier's answer where the object has one, else exact equality with the default.
  TRef<IArrayList<Boolean>> GetIsDefaults(const TRef<IObjectArrayList>& AObjectsList) override;
  TRef<IStringArrayList> GetStringValues(const TRef<IObjectArrayList>& AObjectsList) override;

  // The attributes' range (Design..., DesignRange, MinValue/MaxValue, ValueRange), else the
  // defaults. The member's own limits are never read: a member that reports limits gets the
  // defaults, and so does one that reports none.
  TValue GetMinValue() override;
  TValue GetMaxValue() override;
  virtual TValue GetDefaultMinValue();
  virtual TValue GetDefaultMaxValue();

protected:
  // The member's type is Real.
  Boolean IsReal();
};

class TARVO_API TFloatPropertyEditor : public TNumericSliderEditor<TBasicFloatPropertyEditor, TRealInplaceFormUnit> {
  TARVO_CLASS(TFloatPropertyEditor, TNumericSliderEditor<TBasicFloatPropertyEditor, TRealInplaceFormUnit>)
public:
  using TNumericSliderEditor::TNumericSliderEditor;
};

// Compiled once, with the editors.
extern template class TInplaceFormEditor<TBasicFloatPropertyEditor, TRealInplaceFormUnit>;
extern template class TNumericSliderEditor<TBasicFloatPropertyEditor, TRealInplaceFormUnit>;

} // namespace Tarvo
