#include "platform/AlphaColorNames.h"

#include "platform/NamedValues.h"
#include "rtl/Exceptions.h"

namespace Tarvo {

namespace {

constexpr std::string_view NamePrefix = "cla";

// Alphabetical by keyword; of two names of one value (Aqua and Cyan, Fuchsia and Magenta) the first
// is the one shown.
constexpr std::array<TNamedValue<TAlphaColor>, 142> AlphaColorNames = {{
    {0xFFF0F8FFu, "claAliceBlue"},
    {0xFFFAEBD7u, "claAntiqueWhite"},
    {0xFF00FFFFu, "claAqua"},
    {0xFF7FFFD4u, "claAquamarine"},
    {0xFFF0FFFFu, "claAzure"},
    {0xFFF5F5DCu, "claBeige"},
    {0xFFFFE4C4u, "claBisque"},
    {0xFF000000u, "claBlack"},
    {0xFFFFEBCDu, "claBlanchedAlmond"},
    {0xFF0000FFu, "claBlue"},
    {0xFF8A2BE2u, "claBlueViolet"},
    {0xFFA52A2Au, "claBrown"},
    {0xFFDEB887u, "claBurlyWood"},
    {0xFF5F9EA0u, "claCadetBlue"},
    {0xFF7FFF00u, "claChartreuse"},
    {0xFFD2691Eu, "claChocolate"},
    {0xFFFF7F50u, "claCoral"},
    {0xFF6495EDu, "claCornflowerBlue"},
    {0xFFFFF8DCu, "claCornsilk"},
    {0xFFDC143Cu, "claCrimson"},
    {0xFF00FFFFu, "claCyan"},
    {0xFF00008Bu, "claDarkBlue"},
    {0xFF008B8Bu, "claDarkCyan"},
    {0xFFB8860Bu, "claDarkGoldenrod"},
    {0xFFA9A9A9u, "claDarkGray"},
    {0xFF006400u, "claDarkGreen"},
    {0xFFBDB76Bu, "claDarkKhaki"},
    {0xFF8B008Bu, "claDarkMagenta"},
    {0xFF556B2Fu, "claDarkOliveGreen"},
    {0xFFFF8C00u, "claDarkOrange"},
    {0xFF9932CCu, "claDarkOrchid"},
    {0xFF8B0000u, "claDarkRed"},
    {0xFFE9967Au, "claDarkSalmon"},
    {0xFF8FBC8Fu, "claDarkSeaGreen"},
    {0xFF483D8Bu, "claDarkSlateBlue"},
    {0xFF2F4F4Fu, "claDarkSlateGray"},
    {0xFF00CED1u, "claDarkTurquoise"},
    {0xFF9400D3u, "claDarkViolet"},
    {0xFFFF1493u, "claDeepPink"},
    {0xFF00BFFFu, "claDeepSkyBlue"},
    {0xFF696969u, "claDimGray"},
    {0xFF1E90FFu, "claDodgerBlue"},
    {0xFFB22222u, "claFireBrick"},
    {0xFFFFFAF0u, "claFloralWhite"},
    {0xFF228B22u, "claForestGreen"},
    {0xFFFF00FFu, "claFuchsia"},
    {0xFFDCDCDCu, "claGainsboro"},
    {0xFFF8F8FFu, "claGhostWhite"},
    {0xFFFFD700u, "claGold"},
    {0xFFDAA520u, "claGoldenrod"},
    {0xFF808080u, "claGray"},
    {0xFF008000u, "claGreen"},
    {0xFFADFF2Fu, "claGreenYellow"},
    {0xFFF0FFF0u, "claHoneydew"},
    {0xFFFF69B4u, "claHotPink"},
    {0xFFCD5C5Cu, "claIndianRed"},
    {0xFF4B0082u, "claIndigo"},
    {0xFFFFFFF0u, "claIvory"},
    {0xFFF0E68Cu, "claKhaki"},
    {0xFFE6E6FAu, "claLavender"},
    {0xFFFFF0F5u, "claLavenderBlush"},
    {0xFF7CFC00u, "claLawnGreen"},
    {0xFFFFFACDu, "claLemonChiffon"},
    {0xFFADD8E6u, "claLightBlue"},
    {0xFFF08080u, "claLightCoral"},
    {0xFFE0FFFFu, "claLightCyan"},
    {0xFFFAFAD2u, "claLightGoldenrodYellow"},
    {0xFFD3D3D3u, "claLightGray"},
    {0xFF90EE90u, "claLightGreen"},
    {0xFFFFB6C1u, "claLightPink"},
    {0xFFFFA07Au, "claLightSalmon"},
    {0xFF20B2AAu, "claLightSeaGreen"},
    {0xFF87CEFAu, "claLightSkyBlue"},
    {0xFF778899u, "claLightSlateGray"},
    {0xFFB0C4DEu, "claLightSteelBlue"},
    {0xFFFFFFE0u, "claLightYellow"},
    {0xFF00FF00u, "claLime"},
    {0xFF32CD32u, "claLimeGreen"},
    {0xFFFAF0E6u, "claLinen"},
    {0xFFFF00FFu, "claMagenta"},
    {0xFF800000u, "claMaroon"},
    {0xFF66CDAAu, "claMediumAquamarine"},
    {0xFF0000CDu, "claMediumBlue"},
    {0xFFBA55D3u, "claMediumOrchid"},
    {0xFF9370DBu, "claMediumPurple"},
    {0xFF3CB371u, "claMediumSeaGreen"},
    {0xFF7B68EEu, "claMediumSlateBlue"},
    {0xFF00FA9Au, "claMediumSpringGreen"},
    {0xFF48D1CCu, "claMediumTurquoise"},
    {0xFFC71585u, "claMediumVioletRed"},
    {0xFF191970u, "claMidnightBlue"},
    {0xFFF5FFFAu, "claMintCream"},
    {0xFFFFE4E1u, "claMistyRose"},
    {0xFFFFE4B5u, "claMoccasin"},
    {0xFFFFDEADu, "claNavajoWhite"},
    {0xFF000080u, "claNavy"},
    {0xFFFDF5E6u, "claOldLace"},
    {0xFF808000u, "claOlive"},
    {0xFF6B8E23u, "claOliveDrab"},
    {0xFFFFA500u, "claOrange"},
    {0xFFFF4500u, "claOrangeRed"},
    {0xFFDA70D6u, "claOrchid"},
    {0xFFEEE8AAu, "claPaleGoldenrod"},
    {0xFF98FB98u, "claPaleGreen"},
    {0xFFAFEEEEu, "claPaleTurquoise"},
    {0xFFDB7093u, "claPaleVioletRed"},
    {0xFFFFEFD5u, "claPapayaWhip"},
    {0xFFFFDAB9u, "claPeachPuff"},
    {0xFFCD853Fu, "claPeru"},
    {0xFFFFC0CBu, "claPink"},
    {0xFFDDA0DDu, "claPlum"},
    {0xFFB0E0E6u, "claPowderBlue"},
    {0xFF800080u, "claPurple"},
    {0xFF663399u, "claRebeccaPurple"},
    {0xFFFF0000u, "claRed"},
    {0xFFBC8F8Fu, "claRosyBrown"},
    {0xFF4169E1u, "claRoyalBlue"},
    {0xFF8B4513u, "claSaddleBrown"},
    {0xFFFA8072u, "claSalmon"},
    {0xFFF4A460u, "claSandyBrown"},
    {0xFF2E8B57u, "claSeaGreen"},
    {0xFFFFF5EEu, "claSeashell"},
    {0xFFA0522Du, "claSienna"},
    {0xFFC0C0C0u, "claSilver"},
    {0xFF87CEEBu, "claSkyBlue"},
    {0xFF6A5ACDu, "claSlateBlue"},
    {0xFF708090u, "claSlateGray"},
    {0xFFFFFAFAu, "claSnow"},
    {0xFF00FF7Fu, "claSpringGreen"},
    {0xFF4682B4u, "claSteelBlue"},
    {0xFFD2B48Cu, "claTan"},
    {0xFF008080u, "claTeal"},
    {0xFFD8BFD8u, "claThistle"},
    {0xFFFF6347u, "claTomato"},
    {0x00000000u, "claTransparent"},
    {0xFF40E0D0u, "claTurquoise"},
    {0xFFEE82EEu, "claViolet"},
    {0xFFF5DEB3u, "claWheat"},
    {0xFFFFFFFFu, "claWhite"},
    {0xFFF5F5F5u, "claWhiteSmoke"},
    {0xFFFFFF00u, "claYellow"},
    {0xFF9ACD32u, "claYellowGreen"},
}};

Boolean IdentToRGBAColor(const String& AText, TAlphaColor& AColor) {
  const TNamedValue<TAlphaColor>* entry = FindNamedValue(AlphaColorNames, AText);
  if (!entry) entry = FindNamedValue(AlphaColorNames, String(NamePrefix) + AText);
  if (entry) AColor = entry->Value;
  return entry != nullptr;
}

Boolean NumberToRGBAColor(std::string_view AText, TAlphaColor& AColor) {
  Int64 number = 0;
  if (!TryStrToInt64(AText, number) || number < 0 || number > Int64(0xFFFFFFFFu)) return false;
  AColor = TAlphaColor(number);
  return true;
}

// "#" and six or eight hexadecimal digits; six are opaque.
Boolean HashToRGBAColor(std::string_view AText, TAlphaColor& AColor) {
  if ((AText.size() != 7 && AText.size() != 9) || AText[0] != '#') return false;
  const String digits(AText.substr(1));
  if (digits.find_first_not_of("0123456789abcdefABCDEF") != String::npos) return false;
  if (!NumberToRGBAColor("$" + digits, AColor)) return false;
  if (digits.size() == 6) AColor |= 0xFF000000u;
  return true;
}

} // namespace

String RGBAColorToString(TAlphaColor AColor) {
  const TNamedValue<TAlphaColor>* entry = FindValueName(AlphaColorNames, AColor);
  return entry ? entry->Name : "#" + IntToHex(AColor, 8);
}

TAlphaColor StringToRGBAColor(const String& AText) {
  TAlphaColor result = 0;
  if (IdentToRGBAColor(AText, result) || HashToRGBAColor(AText, result) || NumberToRGBAColor(AText, result))
    return result;
  throw EConvertError(
      Format("'%s' is not a valid alpha colour: a colour name, #AARRGGBB, #RRGGBB or a number is expected", {AText}));
}

std::vector<String> GetStandardRGBAColorNames() {
  std::vector<String> result;
  result.reserve(AlphaColorNames.size());
  for (const TNamedValue<TAlphaColor>& entry : AlphaColorNames) result.emplace_back(entry.Name);
  return result;
}

} // namespace Tarvo
