#include "design/Interfaced.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TInterfaced)

HRESULT TInterfaced::QueryInterface(const TGUID& AIID, void** AObj) {
  return QueryRootInterface(this, this, AIID, AObj);
}

int TInterfaced::_AddRef() { return ++FRefCount; }

int TInterfaced::_Release() {
  const int count = --FRefCount;
  if (count == 0) Free(this);
  return count;
}

} // namespace Tarvo
