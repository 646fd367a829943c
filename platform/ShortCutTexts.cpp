#include "platform/ShortCutTexts.h"

#include <array>
#include <vector>

#include "platform/NamedValues.h"

namespace Tarvo {

namespace {

struct TKeyName {
  Integer Value;
  String Name;
};

// Every key a shortcut may name: the named keys, digits, letters and function keys.
const std::vector<TKeyName>& KeyNames() {
  static const std::vector<TKeyName> names = [] {
    std::vector<TKeyName> result{{0x08, "BkSp"}, {0x09, "Tab"},   {0x0D, "Enter"}, {0x1B, "Esc"},  {0x20, "Space"},
                                 {0x21, "PgUp"}, {0x22, "PgDn"},  {0x23, "End"},   {0x24, "Home"}, {0x25, "Left"},
                                 {0x26, "Up"},   {0x27, "Right"}, {0x28, "Down"},  {0x2D, "Ins"},  {0x2E, "Del"}};
    for (char key = '0'; key <= '9'; ++key) result.push_back({key, String(1, key)});
    for (char key = 'A'; key <= 'Z'; ++key) result.push_back({key, String(1, key)});
    for (Integer number = 1; number <= 12; ++number) result.push_back({0x6F + number, "F" + std::to_string(number)});
    return result;
  }();
  return names;
}

struct TModifier {
  TShortCut Flag;
  std::string_view Prefix;
};

constexpr std::array<TModifier, 3> Modifiers{{{scShift, "Shift+"}, {scCtrl, "Ctrl+"}, {scAlt, "Alt+"}}};
constexpr TShortCut KeyMask = 0xFF;

} // namespace

String ShortCutToText(TShortCut AShortCut) {
  const TKeyName* key = FindValueName(KeyNames(), AShortCut & KeyMask);
  if (!key) return {};
  String text;
  for (const TModifier& modifier : Modifiers)
    if (AShortCut & modifier.Flag) text += modifier.Prefix;
  return text + key->Name;
}

TShortCut TextToShortCut(const String& AText) {
  std::string_view rest = AText;
  TShortCut flags = 0;
  for (bool found = true; found;) {
    found = false;
    for (const TModifier& modifier : Modifiers)
      if (rest.size() > modifier.Prefix.size() && SameText(rest.substr(0, modifier.Prefix.size()), modifier.Prefix)) {
        flags |= modifier.Flag;
        rest.remove_prefix(modifier.Prefix.size());
        found = true;
      }
  }
  const TKeyName* key = FindNamedValue(KeyNames(), rest);
  return key ? TShortCut(flags | key->Value) : TShortCut(0);
}

} // namespace Tarvo
