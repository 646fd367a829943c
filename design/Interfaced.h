#pragma once
// TInterfaced: the reference-counted base of nearly every object of the design core. Unlike
// TInterfacedObject its count starts at 0 with no guard during construction: a constructor must
// not hand out a reference to the object and drop it again, or the object ends in its own
// constructor. The object ends in the _Release that takes the count to 0.

#include <atomic>

#include "reflection/RttiTypes.h"
#include "reflection/TypeInfo.h"
#include "rtl/InterfacedObject.h"

namespace Tarvo {

class TARVO_API TInterfaced : public TObject, public virtual IInterface {
  TARVO_CLASS(TInterfaced, TObject)

public:
  // Virtual, so that editors can answer interfaces they make on demand.
  HRESULT QueryInterface(const TGUID& AIID, void** AObj) override;
  int _AddRef() override;
  int _Release() override;
  bool GetInterface(const TGUID& AIID, void** AObj) override { return QueryInterface(AIID, AObj) == S_OK; }

  TRef<IClassTypeInfo> TypeInfo(bool AIncludeDynamicTypeInfo) {
    return TRttiObjectHelper::TypeInfo(this, AIncludeDynamicTypeInfo);
  }
  TRef<IClassTypeInfo> ClassTypeInfo() const { return TRttiObjectHelper::ClassTypeInfo(ClassType()); }
  int RefCount() const { return FRefCount.load(std::memory_order_relaxed); }

private:
  std::atomic<int> FRefCount{0};
};

} // namespace Tarvo
