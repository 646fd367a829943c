// TValue::FromString for a value of every kind of type: a text is taken or refused (false), a
// type without a text form raises EConvertError, and nothing else happens. A text taken gives a
// value whose own text is taken again to the same value.

#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "rtl/Value.h"
#include "rtl/Variant.h"
#include "runtime/Events.h"
#include "runtime/NamedTypes.h"

using namespace Tarvo;

namespace {

template <class T> TValue Zero(PTypeInfo AType) { return TValue::From<T>(T{}, AType); }

struct TKind {
  PTypeInfo Type;
  TValue (*Make)(PTypeInfo);
  bool HasText;
};

const TKind Kinds[] = {
    {&TypeInfo_Integer, Zero<Integer>, true},         {&TypeInfo_Cardinal, Zero<Cardinal>, true},
    {&TypeInfo_ShortInt, Zero<ShortInt>, true},       {&TypeInfo_SmallInt, Zero<SmallInt>, true},
    {&TypeInfo_Byte, Zero<Byte>, true},               {&TypeInfo_Word, Zero<Word>, true},
    {&TypeInfo_Int64, Zero<Int64>, true},             {&TypeInfo_UInt64, Zero<UInt64>, true},
    {&TypeInfo_Boolean, Zero<Boolean>, true},         {&TypeInfo_AnsiChar, Zero<AnsiChar>, true},
    {&TypeInfo_WideChar, Zero<WideChar>, true},       {&TypeInfo_Single, Zero<Single>, true},
    {&TypeInfo_Double, Zero<Double>, true},           {&TypeInfo_Extended, Zero<Extended>, true},
    {&TypeInfo_Currency, Zero<Currency>, true},       {&TypeInfo_Real, Zero<Double>, true},
    {&TypeInfo_TDateTime, Zero<TDateTime>, true},     {&TypeInfo_TDate, Zero<TDateTime>, true},
    {&TypeInfo_TTime, Zero<TDateTime>, true},         {&TypeInfo_String, Zero<String>, true},
    {&TypeInfo_AnsiString, Zero<String>, true},       {&TypeInfo_WideString, Zero<String>, true},
    {&TypeInfo_ShortString, Zero<String>, true},      {&TypeInfo_Variant, Zero<Variant>, true},
    {&TypeInfo_TColor, Zero<TColor>, true},           {&TypeInfo_TAlphaColor, Zero<TAlphaColor>, true},
    {&TypeInfo_TAlign, Zero<TAlign>, true},           {&TypeInfo_TAnchors, Zero<TAnchors>, true},
    {&TypeInfo_TFontStyles, Zero<TFontStyles>, true}, {&TypeInfo_TClass, Zero<const TMetaClass*>, false},
    {&TypeInfo_Pointer, Zero<void*>, false},          {&TypeInfo_TNotifyEvent, Zero<TNotifyEvent>, false},
};

[[noreturn]] void Fail(const char* AWhat, const TKind& AKind, const String& AText) {
  std::fprintf(stderr, "%s: %s from \"%s\"\n", AWhat, AKind.Type->Name, AText.c_str());
  std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* AData, size_t ASize) {
  if (ASize == 0) return 0;
  const TKind& kind = Kinds[AData[0] % std::size(Kinds)];
  const String text(reinterpret_cast<const char*>(AData + 1), ASize - 1);
  TValue value = kind.Make(kind.Type);
  const String before = value.ToString();
  bool taken = false;
  try {
    taken = value.FromString(text);
  } catch (const EConvertError&) {
    if (kind.HasText) Fail("EConvertError", kind, text);
    return 0;
  }
  if (!kind.HasText) Fail("a text taken by a type without one", kind, text);
  if (value.GetTypeInfo() != kind.Type) Fail("the value changed its type", kind, text);
  if (!taken) {
    if (value.ToString() != before) Fail("a refused text changed the value", kind, text);
    return 0;
  }
  const String written = value.ToString();
  TValue again = kind.Make(kind.Type);
  if (!again.FromString(written) || again.ToString() != written) Fail("a value's own text reads otherwise", kind, text);
  return 0;
}
