#include <gtest/gtest.h>

#include <algorithm>

#include "design/reflection/DesignComponents.h"
#include "design/reflection/Publish.h"
#include "design/reflection/TypeInfo.h"
#include "rtl/Module.h"

// Registrations stay for the life of the process, so each test registers classes of its own.
#define DESIGN_TEST_CLASS(AClass, AParent)                                                         \
  class AClass : public AParent {                                                                  \
    TARVO_CLASS(AClass, AParent)                                                                   \
  };                                                                                               \
  TARVO_IMPLEMENT_CLASS(AClass)

namespace Tarvo {

DESIGN_TEST_CLASS(TDesignTestComponent, TObject)
DESIGN_TEST_CLASS(TDesignTestShape, TDesignTestComponent)
DESIGN_TEST_CLASS(TDesignTestLabel, TDesignTestComponent)
DESIGN_TEST_CLASS(TDesignTestRoundShape, TDesignTestShape)
DESIGN_TEST_CLASS(TDesignTestButton, TDesignTestComponent)
DESIGN_TEST_CLASS(TDesignTestEdit, TDesignTestComponent)
DESIGN_TEST_CLASS(TDesignTestMemo, TDesignTestComponent)
DESIGN_TEST_CLASS(TDesignTestDial, TDesignTestComponent)
DESIGN_TEST_CLASS(TDesignTestMeter, TDesignTestComponent)
DESIGN_TEST_CLASS(TDesignTestKnob, TDesignTestComponent)
DESIGN_TEST_CLASS(TDesignTestGauge, TDesignTestComponent)
DESIGN_TEST_CLASS(TDesignTestProbe, TDesignTestComponent)
DESIGN_TEST_CLASS(DesignTestWidget, TObject)

DESIGN_TEST_CLASS(TDesignTestFilter, TObject)
DESIGN_TEST_CLASS(TDesignTestLowPass, TDesignTestFilter)
DESIGN_TEST_CLASS(TDesignTestButterworth, TDesignTestLowPass)
DESIGN_TEST_CLASS(TDesignTestHighPass, TDesignTestFilter)

// Categories on a member and on a member's type, read when the class is registered.
class TDesignTestPen : public TObject {
  TARVO_CLASS(TDesignTestPen, TObject)
};
TARVO_IMPLEMENT_CLASS(TDesignTestPen)
TARVO_PUBLISH(TDesignTestPen) { ClassAttr<TMemberCategoryAttribute>(TVisualMemberCategory::ClassInfo()); }

class TDesignTestSlider : public TDesignTestComponent {
  TARVO_CLASS(TDesignTestSlider, TDesignTestComponent)
public:
  Integer FPosition = 0;
  TDesignTestPen* FPen = nullptr;
};
TARVO_IMPLEMENT_CLASS(TDesignTestSlider)
TARVO_PUBLISH(TDesignTestSlider) {
  Property("Position", &TDesignTestSlider::FPosition, &TDesignTestSlider::FPosition)
      .Attr<TMemberCategoryAttribute>(TLayoutMemberCategory::ClassInfo())
      .Attr<TMemberCategoryAttribute>(TInputMemberCategory::ClassInfo());
  Property("Pen", &TDesignTestSlider::FPen, &TDesignTestSlider::FPen);
}

namespace {

using TClasses = std::vector<TClass>;

// The classes of AList that are among AOf, in list order.
TClasses Among(const TRef<IArrayList<TClass>>& AList, const TClasses& AOf) {
  TClasses result;
  for (TClass item : AList)
    if (std::ranges::find(AOf, item) != AOf.end()) result.push_back(item);
  return result;
}

// A hook that records the calls for the classes of AOf.
TProc<TClass> Recorder(std::vector<String>& AEvents, const String& AWhat, const TClasses& AOf) {
  return [&AEvents, AWhat, AOf](TClass AClass) {
    if (std::ranges::find(AOf, AClass) != AOf.end()) AEvents.push_back(AWhat + " " + AClass->ClassName());
  };
}

TEST(DesignComponentsTest, ComponentsKeepRegistrationOrderAndFirstPage) {
  const TClasses mine{TDesignTestShape::ClassInfo(), TDesignTestLabel::ClassInfo(), TDesignTestRoundShape::ClassInfo()};
  RegisterComponents("Shapes", {TDesignTestShape::ClassInfo(), TDesignTestLabel::ClassInfo()});
  RegisterComponents("More", {TDesignTestRoundShape::ClassInfo(), TDesignTestShape::ClassInfo()});
  EXPECT_EQ(Among(GetRegisteredComponents(), mine), mine);
  EXPECT_EQ(GetComponentPage(TDesignTestShape::ClassInfo()), "Shapes");
  EXPECT_EQ(GetComponentPage(TDesignTestRoundShape::ClassInfo()), "More");
  EXPECT_EQ(GetComponentPage(TDesignTestComponent::ClassInfo()), "");
}

TEST(DesignComponentsTest, HooksRunOncePerClassProceduresFirstAndCanBeRemoved) {
  const TClasses mine{TDesignTestButton::ClassInfo(), TDesignTestEdit::ClassInfo(), TDesignTestMemo::ClassInfo()};
  std::vector<String> events;
  const int notify = RegisterComponentRegisteredNotify(Recorder(events, "notify", mine));
  const int procedure = AddComponentRegistrationProcedure(Recorder(events, "procedure", mine));
  RegisterComponents("Standard", {TDesignTestButton::ClassInfo(), TDesignTestEdit::ClassInfo()});
  RegisterComponents("Other", {TDesignTestButton::ClassInfo()});
  EXPECT_EQ(events, (std::vector<String>{"procedure TDesignTestButton", "notify TDesignTestButton",
                                         "procedure TDesignTestEdit", "notify TDesignTestEdit"}));

  events.clear();
  UnregisterComponentRegisteredNotify(notify);
  RemoveComponentRegistrationProcedure(procedure);
  RegisterComponents("Standard", {TDesignTestMemo::ClassInfo()});
  EXPECT_TRUE(events.empty());
}

TEST(DesignComponentsTest, LateHooksCatchUpInRegistrationOrder) {
  const TClasses mine{TDesignTestDial::ClassInfo(), TDesignTestMeter::ClassInfo(), TDesignTestKnob::ClassInfo()};
  RegisterComponents("Late", {TDesignTestDial::ClassInfo(), TDesignTestMeter::ClassInfo()});
  std::vector<String> events;
  const int procedure = AddComponentRegistrationProcedure(Recorder(events, "procedure", mine));
  EXPECT_EQ(events, (std::vector<String>{"procedure TDesignTestDial", "procedure TDesignTestMeter"}));
  RegisterComponents("Late", {TDesignTestKnob::ClassInfo()});
  EXPECT_EQ(events.back(), "procedure TDesignTestKnob");
  EXPECT_EQ(events.size(), 3u);
  RemoveComponentRegistrationProcedure(procedure);

  // A hook that fails while catching up is not kept: nobody could remove it.
  int calls = 0;
  EXPECT_THROW(RegisterComponentRegisteredNotify([&calls](TClass AClass) {
                 ++calls;
                 if (AClass == TDesignTestMeter::ClassInfo()) throw Exception("refused");
               }),
               Exception);
  calls = 0;
  RegisterComponents("Late", {TDesignTestGauge::ClassInfo()});
  EXPECT_EQ(calls, 0);
}

TEST(DesignComponentsTest, RegistrationProcedureReadsMemberCategories) {
  std::vector<String> found;
  const int key = AddComponentRegistrationProcedure([&found](TClass AClass) {
    if (AClass != TDesignTestSlider::ClassInfo()) return;
    for (const TRef<IMemberInfo>& member : TRttiObjectHelper::ClassTypeInfo(AClass)->GetMembers(mvsPublished)) {
      const TRef<IAttributeList> attributes =
          member->GetMemberAccessAttributes()->GetCustomAttributes(TMemberCategoryAttribute::ClassInfo());
      for (TCustomAttribute* attribute : attributes)
        found.push_back(member->GetName() + ":" +
                        CreateMemberCategory(static_cast<TMemberCategoryAttribute*>(attribute)->CategoryClass())->GetName());
    }
  });
  RegisterComponents("Sliders", {TDesignTestSlider::ClassInfo()});
  RemoveComponentRegistrationProcedure(key);
  EXPECT_EQ(found, (std::vector<String>{"Position:Layout", "Position:Input", "Pen:Visual"}));
}

TEST(DesignComponentsTest, ClassNameBaseDropsTheLeadingT) {
  TDesignTestRoundShape shape;
  DesignTestWidget widget;
  TObject plain;
  EXPECT_EQ(GetClassNameBase(&shape), "DesignTestRoundShape");
  EXPECT_EQ(GetClassNameBase(&widget), "DesignTestWidget");
  EXPECT_EQ(GetClassNameBase(&plain), "Object");
  EXPECT_EQ(GetClassNameBase(static_cast<TObject*>(nullptr)), "");
}

TEST(DesignComponentsTest, DynamicElementsByBaseClass) {
  const TClass filter = TDesignTestFilter::ClassInfo();
  const TClass lowPass = TDesignTestLowPass::ClassInfo();
  const TClass butterworth = TDesignTestButterworth::ClassInfo();
  const TClass highPass = TDesignTestHighPass::ClassInfo();
  RegisterDynamicElement(filter, lowPass);
  RegisterDynamicElement(filter, highPass);
  RegisterDynamicElement(lowPass, butterworth);
  RegisterDynamicElement(filter, butterworth);
  RegisterDynamicElement(filter, lowPass);

  const struct {
    TClass Base;
    TClasses Expected;
  } rows[] = {
      {filter, {lowPass, highPass, butterworth}},
      // An ancestor's elements that the member can hold, with its own, in registration order.
      {lowPass, {lowPass, butterworth}},
      {butterworth, {butterworth}},
      {highPass, {highPass}},
      {TDesignTestComponent::ClassInfo(), {}},
      {nullptr, {}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Base ? row.Base->ClassName() : "nil");
    EXPECT_EQ(GetDynamicElementsFor(row.Base)->ToArray(), row.Expected);
  }
  EXPECT_THROW(RegisterDynamicElement(lowPass, highPass), EAssertionFailed);
}

TEST(DesignComponentsTest, UnloadSweepsAModulesClasses) {
  TModule* module = LoadModule(TARVO_TEST_MODULE_PATH);
  const TClass thing = FindClass("TTestModuleThing");
  ASSERT_NE(thing, nullptr);
  const TClass probe = TDesignTestProbe::ClassInfo();
  RegisterComponents("Module", {thing, probe});
  RegisterDynamicElement(TObject::ClassInfo(), thing);
  RegisterDynamicElement(thing, thing);
  RegisterDynamicElement(TObject::ClassInfo(), DesignTestWidget::ClassInfo());
  EXPECT_EQ(Among(GetRegisteredComponents(), {thing, probe}), (TClasses{thing, probe}));
  EXPECT_EQ(GetDynamicElementsFor(thing)->ToArray(), TClasses{thing});
  const Integer components = GetRegisteredComponents()->GetCount();
  const Integer elements = GetDynamicElementsFor(TObject::ClassInfo())->GetCount();

  UnloadModule(module);
  EXPECT_EQ(GetRegisteredComponents()->GetCount(), components - 1);
  EXPECT_EQ(Among(GetRegisteredComponents(), {probe}), TClasses{probe});
  EXPECT_EQ(GetDynamicElementsFor(TObject::ClassInfo())->GetCount(), elements - 1);
  EXPECT_EQ(Among(GetDynamicElementsFor(TObject::ClassInfo()), {DesignTestWidget::ClassInfo()}).size(), 1u);

  // Back again, the module's class is new to the registry and announced once more.
  int announced = 0;
  const int key = RegisterComponentRegisteredNotify([&announced](TClass AClass) {
    if (String(AClass->ClassName()) == "TTestModuleThing") ++announced;
  });
  module = LoadModule(TARVO_TEST_MODULE_PATH);
  RegisterComponents("Module", {FindClass("TTestModuleThing")});
  UnregisterComponentRegisteredNotify(key);
  EXPECT_EQ(announced, 1);
  UnloadModule(module);
}

TEST(DesignComponentsTest, CategoriesBuiltThroughTheirClass) {
  const struct {
    TMemberCategoryClass Class;
    const char* Name;
  } rows[] = {
      {TVisualMemberCategory::ClassInfo(), "Visual"},
      {TLayoutMemberCategory::ClassInfo(), "Layout"},
      {TBehaviorMemberCategory::ClassInfo(), "Behavior"},
      {TActionMemberCategory::ClassInfo(), "Action"},
      {TDragDropMemberCategory::ClassInfo(), "Drag, Drop and Docking"},
      {THelpMemberCategory::ClassInfo(), "Help and Hints"},
      {TInputMemberCategory::ClassInfo(), "Input"},
      {TLinkageMemberCategory::ClassInfo(), "Linkage"},
      {TLocalizableMemberCategory::ClassInfo(), "Localizable"},
      {TMiscellaneousMemberCategory::ClassInfo(), "Miscellaneous"},
  };
  for (const auto& row : rows) {
    const TRef<IMemberCategory> category = CreateMemberCategory(row.Class);
    EXPECT_EQ(ObjectOf(category)->ClassType(), row.Class.get()) << row.Name;
    EXPECT_EQ(category->GetName(), row.Name);
  }

  EXPECT_THROW((void)CreateMemberCategory(TMemberCategory::ClassInfo()), EInvalidCast);
  EXPECT_THROW((void)TMemberCategoryClass(TDesignTestPen::ClassInfo()), EInvalidCast);
}

} // namespace
} // namespace Tarvo
