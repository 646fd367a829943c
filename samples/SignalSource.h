#pragma once
// What the sample components that produce a signal share: samples read by index, so that a
// consumer never depends on the producer's state.

#include "rtl/Interface.h"
#include "rtl/Types.h"

namespace Tarvo {

class ISignalSource : public virtual IInterface {
  TARVO_INTERFACE(ISignalSource, IInterface, "{54DE7AFF-3CD3-4693-AA51-C6E708A3F636}")
public:
  virtual Double ValueAt(Int64 AIndex) const = 0;
  virtual Cardinal GetSampleRate() const = 0;
};

} // namespace Tarvo
