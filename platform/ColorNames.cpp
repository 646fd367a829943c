#include "platform/ColorNames.h"

#include "platform/NamedValues.h"
#include "rtl/Exceptions.h"

namespace Tarvo {

namespace {

// In the order GetColorValues gives them; of two names of one value the first is the one shown.
constexpr std::array<TNamedValue<TColor>, 52> ColorNames = {{
    {clBlack, "clBlack"},
    {0x000080, "clMaroon"},
    {0x008000, "clGreen"},
    {0x008080, "clOlive"},
    {0x800000, "clNavy"},
    {0x800080, "clPurple"},
    {0x808000, "clTeal"},
    {0x808080, "clGray"},
    {clSilver, "clSilver"},
    {0x0000FF, "clRed"},
    {0x00FF00, "clLime"},
    {0x00FFFF, "clYellow"},
    {0xFF0000, "clBlue"},
    {0xFF00FF, "clFuchsia"},
    {0xFFFF00, "clAqua"},
    {clWhite, "clWhite"},
    {0xC0DCC0, "clMoneyGreen"},
    {0xF0CAA6, "clSkyBlue"},
    {0xF0FBFF, "clCream"},
    {0xA4A0A0, "clMedGray"},
    {SystemColor(scScrollBar), "clScrollBar"},
    {SystemColor(scBackground), "clBackground"},
    {SystemColor(scActiveCaption), "clActiveCaption"},
    {SystemColor(scInactiveCaption), "clInactiveCaption"},
    {SystemColor(scMenu), "clMenu"},
    {SystemColor(scWindow), "clWindow"},
    {SystemColor(scWindowFrame), "clWindowFrame"},
    {SystemColor(scMenuText), "clMenuText"},
    {SystemColor(scWindowText), "clWindowText"},
    {SystemColor(scCaptionText), "clCaptionText"},
    {SystemColor(scActiveBorder), "clActiveBorder"},
    {SystemColor(scInactiveBorder), "clInactiveBorder"},
    {SystemColor(scAppWorkspace), "clAppWorkSpace"},
    {SystemColor(scHighlight), "clHighlight"},
    {SystemColor(scHighlightText), "clHighlightText"},
    {SystemColor(scBtnFace), "clBtnFace"},
    {SystemColor(scBtnShadow), "clBtnShadow"},
    {SystemColor(scGrayText), "clGrayText"},
    {SystemColor(scBtnText), "clBtnText"},
    {SystemColor(scInactiveCaptionText), "clInactiveCaptionText"},
    {SystemColor(scBtnHighlight), "clBtnHighlight"},
    {SystemColor(sc3DDarkShadow), "cl3DDkShadow"},
    {SystemColor(sc3DLight), "cl3DLight"},
    {SystemColor(scInfoText), "clInfoText"},
    {SystemColor(scInfoBackground), "clInfoBk"},
    {SystemColor(scHotLight), "clHotLight"},
    {SystemColor(scGradientActiveCaption), "clGradientActiveCaption"},
    {SystemColor(scGradientInactiveCaption), "clGradientInactiveCaption"},
    {SystemColor(scMenuHighlight), "clMenuHighlight"},
    {SystemColor(scMenuBar), "clMenuBar"},
    {clNone, "clNone"},
    {clDefault, "clDefault"},
}};

} // namespace

Boolean IdentToColor(const String& AIdent, TColor& AColor) {
  const TNamedValue<TColor>* entry = FindNamedValue(ColorNames, AIdent);
  if (entry) AColor = entry->Value;
  return entry != nullptr;
}

Boolean ColorToIdent(TColor AColor, String& AIdent) {
  const TNamedValue<TColor>* entry = FindValueName(ColorNames, AColor);
  if (entry) AIdent = entry->Name;
  return entry != nullptr;
}

String ColorToString(TColor AColor) {
  String result;
  return ColorToIdent(AColor, result) ? result : "$" + IntToHex(AColor, 8);
}

TColor StringToColor(const String& AText) {
  TColor result = 0;
  if (IdentToColor(AText, result) || TryStrToInt(AText, result)) return result;
  throw EConvertError(Format("'%s' is not a valid colour: a colour name or a number is expected", {AText}));
}

void GetColorValues(const TGetStrProc& AProc) {
  for (const TNamedValue<TColor>& entry : ColorNames) AProc(entry.Name);
}

} // namespace Tarvo
