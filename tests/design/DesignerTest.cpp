#include <gtest/gtest.h>

#include <array>

#include "design/Designer.h"
#include "design/reflection/Publish.h"

namespace Tarvo {

// Keeps the state its constructors saw, and tells when it goes.
class TDesignerTestWidget : public TComponent {
  TARVO_CLASS(TDesignerTestWidget, TComponent)
public:
  explicit TDesignerTestWidget(TComponent* AOwner) : TComponent(AOwner), StateInConstructor(ComponentState()) {}
  ~TDesignerTestWidget() override {
    if (Freed) *Freed = true;
  }
  void Prepare() { Prepared = true; }
  TComponentState StateInConstructor;
  bool Prepared = false;
  bool* Freed = nullptr;
};
TARVO_IMPLEMENT_CLASS(TDesignerTestWidget)

// Adds members at run time, so its type info prepares each new instance.
class TDesignerTestDynamicWidget : public TDesignerTestWidget {
  TARVO_CLASS(TDesignerTestDynamicWidget, TDesignerTestWidget)
public:
  using TDesignerTestWidget::TDesignerTestWidget;
  TRef<IMembersInfo> GetExtraMembers() { return New<TMembersInfo>(); }
};
TARVO_IMPLEMENT_CLASS(TDesignerTestDynamicWidget)
TARVO_PUBLISH(TDesignerTestDynamicWidget) {
  DynamicMembers(&TDesignerTestDynamicWidget::GetExtraMembers, &TDesignerTestWidget::Prepare);
}

namespace {

using TLog = std::vector<String>;

// Writes "<tag>:<operation>" to a log the test owns; OnEvent lets a test react to an operation.
class TLogListener : public TImplements<TInterfacedObject, ISelectionChange> {
public:
  TLogListener(TLog& ALog, String ATag) : FLog(ALog), FTag(std::move(ATag)) {}
  void SelectionChangingBegin() override { Write("SelectionChangingBegin"); }
  void SelectionChanged() override { Write("SelectionChanged"); }
  void BeginModify() override { Write("BeginModify"); }
  void EndModify() override { Write("EndModify"); }
  void ItemModified() override { Write("ItemModified"); }
  void ItemAdded(TPersistent* AItem) override { Write("ItemAdded", AItem); }
  void ItemDeleted(TPersistent* AItem) override { Write("ItemDeleted", AItem); }
  void RefreshView() override { Write("RefreshView"); }
  void ResetObjectInspector() override { Write("ResetObjectInspector"); }
  void BindingAdded(TObject* ABinding) override { Write("BindingAdded", ABinding); }
  void BindingRemoved(TObject* ABinding) override { Write("BindingRemoved", ABinding); }
  void DesignerClosing() override { Write("DesignerClosing"); }

  std::function<void(const String&)> OnEvent;
  std::vector<TObject*> Objects;

private:
  void Write(const String& AOperation, TObject* AObject = nullptr) {
    FLog.push_back(FTag + ":" + AOperation);
    if (AObject) Objects.push_back(AObject);
    if (OnEvent) OnEvent(AOperation);
  }
  TLog& FLog;
  String FTag;
};

// A form designer: owns what it makes, numbers the names and can leave design mode.
class TTestFormDesigner : public TDesigner {
public:
  String UniqueName(const String& ABaseName) override {
    Asked.push_back(ABaseName);
    return ABaseName + std::to_string(Asked.size());
  }
  void AddItem(TPersistent* AItem) { NotifyListeners(&ISelectionChange::ItemAdded, AItem); }

  TOwnedObject<TComponent> Root{Construct<TComponent>(nullptr)};
  Boolean DesignMode = true;
  std::vector<String> Asked;

protected:
  Boolean GetInDesignMode() override { return DesignMode; }
  TComponent* GetEditRoot() override { return Root.get(); }
};

// Opens the stock results that are protected.
class TStockProbe : public TDesigner {
public:
  using TDesigner::GetEditRoot;
  using TDesigner::GetInDesignMode;
};

class DesignerTest : public ::testing::Test {
protected:
  TRef<TLogListener> Listen(const TRef<IDesigner>& ADesigner, const String& ATag) {
    const auto listener = New<TLogListener>(Log, ATag);
    ADesigner->AddSelectionChangeNotify(listener);
    return listener;
  }
  TRef<IObjectArrayList> ListOf(std::vector<TObject*> AObjects) { return TObjectArrayList::CreateArray(AObjects); }
  static std::vector<TObject*> Objects(const TRef<IObjectArrayList>& AList) { return AList->ToArray(); }

