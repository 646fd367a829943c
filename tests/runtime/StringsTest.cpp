#include <gtest/gtest.h>

#include "runtime/Graphics.h"
#include "runtime/Strings.h"
#include "tests/rtl/ExpectError.h"
#include "tests/support/NamedRows.h"
#include "tests/support/StringLines.h"

namespace Tarvo {
namespace {

using Testing::LinesOf;
using Testing::ListOf;
using Testing::TLines;

// Text splits at every kind of line break and joins with LF after each line.
TEST(StringListTextTest, TextSplitsAtEveryKindOfLineBreakAndJoinsWithLF) {
  const struct {
    const char *Name, *Text;
    TLines Lines;
    const char* Joined;
  } cases[] = {{"nothing", "", {}, ""},
               {"one line without a break", "a", {"a"}, "a\n"},
               {"mixed breaks and an empty line", "a\rb\r\n\nc", {"a", "b", "", "c"}, "a\nb\n\nc\n"},
               {"two empty lines", "\n\n", {"", ""}, "\n\n"}};
  const auto list = ListOf({});
  Testing::ForEachRow(cases, [&](const auto& ACase) {
    list->SetText(ACase.Text);
    EXPECT_EQ(LinesOf(*list), ACase.Lines);
    EXPECT_EQ(list->GetText(), ACase.Joined);
  });
}

// Comma text quotes what would not survive unquoted and reads it back.
TEST(StringListTextTest, CommaTextQuotesWhatWouldNotSurviveAndReadsItBack) {
  const TLines lines = {"a", "b c", "", "x\"y", "d,e", "\xC3\xA9t\xC3\xA9"};
  const auto list = ListOf(lines);
  EXPECT_EQ(list->GetCommaText(), "a,\"b c\",\"\",\"x\"\"y\",\"d,e\",\xC3\xA9t\xC3\xA9");
  const auto copy = ListOf({});
  copy->SetCommaText(list->GetCommaText());
  EXPECT_EQ(LinesOf(*copy), lines);
  const struct {
    const char *Name, *Text;
    TLines Lines;
  } parsed[] = {{"blanks separate outside quotes", "a b,c", {"a", "b", "c"}},
                {"an empty item at the end", "a,", {"a", ""}},
                {"blanks around a quoted item", "  \"q r\" , s", {"q r", "s"}},
                {"nothing", "", {}}};
  Testing::ForEachRow(parsed, [&](const auto& ARow) {
    copy->SetCommaText(ARow.Text);
    EXPECT_EQ(LinesOf(*copy), ARow.Lines);
  });
}

// A sorted list places adds, finds in any case, and handles duplicates by its rule.
TEST(StringListSortedTest, AddsGoToTheirPlaceAndDuplicatesFollowTheRule) {
  const auto list = ListOf({"pear", "apple"});
  list->SetSorted(true); // sorts what is there
  EXPECT_EQ(list->Add("Banana"), 1);
  EXPECT_EQ(list->Add("zucchini"), 3);
  EXPECT_EQ(list->IndexOf("PEAR"), 2);

  EXPECT_EQ(list->Add("APPLE"), 0); // ignored: already there in another case
  EXPECT_EQ(list->Count(), 4);
  list->SetDuplicates(dupError);
  Testing::ExpectError<EListError>([&] { list->Add("apple"); }, "String list does not allow duplicates");
  list->SetDuplicates(dupAccept);
  list->Add("apple");
  EXPECT_EQ(list->Count(), 5);
  Testing::ExpectError<EListError>([&] { list->Insert(0, "x"); }, "Operation not allowed on sorted list");
  Testing::ExpectError<EListError>([&] { list->Put(0, "x"); }, "Operation not allowed on sorted list");

  list->SetCaseSensitive(true); // resorts: upper case first
  EXPECT_EQ(list->Strings(0), "Banana");
  EXPECT_EQ(list->IndexOf("PEAR"), -1);
}

// Edits check their indexes with exact messages and tell once per change.
TEST(StringListEditTest, EditsCheckIndexesAndTellOncePerChange) {
  const auto list = ListOf({"a", "b", "c"});
  int notices = 0;
  list->AddChangeHandler([&] { ++notices; });
  list->Insert(1, "x");
  list->Delete(0);
  list->Put(0, "y");
  EXPECT_EQ(LinesOf(*list), (TLines{"y", "b", "c"}));
  EXPECT_EQ(notices, 3);
  list->SetText("1\n2\n3\n");
  list->Assign(ListOf({"one", "two"}).get()); // strings only, from any strings
  EXPECT_EQ(LinesOf(*list), (TLines{"one", "two"}));
  EXPECT_EQ(notices, 5);
  list->Clear();
  list->Clear(); // empty already
  EXPECT_EQ(notices, 6);
  Testing::ExpectError<EListError>([&] { list->Strings(0); }, "List index out of bounds (0)");
  Testing::ExpectError<EListError>([&] { list->Insert(1, "z"); }, "List index out of bounds (1)");
  Testing::ExpectError<EListError>([&] { list->Delete(-1); }, "List index out of bounds (-1)");
  EXPECT_THROW(list->Assign(TOwnedObject<TFont>(Construct<TFont>()).get()), EConvertError);
}

} // namespace
} // namespace Tarvo
