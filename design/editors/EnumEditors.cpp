#include "design/editors/EnumEditors.h"

#include <cmath>

#include "design/Registry.h"
#include "design/editors/EditorFamilies.h"
#include "design/paint/PaintObjects.h"
#include "reflection/ListAttributes.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TEnumPropertyEditor)
TARVO_IMPLEMENT_CLASS(TBooleanPropertyEditor)

TRef<IStringArrayList> TEnumPropertyEditor::GetStringListValues() {
  const TRef<IMemberInfo> member = GetFirstMember();
  const TRef<IStringArrayList> result = New<TStringArrayList>();
  TRef<IEnumerationTypeInfo> enumeration;
  if (Supports(member->GetTypeInfo(), enumeration))
    for (const String& name : enumeration->GetNames()) result->Add(name);
  if (member->HasCustomAttribute(PropertySortListDesignAttribute::ClassInfo(), true)) result->Sort();
  return result;
}

void TBooleanPropertyEditor::DrawValue(const TRef<IGXGraphics>& AGraphics, const TRef<IPaintObjects>& APaintObjects,
                                       const TRef<IPaintObjectSet>&, TIGXRect& ARect, Boolean&) {
  const TRef<IValueArrayList> values = GetInstanceValues(nullptr);
  TRef<IGXBitmap> box;
  if (values->GetCount() > 0) {
    const String first = values->GetItem(0).ToString();
    const bool alike = !values->Query()->Contains([&](const TValue& AValue) { return AValue.ToString() != first; });
    box = !alike                           ? APaintObjects->GetGrayedBitmap()
          : values->GetItem(0).AsBoolean() ? APaintObjects->GetCheckedBitmap()
                                           : APaintObjects->GetUncheckedBitmap();
  }
  if (box) AGraphics->DrawImage(box, ARect.X, ARect.Y);
  GetEditRectangle(ARect);
}

void TBooleanPropertyEditor::GetEditRectangle(TIGXRect& ARect) {
  ARect.X += BoxColumn;
  ARect.Width -= BoxColumn;
}

TRef<IGXFont> TBooleanPropertyEditor::ListFont(const TValue& AValue, const TRef<IPaintObjects>& APaintObjects) {
  return AValue.ToString() == GetDefaultStringValue() ? APaintObjects->GetModifiedFont() : APaintObjects->GetFont();
}

void TBooleanPropertyEditor::ListGetSize(const TValue& AValue, const TRef<IGXGraphics>& AGraphics,
                                         const TRef<IPaintObjects>& APaintObjects, const TRef<IPaintObjectSet>&,
                                         TIGXSize& ASize) {
  if (ASize.Height < BoxColumn) ASize.Height = BoxColumn;
  const TIGXRect text = AGraphics->MeasureString(AValue.ToString(), ListFont(AValue, APaintObjects), TIGXSize(),
                                                 APaintObjects->GetStringFormat());
  if (text.Height > ASize.Height) ASize.Height = std::round(text.Height);
  ASize.Width = ASize.Height;
}

void TBooleanPropertyEditor::ListDrawValue(const TValue& AValue, const TRef<IGXGraphics>& AGraphics,
                                           const TRef<IPaintObjects>& APaintObjects,
                                           const TRef<IPaintObjectSet>& APaintObjectSet, const TIGXRect& ARect,
                                           Boolean) {
  AGraphics->FillRectangle(APaintObjectSet->GetBackgroundBrush(), ARect);
  const String text = AValue.ToString();
  AGraphics->DrawImage(text == "True" ? APaintObjects->GetCheckedBitmap() : APaintObjects->GetUncheckedBitmap(),
                       ARect.X, ARect.Y);
  TIGXRect textRect = ARect;
  GetEditRectangle(textRect);
  AGraphics->DrawString(text, ListFont(AValue, APaintObjects), textRect, APaintObjects->GetStringFormat(),
                        APaintObjectSet->GetFontBrush());
}

void TBooleanPropertyEditor::ValueMouseUp(TMouseButton, TShiftState, Integer X, Integer Y,
                                          const TRef<IMemberUIUpdate>& AUIUpdate, const TIGXRect& ARect,
                                          Boolean& AHandled) {
  const Single left = ARect.X + 1, top = ARect.Y + 1, right = ARect.X + 13, bottom = ARect.Y + 13;
  if (X < left || X >= right || Y < top || Y >= bottom) return;
  SetInstanceValues(TValue(!GetInstanceValues(nullptr)->GetItem(0).AsBoolean()));
  AHandled = true;
  if (AUIUpdate) AUIUpdate->Refresh(true);
}

void RegisterEnumEditors() {
  RegisterPropertyEditor(&TypeInfo_Boolean, TBooleanPropertyEditor::ClassInfo());
  DefaultEditorClasses.ByTypeKind[tkEnumeration] = TEnumPropertyEditor::ClassInfo();
}

} // namespace Tarvo
