#pragma once
// The inspector's rows as the tool prints them: the grid's own rows over the designer's
// selection, with every refusal a command line needs named by its path.

#include <memory>
#include <optional>
#include <vector>

#include "host/grid/GridRows.h"

namespace Tarvo {

// Input that names nothing the inspector has, or asks what a row can't do.
TARVO_DECLARE_EXCEPTION(EInspectError, Exception)

struct TInspectorRange {
  TValue Min;
  TValue Max;
};

// A row as printed: what it shows, with its children when it is expanded.
struct TInspectorRow {
  String Path; // member names from the top row down, joined by "."
  String Name;
  String DisplayName;
  String Value;
  String EditorName;
  Boolean IsDefault = true;
  Boolean ReadOnly = true;
  Boolean Expandable = false;
  Boolean Expanded = false;
  std::optional<TInspectorRange> Range;          // when the editor answers IPropertyRange
  std::optional<TInspectorRange> SuggestedRange; // when it answers IPropertySuggestedRange
  std::vector<String> Categories;                // of a top row, in the categories' order
  std::vector<TInspectorRow> Children;
};

// The shown row at a dotted path, names compared without regard to case; the rows on the way are
// expanded. EInspectError says where the path stopped.
TGridRow& FindRow(TGridRows& ARows, const String& APath);
// EInspectError when the row at APath does not expand.
void ExpandRow(TGridRows& ARows, const String& APath);

class TRowModel {
public:
  // How deep --expand-all goes: a component reference can lead back to where it started.
  static constexpr Integer MaxExpandDepth = 6;

  explicit TRowModel(TRef<IDesigner> ADesigner) : FDesigner(std::move(ADesigner)) {}

  // The top rows for the current selection, all collapsed, whatever was expanded before.
  void Refresh();
  // The visible rows and, under the expanded ones, theirs.
  std::vector<TInspectorRow> Rows();

  TGridRow& Find(const String& APath) { return FindRow(*FRows, APath); }
  void Expand(const String& APath) { ExpandRow(*FRows, APath); }
  void ExpandAll() { FRows->ExpandAll(MaxExpandDepth); }

  // Through the row editor's own text conversion, to every selected object.
  void SetValue(const String& APath, const String& AText);
  void ResetValue(const String& APath);
  // A click on the row's value cell at the place a check box takes; raises EInspectError when
  // the row's editor takes no clicks there.
  void Click(const String& APath);
  // The drop-down list of the row's editor, as it gives it.
  std::vector<String> Values(const String& APath);
  // Runs the row's dialog, as its "..." button would; raises EInspectError when it has none.
  void Dialog(const String& APath);

private:
  TRef<IPropertyEditor> ValueEditor(const String& APath);
  void AddRows(TGridRow* AParent, std::vector<std::unique_ptr<TGridRow>>& ARows, std::vector<TInspectorRow>& AOut);

  TRef<IDesigner> FDesigner;
  std::unique_ptr<TGridRows> FRows = std::make_unique<TGridRows>();
};

} // namespace Tarvo
