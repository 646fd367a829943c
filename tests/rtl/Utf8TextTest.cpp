#include <gtest/gtest.h>

#include "rtl/Utf8Text.h"
#include "tests/support/NamedRows.h"

namespace Tarvo::Testing {
namespace {

// Well-formed sequences pass untouched; every byte of a broken one is escaped on its own, and
// the text after it is read afresh.
TEST(Utf8TextTest, BytesThatAreNoUtf8AreEscapedOneByOne) {
  const struct {
    const char* Name;
    const char* Text;
    const char* Escaped;
  } rows[] = {
      {"ASCII and a backslash", "Scope1 \\x", "Scope1 \\x"},
      {"two, three and four bytes", "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80", "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80"},
      {"stray continuation", "a\x80-", "a\\x80-"},
      {"cut short at the end", "a\xE2\x82", "a\\xE2\\x82"},
      {"cut short by ASCII", "\xC3Z", "\\xC3Z"},
      {"overlong slash", "\xC0\xAF", "\\xC0\\xAF"},
      {"overlong three bytes", "\xE0\x80\xAF", "\\xE0\\x80\\xAF"},
      {"surrogate", "\xED\xA0\x80", "\\xED\\xA0\\x80"},
      {"above U+10FFFF", "\xF4\x90\x80\x80", "\\xF4\\x90\\x80\\x80"},
      {"highest code point", "\xF4\x8F\xBF\xBF", "\xF4\x8F\xBF\xBF"},
      {"never a lead byte", "\xFF\xFE", "\\xFF\\xFE"}};
  ForEachRow(rows, [](const auto& ARow) {
    EXPECT_EQ(EscapedUtf8(ARow.Text), ARow.Escaped);
    EXPECT_EQ(IsValidUtf8(ARow.Text), String(ARow.Text) == ARow.Escaped);
  });
  // An excerpt ends where a character does, and says that it was cut.
  EXPECT_EQ(EscapedUtf8Excerpt("\xC3\xA9\xC3\xA9", 3), "\xC3\xA9...");
  EXPECT_EQ(EscapedUtf8Excerpt("\xC3\xA9\xC3\xA9", 4), "\xC3\xA9\xC3\xA9");
  EXPECT_EQ(EscapedUtf8Excerpt("a\xFF\xFE" "z", 2), "a\\xFF...");
}

} // namespace
} // namespace Tarvo::Testing
