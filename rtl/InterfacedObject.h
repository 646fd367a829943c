#pragma once
#pragma GCC visibility push(default)
// The standard reference-counted object. During construction its count is held at one, so that
// handing out a reference to itself from a constructor cannot destroy it; AfterConstruction
// lowers the count again. Build instances with New<T>(...).

#include <atomic>

#include "rtl/Object.h"

namespace Tarvo {

class TInterfacedObject : public TObject, public virtual IInterface {
  TARVO_CLASS(TInterfacedObject, TObject)

public:
  HRESULT QueryInterface(const TGUID& AIID, void** AObj) override;
  int _AddRef() override;
  int _Release() override;
  void AfterConstruction() override;
  bool GetInterface(const TGUID& AIID, void** AObj) override;
  int RefCount() const { return FRefCount.load(std::memory_order_relaxed); }

private:
  std::atomic<int> FRefCount{1};
};

// The answer of a root object: the object itself (ObjCastGUID) and IInterface.
HRESULT QueryRootInterface(TObject* AObject, IInterface* AIntf, const TGUID& AIID, void** AObj);

// Adds interfaces to a base class: TImplements<TInterfacedObject, IFoo, IBar>. QueryInterface
// answers the listed interfaces and their ancestors, then defers to the base.
template <class TBase, class... AInterfaces> class TImplements : public TBase, public virtual AInterfaces... {
public:
  using TBase::TBase;

  HRESULT QueryInterface(const TGUID& AIID, void** AObj) override {
    if (QueryInterfaces<AInterfaces...>(this, AIID, AObj)) return S_OK;
    return TBase::QueryInterface(AIID, AObj);
  }
};

// Builds a reference-counted object and hands out the first reference.
template <class T, class... AArgs> TRef<T> New(AArgs&&... AArgsList) {
  return TRef<T>(Construct<T>(std::forward<AArgs>(AArgsList)...));
}

} // namespace Tarvo

#pragma GCC visibility pop
