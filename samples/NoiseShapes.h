#pragma once
// The shapes a generator's noise can take: owned elements of the generator, chosen by class in
// the designer among those registered for TNoiseShape.

#include "runtime/DynamicElement.h"

namespace Signals {

using namespace Tarvo;

// Repeatable noise in -1..1 for a seed and a sample index.
Double NoiseAt(Integer ASeed, Int64 AIndex);

class TNoiseShape : public TDynamicElement {
  TARVO_CLASS(TNoiseShape, TDynamicElement)
public:
  using TDynamicElement::TDynamicElement;
  // The noise sample at AIndex, in -1..1.
  virtual Double Shape(Integer ASeed, Int64 AIndex) const = 0;
};

// Every sample independent of the others.
class TWhiteNoise : public TNoiseShape {
  TARVO_CLASS(TWhiteNoise, TNoiseShape)
public:
  using TNoiseShape::TNoiseShape;
  Double Shape(Integer ASeed, Int64 AIndex) const override { return NoiseAt(ASeed, AIndex); }
};

// Octaves of held noise summed: more power at low frequencies.
class TPinkNoise : public TNoiseShape {
  TARVO_CLASS(TPinkNoise, TNoiseShape)
public:
  using TNoiseShape::TNoiseShape;
  Double Shape(Integer ASeed, Int64 AIndex) const override;
  Byte GetOctaves() const { return FOctaves; }
  void SetOctaves(Byte AValue) { FOctaves = AValue; }

private:
  Byte FOctaves = 4;
};

// A walk over the last samples: mostly low frequencies.
class TBrownNoise : public TNoiseShape {
  TARVO_CLASS(TBrownNoise, TNoiseShape)
public:
  using TNoiseShape::TNoiseShape;
  Double Shape(Integer ASeed, Int64 AIndex) const override;
  Word GetWindow() const { return FWindow; }
  void SetWindow(Word AValue) { FWindow = AValue; }

private:
  Word FWindow = 16;
};

} // namespace Signals
