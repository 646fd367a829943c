#include "rtl/InterfacedObject.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TInterfacedObject)

HRESULT QueryRootInterface(TObject* AObject, IInterface* AIntf, const TGUID& AIID, void** AObj) {
  if (AIID == ObjCastGUID) {
    *AObj = AObject;
    return S_OK;
  }
  if (AIID == IInterface::IID) {
    AIntf->_AddRef();
    *AObj = AIntf;
    return S_OK;
  }
  *AObj = nullptr;
  return E_NOINTERFACE;
}

HRESULT TInterfacedObject::QueryInterface(const TGUID& AIID, void** AObj) {
  return QueryRootInterface(this, this, AIID, AObj);
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
