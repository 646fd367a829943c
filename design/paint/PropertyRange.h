#pragma once
// The range of a numeric value, as the in-place forms scale their track bars by it.

#include "design/Interfaced.h"
#include "rtl/InterfacedObject.h"
#include "rtl/Value.h"

namespace Tarvo {

class TARVO_API IPropertyRange : public virtual IInterface {
  TARVO_INTERFACE(IPropertyRange, "{33C6B218-C877-447B-A6A5-D028BF48248B}", IInterface)
public:
  virtual TValue GetMinValue() = 0;
  virtual TValue GetMaxValue() = 0;
};

// A snapshot: later changes of the limits it was taken from do not reach it.
class TARVO_API TPropertyRange : public TImplements<TInterfaced, IPropertyRange> {
public:
  TPropertyRange(TValue AMin, TValue AMax) : FMin(std::move(AMin)), FMax(std::move(AMax)) {}

  TValue GetMinValue() override { return FMin; }
  TValue GetMaxValue() override { return FMax; }

private:
  TValue FMin;
  TValue FMax;
};

} // namespace Tarvo
