#include "design/editors/StringEditors.h"

#include <QFontMetrics>
#include <QPainter>
#include <QString>

#include "design/Registry.h"
#include "design/editors/EditorFamilies.h"
#include "forms/AdvancedStringsEditorForm.h"
#include "platform/ScreenLists.h"
#include "reflection/StringAttributes.h"
#include "rtl/SysUtils.h"
#include "runtime/NamedTypes.h"
#include "runtime/Strings.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TStringPropertyEditor)
TARVO_IMPLEMENT_CLASS(TMultiLineStringPropertyEditor)
TARVO_IMPLEMENT_CLASS(TNamePropertyEditor)
TARVO_IMPLEMENT_CLASS(TWideStringPropertyEditor)
TARVO_IMPLEMENT_CLASS(TImeNamePropertyEditor)
TARVO_IMPLEMENT_CLASS(TFontNamePropertyEditor)

namespace {

// One text for every refusal of a name, the blank one and the malformed ones alike.
const char* const EmptyNameMessage = "Component Name can't be empty";

// The identifier AText stands for: trimmed, with blanks, hyphens and tabs made underscores, in
// that order. Letters and digits are those of Unicode.
String MakeIdentifier(const String& AText) {
  String text = Trim(AText);
  if (text.empty()) throw EDesignPropertyError(EmptyNameMessage);
  for (char separator : {' ', '-', '\t'}) std::replace(text.begin(), text.end(), separator, '_');
  const QString identifier = QString::fromStdString(text);
  if (identifier[0] != u'_' && !identifier[0].isLetter()) throw EDesignPropertyError(EmptyNameMessage);
  for (const QChar c : identifier)
    if (c != u'_' && !c.isLetterOrNumber()) throw EDesignPropertyError(EmptyNameMessage);
  return text;
}

TRef<IStringArrayList> ListOf(const std::vector<String>& ANames) {
  const TRef<IStringArrayList> result = New<TStringArrayList>();
  for (const String& name : ANames) result->Add(name);
  return result;
}

} // namespace

// ---- String ----

Boolean TStringPropertyEditor::GetAutoUpdate() {
  return GetFirstMember()->HasCustomAttribute(AutoUpdateAttribute::ClassInfo(), true);
}

void TStringPropertyEditor::SetInstanceValues(const TValue& AValue) {
  if (!GetFirstMember()->HasCustomAttribute(IdentifierStringAttribute::ClassInfo(), true))
    return inherited::SetInstanceValues(AValue);
  const String identifier = MakeIdentifier(AValue.AsString());
  inherited::SetInstanceValues(TValue::From(identifier, AValue.GetTypeInfo()));
}

TRef<IArrayList<Boolean>> TStringPropertyEditor::GetIsDefaults(const TRef<IObjectArrayList>& AObjectsList) {
  return GetIsDefaultsByText(AObjectsList, [](const TValue& AValue) { return AValue.AsString(); });
}

// ---- Multi-line ----

Boolean TMultiLineStringPropertyEditor::ExecuteForm(const String& ACaption, TStrings& ALines) {
  return TAdvancedStringsEditorForm::Execute(ACaption, ALines);
}

void TMultiLineStringPropertyEditor::Execute(QWidget*) {
  const TOwnedObject<TStringList> lines(Construct<TStringList>());
  if (const TRef<IValueArrayList> values = GetInstanceValues(nullptr); values->GetCount() > 0)
    lines->SetText(values->GetItem(0).AsString());
  if (!ExecuteForm(GetName(), *lines)) return;
  SetStringValue(lines->GetText());
  Modified();
}

// ---- Name ----

void TNamePropertyEditor::SetInstanceValues(const TValue& AValue) {
  if (Trim(AValue.AsString()).empty()) throw EDesignPropertyError(EmptyNameMessage);
  inherited::SetInstanceValues(AValue);
}

// ---- Input method and font names ----

