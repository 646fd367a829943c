#include <gtest/gtest.h>

#include "runtime/Controls.h"
#include "runtime/DesignFile.h"
#include "runtime/Shape.h"
#include "tests/support/NamedRows.h"

namespace Tarvo {
namespace {

String HostileDesign(const String& AComponents) { return R"({"components": [)" + AComponents + "]}"; }
String HostileShape(const String& AName, const String& AProperties) {
  return R"({"class": "TShape", "name": ")" + AName + R"(", "properties": {)" + AProperties + "}}";
}

// Window controls nested ADepth deep, Panel1 outermost.
String HostileNesting(int ADepth) {
  String text;
  for (int i = 1; i <= ADepth; ++i)
    text += R"({"class": "TWinControl", "name": "Panel)" + std::to_string(i) + (i < ADepth ? R"(", "children": [)" : "\"}");
  for (int i = 1; i < ADepth; ++i) text += "]}";
  return HostileDesign(text);
}

// Files made to hurt the reader: each is refused with a message that names the place, quotes
// no more than a line of what it holds, and leaves no component behind. (Bytes that are no
// UTF-8, duplicate names, unknown classes and references are refused as DesignFileTest shows; a
// cycle of references is a design like any other.)
TEST(HostileDesignTest, IsRefusedByPlaceWithAShortMessageAndLeavesNothingBehind) {
  const String huge(50 << 20, 'a');
  const String longKey(300, 'k');
  struct TRow {
    const char* Name;
    String Json;
    String Message;
  };
  const TRow rows[] = {
      {"components nested 10,000 deep", HostileNesting(10000),
       "Components nest deeper than 256 levels under 'Panel1.Panel2.Panel3...Panel254.Panel255.Panel256'"},
      {"a value nested 100,000 lists deep",
       HostileDesign(HostileShape("Shape1", R"("Hint": )" + String(100000, '[') + String(100000, ']'))),
       "The value of 'Hint' of component 'Shape1' must be a text"},
      {"a 50 MB value", HostileDesign(HostileShape("Shape1", R"("Hint": ")" + huge + "\"")),
       "The value of 'Hint' of component 'Shape1' holds 52428800 bytes; a text of a design holds at most 1048576"},
      {"a 50 MB name", HostileDesign(HostileShape(huge, "")),
       "components[0]: \"name\" holds 52428800 bytes; a text of a design holds at most 1048576"},
      {"a long unknown member", HostileDesign(HostileShape("Shape1", "\"" + longKey + "\": \"1\"")),
       "Unknown property '" + String(80, 'k') + "...' of component 'Shape1' (TShape)"},
      {"a value too long to quote whole", HostileDesign(HostileShape("Shape1", R"("Width": ")" + String(2000, '9') + "\"")),
       "Invalid value '" + String(80, '9') + "...' for 'Width' of component 'Shape1': '" + String(300, '9')},
  };
  TOwnedObject<TComponent> root(Construct<TComponent>(nullptr));
  Testing::ForEachRow(rows, [&](const TRow& ARow) {
    try {
      ReadDesign(ARow.Json, root.get());
      ADD_FAILURE() << "read without an error";
    } catch (const EDesignFileError& e) {
      EXPECT_EQ(e.Message().substr(0, ARow.Message.size()), ARow.Message);
      EXPECT_LT(e.Message().size(), 1000u);
    }
    EXPECT_EQ(root->ComponentCount(), 0);
  });
}

} // namespace
} // namespace Tarvo
