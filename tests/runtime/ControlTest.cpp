#include <gtest/gtest.h>

#include "reflection/RttiTypes.h"
#include "reflection/TypeInfo.h"
#include "runtime/Popups.h"
#include "runtime/Shape.h"
#include "tests/runtime/ComponentTestSupport.h"
#include "tests/support/NamedRows.h"

namespace Tarvo {
namespace {

using TNames = std::vector<String>;

TRef<ISinglePropertyInfo> PropertyOf(TObject* AObject, const String& AName) {
  TRef<ISinglePropertyInfo> property;
  EXPECT_TRUE(TRttiObjectHelper::TypeInfo(AObject, false)->FindSinglePropertyMember(AName, property)) << AName;
  return property;
}

// Each declared default holds for a new control and stops holding once written.
TEST(ControlReflectionTest, DeclaredDefaultsHoldForANewControlAndNotAfterAWrite) {
  const TOwnedObject<TWinControl> control(Construct<TWinControl>(nullptr));
  // Each row names a member and a value other than its default.
  const struct {
    const char *Name, *Other;
  } cases[] = {{"Visible", "False"}, {"Color", "255"}, {"Align", "alClient"}, {"Anchors", "[akLeft]"}, {"Tag", "1"}};
  Testing::ForEachRow(cases, [&](const auto& ACase) {
    const TRef<ISinglePropertyInfo> property = PropertyOf(control.get(), ACase.Name);
    EXPECT_TRUE(property->GetHasDefault() && property->GetIsDefault(control.get(), false));
    property->SetFromString(control.get(), ACase.Other);
    EXPECT_FALSE(property->GetIsDefault(control.get(), false));
  });
  EXPECT_EQ(PropertyOf(control.get(), "Anchors")->GetDefault(control.get()).ToString(), "[akLeft,akTop]");
  // Without a parent a window control has no place in a tab order: -1, the default.
  EXPECT_TRUE(PropertyOf(control.get(), "TabOrder")->GetIsDefault(control.get(), false));
  EXPECT_FALSE(PropertyOf(control.get(), "Left")->GetHasDefault());
}

// A control's font, or a shape's pen, stays its own: writing another copies it in.
TEST(ControlReflectionTest, WritingAnOwnedObjectCopiesIntoTheOwnersOwn) {
  const TOwnedObject<TControl> control(Construct<TControl>(nullptr));
  TFont* ownFont = control->GetFont();
  const TOwnedObject<TFont> font(Construct<TFont>());
  font->SetSize(20);
  PropertyOf(control.get(), "Font")->SetValue(control.get(), TValue(static_cast<TObject*>(font.get())));
  EXPECT_EQ(control->GetFont(), ownFont);
  EXPECT_EQ(ownFont->GetSize(), 20);
  EXPECT_THROW(control->SetFont(nullptr), EConvertError);

  const TOwnedObject<TShape> shape(Construct<TShape>(nullptr));
  TPen* ownPen = shape->GetPen();
  PropertyOf(shape.get(), "Pen")
      ->SetValue(shape.get(), TValue(static_cast<TObject*>(TOwnedObject<TPen>(Construct<TPen>()).get())));
  EXPECT_EQ(shape->GetPen(), ownPen);
}

// References to a popup menu or custom hint are dropped when those go, and replaced ones are let go.
TEST(ControlReferenceTest, PopupMenuAndCustomHintClearWhenTheyGoAndReplacedOnesLetGo) {
  const TOwnedObject<TControl> control(Construct<TControl>(nullptr));
  TPopupMenu* menu = Construct<TPopupMenu>(nullptr);
  TCustomHint* hint = Construct<TCustomHint>(nullptr);
  PropertyOf(control.get(), "PopupMenu")->SetValue(control.get(), TValue(static_cast<TObject*>(menu)));
  control->SetCustomHint(hint);
  TObject::Free(menu);
  EXPECT_TRUE(PropertyOf(control.get(), "PopupMenu")->GetValue(control.get()).AsObject() == nullptr);
  EXPECT_EQ(control->GetCustomHint(), hint);
  TObject::Free(hint);
  EXPECT_EQ(control->GetCustomHint(), nullptr);

  const TOwnedObject<TPopupMenu> kept(Construct<TPopupMenu>(nullptr));
  TPopupMenu* replaced = Construct<TPopupMenu>(nullptr);
  TControl* other = Construct<TControl>(nullptr);
  other->SetPopupMenu(replaced);
  other->SetPopupMenu(kept.get());
  TObject::Free(replaced);
  EXPECT_EQ(other->GetPopupMenu(), kept.get());
  TObject::Free(other); // the kept menu outlives it and must not tell it anything later
}

// Freeing a form clears references among its components before any of them goes.
TEST(ControlReferenceTest, AnOwnerThatGoesClearsReferencesBetweenItsComponentsBeforeEachGoes) {
  TComponent* form = Construct<TComponent>(nullptr);
  TControl* control = Construct<TControl>(form);
  TPopupMenu* menu = Construct<TPopupMenu>(form); // made later, so it goes first
  menu->SetName("Menu");
  control->SetPopupMenu(menu);
  TLog log;
  TTestLogComponent* witness = NewLogged(nullptr, "Witness", &log);
  TPopupMenu* seen = menu;
  witness->OnRemove = [&](TComponent*) { seen = control->GetPopupMenu(); };
  menu->FreeNotification(witness);
  TObject::Free(form);
  EXPECT_EQ(log, TLog{"Witness: remove Menu"});
  EXPECT_EQ(seen, nullptr); // the control let go of the menu as soon as its owner gave it up
  TObject::Free(witness);
}

class ControlTreeTest : public ::testing::Test {
protected:
  // Form: A (a1, a2 (a2x)), B
  void SetUp() override {
    A = Child<TWinControl>(Form.get(), "A");
    Child<TControl>(A, "a1");
    Child<TControl>(Child<TWinControl>(A, "a2"), "a2x");
    B = Child<TControl>(Form.get(), "B");
  }
  template <class T> T* Child(TWinControl* AParent, const String& AName) {
    T* control = Construct<T>(Form.get());
    control->SetName(AName);
    control->SetParent(AParent);
    return control;
  }
  static TNames Walk(TWinControl* ARoot, bool ARecursive, bool AReverse) {
    TNames names;
    TWinControl* source = ARoot->QueryControls(ARecursive, AReverse)->ForEach([&](TControl* const& AControl) {
      names.push_back(AControl->GetName());
    });
    EXPECT_EQ(source, ARoot);
    return names;
  }

