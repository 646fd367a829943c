#include <gtest/gtest.h>

#include "design/reflection/TypeInfo.h"
#include "runtime/Popups.h"
#include "runtime/Shape.h"
#include "tests/runtime/ComponentTestSupport.h"

namespace Tarvo {
namespace {

TRef<ISinglePropertyInfo> PropertyOf(TObject* AObject, const String& AName) {
  TRef<ISinglePropertyInfo> property;
  EXPECT_TRUE(TRttiObjectHelper::TypeInfo(AObject, false)->FindSinglePropertyMember(AName, property)) << AName;
  return property;
}

TEST(ControlReflectionTest, MembersHaveTheirNamedTypes) {
  const TOwnedObject<TControl> control(Construct<TControl>(nullptr));
  const std::pair<const char*, PTypeInfo> cases[] = {
      {"Left", &TypeInfo_Integer},
      {"Color", &TypeInfo_TColor},
      {"Cursor", &TypeInfo_TCursor},
      {"Hint", &TypeInfo_String},
      {"Font", TFont::ClassInfo()->ClassTypeRecord()},
      {"PopupMenu", TPopupMenu::ClassInfo()->ClassTypeRecord()},
      {"Align", TypeInfo<TAlign>()},
      {"Anchors", TypeInfo<TAnchors>()},
      {"Margins", TMargins::ClassInfo()->ClassTypeRecord()},
      {"Constraints", TSizeConstraints::ClassInfo()->ClassTypeRecord()},
      {"HelpType", TypeInfo<THelpType>()},
      {"HelpContext", &TypeInfo_THelpContext},
      {"CustomHint", TCustomHint::ClassInfo()->ClassTypeRecord()},
  };
  for (const auto& [name, type] : cases) EXPECT_EQ(PropertyOf(control.get(), name)->GetTypeInfo()->GetHandle(), type) << name;

  EXPECT_EQ(PropertyOf(control.get(), "Color")->GetTypeInfo()->GetName(), "TColor");
  TRef<ISetTypeInfo> anchors;
  ASSERT_TRUE(Supports(PropertyOf(control.get(), "Anchors")->GetTypeInfo(), anchors));
  EXPECT_EQ(anchors->GetTypeKind(), tkSet);
  EXPECT_EQ(anchors->GetElementType()->GetHandle(), TypeInfo<TAnchorKind>());
}

TEST(ControlReflectionTest, DeclaredDefaultsHoldForANewControlAndNotAfterAWrite) {
  const TOwnedObject<TWinControl> control(Construct<TWinControl>(nullptr));
  const std::pair<const char*, const char*> cases[] = {
      {"Visible", "False"},        {"Enabled", "False"},    {"Color", "255"},      {"Cursor", "-21"},
      {"Align", "alClient"},       {"Anchors", "[akLeft]"}, {"HelpType", "htKeyword"}, {"HelpContext", "7"},
      {"ParentCustomHint", "False"}, {"Tag", "1"},
  };
  for (const auto& [name, other] : cases) {
    const TRef<ISinglePropertyInfo> property = PropertyOf(control.get(), name);
    EXPECT_TRUE(property->GetHasDefault()) << name;
    EXPECT_TRUE(property->GetIsDefault(control.get(), false)) << name;
    property->SetFromString(control.get(), other);
    EXPECT_FALSE(property->GetIsDefault(control.get(), false)) << name;
  }
  EXPECT_EQ(PropertyOf(control.get(), "Anchors")->GetDefault(control.get()).ToString(), "[akLeft,akTop]");
  // Without a parent a window control has no place in a tab order: -1, the default.
  EXPECT_TRUE(PropertyOf(control.get(), "TabOrder")->GetIsDefault(control.get(), false));
  EXPECT_FALSE(PropertyOf(control.get(), "Left")->GetHasDefault());
}

TEST(ControlReflectionTest, WritingAnOwnedObjectCopiesIntoTheControlsOwn) {
  const TOwnedObject<TControl> control(Construct<TControl>(nullptr));
  TFont* own = control->GetFont();
  const TOwnedObject<TFont> font(Construct<TFont>());
  font->SetSize(20);
  PropertyOf(control.get(), "Font")->SetValue(control.get(), TValue(static_cast<TObject*>(font.get())));
  EXPECT_EQ(control->GetFont(), own);
  EXPECT_EQ(own->GetSize(), 20);
  EXPECT_THROW(control->SetFont(nullptr), EConvertError);
}

TEST(ControlReferenceTest, PopupMenuAndCustomHintClearWhenTheyGo) {
  const TOwnedObject<TControl> control(Construct<TControl>(nullptr));
  TPopupMenu* menu = Construct<TPopupMenu>(nullptr);
  TCustomHint* hint = Construct<TCustomHint>(nullptr);
  PropertyOf(control.get(), "PopupMenu")->SetValue(control.get(), TValue(static_cast<TObject*>(menu)));
  control->SetCustomHint(hint);
  ASSERT_EQ(control->GetPopupMenu(), menu);
  TObject::Free(menu);
  EXPECT_EQ(control->GetPopupMenu(), nullptr);
  EXPECT_TRUE(PropertyOf(control.get(), "PopupMenu")->GetValue(control.get()).AsObject() == nullptr);
  EXPECT_EQ(control->GetCustomHint(), hint);
  TObject::Free(hint);
  EXPECT_EQ(control->GetCustomHint(), nullptr);
}

TEST(ControlReferenceTest, AReplacedMenuNoLongerTouchesTheControlAndAGoneControlNoLongerTheMenu) {
  const TOwnedObject<TPopupMenu> kept(Construct<TPopupMenu>(nullptr));
  TPopupMenu* replaced = Construct<TPopupMenu>(nullptr);
  TControl* control = Construct<TControl>(nullptr);
  control->SetPopupMenu(replaced);
  control->SetPopupMenu(kept.get());
  TObject::Free(replaced);
  EXPECT_EQ(control->GetPopupMenu(), kept.get());
  TObject::Free(control); // the kept menu outlives it and must not tell it anything later
}

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
  static std::vector<String> Walk(TWinControl* ARoot, bool ARecursive, bool AReverse) {
    std::vector<String> names;
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

using TNames = std::vector<String>;

TEST_F(ControlTreeTest, QueryControlsWalksInEachOrder) {
  EXPECT_EQ(Walk(Form.get(), false, false), (TNames{"A", "B"}));
  EXPECT_EQ(Walk(Form.get(), false, true), (TNames{"B", "A"}));
  EXPECT_EQ(Walk(Form.get(), true, false), (TNames{"A", "a1", "a2", "a2x", "B"}));
  EXPECT_EQ(Walk(Form.get(), true, true), (TNames{"B", "a2x", "a2", "a1", "A"}));
  EXPECT_EQ(Walk(A, true, false), (TNames{"a1", "a2", "a2x"}));
  const TControlList windowed = Form->QueryControls(true, false)->Filter([](TControl* const& AControl) {
    return dynamic_cast<TWinControl*>(AControl) != nullptr;
  });
  EXPECT_EQ(windowed->GetCount(), 2);
}

TEST_F(ControlTreeTest, ReparentingMovesAndCyclesAreRefused) {
  B->SetParent(A);
  EXPECT_EQ(Form->ControlCount(), 1);
  EXPECT_EQ(A->Controls(2), B);
  EXPECT_EQ(B->GetParent(), A);
  TWinControl* a2 = static_cast<TWinControl*>(A->Controls(1));
  EXPECT_THROW(A->SetParent(a2), EInvalidOperation);
  EXPECT_THROW(A->SetParent(A), EInvalidOperation);
  EXPECT_EQ(A->GetParent(), Form.get());
  B->SetParent(nullptr);
  EXPECT_EQ(A->ControlCount(), 2);
  EXPECT_EQ(B->GetParent(), nullptr);
}

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

TEST(ControlSizeTest, ConstraintsLimitTheSizeAndGiveWayToEachOther) {
  const TOwnedObject<TControl> control(Construct<TControl>(nullptr));
  TSizeConstraints* constraints = control->GetConstraints();
  control->SetBounds(1, 2, 150, 40);
  constraints->SetMaxWidth(100); // a new limit applies at once
  EXPECT_EQ(control->GetWidth(), 100);
  constraints->SetMinHeight(50);
  EXPECT_EQ(control->GetHeight(), 50);
  control->SetWidth(500);
  EXPECT_EQ(control->GetWidth(), 100);
  EXPECT_EQ(control->GetLeft(), 1);

  constraints->SetMinWidth(120); // above the maximum: the maximum follows
  EXPECT_EQ(constraints->GetMaxWidth(), 120);
  constraints->SetMaxWidth(80); // below the minimum: the minimum follows
  EXPECT_EQ(constraints->GetMinWidth(), 80);
  EXPECT_EQ(control->GetWidth(), 80);
  constraints->SetMaxWidth(0); // no limit
  control->SetWidth(1000);
  EXPECT_EQ(control->GetWidth(), 1000);
}

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

TEST(ShapeTest, OwnsItsPenAndBrushAndPublishesThem) {
  const TOwnedObject<TShape> shape(Construct<TShape>(nullptr));
  EXPECT_TRUE(PropertyOf(shape.get(), "Shape")->GetIsDefault(shape.get(), false));
  const TOwnedObject<TPen> pen(Construct<TPen>());
  pen->SetWidth(4);
  TPen* own = shape->GetPen();
  PropertyOf(shape.get(), "Pen")->SetValue(shape.get(), TValue(static_cast<TObject*>(pen.get())));
  EXPECT_EQ(shape->GetPen(), own);
  EXPECT_EQ(own->GetWidth(), 4);
  EXPECT_EQ(PropertyOf(shape.get(), "Brush")->GetTypeInfo()->GetHandle(), TBrush::ClassInfo()->ClassTypeRecord());
}

} // namespace
} // namespace Tarvo