TRef<IStringArrayList> TImeNamePropertyEditor::GetStringListValues() { return ListOf(ScreenImes()); }

TRef<IStringArrayList> TFontNamePropertyEditor::GetStringListValues() { return ListOf(ScreenFonts()); }

namespace {
const QString FontSample = QStringLiteral("(ABC)");
QString FontLabel(const String& AName) { return QString::fromStdString(AName + " - "); }
} // namespace

void TFontNamePropertyEditor::ListGetSize(const TValue& AValue, const TRef<IGXGraphics>&, const TRef<IPaintObjects>&,
                                          const TRef<IPaintObjectSet>&, TIGXSize& ASize) {
  const String name = AValue.AsString();
  if (const auto cached = FFontHeights.find(name); cached != FFontHeights.end()) {
    ASize.Height = Single(cached->second);
    return;
  }
  if (ASize.Height < 16) ASize.Height = 16;
  QFont font = FCanvasFont;
  font.setFamily(QString::fromStdString(name));
  const QFontMetrics metrics(font);
  for (const QString& text : {FontLabel(name), FontSample})
    ASize.Height = std::max(ASize.Height, Single(metrics.boundingRect(text).height()));
  FFontHeights[name] = Integer(ASize.Height);
}

void TFontNamePropertyEditor::ListDrawValue(const TValue& AValue, const TRef<IGXGraphics>& AGraphics,
                                            const TRef<IPaintObjects>&, const TRef<IPaintObjectSet>& APaintObjectSet,
                                            const TIGXRect& ARect, Boolean) {
  const String name = AValue.ToString();
  const QString label = FontLabel(name);
  FBitmap = QImage(std::max(1, int(ARect.Width)), std::max(1, int(ARect.Height)), QImage::Format_ARGB32_Premultiplied);
  QPainter canvas(&FBitmap);
  canvas.setPen(ToQColor(MakeColor(APaintObjectSet->GetFontColor())));
  const QColor background = ToQColor(MakeColor(APaintObjectSet->GetBkgColor()));

  // The name in the canvas's own font, the sample in the font named.
  const int labelWidth = QFontMetrics(FCanvasFont).horizontalAdvance(label);
  const QRect labelRect(0, 0, labelWidth, FBitmap.height());
  canvas.fillRect(labelRect, background);
  canvas.setFont(FCanvasFont);
  canvas.drawText(labelRect.adjusted(2, 1, 0, 0), Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine, label);

  QFont sampleFont = FCanvasFont;
  sampleFont.setFamily(QString::fromStdString(name));
  const QRect sampleRect(labelWidth, 0, FBitmap.width() - labelWidth, FBitmap.height());
  canvas.fillRect(sampleRect, background);
  canvas.setFont(sampleFont);
  canvas.drawText(sampleRect.adjusted(2, 1, 0, 0), Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine, FontSample);
  canvas.end();

  AGraphics->DrawImage(New<TIGXBitmap>(FBitmap), ARect.X, ARect.Y);
}

// ---- Start-up ----

void RegisterStringEditors() {
  RegisterPropertyEditors({
      {&TypeInfo_TFontName, nullptr, "", TFontNamePropertyEditor::ClassInfo()},
      {&TypeInfo_TImeName, nullptr, "", TImeNamePropertyEditor::ClassInfo()},
      {&TypeInfo_TComponentName, TComponent::ClassInfo(), "", TNamePropertyEditor::ClassInfo()},
  });
  const TMemberEditorClass string = TStringPropertyEditor::ClassInfo();
  for (TTypeKind kind : {tkString, tkLString, tkUString}) DefaultEditorClasses.ByTypeKind[kind] = string;
  DefaultEditorClasses.ByTypeKind[tkWString] = TWideStringPropertyEditor::ClassInfo();
  DefaultEditorClasses.StringEditor = string;
  DefaultEditorClasses.MultiLineStringEditor = TMultiLineStringPropertyEditor::ClassInfo();
}

} // namespace Tarvo
