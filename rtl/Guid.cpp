#include "rtl/Guid.h"

#include <cstdio>

namespace Tarvo {

TGUID TGUID::FromString(std::string_view AText) {
  TGUID g;
  if (!TryParse(AText, g)) throw EConvertError("'" + std::string(AText) + "' is not a valid GUID value");
  return g;
}

std::string TGUID::ToString() const {
  char text[39];
  std::snprintf(text, sizeof text, "{%08X-%04X-%04X-%02X%02X-%02X%02X%02X%02X%02X%02X}", D1, D2, D3, D4[0], D4[1],
                D4[2], D4[3], D4[4], D4[5], D4[6], D4[7]);
  return text;
}

} // namespace Tarvo
