#pragma once
// The rows of an object inspector over a designer's selection, as the package decides them:
// which members get a row, which editor serves each, and what each row shows. A row is made by
// asking the registry for the member's editor classes and building the first; its texts are
// read from that editor. Rows of a nested value are made on demand, when their parent expands.

#include <optional>
#include <vector>

#include "design/SinglePropertyEditor.h"

namespace Tarvo {

// Input that names nothing the inspector has, or asks what a row can't do.
TARVO_DECLARE_EXCEPTION(EInspectError, Exception)

struct TInspectorRange {
  TValue Min;
  TValue Max;
};

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
  TRef<IMemberEditor> Editor;
  std::vector<TInspectorRow> Children;
};

class TRowModel {
public:
  // How deep --expand-all goes: a component reference can lead back to where it started.
  static constexpr Integer MaxExpandDepth = 6;

  explicit TRowModel(TRef<IDesigner> ADesigner) : FDesigner(std::move(ADesigner)) {}

  // Builds the top rows for the current selection, all collapsed: one for each member that all
  // selected objects have and that the package gives a visible editor.
  void Refresh();
  std::vector<TInspectorRow>& Rows() { return FRows; }

  // The row at a dotted path, compared without regard to case; the rows on the way are expanded.
  TInspectorRow& Find(const String& APath);
  void Expand(TInspectorRow& ARow);
  void ExpandAll();

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
  // The row of AMember on ALookupObject, or none when the package gives it no visible editor.
  bool MakeRow(const TRef<IMemberInfo>& AMember, TObject* ALookupObject, TMemberEditor* AParentEditor,
               const String& AParentPath, TInspectorRow& ARow);
  void ReadRow(TInspectorRow& ARow, const String& AParentPath);
  void ExpandDown(TInspectorRow& ARow, Integer ADepth);
  TRef<IPropertyEditor> ValueEditor(const String& APath);
  TObject* FirstSelected();

  TRef<IDesigner> FDesigner;
  std::vector<TInspectorRow> FRows;
};

// Sorts the rows whose editors allow it by name; the others keep their places.
void SortRows(std::vector<TInspectorRow>& ARows);

} // namespace Tarvo
