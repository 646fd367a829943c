#include "design/editors/ColorEditors.h"

#include <QColorDialog>

#include <cmath>
#include <type_traits>

#include "design/Registry.h"
#include "design/editors/EditorFamilies.h"
#include "design/paint/InplaceFormController.h"
#include "forms/AlphaColorEditForm.h"
#include "platform/AlphaColorNames.h"
#include "platform/ColorNames.h"
#include "platform/GXPens.h"
#include "platform/ModalSeam.h"
#include "reflection/ClassAttributes.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TColorPropertyEditor)
TARVO_IMPLEMENT_CLASS(TAlphaColorPropertyEditor)

namespace {

// A swatch with a channel above 192 is light enough for a black border; a darker one takes the
// border its editor gives it.
constexpr Cardinal DarkChannelLimit = 192;

Boolean IsLight(Cardinal AColor) {
  return (AColor & 0xFF) > DarkChannelLimit || (AColor >> 8 & 0xFF) > DarkChannelLimit ||
         (AColor >> 16 & 0xFF) > DarkChannelLimit;
}

// The swatch's box: one pixel in from the cell's corner, ARows row heights wide less 3, the row's
// height less 3 high.
TIGXRect SwatchRect(const TIGXRect& ARect, Integer ARows) {
  return TIGXRect(ARect.X + 1, ARect.Y + 1, ARect.Height * ARows - 3, ARect.Height - 3);
}

} // namespace

// ---- What both editors share ----

template <class TBase, class TForm, class TTraits>
void TColorEditorBase<TBase, TForm, TTraits>::InitCreate(TSinglePropertyEditor* AInstance) {
  TBase::InitCreate(AInstance);
  if (!OffersInplaceForm(this->GetFirstMember())) return;
  // The controller lives as long as the editor, so the editor may be captured bare.
  FFormController = New<TInplaceEditorFormController<TForm>>([](const TIGXRect&) { return new TForm(); },
                                                             [this](TForm* AForm) { MakeForm(AForm); });
}

template <class TBase, class TForm, class TTraits> TColorEditorBase<TBase, TForm, TTraits>::~TColorEditorBase() {
  if (!FFormController) return;
  for (const TInplaceFormInfo<TForm>& info : QueryAs<IInplaceEditorFormController<TForm>>(FFormController)->GetForms())
    if (info.Form) info.Form->OnColorChange = info.Form->OnEditorEnter = info.Form->OnEditorLeave = nullptr;
}

template <class TBase, class TForm, class TTraits>
void TColorEditorBase<TBase, TForm, TTraits>::MakeForm(TForm* AForm) {
  AForm->OnColorChange = [this](QWidget* ASender) { FormColorChange(ASender); };
  AForm->OnEditorEnter = [this](QWidget* ASender) { FormEditorEnter(ASender); };
  AForm->OnEditorLeave = [this](QWidget* ASender) { FormEditorLeave(ASender); };
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
HRESULT TColorEditorBase<TBase, TForm, TTraits>::QueryInterface(const TGUID& AIID, void** AObj) {
  if (AIID == IPropertyEditorInplace::IID && !FFormController) {
    *AObj = nullptr;
    return E_NOINTERFACE;
  }
  return TInherited::QueryInterface(AIID, AObj);
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
void TColorEditorBase<TBase, TForm, TTraits>::SetInstanceValues(const TValue& AValue) {
  TBase::SetInstanceValues(AValue);
  // A base with a slider calls UpdateInplace itself, which reaches the override here.
  if constexpr (!std::is_base_of_v<IPropertyEditorInplace, TBase>) UpdateInplace();
}

template <class TBase, class TForm, class TTraits> void TColorEditorBase<TBase, TForm, TTraits>::UpdateInplace() {
  if (!FFormController) return;
  for (const TInplaceFormInfo<TForm>& info : QueryAs<IInplaceEditorFormController<TForm>>(FFormController)->GetForms())
    if (TColorValue color; info.Form && FirstColor(color)) info.Form->SetColor(color);
}

template <class TBase, class TForm, class TTraits>
TRef<IInplaceForm>
TColorEditorBase<TBase, TForm, TTraits>::GetInplaceForm(QWidget* AParent, const TRef<IPaintObjects>& APaintObjects,
                                                        const TRef<IMemberUIUpdate>& AUIUpdate, const TIGXRect& ARect) {
  return FFormController->GetInplaceForm(AParent, APaintObjects, AUIUpdate, ARect);
}

template <class TBase, class TForm, class TTraits>
void TColorEditorBase<TBase, TForm, TTraits>::DropForm(const TRef<IInplaceForm>& AForm) {
  FFormController->DropForm(AForm);
}

template <class TBase, class TForm, class TTraits>
void TColorEditorBase<TBase, TForm, TTraits>::FormColorChange(QWidget* ASender) {
  if (!FFormController) return;
  for (const TInplaceFormInfo<TForm>& info :
       QueryAs<IInplaceEditorFormController<TForm>>(FFormController)->GetForms()) {
    if (info.Form != ASender) continue;
    SetInstanceValues(TValue::From<TColorValue>(info.Form->GetColor()));
    if (info.UIUpdate) {
      info.UIUpdate->EndEdit();
      info.UIUpdate->Refresh(true);
    }
  }
}

template <class TBase, class TForm, class TTraits>
void TColorEditorBase<TBase, TForm, TTraits>::FormEditorEnter(QWidget*) {
  this->BeginModify();
}

template <class TBase, class TForm, class TTraits>
void TColorEditorBase<TBase, TForm, TTraits>::FormEditorLeave(QWidget*) {
  this->EndModify();
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

template class TColorEditorBase<TBasicIntegerPropertyEditor, TColorInplaceForm, TColorEditorTraits>;
template class TColorEditorBase<TCardinalPropertyEditor, TAlphaColorInplaceForm, TAlphaColorEditorTraits>;

// ---- TColor ----

String TColorEditorTraits::ToText(const TValue& AValue) {
  return AValue.IsEmpty() ? String() : ColorToString(AValue.AsInteger());
}

void TColorPropertyEditor::SetStringValue(const String& AValue) {
  if (TColor color; IdentToColor(AValue, color)) SetInstanceValues(TValue(color));
  else TSinglePropertyEditor::SetStringValue(AValue);
}

TRef<IStringArrayList> TColorPropertyEditor::GetStringListValues() {
  const TRef<IStringArrayList> result = New<TStringArrayList>();
  GetColorValues([&](const String& AName) { result->Add(AName); });
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

// ---- TAlphaColor ----

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

// ---- Start-up ----

void RegisterColorEditors() {
  RegisterPropertyEditor(&TypeInfo_TColor, TColorPropertyEditor::ClassInfo());
  RegisterPropertyEditor(&TypeInfo_TAlphaColor, TAlphaColorPropertyEditor::ClassInfo());
}

} // namespace Tarvo
