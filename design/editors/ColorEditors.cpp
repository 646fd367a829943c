#include "design/editors/ColorEditors.h"

#include <QColorDialog>

#include "design/Registry.h"
#include "design/editors/ColorEditorBaseImpl.h"
#include "design/editors/EditorFamilies.h"
#include "design/editors/IdentifierEditors.h"
#include "platform/ColorNames.h"
#include "platform/GXPens.h"
#include "platform/ModalSeam.h"
#include "reflection/ClassAttributes.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TColorPropertyEditor)

using namespace ColorSwatch;

template class TInplaceFormEditor<TBasicIntegerPropertyEditor, TColorInplaceForm>;
template class TColorEditorBase<TBasicIntegerPropertyEditor, TColorInplaceForm, TColorEditorTraits>;

String TColorEditorTraits::ToText(const TValue& AValue) {
  return AValue.IsEmpty() ? String() : ColorToString(AValue.AsInteger());
}

void TColorPropertyEditor::SetStringValue(const String& AValue) {
  if (TColor color; IdentToColor(AValue, color)) SetInstanceValues(TValue(color));
  else TSinglePropertyEditor::SetStringValue(AValue);
}

TRef<IStringArrayList> TColorPropertyEditor::GetStringListValues() {
  const TRef<IStringArrayList> result = NameList(GetColorValues);
  if (GetFirstMember()->HasCustomAttribute(ExcludeSystemColorsAttribute::ClassInfo(), true))
    // clDefault and clNone go too, though neither is a system colour.
    result->RemoveAll([](const String& AName) {
      TColor color;
      return !IdentToColor(AName, color) || AName == "clDefault" || AName == "clNone" || color < 0;
    });
  return result;
}

void TColorPropertyEditor::PaintColorBox(const TRef<IGXGraphics>& AGraphics, const String& AValue,
                                         const TIGXRect& ARect, TColor ADarcBorderColor) {
  const TColor color = ColorToRGB(StringToColor(AValue));
  const TColor border = IsLight(Cardinal(color)) ? clBlack : ADarcBorderColor;
  const TIGXRect box = SwatchRect(ARect, TColorEditorTraits::SwatchRows);
  AGraphics->FillRectangle(New<TIGXSolidBrush>(MakeColor(color)), box);
  AGraphics->DrawRectangle(New<TIGXPen>(MakeColor(border), 1.0f), box);
}

void TColorPropertyEditor::Execute(QWidget*) {
  QColorDialog dialog;
  // A TColor has no alpha; the platform's own dialog would not run through the modal seam.
  dialog.setOption(QColorDialog::DontUseNativeDialog);
  if (TColor color; FirstColor(color)) {
    const Cardinal rgb = Cardinal(ColorToRGB(color));
    dialog.setCurrentColor(QColor(rgb & 0xFF, rgb >> 8 & 0xFF, rgb >> 16 & 0xFF));
  }
  if (ExecuteModal(dialog) != QDialog::Accepted) return;
  const QColor chosen = dialog.selectedColor();
  SetInstanceValues(TValue(TColor(chosen.red() | chosen.green() << 8 | chosen.blue() << 16)));
}

// ---- Start-up ----

void RegisterColorEditors() {
  RegisterPropertyEditor(&TypeInfo_TColor, TColorPropertyEditor::ClassInfo());
  RegisterPropertyEditor(&TypeInfo_TAlphaColor, TAlphaColorPropertyEditor::ClassInfo());
}

} // namespace Tarvo
