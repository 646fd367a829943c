#pragma once
// The rows of the grid: a tree made only as far as it is looked at. A member's row knows its
// editor class from the start and builds its editor when the row is first shown, expanded,
// searched or edited; the texts a row shows are read again only after a modification. Rows of a
// nested value are made when their parent first expands.

#include <memory>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "design/MemberEditor.h"
#include "design/MemberFilter.h"
#include "design/SinglePropertyEditor.h"

namespace Tarvo {

struct TGridRow {
  TGridRow* Parent = nullptr;
  Integer Depth = 0;
  String Name;
  // A member's row: the member, its editor class and the editor it is built under.
  TRef<IMemberInfo> Member;
  TMemberEditorClass EditorClass;
  TMemberEditor* ParentEditor = nullptr;
  // Where the member stands in its class's order: a row whose editor keeps its place goes back
  // there when the rows are sorted.
  std::size_t MemberPlace = 0;
  TRef<IMemberEditor> Editor;       // nil until the row is prepared
  TRef<IPropertyEditor> Property;   // the editor, when it edits a value
  Boolean IsHeading = false;        // a category heading
  Boolean Hidden = false;           // its editor turned out invisible
  Boolean Expanded = false;
  Boolean ChildrenMade = false;
  std::vector<std::unique_ptr<TGridRow>> Children;

  // What the row shows, as of the generation it was read in.
  Integer ReadGeneration = -1;
  String DisplayName;
  String Value;
  Boolean IsDefault = true;
  Boolean ReadOnly = true;
  Boolean Expandable = false;
  Boolean Mixed = false; // the selected objects' values differ

  // A text the editor refused, kept for correction, and why.
  String RefusedText;
  String RefusedMessage;

  // The names from the top row down, joined by "."; headings count as names.
  String Path() const;
};

class TGridRows {
public:
  TGridRows() = default;
  TGridRows(const TGridRows&) = delete;
  TGridRows& operator=(const TGridRows&) = delete;

  void SetDesigner(const TRef<IDesigner>& ADesigner) { FDesigner = ADesigner; }
  const TRef<IDesigner>& Designer() const { return FDesigner; }
  // Takes effect with the next Rebuild.
  void SetCategoryView(Boolean AOn) { FCategoryView = AOn; }
  Boolean CategoryView() const { return FCategoryView; }
  // Words every shown row (or a row above or below it) must match; empty shows all.
  void SetSearch(const String& AText);

  // The top rows for the designer's selection, made anew; the rows that were expanded the last
  // time a component of this class was first in the selection are expanded again.
  void Rebuild();
  std::vector<std::unique_ptr<TGridRow>>& Top() { return FTop; }
  // The rows on show, top to bottom.
  const std::vector<TGridRow*>& Shown();
  // Builds the row's editor and reads what it shows when that is out of date. False when the
  // editor says the row is not visible: the row leaves the shown ones.
  Boolean Prepare(TGridRow& ARow);
  void Expand(TGridRow& ARow);
  void Collapse(TGridRow& ARow);
  // Expands every expandable row down to ADepth levels: a component reference can lead back to
  // where it started.
  void ExpandAll(Integer ADepth);
  // The values may have changed: every row reads its texts again when next prepared.
  void ValuesChanged() { ++FGeneration; }
  // The row at a dotted path, names compared without regard to case; the rows on the way are
  // expanded. Nil when there is none.
  TGridRow* Find(const String& APath);
  TObject* FirstSelected() const;

private:
  std::unique_ptr<TGridRow> MemberRow(const TRef<IMemberInfo>& AMember, std::size_t APlace, TObject* ALookupObject,
                                      TMemberEditor* AParentEditor, TGridRow* AParent);
  std::vector<std::unique_ptr<TGridRow>> MemberRows(TObject* AFirst);
  void MakeChildren(TGridRow& ARow);
  void ReadTexts(TGridRow& ARow);
  static Boolean RefersThroughAReadOnlyMember(const TGridRow& ARow);
  void Sort(std::vector<std::unique_ptr<TGridRow>>& ARows);
  Boolean Matches(TGridRow& ARow);
  // Adds the shown rows of ARow's subtree; true when any was added.
  Boolean AddShown(TGridRow& ARow, Boolean AAboveMatched, std::vector<TGridRow*>& AShown);
  void ReExpand(std::vector<std::unique_ptr<TGridRow>>& ARows);
  void ExpandDown(std::vector<std::unique_ptr<TGridRow>>& ARows, Integer ADepth);
  std::unordered_set<String>& ExpandedPaths();

  TRef<IDesigner> FDesigner;
  Boolean FCategoryView = false;
  TRef<IMatches> FSearch;
  std::vector<std::unique_ptr<TGridRow>> FTop;
  std::vector<TGridRow*> FShown;
  Boolean FShownValid = false;
  Integer FGeneration = 0;
  TClass FFirstClass = nullptr;
  Integer FSelectionCount = 0;
  // Paths in upper case, by the class of the first selected object.
  std::unordered_map<TClass, std::unordered_set<String>> FExpandedByClass;
  // Headings are open until closed, in every class.
  std::unordered_set<String> FCollapsedHeadings;
};

} // namespace Tarvo
