#pragma once
// What the sample components that produce a signal share: samples read by index, so that a
// consumer never depends on the producer's state.

#include "rtl/Interface.h"
#include "rtl/Types.h"

// The sample module keeps its own namespace, as any component module does.
namespace Signals {

using namespace Tarvo;

class ISignalSource : public virtual IInterface {
  TARVO_INTERFACE(ISignalSource, "{54DE7AFF-3CD3-4693-AA51-C6E708A3F636}", IInterface)
public:
  virtual Double ValueAt(Int64 AIndex) const = 0;
  virtual Cardinal GetSampleRate() const = 0;
};

} // namespace Signals
