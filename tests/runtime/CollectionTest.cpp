#include <gtest/gtest.h>

#include "runtime/Collection.h"

namespace Tarvo {

class TTestCaptionItem : public TCollectionItem {
  TARVO_CLASS(TTestCaptionItem, TCollectionItem)
public:
  using TCollectionItem::TCollectionItem;
  void Assign(TPersistent* ASource) override {
    if (auto* source = dynamic_cast<TTestCaptionItem*>(ASource)) SetDisplayName(source->Caption);
    else inherited::Assign(ASource);
  }
  String GetDisplayName() const override { return Caption; }
  void SetDisplayName(const String& AValue) override {
    Caption = AValue;
    inherited::SetDisplayName(AValue);
  }
  String Caption;
};
TARVO_IMPLEMENT_CLASS(TTestCaptionItem)

// Writes each change it is told of: the item's ID, or "all".
class TTestLoggedCollection : public TCollection {
  TARVO_CLASS(TTestLoggedCollection, TCollection)
public:
  explicit TTestLoggedCollection(TPersistent* AOwner = nullptr) : TCollection(TTestCaptionItem::ClassInfo(), AOwner) {}
  std::vector<String> Updates;

protected:
  void Update(TCollectionItem* AItem) override { Updates.push_back(AItem ? std::to_string(AItem->ID()) : "all"); }
};
TARVO_IMPLEMENT_CLASS(TTestLoggedCollection)

namespace {

using TTexts = std::vector<String>;

class CollectionTest : public ::testing::Test {
protected:
  // Items a, b, c with IDs 0, 1, 2.
  void SetUp() override {
    for (const char* caption : {"a", "b", "c"}) Items->Add()->SetDisplayName(caption);
    Items->Updates.clear();
  }
  TTexts Captions() const {
    TTexts captions;
    for (Integer i = 0; i < Items->Count(); ++i) {
      EXPECT_EQ(Items->Items(i)->GetIndex(), i);
      captions.push_back(Items->Items(i)->GetDisplayName() + std::to_string(Items->Items(i)->ID()));
    }
    return captions;
  }

  TOwnedObject<TTestLoggedCollection> Items{Construct<TTestLoggedCollection>()};
};

// Items are made through the item class and keep their IDs while they move; IDs are never reused.
TEST_F(CollectionTest, ItemsAreMadeThroughTheItemClassAndKeepTheirIDsWhileTheyMove) {
  TCollectionItem* item = Items->Insert(0);
  item->SetDisplayName("z");
  EXPECT_TRUE(item->Is<TTestCaptionItem>());
  EXPECT_EQ(Captions(), (TTexts{"z3", "a0", "b1", "c2"}));
  Items->Items(3)->SetIndex(1);
  EXPECT_EQ(Captions(), (TTexts{"z3", "c2", "a0", "b1"}));
  EXPECT_THROW(Items->Items(0)->SetIndex(4), EListError);
  EXPECT_THROW(Items->Insert(5), EListError);
  EXPECT_EQ(Items->FindItemID(1), Items->Items(3));
  EXPECT_EQ(Items->FindItemID(7), nullptr);

  Items->Delete(1);
  Items->Add()->SetDisplayName("d");
  EXPECT_EQ(Captions(), (TTexts{"z3", "a0", "b1", "d4"}));
  TObject::Free(Items->Items(0)); // an item that goes leaves by itself
  EXPECT_EQ(Captions(), (TTexts{"a0", "b1", "d4"}));
}

// A change to one item tells that item, other changes the whole; an update bracket tells once.
TEST_F(CollectionTest, ChangesAreToldThroughUpdate) {
  Items->Items(1)->SetDisplayName("B"); // one item
  Items->Add();                         // the whole
  Items->Items(0)->SetIndex(2);
  Items->Delete(0);
  EXPECT_EQ(Items->Updates, (TTexts{"1", "all", "all", "all"}));
  Items->Updates.clear();
  Items->BeginUpdate();
  Items->Add()->SetDisplayName("x");
  Items->Items(0)->SetDisplayName("y");
  Items->EndUpdate();
  Items->Clear();
  EXPECT_EQ(Items->Updates, (TTexts{"all", "all"}));
}

// Assign rebuilds the items through their own Assign, with new IDs, telling once.
TEST_F(CollectionTest, AssignRebuildsItemsThroughTheirOwnAssign) {
  TTestLoggedCollection copy;
  copy.Add()->SetDisplayName("old");
  copy.Updates.clear();
  copy.Assign(Items.get());
  ASSERT_EQ(copy.Count(), 3);
  EXPECT_EQ(copy.Items(2)->GetDisplayName() + std::to_string(copy.Items(0)->ID()), "c1"); // new items, new IDs
  EXPECT_EQ(copy.Updates, TTexts{"all"});
  EXPECT_THROW(copy.Assign(Items->Items(0)), EConvertError);
}

} // namespace
} // namespace Tarvo
