#include "platform/CharsetNames.h"

#include <array>

namespace Tarvo {

namespace {

struct TCharsetEntry {
  Integer Value;
  const char* Name;
};

constexpr std::array<TCharsetEntry, 19> Charsets{{
    {0, "ANSI_CHARSET"},         {1, "DEFAULT_CHARSET"},     {2, "SYMBOL_CHARSET"},      {77, "MAC_CHARSET"},
    {128, "SHIFTJIS_CHARSET"},   {129, "HANGEUL_CHARSET"},   {130, "JOHAB_CHARSET"},     {134, "GB2312_CHARSET"},
    {136, "CHINESEBIG5_CHARSET"}, {161, "GREEK_CHARSET"},    {162, "TURKISH_CHARSET"},   {163, "VIETNAMESE_CHARSET"},
    {177, "HEBREW_CHARSET"},     {178, "ARABIC_CHARSET"},    {186, "BALTIC_CHARSET"},    {204, "RUSSIAN_CHARSET"},
    {222, "THAI_CHARSET"},       {238, "EASTEUROPE_CHARSET"}, {255, "OEM_CHARSET"},
}};

} // namespace

Boolean CharsetToIdent(Integer ACharset, String& AIdent) {
  const TCharsetEntry* entry = FindValueName(Charsets, ACharset);
  if (entry) AIdent = entry->Name;
  return entry != nullptr;
}

Boolean IdentToCharset(const String& AIdent, Integer& ACharset) {
  const TCharsetEntry* entry = FindNamedValue(Charsets, AIdent);
  if (entry) ACharset = entry->Value;
  return entry != nullptr;
}

void GetCharsetValues(const TGetStrProc& AProc) {
  for (const TCharsetEntry& entry : Charsets) AProc(entry.Name);
}

} // namespace Tarvo
