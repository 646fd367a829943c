#pragma once
// The colour editors' shared definitions, for the sources that instantiate them with each editor.

#include <cmath>

#include "design/editors/ColorEditorBase.h"
#include "design/editors/InplaceFormEditorImpl.h"

namespace Tarvo {

namespace ColorSwatch {

// A swatch with a channel above 192 is light enough for a black border; a darker one takes the
// border its editor gives it.
inline constexpr Cardinal DarkChannelLimit = 192;

inline Boolean IsLight(Cardinal AColor) {
  return (AColor & 0xFF) > DarkChannelLimit || (AColor >> 8 & 0xFF) > DarkChannelLimit ||
         (AColor >> 16 & 0xFF) > DarkChannelLimit;
}

// The swatch's box: one pixel in from the cell's corner, ARows row heights wide less 3, the row's
// height less 3 high.
inline TIGXRect SwatchRect(const TIGXRect& ARect, Integer ARows) {
  return TIGXRect(ARect.X + 1, ARect.Y + 1, ARect.Height * ARows - 3, ARect.Height - 3);
}

} // namespace ColorSwatch

template <class TBase, class TForm, class TTraits>
void TColorEditorBase<TBase, TForm, TTraits>::InitCreate(TSinglePropertyEditor* AInstance) {
  TBase::InitCreate(AInstance);
  if (OffersInplaceForm(this->GetFirstMember())) this->MakeFormController();
}

template <class TBase, class TForm, class TTraits>
void TColorEditorBase<TBase, TForm, TTraits>::MakeForm(TForm* AForm) {
  AForm->OnColorChange = this->Guarded([this](QWidget* ASender) {
    this->WriteFromForm(ASender, [this](TForm* AChanged) {
      this->SetInstanceValues(TValue::From<TColorValue>(AChanged->GetColor()));
    });
  });
  AForm->OnEditorEnter = this->Guarded([this](QWidget* ASender) { this->FormEditorEnter(ASender); });
  AForm->OnEditorLeave = this->Guarded([this](QWidget* ASender) { this->FormEditorLeave(ASender); });
  ShowValue(AForm);
}

template <class TBase, class TForm, class TTraits>
void TColorEditorBase<TBase, TForm, TTraits>::ShowValue(TForm* AForm) {
  if (TColorValue color; FirstColor(color)) AForm->SetColor(color);
}

template <class TBase, class TForm, class TTraits>
Boolean TColorEditorBase<TBase, TForm, TTraits>::FirstColor(TColorValue& AColor) {
  const TRef<IValueArrayList> values = this->GetInstanceValues(nullptr);
  if (values->GetCount() == 0) return false;
  AColor = TColorValue(values->GetItem(0).AsOrdinal());
  return true;
}

template <class TBase, class TForm, class TTraits>
TRef<IStringArrayList>
TColorEditorBase<TBase, TForm, TTraits>::GetStringValues(const TRef<IObjectArrayList>& AObjectsList) {
  const TRef<IStringArrayList> result = New<TStringArrayList>();
  for (const TValue& value : this->GetInstanceValues(AObjectsList)) result->Add(TTraits::ToText(value));
  return result;
}

template <class TBase, class TForm, class TTraits>
String TColorEditorBase<TBase, TForm, TTraits>::GetDefaultStringValue() {
  return TTraits::ToText(this->GetDefaultValue());
}

template <class TBase, class TForm, class TTraits>
void TColorEditorBase<TBase, TForm, TTraits>::DrawValue(const TRef<IGXGraphics>& AGraphics, const TRef<IPaintObjects>&,
                                                        const TRef<IPaintObjectSet>&, TIGXRect& ARect, Boolean&) {
  const TRef<IStringArrayList> texts = GetStringValues(nullptr);
  if (texts->GetCount() == 0 || texts->GetItem(0).empty()) return;
  PaintColorBox(AGraphics, texts->GetItem(0), ARect, TTraits::ValueBorder);
  SkipSwatch(ARect);
}

template <class TBase, class TForm, class TTraits>
void TColorEditorBase<TBase, TForm, TTraits>::GetEditRectangle(TIGXRect& ARect) {
  SkipSwatch(ARect);
}

template <class TBase, class TForm, class TTraits>
TRef<IGXFont> TColorEditorBase<TBase, TForm, TTraits>::ListFont(const TValue& AValue,
                                                                const TRef<IPaintObjects>& APaintObjects) {
  return AValue.ToString() == GetDefaultStringValue() ? APaintObjects->GetModifiedFont() : APaintObjects->GetFont();
}

template <class TBase, class TForm, class TTraits>
void TColorEditorBase<TBase, TForm, TTraits>::ListGetSize(const TValue& AValue, const TRef<IGXGraphics>& AGraphics,
                                                          const TRef<IPaintObjects>& APaintObjects,
                                                          const TRef<IPaintObjectSet>&, TIGXSize& ASize) {
  const TRef<IGXFont> chosen = ListFont(AValue, APaintObjects);
  const TRef<IGXFont> font = TTraits::MeasureInListFont ? chosen : APaintObjects->GetFont();
  const TIGXRect text =
      AGraphics->MeasureString(AValue.ToString(), font, TIGXSize(), APaintObjects->GetStringFormat());
  if (text.Height > ASize.Height) ASize.Height = std::round(text.Height);
  const Single width = std::round(ASize.Height * TTraits::SwatchRows + text.Width);
  if (width > ASize.Width) ASize.Width = width;
}

template <class TBase, class TForm, class TTraits>
void TColorEditorBase<TBase, TForm, TTraits>::ListDrawValue(const TValue& AValue, const TRef<IGXGraphics>& AGraphics,
                                                            const TRef<IPaintObjects>& APaintObjects,
                                                            const TRef<IPaintObjectSet>& APaintObjectSet,
                                                            const TIGXRect& ARect, Boolean ASelected) {
  AGraphics->FillRectangle(APaintObjectSet->GetBackgroundBrush(), ARect);
  const String text = AValue.ToString();
  PaintColorBox(AGraphics, text, ARect, TTraits::ListBorder(ASelected));
  TIGXRect textRect = ARect;
  SkipSwatch(textRect);
  AGraphics->DrawString(text, ListFont(AValue, APaintObjects), textRect, APaintObjects->GetStringFormat(),
                        APaintObjectSet->GetFontBrush());
}

} // namespace Tarvo
