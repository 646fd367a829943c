#pragma once
#pragma GCC visibility push(default)
// Collections: ordered lists of items of one class, which the collection makes through the item
// class's virtual constructor and destroys. Every change is told through the collection's
// Update: of one item, or (nil) of the collection as a whole.

#include <vector>

#include "runtime/Component.h"

namespace Tarvo {

class TCollection;

class TCollectionItem : public TPersistent {
  TARVO_CLASS(TCollectionItem, TPersistent)

public:
  using TConstructor = TConstructorSignature<TCollection*>;

  // Joins ACollection at its end, when given.
  explicit TCollectionItem(TCollection* ACollection);
  ~TCollectionItem() override;

  TCollection* GetCollection() const { return FCollection; }
  // Moves the item to the end of ACollection; nil takes it out.
  void SetCollection(TCollection* ACollection);
  // The position in the collection; -1 outside one.
  Integer GetIndex() const;
  void SetIndex(Integer AValue);
  // Given by the collection when the item joins it, and never reused there.
  Integer ID() const { return FID; }
  // The class name unless a descendant has a better one.
  virtual String GetDisplayName() const;
  virtual void SetDisplayName(const String& AValue);
  TPersistent* GetOwner() const override;

protected:
  // Tells the collection of a change of this item, or with AAllItems of all of them.
  void Changed(Boolean AAllItems);

private:
  friend class TCollection;

  TCollection* FCollection = nullptr;
  Integer FID = 0;
};

using TCollectionItemClass = TClassOf<TCollectionItem>;

class TCollection : public TPersistent {
  TARVO_CLASS(TCollection, TPersistent)

public:
  explicit TCollection(TCollectionItemClass AItemClass, TPersistent* AOwner = nullptr);
  ~TCollection() override;

  TCollectionItem* Add();
  TCollectionItem* Insert(Integer AIndex);
  void Delete(Integer AIndex);
  void Clear();
  Integer Count() const { return static_cast<Integer>(FItems.size()); }
  TCollectionItem* Items(Integer AIndex) const;
  // Assigns AValue to the item at AIndex.
  void SetItem(Integer AIndex, TCollectionItem* AValue);
  // Nil when no item has that ID.
  TCollectionItem* FindItemID(Integer AID) const;
  TCollectionItemClass ItemClass() const { return FItemClass; }

  // Changes inside a bracket are told once, as a change of the whole, when it closes.
  void BeginUpdate() { ++FUpdateCount; }
  void EndUpdate();

  // Makes as many items as the source has and assigns each its counterpart.
  void Assign(TPersistent* ASource) override;
  TPersistent* GetOwner() const override { return FOwner; }

protected:
  // AItem changed, or the collection as a whole when nil.
  virtual void Update(TCollectionItem* AItem);
  void Changed();

private:
  friend class TCollectionItem;

  void InsertItem(TCollectionItem* AItem);
  void RemoveItem(TCollectionItem* AItem);

  TCollectionItemClass FItemClass;
  TPersistent* FOwner;
  std::vector<TCollectionItem*> FItems;
  Integer FNextID = 0;
  Integer FUpdateCount = 0;
};

} // namespace Tarvo

#pragma GCC visibility pop
