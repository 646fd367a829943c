#pragma once
// The editors of whole numbers of every width. The ranged family knows two ranges: the hard range,
// which every write is clamped into, and the suggested range, which scales the slider that the
// Cardinal, Integer and Int64 editors offer in place. Text is read and written as the base value
// editor does it; out-of-range numbers are clamped, never refused.

#include "design/SinglePropertyEditor.h"
#include "design/editors/SliderEditor.h"
#include "design/paint/PropertyRange.h"

namespace Tarvo {

// Values compared by their text for the default marker.
class TARVO_API TOrdinalPropertyEditor : public TSinglePropertyEditor {
  TARVO_CLASS(TOrdinalPropertyEditor, TSinglePropertyEditor)
public:
  using TSinglePropertyEditor::TSinglePropertyEditor;
  // A stored specifier's answer where the object has one, else the value's text against the
  // default's, case-sensitive.
  TRef<IArrayList<Boolean>> GetIsDefaults(const TRef<IObjectArrayList>& AObjectsList) override;
};

class TARVO_API TRangedOrdinalPropertyEditor
    : public TImplements<TSinglePropertyEditor, IPropertyRange, IPropertySuggestedRange> {
  TARVO_CLASS(TRangedOrdinalPropertyEditor, TImplements<TSinglePropertyEditor, IPropertyRange, IPropertySuggestedRange>)
public:
  using TImplements::TImplements;

  // Refuses IPropertyRange for a member with SuppressRangeAttribute; the clamping stays.
  HRESULT QueryInterface(const TGUID& AIID, void** AObj) override;
  // Clamps into the hard range, the maximum first, so that the minimum wins where they cross.
  // When the range reads crossed as signed numbers it is read unsigned. The result is an Int64.
  TValue ApplyConstraints(const TValue& AValue) override;

  // The hard range: the member's own limits, else the defaults of the class; the maximum of an
  // integer type is its declared one (so a Cardinal's reads -1, and a Byte's minimum stays the
  // default's).
  TValue GetMinValue() override;
  TValue GetMaxValue() override;
  // The slider's range: the member's Design... attributes, then its MinValue/MaxValue/ValueRange
  // attributes, then (minimum only) the integer type's declared minimum, then the hard range.
  TValue GetSuggestedMinValue() override;
  TValue GetSuggestedMaxValue() override;
  virtual TValue GetDefaultMinValue() { return TValue(Integer(-2147483647 - 1)); }
  virtual TValue GetDefaultMaxValue() { return TValue(Integer(2147483647)); }
};

class TARVO_API TCardinalPropertyEditor
    : public TNumericSliderEditor<TRangedOrdinalPropertyEditor, TNumericInplaceForm> {
  TARVO_CLASS(TCardinalPropertyEditor, TNumericSliderEditor<TRangedOrdinalPropertyEditor, TNumericInplaceForm>)
public:
  using TNumericSliderEditor::TNumericSliderEditor;
  TValue GetDefaultMinValue() override { return TValue(Integer(0)); }
  TValue GetDefaultMaxValue() override { return TValue(Int64(4294967295)); }

protected:
  // The low 32 bits, unsigned.
  TValue InplaceValue(const TValue& AValue) override { return TValue(Int64(std::uint32_t(AValue.AsOrdinal()))); }
};

// The integer editors without a slider, such as the colour editors.
class TARVO_API TBasicIntegerPropertyEditor : public TRangedOrdinalPropertyEditor {
  TARVO_CLASS(TBasicIntegerPropertyEditor, TRangedOrdinalPropertyEditor)
public:
  using TRangedOrdinalPropertyEditor::TRangedOrdinalPropertyEditor;
};

class TARVO_API TIntegerPropertyEditor : public TNumericSliderEditor<TBasicIntegerPropertyEditor, TNumericInplaceForm> {
  TARVO_CLASS(TIntegerPropertyEditor, TNumericSliderEditor<TBasicIntegerPropertyEditor, TNumericInplaceForm>)
public:
  using TNumericSliderEditor::TNumericSliderEditor;
};

class TARVO_API TInt64PropertyEditor : public TNumericSliderEditor<TRangedOrdinalPropertyEditor, TNumericInplaceForm> {
  TARVO_CLASS(TInt64PropertyEditor, TNumericSliderEditor<TRangedOrdinalPropertyEditor, TNumericInplaceForm>)
public:
  using TNumericSliderEditor::TNumericSliderEditor;
  TValue GetDefaultMinValue() override { return TValue(Int64(INT64_MIN)); }
  TValue GetDefaultMaxValue() override { return TValue(Int64(INT64_MAX)); }
};

// Compiled once, with the editors.
extern template class TInplaceFormEditor<TRangedOrdinalPropertyEditor, TNumericInplaceForm>;
extern template class TInplaceFormEditor<TBasicIntegerPropertyEditor, TNumericInplaceForm>;
extern template class TNumericSliderEditor<TRangedOrdinalPropertyEditor, TNumericInplaceForm>;
extern template class TNumericSliderEditor<TBasicIntegerPropertyEditor, TNumericInplaceForm>;

} // namespace Tarvo
