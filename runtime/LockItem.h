#pragma once
#pragma GCC visibility push(default)
// Objects whose members the design core writes and that want to hear of it: after every write
// the core asks the instance for its notifier and fires it. A component implements it as
// TImplements<TComponent, ILockItem>; its references are not counted.

#include "containers/Common.h"

namespace Tarvo {

class ILockItem : public virtual IInterface {
  TARVO_INTERFACE(ILockItem, "{6C1F0B7E-2D4A-4E85-9B3C-7A5E1D9F0C24}", IInterface)
public:
  // What to call once a write is done; nil when nothing needs telling.
  virtual TProc<> GetNotifier() = 0;
};

// Fires the notifier of AInstance; false when the instance is no ILockItem.
inline bool NotifyLockItem(TObject* AInstance) {
  TRef<ILockItem> item;
  if (!Supports(AInstance, item)) return false;
  if (const TProc<> notifier = item->GetNotifier()) notifier();
  return true;
}

} // namespace Tarvo

#pragma GCC visibility pop
