#pragma once
#pragma GCC visibility push(default)
// TLinkedList<T>: a singly linked list behind ILinkedList<T>, with deletion deferred while it is
// being walked.

#include "containers/ListCommon.h"

namespace Tarvo {

// Singly linked. While an enumerator lives no node is freed: a removed node is only flagged and
// stays linked, and the last enumerator to go unlinks the flagged nodes. The count does not fall
// for a node removed that way. Operations other than the walk see flagged nodes like any other,
// so PopFirst during a walk finds the same first node again.
template <class T> class TLinkedList final : public TListCommon<T, ILinkedList<T>, TLinkedList<T>> {
  using TBase = TListCommon<T, ILinkedList<T>, TLinkedList<T>>;
  struct TNode;
  // The link comes first in a node, so a node doubles as the link to its successor and a walk
  // can start from the address of FFirst like from any other link.
  struct TLink {
    TNode* Next = nullptr;
  };
  struct TNode : TLink {
    T Item;
    Boolean Deleted = false;
  };

public:
  using TBase::Append;
  using TBase::CreateEnumerator;
  using TBase::FindAndRemoveOne;
  using TBase::RemoveAll;
  using TBase::RemoveOne;
  using typename TBase::TPredicate;
  using typename TBase::TSelf;

  ~TLinkedList() override {
    while (TNode* node = FFirst) {
      FFirst = node->Next;
      delete node;
    }
  }

  static TSelf CreateCopy(const TRef<ILinkedList<T>>& AOther) {
    TARVO_ASSERT(AOther != nullptr);
    return CreateEnumerator(AOther->GetEnumerator());
  }

  TRef<IEnumerator<T>> GetEnumerator() override { return New<TEnumerator>(this); }

  // The query holds the list, so a query keeps its source alive.
  TRef<IContainerQuery<TSelf, TSelf, T>> Query() override {
    const TSelf self(this);
    return New<TContainerQuery<TSelf, TSelf, T>>(
        [self] { return self->GetEnumerator(); }, [] { return TSelf(New<TLinkedList>()); },
        [](TSelf AList, T AItem) { AList->Add(AItem); }, self, this->FComparer);
  }

  void ClearValues() override { Clear(); }

  Integer GetCount() override { return FCount; }

  T Last() override { return FLast ? FLast->Item : T{}; }
  Boolean Last(T& AItem) override {
    AItem = Last();
    return FLast != nullptr;
  }
  TSelf ForLast(const TConstProc<T>& AProc) override {
    TARVO_ASSERT(AProc != nullptr);
    if (FLast) AProc(FLast->Item);
    return this;
  }

  T PopFirst() override {
    T item{};
    IfPopFirst(item);
    return item;
  }
  TSelf PopFirst(T& AItem) override {
    IfPopFirst(AItem);
    return this;
  }
  TSelf PopFirst(const TConstProc<T>& AProc) override {
    IfPopFirst(AProc);
    return this;
  }
  Boolean IfPopFirst(T& AItem) override {
    if (!FFirst) {
      AItem = T{};
      return false;
    }
    AItem = FFirst->Item;
    RemoveNode(nullptr, FFirst);
    return true;
  }
  Boolean IfPopFirst(const TConstProc<T>& AProc) override {
    TARVO_ASSERT(AProc != nullptr);
    T item{};
    if (!IfPopFirst(item)) return false;
    AProc(item);
    return true;
  }

  TSelf Add(const T& AItem) override {
    TNode* node = new TNode{{nullptr}, AItem, false};
    (FLast ? FLast->Next : FFirst) = node;
    FLast = node;
    return Entered(node);
  }
  TSelf AddFront(const T& AItem) override {
    TNode* node = new TNode{{FFirst}, AItem, false};
    FFirst = node;
    if (!FLast) FLast = node;
    return Entered(node);
  }

  Boolean FindAndRemoveOne(const TPredicate& ACompareFunc, T& AItem) override {
    TNode* previous = nullptr;
    TNode* node = FindNode(ACompareFunc, previous);
    if (!node) return false;
    AItem = node->Item;
    RemoveNode(previous, node);
    return true;
  }

  // Removing a node notifies; an absent element notifies all the same.
  Integer RemoveOne(const T& AItem) override {
    Integer index = 0;
    TNode* previous = nullptr;
    for (TNode* node = FFirst; node; previous = node, node = node->Next, ++index)
      if (this->FComparer->Compare(node->Item, AItem) == 0) {
        RemoveNode(previous, node);
        return index;
      }
    this->ChangeNotify();
    return -1;
  }
  Boolean IfRemoveOne(const TPredicate& ACompareFunc) override {
    TNode* previous = nullptr;
    TNode* node = FindNode(ACompareFunc, previous);
    if (node) RemoveNode(previous, node);
    return node != nullptr;
  }

  TSelf RemoveAll(const TRef<IEnumerable<T>>& AOther) override {
    TARVO_ASSERT(AOther != nullptr);
    for (const TRef<IEnumerator<T>> walk = AOther->GetEnumerator(); walk->MoveNext();) {
      const T item = walk->GenericGetCurrent();
      TNode *lastPrevious = nullptr, *last = nullptr;
      for (TNode *previous = nullptr, *node = FFirst; node; previous = node, node = node->Next)
        if (this->FComparer->Compare(node->Item, item) == 0) {
          lastPrevious = previous;
          last = node;
        }
      if (last) RemoveNode(lastPrevious, last);
    }
    return this;
  }
  // Front to back: a linked list has no cheap way down.
  TSelf RemoveAll(const TPredicate& ACompareFunc, const TConstProc<T>& AFoundProc = nullptr) override {
    TARVO_ASSERT(ACompareFunc != nullptr);
    TNode* previous = nullptr;
    for (TNode* node = FFirst; node;) {
      TNode* const next = node->Next;
      if (!ACompareFunc(node->Item)) {
        previous = node;
      } else {
        const T item = node->Item;
        if (!RemoveNode(previous, node)) previous = node;
        if (AFoundProc) AFoundProc(item);
      }
      node = next;
    }
    return this;
  }

  // Clearing a list that holds nodes while a walk is alive would leave the walk on freed nodes;
  // it is refused.
  TSelf Clear() override {
    TARVO_ASSERT(FCountEnumerotors == 0 || !FFirst);
    while (TNode* node = FFirst) {
      FFirst = node->Next;
      delete node;
    }
    FLast = nullptr;
    FCount = 0;
    this->UndelegateAll();
    this->ChangeNotify();
    return this;
  }

private:
  // The cursor points at a link: first at FFirst, then at the link inside the current node.
  class TEnumerator final : public TBasicEnumerator<T> {
  public:
    explicit TEnumerator(TLinkedList* AList) : FList(AList) {
      ++FList->FCountEnumerotors;
      Reset();
    }
    ~TEnumerator() override { FList->ReleaseEnumerator(); }

    void Reset() override { FCursor = &FList->FFirst; }

    // Reads the successor's flag, not the node's own (except at the end): a node whose
    // successor was removed during the walk is passed over.
    bool MoveNext() override {
      for (;;) {
        TNode* const node = *FCursor;
        if (!node) return false;
        FCursor = &node->Next;
        if (!node->Next) return !node->Deleted;
        if (!node->Next->Deleted) return true;
      }
    }

    T GenericGetCurrent() override {
      TARVO_ASSERT(FCursor != &FList->FFirst);
      return static_cast<TNode*>(reinterpret_cast<TLink*>(FCursor))->Item;
    }

  private:
    const TRef<TLinkedList> FList; // held: the release step runs on it
    TNode** FCursor = nullptr;
  };

  TSelf Entered(TNode* ANode) {
    ++FCount;
    this->ChangeNotify();
    this->DelegateNotify(ANode->Item);
    return this;
  }

  // True when the node was freed, false when it was only flagged.
  bool RemoveNode(TNode* APrevious, TNode* ANode) {
    this->UndelegateNotify(ANode->Item);
    const bool freed = FCountEnumerotors == 0;
    if (freed) {
      (APrevious ? APrevious->Next : FFirst) = ANode->Next;
      if (FLast == ANode) FLast = APrevious;
      delete ANode;
      --FCount;
    } else {
      FHasDeleted = true;
      ANode->Deleted = true;
    }
    this->ChangeNotify();
    return freed;
  }

  // The count and FHasDeleted stay as they are.
  void ReleaseEnumerator() {
    if (--FCountEnumerotors != 0 || !FHasDeleted) return;
    bool freed = false;
    TNode* live = nullptr;
    for (TNode** link = &FFirst; TNode* node = *link;) {
      if (!node->Deleted) {
        live = node;
        link = &node->Next;
        continue;
      }
      *link = node->Next;
      if (node == FLast) FLast = live;
      this->UndelegateNotify(node->Item);
      delete node;
      freed = true;
    }
    if (freed) this->ChangeNotify();
  }

  TNode* FindNode(const TPredicate& ACompareFunc, TNode*& APrevious) {
    TARVO_ASSERT(ACompareFunc != nullptr);
    APrevious = nullptr;
    for (TNode* node = FFirst; node; APrevious = node, node = node->Next)
      if (ACompareFunc(node->Item)) return node;
    return nullptr;
  }

  bool FindFirst(const TPredicate& ACompareFunc, T& AItem) override {
    TNode* previous = nullptr;
    const TNode* node = FindNode(ACompareFunc, previous);
    if (node) AItem = node->Item;
    return node != nullptr;
  }

  Cardinal FCountEnumerotors = 0;
  Boolean FHasDeleted = false;
  TNode* FFirst = nullptr;
  TNode* FLast = nullptr;
  Integer FCount = 0;
};

} // namespace Tarvo

// The class templates a linked list of one element type adds to those of its element (see
// TARVO_ARRAY_LIST_INSTANCES).
#define TARVO_LINKED_LIST_INSTANCES(AExtern, ...)                                                                      \
  AExtern template class TLinkedList<__VA_ARGS__>;                                                                     \
  TARVO_LIST_KIND_INSTANCES(AExtern, ILinkedList<__VA_ARGS__>, TLinkedList<__VA_ARGS__>, __VA_ARGS__)

#pragma GCC visibility pop
