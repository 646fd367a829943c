#include "host/headless/RowWriters.h"

#include <nlohmann/json.hpp>

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

nlohmann::ordered_json ToJson(const std::vector<TInspectorRow>& ARows) {
  nlohmann::ordered_json result = nlohmann::ordered_json::array();
  for (const TInspectorRow& row : ARows)
    result.push_back({{"path", row.Path},
                      {"name", row.Name},
                      {"display_name", row.DisplayName},
                      {"value", row.Value},
                      {"editor", row.EditorName},
                      {"default", row.IsDefault},
                      {"read_only", row.ReadOnly},
                      {"expandable", row.Expandable},
                      {"children", ToJson(row.Children)}});
  return result;
}

} // namespace

String RowsToText(const std::vector<TInspectorRow>& ARows) {
  String text;
  AppendText(ARows, 0, text);
  return text;
}

String RowsToJson(const std::vector<TInspectorRow>& ARows) { return ToJson(ARows).dump(2) + "\n"; }

} // namespace Tarvo
