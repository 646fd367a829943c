#include "samples/NoiseShapes.h"

#include <algorithm>
#include <cmath>

#include "reflection/DynamicElements.h"
#include "reflection/Publish.h"
#include "reflection/RangeAttributes.h"
#include "reflection/RowAttributes.h"

namespace Signals {

TARVO_IMPLEMENT_CLASS(TNoiseShape)
TARVO_IMPLEMENT_CLASS(TWhiteNoise)
TARVO_IMPLEMENT_CLASS(TPinkNoise)
TARVO_IMPLEMENT_CLASS(TBrownNoise)

TARVO_PUBLISH(TWhiteNoise) { ClassAttr<NameAttribute>("White noise"); }

TARVO_PUBLISH(TPinkNoise) {
  ClassAttr<NameAttribute>("Pink noise");
  Property("Octaves", &TPinkNoise::GetOctaves, &TPinkNoise::SetOctaves)
      .Default(Byte(4))
      .Attr<MinValueAttribute>(TValue::From(Byte(1)))
      .Attr<MaxValueAttribute>(TValue::From(Byte(16)));
}

TARVO_PUBLISH(TBrownNoise) {
  ClassAttr<NameAttribute>("Brown noise");
  Property("Window", &TBrownNoise::GetWindow, &TBrownNoise::SetWindow)
      .Default(Word(16))
      .Attr<MinValueAttribute>(TValue::From(Word(1)))
      .Attr<MaxValueAttribute>(TValue::From(Word(1024)));
}

namespace {
// The shapes a generator offers, in this order; they leave with the module.
const struct TNoiseShapeRegistration {
  TNoiseShapeRegistration() {
    for (const TClass shape : {TWhiteNoise::ClassInfo(), TPinkNoise::ClassInfo(), TBrownNoise::ClassInfo()})
      RegisterDynamicElement(TNoiseShape::ClassInfo(), shape);
  }
} NoiseShapeRegistration;
} // namespace

// One mixing step of a 64-bit hash over the seed and the index.
Double NoiseAt(Integer ASeed, Int64 AIndex) {
  UInt64 x = (UInt64(std::uint32_t(ASeed)) << 32) ^ UInt64(AIndex);
  x += 0x9E3779B97F4A7C15ull;
  x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9ull;
  x = (x ^ (x >> 27)) * 0x94D049BB133111EBull;
  x ^= x >> 31;
  return Double(x >> 11) / Double(UInt64(1) << 53) * 2 - 1;
}

Double TPinkNoise::Shape(Integer ASeed, Int64 AIndex) const {
  const Integer octaves = std::clamp<Integer>(FOctaves, 1, 16);
  Double sum = 0;
  // Octave k holds its value for 2^k samples; each octave has its own stream.
  for (Integer k = 0; k < octaves; ++k) sum += NoiseAt(ASeed + k, AIndex >> k);
  return sum / octaves;
}

Double TBrownNoise::Shape(Integer ASeed, Int64 AIndex) const {
  const Integer window = std::max<Integer>(FWindow, 1);
  Double sum = 0;
  for (Integer i = 0; i < window; ++i) sum += NoiseAt(ASeed, AIndex - i);
  return std::clamp(sum / std::sqrt(Double(window)), -1.0, 1.0);
}

} // namespace Signals
