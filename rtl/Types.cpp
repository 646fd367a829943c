#include "rtl/Types.h"

#include <cmath>

#include "rtl/Exceptions.h"

namespace Tarvo {

Currency Currency::FromDouble(Extended AValue) {
  const Extended scaled = std::nearbyint(AValue * Scale);
  if (!(scaled >= -9.2233720368547758e18L && scaled < 9.2233720368547758e18L))
    throw EInvalidCast("Floating point value out of the range of Currency");
  return Currency{static_cast<Int64>(scaled)};
}

} // namespace Tarvo
