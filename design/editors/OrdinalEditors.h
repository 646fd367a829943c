#pragma once
// The editors of whole numbers of every width. The ranged family knows two ranges: the hard range,
// which every write is clamped into, and the suggested range, which scales the slider that the
// Cardinal, Integer and Int64 editors offer in place. Text is read and written as the base value
// editor does it; out-of-range numbers are clamped, never refused.

#include "design/SinglePropertyEditor.h"
#include "design/paint/InplaceForm.h"
#include "design/paint/PropertyRange.h"

namespace Tarvo {

class TNumericInplaceForm;

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

// The slider in place: a numeric form per open row, made for members that are published and have
// no fixed list. Every move writes all selected objects; a form shows the first object's value.
// The editor answers IPropertyEditorInplace itself, so that a grid holding it holds the editor
// its forms report to.
template <class TBase> class TARVO_API TNumericSliderEditor : public TImplements<TBase, IPropertyEditorInplace> {
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
  // A value or a limit as a form holds it.
  virtual TValue InplaceValue(const TValue& AValue) { return TValue(AValue.AsOrdinal()); }

  TRef<IPropertyEditorInplace> FFormController;

private:
  void MakeForm(TNumericInplaceForm* AForm);
};

class TARVO_API TCardinalPropertyEditor : public TNumericSliderEditor<TRangedOrdinalPropertyEditor> {
  TARVO_CLASS(TCardinalPropertyEditor, TNumericSliderEditor<TRangedOrdinalPropertyEditor>)
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

class TARVO_API TIntegerPropertyEditor : public TNumericSliderEditor<TBasicIntegerPropertyEditor> {
  TARVO_CLASS(TIntegerPropertyEditor, TNumericSliderEditor<TBasicIntegerPropertyEditor>)
public:
  using TNumericSliderEditor::TNumericSliderEditor;
};

class TARVO_API TInt64PropertyEditor : public TNumericSliderEditor<TRangedOrdinalPropertyEditor> {
  TARVO_CLASS(TInt64PropertyEditor, TNumericSliderEditor<TRangedOrdinalPropertyEditor>)
public:
  using TNumericSliderEditor::TNumericSliderEditor;
  TValue GetDefaultMinValue() override { return TValue(Int64(INT64_MIN)); }
  TValue GetDefaultMaxValue() override { return TValue(Int64(INT64_MAX)); }
};

// Compiled once, with the editors.
extern template class TNumericSliderEditor<TRangedOrdinalPropertyEditor>;
extern template class TNumericSliderEditor<TBasicIntegerPropertyEditor>;

} // namespace Tarvo
