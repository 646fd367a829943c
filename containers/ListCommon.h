#pragma once
#pragma GCC visibility push(default)
// What the array list and the linked list share: the forms that each list expresses through its
// own primitives, the untyped IList face, and the default comparer.

#include "containers/ChangeDelegation.h"
#include "containers/ListInterfaces.h"

namespace Tarvo {

// TList is the list class itself, which the factories build.
template <class T, class TIntf, class TList>
class TListCommon : public TImplements<TTypedInterfacedChangeNotifyObject<T>, IList, TIntf> {
public:
  using TSelf = TRef<TIntf>;
  using TPredicate = TConstFunc<T, Boolean>;
  // The primitives of the lists are reached through the interface.
  using TIntf::FindAndRemoveOne;
  using TIntf::RemoveAll;

  // The copying factories add through Add, so subscriptions are made.
  static TSelf CreateEnumerator(const TRef<IEnumerator<T>>& AEnumerator) {
    TARVO_ASSERT(AEnumerator != nullptr);
    const TRef<TList> result = New<TList>();
    while (AEnumerator->MoveNext()) result->Add(AEnumerator->GenericGetCurrent());
    return result;
  }

  // IList
  TRef<IEnumerator<TValue>> GetValueEnumerator() override {
    return New<TGenricValueEnumerator<T>>(this->GetEnumerator());
  }
  TValue GetNewValue() override { return ElementToValue<T>(T{}); }
  void AddValue(const TValue& AValue) override { this->Add(ElementFromValue<T>(AValue)); }

  T FindOrAdd(const TPredicate& ACompareFunc, const TFunc<T>& ACreate) override {
    TARVO_ASSERT(ACreate != nullptr);
    T item{};
    if (FindFirst(ACompareFunc, item)) return item;
    item = ACreate();
    this->Add(item);
    return item;
  }
  T FindOrAdd(const TPredicate& ACompareFunc, const T& AItem) override {
    return FindOrAdd(ACompareFunc, [&AItem] { return AItem; });
  }

  Boolean FindAndRemoveOne(const T& AItem) override { return this->IfRemoveOne(EqualTo(AItem)); }
  TSelf FindAndRemoveOne(const TPredicate& ACompareFunc, const TConstProc<T>& AFoundProc) override {
    TARVO_ASSERT(AFoundProc != nullptr);
    T item{};
    if (this->FindAndRemoveOne(ACompareFunc, item)) AFoundProc(item);
    return this;
  }
  TSelf RemoveOne(const TPredicate& ACompareFunc) override {
    this->IfRemoveOne(ACompareFunc);
    return this;
  }
  TSelf RemoveAll(const T& AItem) override { return this->RemoveAll(EqualTo(AItem)); }

  // Appending or assigning a list to itself does nothing.
  TSelf Append(const TRef<IEnumerable<T>>& AOther) override {
    TARVO_ASSERT(AOther != nullptr);
    if (this->IsSelf(AOther)) return this;
    for (const TRef<IEnumerator<T>> walk = AOther->GetEnumerator(); walk->MoveNext();)
      this->Add(walk->GenericGetCurrent());
    return this;
  }
  TSelf Append(const std::vector<T>& AItems) override {
    for (const T& item : AItems) this->Add(item);
    return this;
  }
  TSelf Assign(const TRef<IEnumerable<T>>& AOther) override {
    TARVO_ASSERT(AOther != nullptr);
    if (this->IsSelf(AOther)) return this;
    this->Clear();
    return Append(AOther);
  }

protected:
  TPredicate EqualTo(const T& AItem) const {
    return [this, &AItem](const T& AOther) { return FComparer->Compare(AOther, AItem) == 0; };
  }
  // The first element that matches, in list order.
  virtual bool FindFirst(const TPredicate& ACompareFunc, T& AItem) = 0;

  const TRef<IComparer<T>> FComparer = DefaultComparer<T>();
};

} // namespace Tarvo

// What lists of one element type share, whatever their kind.
#define TARVO_LIST_ELEMENT_INSTANCES(AExtern, ...)                                                                     \
  AExtern template class TTypedInterfacedChangeNotifyObject<__VA_ARGS__>;                                              \
  AExtern template class TQuery<__VA_ARGS__>;                                                                          \
  AExtern template class TImplements<TInterfacedObject, IQuery<__VA_ARGS__>>;                                          \
  AExtern template class TBasicEnumerator<__VA_ARGS__>;                                                                \
  AExtern template class TImplements<TInterfacedObject, IEnumerator<__VA_ARGS__>>;                                     \
  AExtern template class TGenricValueEnumerator<__VA_ARGS__>;                                                          \
  AExtern template class TDelegatedComparer<__VA_ARGS__>;                                                              \
  AExtern template class TImplements<TInterfacedObject, IComparer<__VA_ARGS__>>;

// What a list of one kind (interface AIntf, class AList) over element type T is made of.
#define TARVO_LIST_KIND_INSTANCES(AExtern, AIntf, AList, ...)                                                          \
  AExtern template class TListCommon<__VA_ARGS__, AIntf, AList>;                                                       \
  AExtern template class TImplements<TTypedInterfacedChangeNotifyObject<__VA_ARGS__>, IList, AIntf>;                   \
  AExtern template class TContainerQuery<TRef<AIntf>, TRef<AIntf>, __VA_ARGS__>;                                       \
  AExtern template class TImplements<TQuery<__VA_ARGS__>, IContainerQuery<TRef<AIntf>, TRef<AIntf>, __VA_ARGS__>>;

#pragma GCC visibility pop
