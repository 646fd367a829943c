#include "design/editors/CursorEditor.h"

#include "design/Registry.h"
#include "design/editors/EditorFamilies.h"
#include "design/editors/EnumButtonsEditorImpl.h"
#include "design/editors/IdentifierEditors.h"
#include "design/editors/SampleListRows.h"
#include "platform/CursorImages.h"
#include "platform/CursorNames.h"

namespace Tarvo {

template class TInplaceFormEditor<TBasicIntegerPropertyEditor, TEnumCanvasInplaceForm>;
template class TEnumButtonsEditor<TBasicIntegerPropertyEditor>;

TARVO_IMPLEMENT_CLASS(TCursorPropertyEditor)

namespace {
// The frame that sets a cursor off from the cell.
constexpr TColor SampleFrameColor = 0xE6E6E6;
// Room between the list row's edge, its sample and its text.
constexpr Integer ListMargin = 2;
} // namespace

void TCursorPropertyEditor::InitCreate(TSinglePropertyEditor* AInstance) {
  inherited::InitCreate(AInstance);
  FImageWidth = CursorImageWidth;
  FImageHeight = CursorImageHeight;
  FBitmap = New<TIGXBitmap>(FImageWidth, FImageHeight);
}

TRef<IStringArrayList> TCursorPropertyEditor::GetStringValues(const TRef<IObjectArrayList>& AObjectsList) {
  return ValueTexts(GetInstanceValues(AObjectsList),
                    [](const TValue& AValue) { return CursorToString(TCursor(AValue.AsOrdinal())); });
}

String TCursorPropertyEditor::GetDefaultStringValue() {
  const TValue value = GetDefaultValue();
  return value.IsEmpty() ? String() : CursorToString(TCursor(value.AsOrdinal()));
}

void TCursorPropertyEditor::SetStringValue(const String& AValue) {
  Integer cursor = 0;
  if (IdentToCursor(AValue, cursor)) SetInstanceValues(TValue(cursor));
  else TSinglePropertyEditor::SetStringValue(AValue);
}

TRef<IStringArrayList> TCursorPropertyEditor::GetStringListValues() { return NameList(GetCursorValues); }

Boolean TCursorPropertyEditor::PaintCursor(Integer ACursor, TAlphaColor ABackground, Boolean AFramed) {
  QImage& image = FBitmap->GetQImage();
  image.fill(Qt::transparent);
  const std::optional<Qt::CursorShape> shape = ScreenCursor(ACursor);
  if (!shape) return false;
  const TRef<IGXGraphics> canvas = New<TIGXGraphics>(image);
  canvas->Clear(ABackground);
  if (AFramed) canvas->DrawRectangle(New<TIGXPen>(MakeColor(SampleFrameColor)), TIGXRect(0, 0, FImageWidth - 1, FImageHeight - 1));
  DrawCursor(canvas->GetPainter(), *shape, QPointF(0, 0));
  return true;
}

Integer TCursorPropertyEditor::EntryCursor(const String& AText) {
  Integer cursor = crNone;
  if (!IdentToCursor(AText, cursor) && !TryStrToInt(AText, cursor)) return crNone;
  return cursor;
}

void TCursorPropertyEditor::DrawValue(const TRef<IGXGraphics>& AGraphics, const TRef<IPaintObjects>&,
                                      const TRef<IPaintObjectSet>&, TIGXRect& ARect, Boolean&) {
  const TRef<IValueArrayList> values = GetInstanceValues(nullptr);
  if (values->GetCount() > 0 && PaintCursor(Integer(values->GetItem(0).AsOrdinal()), claWhite, true)) {
    const TIGXInterpolationMode mode = AGraphics->GetInterpolationMode();
    AGraphics->SetInterpolationMode(imHighQuality);
    AGraphics->DrawImage(FBitmap, TIGXRect(ARect.X, ARect.Y, Single(SampleSize), Single(SampleSize)));
    AGraphics->SetInterpolationMode(mode);
  }
  GetEditRectangle(ARect);
}

void TCursorPropertyEditor::GetEditRectangle(TIGXRect& ARect) {
  ARect.X += SampleSize;
  ARect.Width -= SampleSize;
}

void TCursorPropertyEditor::ListGetSize(const TValue& AValue, const TRef<IGXGraphics>& AGraphics,
                                        const TRef<IPaintObjects>& APaintObjects, const TRef<IPaintObjectSet>&,
                                        TIGXSize& ASize) {
  TSampleListRow{*this, AGraphics, APaintObjects}.GetSize(AValue.ToString(), Single(FImageWidth + 2 * ListMargin),
                                                          Single(FImageHeight + 2 * ListMargin), ASize);
}

void TCursorPropertyEditor::ListDrawValue(const TValue& AValue, const TRef<IGXGraphics>& AGraphics,
                                          const TRef<IPaintObjects>& APaintObjects,
                                          const TRef<IPaintObjectSet>& APaintObjectSet, const TIGXRect& ARect,
                                          Boolean) {
  const TSampleListRow row{*this, AGraphics, APaintObjects};
  const String text = AValue.ToString();
  row.FillBackground(APaintObjectSet, ARect);
  if (PaintCursor(EntryCursor(text), MakeColor(APaintObjectSet->GetBkgColor()), false))
    AGraphics->DrawImage(FBitmap, ARect.X + ListMargin, ARect.Y + ListMargin);
  const Single sample = Single(FImageWidth + 2 * ListMargin);
  row.DrawText(text, APaintObjectSet, TIGXRect(ARect.X + sample, ARect.Y, ARect.Width - sample, ARect.Height));
}

TRef<IGXBitmap> TCursorPropertyEditor::ButtonPicture(const String& AName) {
  const auto picture = New<TIGXBitmap>(EnumButtonPictureSize, EnumButtonPictureSize);
  if (!PaintCursor(EntryCursor(AName), claNull, false)) return picture;
  const TRef<IGXGraphics> canvas = New<TIGXGraphics>(picture->GetQImage());
  canvas->SetInterpolationMode(imHighQuality);
  canvas->DrawImage(FBitmap, TIGXRect(0, 0, EnumButtonPictureSize, EnumButtonPictureSize));
  return picture;
}

void RegisterCursorEditors() { RegisterPropertyEditor(&TypeInfo_TCursor, TCursorPropertyEditor::ClassInfo()); }

} // namespace Tarvo
