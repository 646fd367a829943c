// Categories as the started package answers them: its own table, registrations made later, and
// the categories component classes bring through their members' attributes.
#include <gtest/gtest.h>

#include "design/MemberCategoryRegistry.h"
#include "package/PackageEntry.h"
#include "reflection/ComponentRegistration.h"
#include "reflection/Publish.h"
#include "runtime/Controls.h"

namespace Tarvo {

class TCategoriesTestMeter : public TComponent {
  TARVO_CLASS(TCategoriesTestMeter, TComponent)
public:
  using TComponent::TComponent;
  Integer FLevel = 0;
};
TARVO_IMPLEMENT_CLASS(TCategoriesTestMeter)
TARVO_PUBLISH(TCategoriesTestMeter) {
  Property("Level", &TCategoriesTestMeter::FLevel, &TCategoriesTestMeter::FLevel)
      .Attr<TMemberCategoryAttribute>(TInputMemberCategory::ClassInfo());
}

namespace {

class DesignCategoriesTest : public testing::Test {
protected:
  void SetUp() override { Initialize(); }
  void TearDown() override { Finalize(); }

  static std::vector<String> Names(TClass AClass, const String& AName, PTypeInfo AType) {
    std::vector<String> names;
    for (const auto& category : GetMemberCategories(mkSingleProperty, AClass, AName, TTypeInfoHelper::TypeInfo(AType)))
      names.push_back(category->GetCategoryName());
    return names;
  }
  static Integer FilterCount(TMemberCategoryClass ACategory) {
    return dynamic_cast<TMemberCategoryInstance&>(*GMemberCategories->GetCategory(ACategory))
        .GetFilters(mkSingleProperty)
        ->GetCount();
  }

  const TRef<ITypeInfo> FInteger = TTypeInfoHelper::TypeInfo(&TypeInfo_Integer);
};

TEST_F(DesignCategoriesTest, TheStartUpTable) {
  EXPECT_EQ(Names(TControl::ClassInfo(), "left", TypeInfo<Integer>()), (std::vector<String>{"Visual", "Layout"}));
  EXPECT_EQ(Names(TComponent::ClassInfo(), "Left", TypeInfo<Integer>()), std::vector<String>{});
  EXPECT_EQ(Names(nullptr, "Pen", TypeInfo<TPen*>()), std::vector<String>{"Visual"});
}

// Categories answer in the order they were first used, whatever the order of a registration.
TEST_F(DesignCategoriesTest, AnswersInFirstUseOrder) {
  const TMemberCategoryClass help = THelpMemberCategory::ClassInfo(), linkage = TLinkageMemberCategory::ClassInfo();
  RegisterPropertyInCategories({linkage}, nullptr, FInteger, "Gain");
  RegisterPropertyInCategories({help, linkage}, nullptr, FInteger, "Gain");
  EXPECT_EQ(Names(nullptr, "Gain", &TypeInfo_Integer), (std::vector<String>{"Linkage", "Help and Hints"}));
  // A filter needs a type: a name alone never matches.
  RegisterPropertyInCategories({THelpMemberCategory::ClassInfo()}, nullptr, "Level");
  EXPECT_EQ(Names(nullptr, "Level", &TypeInfo_Integer), std::vector<String>{});
}

// Filters without a name collapse; named ones never do, their masks being objects of their own.
TEST_F(DesignCategoriesTest, EqualFiltersAreKeptOnce) {
  const TMemberCategoryClass action = TActionMemberCategory::ClassInfo();
  const Integer before = FilterCount(action);
  RegisterPropertyInCategories({action}, TControl::ClassInfo(), FInteger);
  RegisterPropertyInCategories({action}, TControl::ClassInfo(), FInteger);
  EXPECT_EQ(FilterCount(action), before + 1);
  RegisterPropertiesInCategories({action}, TControl::ClassInfo(), FInteger, {"Gain", "Gain"});
  EXPECT_EQ(FilterCount(action), before + 3);
}

TEST_F(DesignCategoriesTest, AComponentClassBringsItsMembersCategories) {
  RegisterComponents("Categories", {TCategoriesTestMeter::ClassInfo()});
  EXPECT_EQ(Names(TCategoriesTestMeter::ClassInfo(), "Level", &TypeInfo_Integer), std::vector<String>{"Input"});
  EXPECT_EQ(Names(TComponent::ClassInfo(), "Level", &TypeInfo_Integer), std::vector<String>{});
}

} // namespace
} // namespace Tarvo
