#include <gtest/gtest.h>

#include <array>

#include "design/Designer.h"
#include "reflection/Publish.h"
#include "reflection/RttiTypes.h"
#include "tests/support/NamedRows.h"

namespace Tarvo {

// Keeps the state its constructors saw.
class TDesignerTestWidget : public TComponent {
  TARVO_CLASS(TDesignerTestWidget, TComponent)
public:
  explicit TDesignerTestWidget(TComponent* AOwner) : TComponent(AOwner), StateInConstructor(ComponentState()) {}
  void Prepare() { Prepared = true; }
  TComponentState StateInConstructor;
  bool Prepared = false;
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

class DesignerTest : public ::testing::Test {
protected:
  TRef<TLogListener> Listen(const TRef<IDesigner>& ADesigner, const String& ATag) {
    const auto listener = New<TLogListener>(Log, ATag);
    ADesigner->AddSelectionChangeNotify(listener);
    return listener;
  }
  TRef<IObjectArrayList> ListOf(std::vector<TObject*> AObjects) { return TObjectArrayList::CreateArray(AObjects); }
  static std::vector<TObject*> Objects(const TRef<IObjectArrayList>& AList) { return AList->ToArray(); }
  template <class W = TDesignerTestWidget>
  static TDesignerTestWidget* Create(IDesigner& ADesigner, Boolean ALoading = false) {
    return static_cast<TDesignerTestWidget*>(
        ADesigner.CreateComponent(TRttiObjectHelper::ClassTypeInfo(W::ClassInfo()), ALoading));
  }

