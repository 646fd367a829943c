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

// The range a numeric row suggests for sliding: narrower than the hard range where the member's
// attributes say so. Answered also where IPropertyRange is suppressed: it limits nothing.
class TARVO_API IPropertySuggestedRange : public virtual IInterface {
  TARVO_INTERFACE(IPropertySuggestedRange, "{8D3F0B52-6A1E-4C7D-9F24-3B5E7A1C0D98}", IInterface)
public:
  virtual TValue GetSuggestedMinValue() = 0;
  virtual TValue GetSuggestedMaxValue() = 0;
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