  TRef<TDesigner> Designer = New<TDesigner>();
  TLog Log;
  TObject A, B, C;
};

// ---- Selection ----

using DesignerSelectionTest = DesignerTest;

TEST_F(DesignerSelectionTest, ChangeIsByIdentityAndOrder) {
  const struct {
    const char* Name;
    std::function<TRef<IObjectArrayList>(const TRef<IObjectArrayList>&)> Next;
    bool Announced;
  } cases[] = {
      {"the same list, grown in place", [this](const auto& AStart) { return AStart->Add(&C); }, false},
      {"an equal copy", [this](const auto&) { return ListOf({&A, &B}); }, false},
      {"the same objects reversed", [this](const auto&) { return ListOf({&B, &A}); }, true},
      {"one more", [this](const auto&) { return ListOf({&A, &B, &C}); }, true},
      {"one less", [this](const auto&) { return ListOf({&A}); }, true},
      {"another object at an index", [this](const auto&) { return ListOf({&A, &C}); }, true},
      {"nil", [](const auto&) { return TRef<IObjectArrayList>(); }, true},
  };
  for (const auto& c : cases) {
    Designer = New<TDesigner>();
    const TRef<IObjectArrayList> start = ListOf({&A, &B});
    Designer->SetSelection(start);
    Listen(Designer, "L");
    Designer->SetSelection(c.Next(start));
    EXPECT_EQ(Log, c.Announced ? TLog{"L:SelectionChanged"} : TLog{}) << c.Name;
    Log.clear();
  }
}

TEST_F(DesignerSelectionTest, NilLeavesAnEmptyListAndCallersGetCopies) {
  Listen(Designer, "L");
  Designer->SetSelection(nullptr);
  EXPECT_EQ(Designer->GetSelection()->GetCount(), 0);
  EXPECT_TRUE(Log.empty()) << "an empty list and nil are the same selection";

  const TRef<IObjectArrayList> chosen = ListOf({&A});
  Designer->SetSelection(chosen);
  const TRef<IObjectArrayList> copy = Designer->GetSelection();
  EXPECT_FALSE(copy == chosen);
  EXPECT_FALSE(copy == Designer->GetSelection());
  copy->Add(&B);
  EXPECT_EQ(Objects(Designer->GetRootSelection()), std::vector<TObject*>{&A});
}

TEST_F(DesignerSelectionTest, ArrayOverloadSelectsItsElementsInOrder) {
  Listen(Designer, "L");
  const std::array<TObject*, 2> objects{&B, &A};
  Designer->SetSelection(objects);
  Designer->SetSelection(objects);
  EXPECT_EQ(Objects(Designer->GetSelection()), (std::vector<TObject*>{&B, &A}));
  EXPECT_EQ(Log, TLog{"L:SelectionChanged"});
}

// ---- Update brackets and gated notices ----

using DesignerUpdateTest = DesignerTest;

TEST_F(DesignerUpdateTest, NestedBracketsAnnounceOnceAtTheOuterEdges) {
  Listen(Designer, "A");
  Listen(Designer, "B");
  for (const bool changeInside : {false, true}) {
    Designer->BeginUpdate();
    Designer->BeginUpdate();
    if (changeInside) Designer->SetSelection(ListOf({&C}));
    Designer->EndUpdate();
    EXPECT_EQ(Log, (TLog{"A:SelectionChangingBegin", "B:SelectionChangingBegin"}));
    Designer->EndUpdate();
    EXPECT_EQ(Log, (TLog{"A:SelectionChangingBegin", "B:SelectionChangingBegin", "A:SelectionChanged", "B:SelectionChanged"}))
        << "changed inside: " << changeInside;
    Log.clear();
  }
}

TEST_F(DesignerUpdateTest, NoticesInsideABracketAreDroppedNotDeferred) {
  const struct {
    const char* Name;
    std::function<void(TDesigner&)> Act;
  } cases[] = {
      {"Modified", [](TDesigner& D) { D.Modified(); }},
      {"BeginModify", [](TDesigner& D) { D.BeginModify(); }},
      {"EndModify", [](TDesigner& D) { D.EndModify(); }},
      {"ResetObjectInspector", [](TDesigner& D) { D.ResetObjectInspector(); }},
      {"RefreshView", [](TDesigner& D) { D.RefreshView(); }},
      {"BindingAdded", [this](TDesigner& D) { D.BindingAdded(&A); }},
      {"BindingRemoved", [this](TDesigner& D) { D.BindingRemoved(&A); }},
  };
  const String sent[] = {"ItemModified", "BeginModify", "EndModify", "ResetObjectInspector",
                         "RefreshView",  "BindingAdded", "BindingRemoved"};
  Listen(Designer, "L");
  for (std::size_t i = 0; i < std::size(cases); ++i) {
    cases[i].Act(*Designer);
    EXPECT_EQ(Log, TLog{"L:" + sent[i]}) << cases[i].Name;
    Log.clear();
    Designer->BeginUpdate();
    cases[i].Act(*Designer);
    Designer->EndUpdate();
    EXPECT_EQ(Log, (TLog{"L:SelectionChangingBegin", "L:SelectionChanged"})) << cases[i].Name;
    Log.clear();
  }
}

TEST_F(DesignerUpdateTest, BracketEdgesAreAnnouncedOutsideTheCount) {
  Listen(Designer, "L")->OnEvent = [this](const String& AOperation) {
    if (AOperation != "RefreshView") Designer->RefreshView();
  };
  Designer->BeginUpdate();
  Designer->EndUpdate();
  EXPECT_EQ(Log, (TLog{"L:SelectionChangingBegin", "L:RefreshView", "L:SelectionChanged", "L:RefreshView"}));
}

TEST_F(DesignerUpdateTest, UnbalancedEndUpdateMutesUntilBalanced) {
  Listen(Designer, "L");
  Designer->EndUpdate();
  Designer->RefreshView();
  Designer->BeginUpdate();
  Designer->RefreshView();
  EXPECT_EQ(Log, TLog{"L:RefreshView"});
}

// ---- Listeners ----

using DesignerListenerTest = DesignerTest;

TEST_F(DesignerListenerTest, CalledInOrderOfAddingAndRemovedByIdentity) {
  const auto first = Listen(Designer, "X");
  Listen(Designer, "Y");
  Listen(Designer, "X");
  Designer->RemoveSelectionChangeNotify(first);
  Designer->RefreshView();
  EXPECT_EQ(Log, (TLog{"Y:RefreshView", "X:RefreshView"}));
}

TEST_F(DesignerListenerTest, ModifiedFromItsOwnListenerDoesNothing) {
  Listen(Designer, "A")->OnEvent = [this](const String&) { Designer->Modified(); };
  Listen(Designer, "B");
  Designer->Modified();
  Designer->Modified();
  EXPECT_EQ(Log, (TLog{"A:ItemModified", "B:ItemModified", "A:ItemModified", "B:ItemModified"}));
}

TEST_F(DesignerListenerTest, ExceptionStopsTheWalkAndLeavesModifiedGuarded) {
  const auto thrower = Listen(Designer, "A");
  thrower->OnEvent = [](const String&) { throw EComponentError("refused"); };
  Listen(Designer, "B");
  EXPECT_THROW(Designer->Modified(), EComponentError);
  Designer->RemoveSelectionChangeNotify(thrower);
  Designer->Modified();
  Designer->RefreshView();
  EXPECT_EQ(Log, (TLog{"A:ItemModified", "B:RefreshView"}));
}

TEST_F(DesignerListenerTest, ListenerLeavingDuringAWalkCountsFromTheNext) {
  const auto leaver = Listen(Designer, "A");
  leaver->OnEvent = [this, leaver = leaver.get()](const String&) { Designer->RemoveSelectionChangeNotify(leaver); };
  Listen(Designer, "B");
  Designer->RefreshView();
  Designer->RefreshView();
  EXPECT_EQ(Log, (TLog{"A:RefreshView", "B:RefreshView", "B:RefreshView"}));
}

TEST_F(DesignerListenerTest, ObjectsReachTheListenerAndSubclassNoticesIgnoreBrackets) {
  const auto designer = New<TTestFormDesigner>();
  const auto listener = Listen(designer, "L");
  TPersistent item;
  designer->BindingAdded(&A);
  designer->BindingRemoved(&B);
  designer->BeginUpdate();
  designer->AddItem(&item);
  EXPECT_EQ(listener->Objects, (std::vector<TObject*>{&A, &B, &item}));
  EXPECT_EQ(Log.back(), "L:ItemAdded");
  designer->EndUpdate();
}

// ---- Components ----

using DesignerComponentTest = DesignerTest;

TEST_F(DesignerComponentTest, ConstructorSeesDesigningAndLoadingState) {
  const struct {
    Boolean DesignMode, Loading;
    TComponentState Seen;
  } cases[] = {{true, false, {csDesigning}}, {true, true, {csDesigning, csLoading}}, {false, true, {csLoading}}, {false, false, {}}};
  for (const auto& c : cases) {
    const auto designer = New<TTestFormDesigner>();
    designer->DesignMode = c.DesignMode;
    const auto* widget = static_cast<TDesignerTestWidget*>(
        designer->CreateComponent(TRttiObjectHelper::ClassTypeInfo(TDesignerTestWidget::ClassInfo()), c.Loading));
    EXPECT_EQ(widget->StateInConstructor, c.Seen) << c.DesignMode << c.Loading;
    EXPECT_EQ(widget->Owner(), designer->Root.get());
  }
}

TEST_F(DesignerComponentTest, NamedThroughUniqueNameAndPreparedWhenDynamic) {
  const auto designer = New<TTestFormDesigner>();
  const auto* dynamic = static_cast<TDesignerTestWidget*>(
      designer->CreateComponent(TRttiObjectHelper::ClassTypeInfo(TDesignerTestDynamicWidget::ClassInfo()), false));
  const auto* plain = static_cast<TDesignerTestWidget*>(
      designer->CreateComponent(TRttiObjectHelper::ClassTypeInfo(TDesignerTestWidget::ClassInfo()), false));
  EXPECT_EQ(designer->Asked, (std::vector<String>{"DesignerTestDynamicWidget", "DesignerTestWidget"}));
  EXPECT_EQ(dynamic->GetName(), "DesignerTestDynamicWidget1");
  EXPECT_EQ(plain->GetName(), "DesignerTestWidget2");
  EXPECT_TRUE(dynamic->Prepared);
  EXPECT_FALSE(plain->Prepared);
}

TEST_F(DesignerComponentTest, ComponentThatCantTakeItsNameIsDisposed) {
  const auto designer = New<TTestFormDesigner>();
  Construct<TComponent>(designer->Root.get())->SetName("DesignerTestWidget1");
  EXPECT_THROW(designer->CreateComponent(TRttiObjectHelper::ClassTypeInfo(TDesignerTestWidget::ClassInfo()), false),
               EComponentError);
  EXPECT_EQ(designer->Root->ComponentCount(), 1) << "the nameless component left its owner";
}

TEST_F(DesignerComponentTest, StockResults) {
  const auto probe = New<TStockProbe>();
  EXPECT_TRUE(probe->GetInDesignMode());
  EXPECT_EQ(probe->GetEditRoot(), nullptr);
  EXPECT_EQ(probe->GetComponentNames()->GetCount(), 0);
  EXPECT_FALSE(probe->GetComponentNames() == probe->GetComponentNames());
  EXPECT_EQ(probe->GetComponent("DesignerTestWidget"), nullptr);
  EXPECT_EQ(probe->UniqueName("Shape"), "Shape");

  auto* widget = static_cast<TDesignerTestWidget*>(
      probe->CreateComponent(TRttiObjectHelper::ClassTypeInfo(TDesignerTestWidget::ClassInfo()), false));
  EXPECT_EQ(widget->GetName(), "DesignerTestWidget");
  EXPECT_EQ(widget->Owner(), nullptr);
  bool freed = false;
  widget->Freed = &freed;
  probe->DeleteComponent(widget);
  EXPECT_TRUE(freed);
}

// ---- Nested designer ----

using NestedDesignerTest = DesignerTest;

TEST_F(NestedDesignerTest, ReportsItsObjectAndLeavesTheOuterSelectionAlone) {
  Designer->SetSelection(ListOf({&A, &B}));
  Listen(Designer, "L");
  const auto nested = New<TNestedDesigner>(Designer, &C);
  nested->SetSelection(ListOf({&A}));
  nested->SetSelection(std::array<TObject*, 1>{&B});
  EXPECT_EQ(Objects(nested->GetSelection()), std::vector<TObject*>{&C});
  EXPECT_EQ(Objects(nested->GetRootSelection()), std::vector<TObject*>{&C});
  EXPECT_FALSE(nested->GetSelection() == nested->GetSelection());
  EXPECT_EQ(Objects(Designer->GetSelection()), (std::vector<TObject*>{&A, &B}));
  EXPECT_TRUE(Log.empty());
}

TEST_F(NestedDesignerTest, ForwardsToTheWrappedDesigner) {
  const auto outer = New<TTestFormDesigner>();
  const auto nested = New<TNestedDesigner>(outer, &C);
  const auto listener = New<TLogListener>(Log, "L");
  nested->AddSelectionChangeNotify(listener);
  nested->BeginUpdate();
  nested->EndUpdate();
  nested->BeginModify();
  nested->Modified();
  nested->EndModify();
  nested->ResetObjectInspector();
  nested->RefreshView();
  nested->BindingAdded(&A);
  nested->BindingRemoved(&B);
  nested->RemoveSelectionChangeNotify(listener);
  nested->RefreshView();
  EXPECT_EQ(Log, (TLog{"L:SelectionChangingBegin", "L:SelectionChanged", "L:BeginModify", "L:ItemModified",
                       "L:EndModify", "L:ResetObjectInspector", "L:RefreshView", "L:BindingAdded", "L:BindingRemoved"}));
  EXPECT_EQ(listener->Objects, (std::vector<TObject*>{&A, &B}));

  auto* widget = static_cast<TDesignerTestWidget*>(
      nested->CreateComponent(TRttiObjectHelper::ClassTypeInfo(TDesignerTestWidget::ClassInfo()), false));
  EXPECT_EQ(widget->Owner(), outer->Root.get());
  EXPECT_EQ(nested->UniqueName("Shape"), "Shape2");
  EXPECT_EQ(nested->GetComponent("DesignerTestWidget1"), nullptr);
  EXPECT_EQ(nested->GetComponentNames()->GetCount(), 0);
  nested->DeleteComponent(widget);
  EXPECT_EQ(outer->Root->ComponentCount(), 0);
}

// ---- Notifier ----

TEST(SelectionChangeNotifierTest, EachOperationCallsItsProcedure) {
  TLog log;
  const auto write = [&log](const char* AName) { return [&log, AName] { log.push_back(AName); }; };
  const auto notifier = New<TSelectionChangeNotifier>(write("begin"), write("changed"), write("modified"),
                                                      write("refresh"), write("reset"));
  TPersistent item;
  const struct {
    std::function<void(ISelectionChange&)> Act;
    const char* Called;
  } cases[] = {
      {[](ISelectionChange& N) { N.SelectionChangingBegin(); }, "begin"},
      {[](ISelectionChange& N) { N.SelectionChanged(); }, "changed"},
      {[](ISelectionChange& N) { N.BeginModify(); }, nullptr},
      {[](ISelectionChange& N) { N.EndModify(); }, "modified"},
      {[](ISelectionChange& N) { N.ItemModified(); }, "modified"},
      {[&item](ISelectionChange& N) { N.ItemAdded(&item); }, "modified"},
      {[&item](ISelectionChange& N) { N.ItemDeleted(&item); }, "modified"},
      {[](ISelectionChange& N) { N.RefreshView(); }, "refresh"},
      {[](ISelectionChange& N) { N.ResetObjectInspector(); }, "reset"},
      {[&item](ISelectionChange& N) { N.BindingAdded(&item); }, "modified"},
      {[&item](ISelectionChange& N) { N.BindingRemoved(&item); }, "modified"},
      {[](ISelectionChange& N) { N.DesignerClosing(); }, nullptr},
  };
  const auto bare = New<TSelectionChangeNotifier>();
  for (const auto& c : cases) {
    c.Act(*bare);
    c.Act(*notifier);
    EXPECT_EQ(log, c.Called ? TLog{c.Called} : TLog{}) << (c.Called ? c.Called : "none");
    log.clear();
  }
}

TEST(SelectionChangeNotifierTest, SettersChainAndReplace) {
  TLog log;
  const auto notifier = New<TSelectionChangeNotifier>();
  const TRef<ISelectionChangeNotifier> chained =
      notifier->SetOnSelectionChangingBegin([&log] { log.push_back("begin"); })
          ->SetOnResetObjectInspector([&log] { log.push_back("reset"); })
          ->SetOnSelectionChanged([&log] { log.push_back("changed"); })
          ->SetOnModified([&log] { log.push_back("first"); })
          ->SetOnModified([&log] { log.push_back("modified"); })
          ->SetOnRefreshView([&log] { log.push_back("refresh"); });
  EXPECT_TRUE(chained == notifier);

  const auto designer = New<TDesigner>();
  designer->AddSelectionChangeNotify(chained);
  designer->BeginUpdate();
  designer->EndUpdate();
  designer->Modified();
  designer->RefreshView();
  designer->ResetObjectInspector();
  EXPECT_EQ(log, (TLog{"begin", "changed", "modified", "refresh", "reset"}));
}

} // namespace
} // namespace Tarvo
