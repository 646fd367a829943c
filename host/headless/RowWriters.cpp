#include "host/headless/RowWriters.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <iterator>

#include "reflection/ComponentRegistration.h"

namespace Tarvo {

namespace {

// A row is one line: line breaks in a value show as "\n".
String OneLine(const String& AText) {
  String result;
  for (char c : AText) {
    if (c == '\n') result += "\\n";
    else if (c != '\r') result += c;
  }
  return result;
}

void AppendText(const std::vector<TInspectorRow>& ARows, Integer ALevel, String& AText) {
  for (const TInspectorRow& row : ARows) {
    String markers;
    if (!row.IsDefault) markers += " *";
    if (row.ReadOnly) markers += " [ro]";
    if (row.Expandable) markers += " +";
    AText += String(2 * ALevel, ' ') + row.DisplayName + " = " + OneLine(row.Value);
    if (!markers.empty()) AText += " " + markers;
    AText += '\n';
    AppendText(row.Children, ALevel + 1, AText);
  }
}

// A limit as a JSON number: a float as such, anything else as its ordinal.
nlohmann::ordered_json Limit(const TValue& AValue) {
  if (AValue.GetTypeKind() == tkFloat) return static_cast<double>(AValue.AsExtended());
  return AValue.AsInt64();
}

nlohmann::ordered_json ToJson(const std::vector<TInspectorRow>& ARows) {
  nlohmann::ordered_json result = nlohmann::ordered_json::array();
  for (const TInspectorRow& row : ARows) {
    nlohmann::ordered_json json = {{"path", row.Path},
                                   {"name", row.Name},
                                   {"display_name", row.DisplayName},
                                   {"value", row.Value},
                                   {"editor", row.EditorName},
                                   {"default", row.IsDefault},
                                   {"read_only", row.ReadOnly},
                                   {"expandable", row.Expandable}};
    if (row.Range) json["range"] = {Limit(row.Range->Min), Limit(row.Range->Max)};
    if (row.SuggestedRange) json["suggested_range"] = {Limit(row.SuggestedRange->Min), Limit(row.SuggestedRange->Max)};
    json["categories"] = row.Categories;
    json["children"] = ToJson(row.Children);
    result.push_back(std::move(json));
  }
  return result;
}

} // namespace

String RowsToText(const std::vector<TInspectorRow>& ARows) {
  String text;
  AppendText(ARows, 0, text);
  return text;
}

String RowsToCategoryText(const std::vector<TInspectorRow>& ARows, const std::vector<String>& AHeadings) {
  static const String Miscellaneous = "Miscellaneous";
  String text;
  const auto section = [&](const String& AHeading, auto AIsIn) {
    std::vector<TInspectorRow> rows;
    std::copy_if(ARows.begin(), ARows.end(), std::back_inserter(rows), AIsIn);
    if (rows.empty()) return;
    text += "[" + AHeading + "]\n";
    AppendText(rows, 1, text);
  };
  for (const String& heading : AHeadings)
    section(heading, [&](const TInspectorRow& ARow) {
      return std::find(ARow.Categories.begin(), ARow.Categories.end(), heading) != ARow.Categories.end();
    });
  section(Miscellaneous, [](const TInspectorRow& ARow) { return ARow.Categories.empty(); });
  return text;
}

String RowsToJson(const std::vector<TInspectorRow>& ARows) { return ToJson(ARows).dump(2) + "\n"; }

String ValuesToText(const std::vector<String>& AValues) {
  String text;
  for (const String& value : AValues) text += OneLine(value) + '\n';
  return text;
}

String ValuesToJson(const std::vector<String>& AValues) { return nlohmann::ordered_json(AValues).dump(2) + "\n"; }

String ClassesText(Boolean AJson) {
  nlohmann::ordered_json json = nlohmann::ordered_json::array();
  String text;
  for (const TClass componentClass : GetRegisteredComponents()->ToArray()) {
    const String page = GetComponentPage(componentClass);
    json.push_back({{"class", componentClass->ClassName()}, {"page", page}});
    text += String(componentClass->ClassName()) + " (" + page + ")\n";
  }
  return AJson ? json.dump(2) + "\n" : text;
}

} // namespace Tarvo
