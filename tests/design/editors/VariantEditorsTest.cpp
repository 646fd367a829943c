#include <gtest/gtest.h>

#include "design/editors/VariantEditors.h"
#include "tests/design/editors/TypedEditorTest.h"

namespace Tarvo {

namespace {

using namespace Testing;

class VariantEditorsTest : public TypedEditorTest<TVariantPropertyEditor> {
protected:
  // The "Type" row under the value row, which outlives it.
  TRef<TVariantTypePropertyEditor> TypeRow() {
    return MakeEditor<TVariantTypePropertyEditor>(FDesigner, "Type", nullptr, FValueRow.get());
  }
  void Both(const Variant& AValue) { FFirst.FVariant = FSecond.FVariant = AValue; }

  TRef<TVariantPropertyEditor> FValueRow = Editor("Variant");
};

// The value's text and its type's name, as the two rows show them.
TEST_F(VariantEditorsTest, ValueAndTypeTexts) {
  struct TRow {
    const char* Name;
    Variant Value;
    String Text, Type;
  };
  const TRow rows[] = {
      {"unassigned", Variant(), "", "Unassigned"},
      {"null", Variant::Null(), "(Null)", "Null"},
      {"an object reference", Variant::FromDispatch(nullptr), "ERROR", ""}, // code 9 has no name
      {"an integer", Variant(Integer(42)), "42", "Integer"},
      {"a Boolean", Variant(true), "True", "Boolean"},
      {"a string", Variant("abc"), "abc", "String"},
  };
  const auto type = TypeRow();
  ForEachRow(rows, [&](const TRow& ARow) {
    Both(ARow.Value);
    EXPECT_EQ(FValueRow->GetDisplayValue(nullptr), ARow.Text);
    EXPECT_EQ(type->GetDisplayValue(nullptr), ARow.Type);
  });
  // Codes no variant of this runtime takes, read from an integer member: the flags above the
  // type are ignored, 258 is "String", any other unnamed code "(Unknown)".
  const auto codes = MakeEditor<TVariantTypePropertyEditor>(FDesigner, "Channel");
  for (const auto& [code, name] :
       {std::pair<Integer, String>{0x2003, "Integer"}, {258, "String"}, {300, "(Unknown)"}}) {
    FFirst.FChannel = FSecond.FChannel = code;
    EXPECT_EQ(codes->GetDisplayValue(nullptr), name) << code;
  }
  const std::vector<String> names = type->GetStringListValues()->ToArray();
  EXPECT_EQ(names.size(), 16u);
  EXPECT_EQ(names.back(), "String");
}

// Text keeps the old type while it fits, else turns into a string; empty clears, the null text
// in any case makes Null; the type row casts, and an unknown name is refused by the cast.
TEST_F(VariantEditorsTest, Writes) {
  Both(Variant(Integer(1)));
  FValueRow->SetStringValue("258");
  EXPECT_EQ(FSecond.FVariant, Variant(Integer(258)));
  FValueRow->SetStringValue("abc");
  EXPECT_EQ(FSecond.FVariant.VarType(), varUString);
  FValueRow->SetStringValue("(NULL)");
  EXPECT_TRUE(FSecond.FVariant.IsNull());
  FValueRow->SetStringValue("");
  EXPECT_TRUE(FSecond.FVariant.IsEmpty());
  Both(Variant("300"));
  const auto type = TypeRow();
  type->SetStringValue("Integer");
  EXPECT_EQ(FFirst.FVariant, Variant(Integer(300)));
  type->SetStringValue("String");
  EXPECT_EQ(type->GetDisplayValue(nullptr), "String") << "code 256 written, 258 read";
  EXPECT_THROW(type->SetStringValue("Widget"), EVariantError);
}

} // namespace
} // namespace Tarvo
