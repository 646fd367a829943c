#include "design/editors/ColorEditors.h"

#include "design/editors/ColorEditorBaseImpl.h"
#include "forms/AlphaColorEditForm.h"
#include "platform/AlphaColorNames.h"
#include "platform/GXPens.h"
#include "platform/ModalSeam.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TAlphaColorPropertyEditor)

using namespace ColorSwatch;

// Compiled apart from the TColor editor: each instantiation of the shared base is heavy.
template class TInplaceFormEditor<TCardinalPropertyEditor, TAlphaColorInplaceForm>;
template class TColorEditorBase<TCardinalPropertyEditor, TAlphaColorInplaceForm, TAlphaColorEditorTraits>;

String TAlphaColorEditorTraits::ToText(const TValue& AValue) {
  return AValue.IsEmpty() ? String() : RGBAColorToString(TAlphaColor(AValue.AsOrdinal()));
}

void TAlphaColorPropertyEditor::SetStringValue(const String& AValue) {
  SetInstanceValues(TValue::From<TAlphaColor>(StringToRGBAColor(AValue)));
}

TRef<IStringArrayList> TAlphaColorPropertyEditor::GetStringListValues() {
  const TRef<IStringArrayList> result = New<TStringArrayList>();
  for (const String& name : GetStandardRGBAColorNames()) result->Add(name);
  return result;
}

void TAlphaColorPropertyEditor::PaintColorBox(const TRef<IGXGraphics>& AGraphics, const String& AValue,
                                              const TIGXRect& ARect, Boolean ASelected) {
  const TIGXRect box = SwatchRect(ARect, TAlphaColorEditorTraits::SwatchRows);
  const TAlphaColor color = StringToRGBAColor(AValue);
  const TAlphaColor opaque = color | 0xFF000000u;
  AGraphics->FillRectangle(New<TIGXHatchBrush>(hsSolidDiamond, claWhite, claBlack), box);
  AGraphics->FillRectangle(New<TIGXSolidBrush>(color), box);
  AGraphics->FillRectangle(New<TIGXSolidBrush>(opaque),
                           TIGXRect(box.X + box.Width / 2, box.Y, box.Width / 2, box.Height));
  const TAlphaColor border = IsLight(color) ? claBlack : ASelected ? claWhite : opaque;
  AGraphics->DrawRectangle(New<TIGXPen>(border, 1.0f), box);
}

void TAlphaColorPropertyEditor::Execute(QWidget*) {
  TWXAlphaColorEditForm& form = AlphaColorEditForm();
  if (TAlphaColor color; FirstColor(color)) form.SetColor(color);
  if (ExecuteModal(form) == QDialog::Accepted) SetInstanceValues(TValue::From<TAlphaColor>(form.GetColor()));
}

} // namespace Tarvo
