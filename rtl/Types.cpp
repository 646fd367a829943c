#include "rtl/Types.h"

#include <cmath>

#include "rtl/Exceptions.h"

namespace Tarvo {

bool Currency::Fits(Extended AValue) {
  const Extended scaled = std::nearbyint(AValue * Scale);
  return scaled >= -0x1p63L && scaled < 0x1p63L;
}

Currency Currency::FromDouble(Extended AValue) {
  if (!Fits(AValue)) throw EInvalidCast("Floating point value out of the range of Currency");
  return Currency{static_cast<Int64>(std::nearbyint(AValue * Scale))};
}

} // namespace Tarvo
