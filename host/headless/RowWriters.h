#pragma once
// The inspector's rows as text for people and as JSON for programs.
//
// Text: one row a line, two blanks of indent a level, "name = value", then the markers of the
// row: "*" when a selected object differs from the default, "[ro]" when read-only, "+" when the
// row expands. A line break inside a value shows as "\n".

#include "host/headless/RowModel.h"

namespace Tarvo {

String RowsToText(const std::vector<TInspectorRow>& ARows);
// The rows under "[Category]" headings, indented one level, in the order of AHeadings; a row in
// several categories stands under each, a row in none under a last "[Miscellaneous]".
String RowsToCategoryText(const std::vector<TInspectorRow>& ARows, const std::vector<String>& AHeadings);
// An array of objects with path, name, display_name, value, editor, default, read_only,
// expandable, range and suggested_range (each [min, max], only where the row has it), categories
// (of top rows) and children.
String RowsToJson(const std::vector<TInspectorRow>& ARows);

// A row's list of values: one entry a line, or a JSON array of strings.
String ValuesToText(const std::vector<String>& AValues);
String ValuesToJson(const std::vector<String>& AValues);

// The registered component classes with their palette pages: "TClass (Page)" a line, or a JSON
// array of objects with class and page.
String ClassesText(Boolean AJson);

} // namespace Tarvo
