// The writers alone, over rows made by hand: the range keys of the JSON rows and the list of values.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "host/headless/RowWriters.h"
#include "tests/support/NamedRows.h"

namespace Tarvo {
namespace {

TEST(RowWritersTest, RangesAreJsonNumbersAndOnlyInRowsThatHaveThem) {
  const struct {
    const char* Name;
    std::optional<TInspectorRange> Range;
    std::optional<TInspectorRange> SuggestedRange;
    const char* Expected; // the keys between "expandable" and "children"
  } cases[] = {{"none", std::nullopt, std::nullopt, ""},
               {"ordinals of several widths",
                TInspectorRange{TValue(Integer(-2147483647 - 1)), TValue::From(SmallInt(32767))},
                TInspectorRange{TValue::From(Byte(1)), TValue(Int64(INT64_MAX))},
                R"("range": [-2147483648, 32767], "suggested_range": [1, 9223372036854775807], )"},
               {"floats", TInspectorRange{TValue(Double(0.1)), TValue(Extended(20000.5))}, std::nullopt,
                R"("range": [0.1, 20000.5], )"},
               {"suggested alone", std::nullopt, TInspectorRange{TValue(Integer(-3)), TValue(Double(2.5))},
                R"("suggested_range": [-3, 2.5], )"}};
  Testing::ForEachRow(cases, [](const auto& row) {
    TInspectorRow written;
    written.Path = written.Name = written.DisplayName = "Gain";
    written.Range = row.Range;
    written.SuggestedRange = row.SuggestedRange;
    const String expected = String(R"([{"path": "Gain", "name": "Gain", "display_name": "Gain", "value": "",
        "editor": "", "default": true, "read_only": true, "expandable": false, )") +
                            row.Expected + R"("children": []}])";
    const nlohmann::ordered_json json = nlohmann::ordered_json::parse(RowsToJson({written}));
    // Ordered: the keys are in their place, not only there.
    EXPECT_EQ(json, nlohmann::ordered_json::parse(expected));
  });
}

TEST(RowWritersTest, ValuesAreOneEntryALineOrAJsonArrayOfStrings) {
  const std::vector<String> values{"22050", "two\nlines", ""};
  EXPECT_EQ(ValuesToText(values), "22050\ntwo\\nlines\n\n");
  EXPECT_EQ(nlohmann::json::parse(ValuesToJson(values)), nlohmann::json({"22050", "two\nlines", ""}));
  EXPECT_EQ(ValuesToText({}), "");
  EXPECT_EQ(nlohmann::json::parse(ValuesToJson({})), nlohmann::json::array());
}

} // namespace
} // namespace Tarvo
