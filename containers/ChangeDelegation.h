#pragma once
#pragma GCC visibility push(default)
// A container that, while someone listens to it, listens to its elements: a change in an element
// is a change of the container. The subscriptions are kept per element object; only finding the
// object of an element depends on the element type.

#include "containers/ListInterfaces.h"

namespace Tarvo {

// Class and interface elements can be asked for change notification.
template <class T>
concept CObjectElement = (std::is_pointer_v<T> && std::is_convertible_v<T, TObject*>) || requires(const T& AItem) {
  ObjectOf(AItem);
};

template <class T> TObject* ElementObject(const T& AItem) {
  if constexpr (std::is_pointer_v<T>) return AItem;
  else return ObjectOf(AItem);
}

// The part that does not depend on the element type.
class TDelegatingChangeNotifyObject : public TInterfacedChangeNotifyObject {
  TARVO_CLASS(TDelegatingChangeNotifyObject, TInterfacedChangeNotifyObject)

public:
  // A dying container leaves no handler behind on its elements.
  void BeforeDestruction() override;

protected:
  // Subscribes to an element that entered, when the container itself is listened to and the
  // element offers IChangeNotification.
  void DelegateNotifyObject(TObject* AObject);
  // Unsubscribes from an element that leaves.
  void UndelegateNotifyObject(TObject* AObject);
  // The element is dying: only the record of it goes, with no call on it; it stays in the
  // container.
  void InternalRemoveNotification(TObject* AObject);
  void UndelegateAll();

private:
  void DropWhenEmpty();

  TRef<ILinkedList<TInterfacedChangeNotifyItem>> FDelegatedNotications; // made on first need
};

template <class T> class TTypedInterfacedChangeNotifyObject : public TDelegatingChangeNotifyObject {
protected:
  void DelegateNotify(const T& AItem) {
    if constexpr (CObjectElement<T>) DelegateNotifyObject(ElementObject(AItem));
  }
  void UndelegateNotify(const T& AItem) {
    if constexpr (CObjectElement<T>) UndelegateNotifyObject(ElementObject(AItem));
  }
  bool IsSelf(const TRef<IEnumerable<T>>& AOther) const {
    return InterfaceIdentity(AOther.get()) == InterfaceIdentity(this);
  }
};

} // namespace Tarvo

#pragma GCC visibility pop