  TOwnedObject<TWinControl> Form{Construct<TWinControl>(nullptr)};
  TWinControl* A = nullptr;
  TControl* B = nullptr;
};

// The four walks over a control tree, and a walk from inside it.
TEST_F(ControlTreeTest, QueryControlsWalksInEachOrder) {
  EXPECT_EQ(Walk(Form.get(), false, false), (TNames{"A", "B"}));
  EXPECT_EQ(Walk(Form.get(), false, true), (TNames{"B", "A"}));
  EXPECT_EQ(Walk(Form.get(), true, false), (TNames{"A", "a1", "a2", "a2x", "B"}));
  EXPECT_EQ(Walk(Form.get(), true, true), (TNames{"B", "a2x", "a2", "a1", "A"}));
  EXPECT_EQ(Walk(A, true, false), (TNames{"a1", "a2", "a2x"}));
}

// A new parent takes a control from the old one; a parent inside the control's own subtree is refused.
TEST_F(ControlTreeTest, ReparentingMovesAndCyclesAreRefused) {
  B->SetParent(A);
  EXPECT_EQ(Walk(Form.get(), false, false), TNames{"A"});
  EXPECT_EQ(Walk(A, false, false), (TNames{"a1", "a2", "B"}));
  EXPECT_THROW(A->SetParent(static_cast<TWinControl*>(A->Controls(1))), EInvalidOperation);
  EXPECT_THROW(A->SetParent(A), EInvalidOperation);
  EXPECT_EQ(A->GetParent(), Form.get());
  B->SetParent(nullptr);
  EXPECT_EQ(Walk(A, false, false), (TNames{"a1", "a2"}));
}

// A parent frees the children that nobody owns; a freed child leaves its parent.
TEST_F(ControlTreeTest, AParentTakesItsChildrenAlongAndAChildLeavesItsParent) {
  TLog log;
  TTestLogComponent* witness = NewLogged(nullptr, "Witness", &log);
  TWinControl* panel = Construct<TWinControl>(nullptr); // owned by nobody: its parent ends it
  panel->SetParent(A);
  TControl* inner = Construct<TControl>(nullptr);
  inner->SetName("Inner");
  inner->SetParent(panel);
  inner->FreeNotification(witness);
  TObject::Free(A->Controls(0)); // a1
  EXPECT_EQ(Walk(A, false, false), (TNames{"a2", ""}));
  TObject::Free(A);
  EXPECT_EQ(log, TLog{"Witness: remove Inner"});
  EXPECT_EQ(Walk(Form.get(), true, false), TNames{"B"});
  TObject::Free(witness);
}

// Tab order: ranks among window siblings, clamped at the end, closed up when one goes.
TEST_F(ControlTreeTest, TabOrderIsThePlaceAmongWindowSiblings) {
  TWinControl* c = Child<TWinControl>(Form.get(), "C");
  TWinControl* d = Child<TWinControl>(Form.get(), "D");
  EXPECT_EQ(A->GetTabOrder(), 0); // B is no window control and has no place
  EXPECT_EQ(d->GetTabOrder(), 2);
  d->SetTabOrder(0);
  EXPECT_EQ(std::vector<int>({A->GetTabOrder(), c->GetTabOrder(), d->GetTabOrder()}), std::vector<int>({1, 2, 0}));
  d->SetTabOrder(99); // out of range: to the end
  EXPECT_EQ(d->GetTabOrder(), 2);
  TObject::Free(A);
  EXPECT_EQ(std::vector<int>({c->GetTabOrder(), d->GetTabOrder()}), std::vector<int>({0, 1}));
}

// Size limits apply at once, and a minimum and maximum that cross give way to the newer one.
TEST(ControlSizeTest, ConstraintsLimitTheSizeAndGiveWayToEachOther) {
  const TOwnedObject<TControl> control(Construct<TControl>(nullptr));
  TSizeConstraints* constraints = control->GetConstraints();
  control->SetBounds(1, 2, 150, 40);
  constraints->SetMaxWidth(100); // a new limit applies at once
  EXPECT_EQ(control->GetWidth(), 100);
  constraints->SetMinHeight(50);
  control->SetWidth(500);
  EXPECT_EQ(std::vector<int>({control->GetLeft(), control->GetWidth(), control->GetHeight()}),
            std::vector<int>({1, 100, 50}));
  constraints->SetMinWidth(120); // above the maximum: the maximum follows
  EXPECT_EQ(constraints->GetMaxWidth(), 120);
  constraints->SetMaxWidth(80); // below the minimum: the minimum follows
  EXPECT_EQ(constraints->GetMinWidth(), 80);
  EXPECT_EQ(control->GetWidth(), 80);
  constraints->SetMaxWidth(0); // no limit
  control->SetWidth(1000);
  EXPECT_EQ(control->GetWidth(), 1000);
}

// Setting a help keyword or context picks the help type, except while loading.
TEST(ControlSizeTest, HelpKeywordAndContextChooseTheHelpTypeUnlessLoading) {
  const TOwnedObject<TControl> control(Construct<TControl>(nullptr));
  control->SetHelpKeyword("intro");
  EXPECT_EQ(control->GetHelpType(), htKeyword);
  control->SetHelpContext(12);
  EXPECT_EQ(control->GetHelpType(), htContext);
  TComponentHelper::SetIntLoading(control.get(), true);
  control->SetHelpKeyword("again");
  EXPECT_EQ(control->GetHelpType(), htContext);
}

} // namespace
} // namespace Tarvo