  TRef<TDesigner> Designer = New<TDesigner>();
  TLog Log;
  TObject A, B, C;
};

using DesignerSelectionTest = DesignerTest;

// A selection change is announced only when the objects or their order differ.
TEST_F(DesignerSelectionTest, ChangeIsByIdentityAndOrder) {
  TRef<IObjectArrayList> start;
  const auto list = [this](std::vector<TObject*> AObjects) {
    return [this, AObjects] { Designer->SetSelection(ListOf(AObjects)); };
  };
  const auto array = [this](TObject* AFirst, TObject* ASecond) {
    return [this, AFirst, ASecond] { Designer->SetSelection(std::array<TObject*, 2>{AFirst, ASecond}); };
  };
  const struct {
    const char* Name;
    std::function<void()> Next;
    bool Announced;
  } cases[] = {{"the same list, grown in place", [&] { Designer->SetSelection(start->Add(&C)); }, false},
               {"an equal copy", list({&A, &B}), false},
               {"an equal array", array(&A, &B), false},
               {"the same objects reversed", list({&B, &A}), true},
               {"an array reversed", array(&B, &A), true},
               {"one more", list({&A, &B, &C}), true},
               {"one less", list({&A}), true},
               {"another object at an index", list({&A, &C}), true},
               {"nil", [&] { Designer->SetSelection(TRef<IObjectArrayList>()); }, true}};
  Testing::ForEachRow(cases, [&](const auto& c) {
    Designer = New<TDesigner>();
    start = ListOf({&A, &B});
    Designer->SetSelection(start);
    Listen(Designer, "L");
    c.Next();
    EXPECT_EQ(Log, c.Announced ? TLog{"L:SelectionChanged"} : TLog{});
    Log.clear();
  });
}

// Nil is the empty selection; the selection handed out is a copy.
TEST_F(DesignerSelectionTest, NilLeavesAnEmptyListAndCallersGetCopies) {
  Listen(Designer, "L");
  Designer->SetSelection(nullptr);
  EXPECT_EQ(Designer->GetSelection()->GetCount(), 0);
  EXPECT_TRUE(Log.empty()) << "an empty list and nil are the same selection";

  Designer->SetSelection(ListOf({&A}));
  Designer->GetSelection()->Add(&B);
  EXPECT_EQ(Objects(Designer->GetRootSelection()), std::vector<TObject*>{&A});
}

using DesignerUpdateTest = DesignerTest;

// The edges are announced outside the count: what a listener does there is heard. (An empty
// bracket is announced too: see the notices table.)
TEST_F(DesignerUpdateTest, NestedBracketsAnnounceOnceAtTheOuterEdges) {
  Listen(Designer, "A");
  Listen(Designer, "B")->OnEvent = [this](const String& AOperation) {
    if (AOperation != "RefreshView") Designer->RefreshView();
  };
  Designer->BeginUpdate();
  Designer->BeginUpdate();
  Designer->SetSelection(ListOf({&C}));
  Designer->EndUpdate();
  TLog expected{"A:SelectionChangingBegin", "B:SelectionChangingBegin", "A:RefreshView", "B:RefreshView"};
  EXPECT_EQ(Log, expected);
  Designer->EndUpdate();
  expected.insert(expected.end(), {"A:SelectionChanged", "B:SelectionChanged", "A:RefreshView", "B:RefreshView"});
  EXPECT_EQ(Log, expected);
}

// A nested designer forwards every notice and the listeners to the designer it wraps.
TEST_F(DesignerUpdateTest, NoticesInsideABracketAreDroppedNotDeferred) {
  const struct {
    const char* Name;
    String Sent;
    std::function<void(IDesigner&)> Act;
  } cases[] = {{"Modified", "ItemModified", [](IDesigner& D) { D.Modified(); }},
               {"BeginModify", "BeginModify", [](IDesigner& D) { D.BeginModify(); }},
               {"EndModify", "EndModify", [](IDesigner& D) { D.EndModify(); }},
               {"ResetObjectInspector", "ResetObjectInspector", [](IDesigner& D) { D.ResetObjectInspector(); }},
               {"RefreshView", "RefreshView", [](IDesigner& D) { D.RefreshView(); }},
               {"BindingAdded", "BindingAdded", [this](IDesigner& D) { D.BindingAdded(&A); }},
               {"BindingRemoved", "BindingRemoved", [this](IDesigner& D) { D.BindingRemoved(&B); }}};
  const struct {
    const char* Name;
    TRef<IDesigner> Designer;
  } designers[] = {{"stock designer", Designer}, {"nested designer", New<TNestedDesigner>(New<TDesigner>(), &C)}};
  Testing::ForEachRow(designers, [&](const auto& ARow) {
    IDesigner& designer = *ARow.Designer;
    const auto listener = Listen(ARow.Designer, "L");
    Testing::ForEachRow(cases, [&](const auto& c) {
      c.Act(designer);
      EXPECT_EQ(Log, TLog{"L:" + c.Sent});
      Log.clear();
      designer.BeginUpdate();
      c.Act(designer);
      designer.EndUpdate();
      EXPECT_EQ(Log, (TLog{"L:SelectionChangingBegin", "L:SelectionChanged"}));
      Log.clear();
    });
    EXPECT_EQ(listener->Objects, (std::vector<TObject*>{&A, &B}));
    designer.RemoveSelectionChangeNotify(listener);
    designer.RefreshView();
    EXPECT_TRUE(Log.empty());
  });
}

// An EndUpdate without its BeginUpdate mutes notices until the count is balanced again.
TEST_F(DesignerUpdateTest, UnbalancedEndUpdateMutesUntilBalanced) {
  Listen(Designer, "L");
  Designer->EndUpdate();
  Designer->RefreshView();
  Designer->BeginUpdate();
  Designer->RefreshView();
  EXPECT_EQ(Log, TLog{"L:RefreshView"});
}

using DesignerListenerTest = DesignerTest;

// The walk goes over a copy: a listener leaving on the way still lets the others hear this walk.
TEST_F(DesignerListenerTest, CalledInOrderOfAddingAndALeaverCountsFromTheNextWalk) {
  const auto leaver = Listen(Designer, "X");
  leaver->OnEvent = [this, leaver = leaver.get()](const String&) { Designer->RemoveSelectionChangeNotify(leaver); };
  Listen(Designer, "Y");
  Listen(Designer, "Z");
  Designer->RefreshView();
  Designer->RefreshView();
  EXPECT_EQ(Log, (TLog{"X:RefreshView", "Y:RefreshView", "Z:RefreshView", "Y:RefreshView", "Z:RefreshView"}));
}

// Modified from its own listener does nothing and the guard lifts after the walk; a listener's
// exception stops the walk and leaves Modified guarded.
TEST_F(DesignerListenerTest, ModifiedIsGuardedAndAnExceptionLeavesItGuarded) {
  const auto first = Listen(Designer, "A");
  first->OnEvent = [this](const String&) { Designer->Modified(); };
  Listen(Designer, "B");
  Designer->Modified();
  first->OnEvent = [](const String&) { throw EComponentError("refused"); };
  EXPECT_THROW(Designer->Modified(), EComponentError);
  Designer->RemoveSelectionChangeNotify(first);
  Designer->Modified();
  Designer->RefreshView();
  EXPECT_EQ(Log, (TLog{"A:ItemModified", "B:ItemModified", "A:ItemModified", "B:RefreshView"}));
}

// A subclass's notices carry their object and are sent inside a bracket.
TEST_F(DesignerListenerTest, SubclassNoticesCarryTheirObjectAndIgnoreBrackets) {
  const auto designer = New<TTestFormDesigner>();
  const auto listener = Listen(designer, "L");
  TPersistent item;
  designer->BeginUpdate();
  designer->AddItem(&item);
  designer->EndUpdate();
  EXPECT_EQ(Log, (TLog{"L:SelectionChangingBegin", "L:ItemAdded", "L:SelectionChanged"}));
  EXPECT_EQ(listener->Objects, std::vector<TObject*>{&item});
}

using DesignerComponentTest = DesignerTest;

// Named through UniqueName, prepared when the class adds members at run time, owned by the edit
// root; the constructor already sees the designing state, or out of design mode the loading one.
// The stock designer takes the base name as it is and makes unowned designing components.
TEST_F(DesignerComponentTest, NamedThroughUniqueNamePreparedWhenDynamicAndBuiltInTheRightState) {
  const auto designer = New<TTestFormDesigner>();
  const auto* dynamic = Create<TDesignerTestDynamicWidget>(*designer);
  const auto* plain = Create(*designer);
  EXPECT_EQ(designer->Asked, (std::vector<String>{"DesignerTestDynamicWidget", "DesignerTestWidget"}));
  EXPECT_EQ(dynamic->GetName(), "DesignerTestDynamicWidget1");
  EXPECT_EQ(plain->GetName(), "DesignerTestWidget2");
  EXPECT_TRUE(dynamic->Prepared && !plain->Prepared);
  EXPECT_TRUE(plain->StateInConstructor == TComponentState{csDesigning} && plain->Owner() == designer->Root.get());
  designer->DesignMode = false;
  const auto* loaded = Create(*designer, true);
  EXPECT_TRUE(loaded->StateInConstructor == TComponentState{csLoading} && loaded->Owner() == designer->Root.get());

  auto* stock = Create(*Designer);
  EXPECT_EQ(stock->GetName(), "DesignerTestWidget");
  EXPECT_TRUE(stock->Owner() == nullptr && stock->StateInConstructor == TComponentState{csDesigning});
  Designer->DeleteComponent(stock);
}

// A component that cannot take its name is freed and leaves its owner.
TEST_F(DesignerComponentTest, ComponentThatCantTakeItsNameIsDisposed) {
  const auto designer = New<TTestFormDesigner>();
  Construct<TComponent>(designer->Root.get())->SetName("DesignerTestWidget1");
  EXPECT_THROW(Create(*designer), EComponentError);
  EXPECT_EQ(designer->Root->ComponentCount(), 1) << "the nameless component left its owner";
}

using NestedDesignerTest = DesignerTest;

// A nested designer's selection is its object; setting it leaves the outer selection unannounced.
TEST_F(NestedDesignerTest, ReportsItsObjectAndLeavesTheOuterSelectionAlone) {
  Designer->SetSelection(ListOf({&A, &B}));
  Listen(Designer, "L");
  const auto nested = New<TNestedDesigner>(Designer, &C);
  nested->SetSelection(ListOf({&A}));
  nested->SetSelection(std::array<TObject*, 1>{&B});
  EXPECT_EQ(Objects(nested->GetSelection()), std::vector<TObject*>{&C});
  EXPECT_EQ(Objects(nested->GetRootSelection()), std::vector<TObject*>{&C});
  EXPECT_EQ(Objects(Designer->GetSelection()), (std::vector<TObject*>{&A, &B}));
  EXPECT_TRUE(Log.empty());
}

// Deleting through the stock designer frees: the component leaves its owner.
TEST_F(NestedDesignerTest, ForwardsComponentsToTheWrappedDesigner) {
  const auto outer = New<TTestFormDesigner>();
  const auto nested = New<TNestedDesigner>(outer, &C);
  auto* widget = Create(*nested);
  EXPECT_EQ(widget->Owner(), outer->Root.get());
  EXPECT_EQ(nested->UniqueName("Shape"), "Shape2");
  nested->DeleteComponent(widget);
  EXPECT_EQ(outer->Root->ComponentCount(), 0);
}

// The same answers whether the procedures come through the constructor or the chained setters (a
// replaced procedure is not called).
TEST(SelectionChangeNotifierTest, EachOperationCallsItsProcedure) {
  TLog log;
  const auto write = [&log](const char* AName) { return [&log, AName] { log.push_back(AName); }; };
  const auto built = New<TSelectionChangeNotifier>(write("begin"), write("changed"), write("modified"),
                                                   write("refresh"), write("reset"));
  const auto bare = New<TSelectionChangeNotifier>();
  const TRef<ISelectionChangeNotifier> chained = bare->SetOnSelectionChangingBegin(write("begin"))
                                                     ->SetOnResetObjectInspector(write("reset"))
                                                     ->SetOnSelectionChanged(write("changed"))
                                                     ->SetOnModified(write("replaced"))
                                                     ->SetOnModified(write("modified"))
                                                     ->SetOnRefreshView(write("refresh"));
  EXPECT_TRUE(chained == bare);
  TPersistent item;
  const struct {
    const char* Name;
    std::function<void(ISelectionChange&)> Act;
    const char* Called;
  } cases[] = {{"SelectionChangingBegin", [](ISelectionChange& N) { N.SelectionChangingBegin(); }, "begin"},
               {"SelectionChanged", [](ISelectionChange& N) { N.SelectionChanged(); }, "changed"},
               {"BeginModify", [](ISelectionChange& N) { N.BeginModify(); }, nullptr},
               {"EndModify", [](ISelectionChange& N) { N.EndModify(); }, "modified"},
               {"ItemModified", [](ISelectionChange& N) { N.ItemModified(); }, "modified"},
               {"ItemAdded", [&item](ISelectionChange& N) { N.ItemAdded(&item); }, "modified"},
               {"ItemDeleted", [&item](ISelectionChange& N) { N.ItemDeleted(&item); }, "modified"},
               {"RefreshView", [](ISelectionChange& N) { N.RefreshView(); }, "refresh"},
               {"ResetObjectInspector", [](ISelectionChange& N) { N.ResetObjectInspector(); }, "reset"},
               {"BindingAdded", [&item](ISelectionChange& N) { N.BindingAdded(&item); }, "modified"},
               {"BindingRemoved", [&item](ISelectionChange& N) { N.BindingRemoved(&item); }, "modified"},
               {"DesignerClosing", [](ISelectionChange& N) { N.DesignerClosing(); }, nullptr}};
  const struct {
    const char* Name;
    ISelectionChange* Notifier;
  } notifiers[] = {{"built", built.get()}, {"chained", chained.get()}};
  Testing::ForEachRow(notifiers, [&](const auto& ANotifier) {
    Testing::ForEachRow(cases, [&](const auto& c) {
      c.Act(*ANotifier.Notifier);
      EXPECT_EQ(log, c.Called ? TLog{c.Called} : TLog{});
      log.clear();
    });
  });
  for (const auto& c : cases) c.Act(*New<TSelectionChangeNotifier>());
  EXPECT_TRUE(log.empty()) << "an unassigned procedure is skipped";
}

} // namespace
} // namespace Tarvo
