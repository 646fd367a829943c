#include <gtest/gtest.h>

#include "design/editors/SetEditors.h"
#include "tests/design/editors/TypedEditorTest.h"

namespace Tarvo {
namespace {

using SetEditorsTest = TypedEditorTest<TSetPropertyEditor>;

// One Boolean member for each element, in declaration order; element 32 shares bit 0.
TEST_F(SetEditorsTest, ElementsFromThe33rdAliasTheFirst) {
  TRef<IMembersInfo> members;
  ASSERT_TRUE(Editor("Mask")->GetSubMembers(members, true));
  ASSERT_EQ(members->GetCount(), 33);
  const auto element = [&](Integer AIndex) { return QueryAs<IValueMemberInfo>(members->GetItem(AIndex)); };
  EXPECT_EQ(element(32)->GetName(), "ch32");
  EXPECT_EQ(element(32)->GetTypeInfo()->GetName(), "Boolean");
  element(32)->SetValue(&FFirst, TValue(true));
  EXPECT_TRUE(FFirst.FMask.Contains(ch0));
  EXPECT_TRUE(element(0)->GetValue(&FFirst).AsBoolean());
  element(0)->SetValue(&FFirst, TValue(false));
  EXPECT_FALSE(element(32)->GetValue(&FFirst).AsBoolean());
  EXPECT_TRUE(FFirst.FMask.IsEmpty());
}

// An element's row writes through the set to every object; it is default where the whole set
// is, whatever its bit.
TEST_F(SetEditorsTest, ElementRowsWriteTheSetAndFollowItsDefault) {
  const auto mask = Editor("Mask");
  const auto row = Testing::MakeEditor<TSetValuePropertyEditor>(FDesigner, "ch1", nullptr, mask.get());
  row->SetStringValue("True");
  EXPECT_TRUE(FFirst.FMask.Contains(ch1) && FSecond.FMask.Contains(ch1));
  EXPECT_FALSE(row->GetIsAllDefault());

  FFirst.FUnstoredMask.Include(ch1);
  const auto unstored = Editor("UnstoredMask");
  const auto hidden = Testing::MakeEditor<TSetValuePropertyEditor>(FDesigner, "ch1", nullptr, unstored.get());
  EXPECT_TRUE(hidden->GetIsAllDefault());
}

TEST_F(SetEditorsTest, ASetOfNoEnumerationExpandsIntoNothing) {
  TRef<IMembersInfo> members;
  const auto editor = Editor("Gain");
  EXPECT_TRUE(editor->GetIsExpandable());
  EXPECT_TRUE(editor->GetSubMembers(members, false));
  EXPECT_EQ(members->GetCount(), 0);
}

} // namespace
} // namespace Tarvo
