#include <gtest/gtest.h>

#include "design/SinglePropertyEditor.h"
#include "design/VirtualMembers.h"
#include "tests/design/EditorTestSupport.h"

namespace Tarvo {
namespace VirtualMembersTesting {

// An object as a read-only property: its value whatever the instance, no write, no default, a read-only row.
TEST(VirtualMemberTest, IsAReadOnlyPropertyOfItsObject) {
  TOwnedObject<TComponent> item(Construct<TComponent>(nullptr)), other(Construct<TComponent>(nullptr));
  const auto member = New<TVirtualMember>(item.get(), "Item", "_item");
  EXPECT_EQ(member->GetValue(other.get()).AsObject(), item.get());
  member->SetValue(other.get(), TValue(other.get()));
  EXPECT_EQ(member->GetValue(nullptr).AsObject(), item.get());
  EXPECT_EQ(member->GetTypeInfo()->GetName(), "TComponent");
  EXPECT_FALSE(member->GetIsWritable() || member->GetIsDefault(item.get(), true));

  std::vector<String> log;
  const auto designer = New<Testing::TLoggingDesigner>(log);
  designer->Select({other.get()});
  EXPECT_TRUE(Testing::MakeEditor<TSinglePropertyEditor>(designer, "Item", nullptr, nullptr, member)->GetIsReadOnly());
}

// The name follows the item at every call; the save name keeps the index.
TEST(VirtualMemberTest, ANamedMemberIsRenamedWithItsItem) {
  TOwnedObject<TComponent> item(Construct<TComponent>(nullptr));
  String name = "First";
  const auto member = New<TNamedVirtualMember>(item.get(), 3, [&] { return name; });
  EXPECT_EQ(member->GetDisplayName(), "First");
  name = "Renamed";
  EXPECT_EQ(member->GetName(), "Renamed");
  EXPECT_EQ(member->GetSaveName(), "_3");
  EXPECT_EQ(New<TNamedVirtualMember>(item.get(), 3, nullptr)->GetName(), "Item [3]");
}

} // namespace VirtualMembersTesting
} // namespace Tarvo
