#include "rtl/InterfacedObject.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TInterfacedObject)

HRESULT TInterfacedObject::QueryInterface(const TGUID& AIID, void** AObj) {
  if (AIID == ObjCastGUID) {
    *AObj = static_cast<TObject*>(this);
    return S_OK;
  }
  if (QueryInterfaces<IInterface>(this, AIID, AObj)) return S_OK;
  *AObj = nullptr;
  return E_NOINTERFACE;
}

int TInterfacedObject::_AddRef() { return ++FRefCount; }

int TInterfacedObject::_Release() {
  const int count = --FRefCount;
  if (count == 0) Free(this);
  return count;
}

void TInterfacedObject::AfterConstruction() { --FRefCount; }

bool TInterfacedObject::GetInterface(const TGUID& AIID, void** AObj) { return QueryInterface(AIID, AObj) == S_OK; }

} // namespace Tarvo
