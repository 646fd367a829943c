#include <gtest/gtest.h>

#include <algorithm>

#include "reflection/ComponentRegistration.h"
#include "reflection/DynamicElements.h"
#include "reflection/MemberCategories.h"
#include "reflection/Publish.h"
#include "reflection/RttiTypes.h"
#include "reflection/TypeInfo.h"
#include "rtl/Module.h"
#include "runtime/Component.h"
#include "tests/support/NamedRows.h"

// Registrations stay for the life of the process, so each test registers classes of its own.
#define DESIGN_TEST_CLASS(AClass, AParent)                                                                             \
  class AClass : public AParent {                                                                                      \
    TARVO_CLASS(AClass, AParent)                                                                                       \
  public:                                                                                                              \
    using AParent::AParent;                                                                                            \
  };                                                                                                                   \
  TARVO_IMPLEMENT_CLASS(AClass)

namespace Tarvo {

DESIGN_TEST_CLASS(TDesignTestComponent, TComponent)
DESIGN_TEST_CLASS(TDesignTestShape, TDesignTestComponent)
DESIGN_TEST_CLASS(TDesignTestLabel, TDesignTestComponent)
DESIGN_TEST_CLASS(TDesignTestRoundShape, TDesignTestShape)
DESIGN_TEST_CLASS(TDesignTestButton, TDesignTestComponent)
DESIGN_TEST_CLASS(TDesignTestEdit, TDesignTestComponent)
DESIGN_TEST_CLASS(TDesignTestMemo, TDesignTestComponent)
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
using TEvents = std::vector<String>;

// The classes of AList that are among AOf, in list order.
TClasses Among(const TRef<IArrayList<TClass>>& AList, const TClasses& AOf) {
  TClasses result;
  for (TClass item : AList)
    if (std::ranges::find(AOf, item) != AOf.end()) result.push_back(item);
  return result;
}

// A hook that records the calls for the classes of AOf.
TProc<TClass> Recorder(TEvents& AEvents, const String& AWhat, const TClasses& AOf) {
  return [&AEvents, AWhat, AOf](TClass AClass) {
    if (std::ranges::find(AOf, AClass) != AOf.end()) AEvents.push_back(AWhat + " " + AClass->ClassName());
  };
}

// Registration keeps order and a class's first page; hooks see each class once, in registration order.
TEST(DesignComponentsTest, RegistrationKeepsOrderAndFirstPageAndHooksSeeEachClassOnce) {
  const TClass shape = TDesignTestShape::ClassInfo(), label = TDesignTestLabel::ClassInfo();
  const TClass round = TDesignTestRoundShape::ClassInfo(), button = TDesignTestButton::ClassInfo();
  const TClasses mine{shape, label, round, button, TDesignTestEdit::ClassInfo(), TDesignTestMemo::ClassInfo()};
  RegisterComponents("Shapes", {shape, label});
  RegisterComponents("More", {round, shape});
  EXPECT_EQ(Among(GetRegisteredComponents(), mine), (TClasses{shape, label, round}));
  EXPECT_EQ(GetComponentPage(shape) + "," + GetComponentPage(TDesignTestComponent::ClassInfo()), "Shapes,");

  // Late hooks catch up in registration order; then each new class runs the procedures first.
  TEvents events;
  const int notify = RegisterComponentRegisteredNotify(Recorder(events, "notify", mine));
  const int procedure = AddComponentRegistrationProcedure(Recorder(events, "procedure", mine));
  EXPECT_EQ(events,
            (TEvents{"notify TDesignTestShape", "notify TDesignTestLabel", "notify TDesignTestRoundShape",
                     "procedure TDesignTestShape", "procedure TDesignTestLabel", "procedure TDesignTestRoundShape"}));
  events.clear();
  RegisterComponents("Standard", {button, TDesignTestEdit::ClassInfo()});
  RegisterComponents("Other", {button});
  EXPECT_EQ(events, (TEvents{"procedure TDesignTestButton", "notify TDesignTestButton", "procedure TDesignTestEdit",
                             "notify TDesignTestEdit"}));
  events.clear();
  UnregisterComponentRegisteredNotify(notify);
  RemoveComponentRegistrationProcedure(procedure);
  RegisterComponents("Standard", {TDesignTestMemo::ClassInfo()});
  EXPECT_TRUE(events.empty());

  // A hook that fails while catching up is not kept: nobody could remove it.
  int calls = 0;
  EXPECT_THROW(RegisterComponentRegisteredNotify([&calls](TClass AClass) {
                 ++calls;
                 if (AClass == TDesignTestLabel::ClassInfo()) throw Exception("refused");
               }),
               Exception);
  calls = 0;
  RegisterComponents("Late", {TDesignTestGauge::ClassInfo()});
  EXPECT_EQ(calls, 0);
}

// A registration procedure reads the categories of a member and of its type.
TEST(DesignComponentsTest, RegistrationProcedureReadsMemberCategories) {
  TEvents found;
  const int key = AddComponentRegistrationProcedure([&found](TClass AClass) {
    if (AClass != TDesignTestSlider::ClassInfo()) return;
    for (const TRef<IMemberInfo>& member : TRttiObjectHelper::ClassTypeInfo(AClass)->GetMembers(mvsPublished))
      for (TCustomAttribute* attribute :
           member->GetMemberAccessAttributes()->GetCustomAttributes(TMemberCategoryAttribute::ClassInfo()))
        found.push_back(
            member->GetName() + ":" +
            CreateMemberCategory(static_cast<TMemberCategoryAttribute*>(attribute)->CategoryClass())->GetName());
  });
  RegisterComponents("Sliders", {TDesignTestSlider::ClassInfo()});
  RemoveComponentRegistrationProcedure(key);
  EXPECT_EQ(found, (TEvents{"Position:Layout", "Position:Input", "Pen:Visual"}));
}

// Dynamic elements for a base: its ancestors' elements it can hold and its own, once each, in registration order.
TEST(DesignComponentsTest, DynamicElementsByBaseClass) {
  const TClass filter = TDesignTestFilter::ClassInfo(), lowPass = TDesignTestLowPass::ClassInfo();
  const TClass butterworth = TDesignTestButterworth::ClassInfo(), highPass = TDesignTestHighPass::ClassInfo();
  RegisterDynamicElement(filter, lowPass);
  RegisterDynamicElement(filter, highPass);
  RegisterDynamicElement(lowPass, butterworth);
  RegisterDynamicElement(filter, butterworth);
  RegisterDynamicElement(filter, lowPass);
  const struct {
    const char* Name;
    TClass Base;
    TClasses Expected;
  } rows[] = {{"the base, each once", filter, {lowPass, highPass, butterworth}},
              {"a descendant", lowPass, {lowPass, butterworth}},
              {"a sibling", highPass, {highPass}},
              {"an unrelated class", TDesignTestComponent::ClassInfo(), {}},
              {"nil", nullptr, {}}};
  Testing::ForEachRow(rows,
                      [](const auto& ARow) { EXPECT_EQ(GetDynamicElementsFor(ARow.Base)->ToArray(), ARow.Expected); });
  EXPECT_THROW(RegisterDynamicElement(lowPass, highPass), EAssertionFailed);
}

// Unloading a module sweeps its classes from the registrations; loaded again, they are new.
TEST(DesignComponentsTest, UnloadSweepsAModulesClasses) {
  TModule* module = LoadModule(TARVO_TEST_MODULE_PATH);
  const TClass thing = FindClass("TTestModuleThing"), part = FindClass("TTestModulePart");
  ASSERT_TRUE(thing && part);
  const TClass probe = TDesignTestProbe::ClassInfo(), widget = DesignTestWidget::ClassInfo();
  RegisterComponents("Module", {part, probe});
  RegisterDynamicElement(TObject::ClassInfo(), thing);
  RegisterDynamicElement(thing, thing);
  RegisterDynamicElement(TObject::ClassInfo(), widget);
  EXPECT_EQ(GetDynamicElementsFor(thing)->ToArray(), TClasses{thing});
  const Integer components = GetRegisteredComponents()->GetCount();
  const Integer elements = GetDynamicElementsFor(TObject::ClassInfo())->GetCount();

  UnloadModule(module);
  EXPECT_EQ(GetRegisteredComponents()->GetCount(), components - 1);
  EXPECT_EQ(Among(GetRegisteredComponents(), {probe}), TClasses{probe});
  EXPECT_EQ(GetDynamicElementsFor(TObject::ClassInfo())->GetCount(), elements - 1);
  EXPECT_EQ(Among(GetDynamicElementsFor(TObject::ClassInfo()), {widget}), TClasses{widget});

  // Back again, the module's class is new to the registry and announced once more.
  int announced = 0;
  const int key = RegisterComponentRegisteredNotify([&announced](TClass AClass) {
    if (String(AClass->ClassName()) == "TTestModulePart") ++announced;
  });
  module = LoadModule(TARVO_TEST_MODULE_PATH);
  RegisterComponents("Module", {FindClass("TTestModulePart")});
  UnregisterComponentRegisteredNotify(key);
  EXPECT_EQ(announced, 1);
  UnloadModule(module);
}

} // namespace
} // namespace Tarvo
