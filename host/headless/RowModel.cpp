#include "host/headless/RowModel.h"

#include "design/paint/EditorPaint.h"
#include "design/paint/PropertyRange.h"
#include "host/grid/SelectionMembers.h"
#include "rtl/SysUtils.h"

namespace Tarvo {

TARVO_IMPLEMENT_EXCEPTION(EInspectError)

TGridRow& FindRow(TGridRows& ARows, const String& APath) {
  if (TGridRow* row = ARows.Find(APath); row && ARows.Prepare(*row)) return *row;
  // Say whether the path ran into a row that does not expand.
  const std::vector<std::string_view> names = SplitString(APath, '.');
  String prefix;
  for (std::size_t i = 0; i + 1 < names.size(); ++i) {
    prefix += (i ? "." : "") + String(names[i]);
    TGridRow* row = ARows.Find(prefix);
    if (!row || !ARows.Prepare(*row)) break;
    if (!row->Expandable) throw EInspectError("no row \"" + APath + "\": \"" + row->Path() + "\" does not expand");
  }
  throw EInspectError("no row \"" + APath + "\"");
}

void ExpandRow(TGridRows& ARows, const String& APath) {
  TGridRow& row = FindRow(ARows, APath);
  ARows.Expand(row);
  if (!row.Expanded) throw EInspectError("row \"" + row.Path() + "\" does not expand");
}

void TRowModel::Refresh() {
  FRows = std::make_unique<TGridRows>();
  FRows->SetDesigner(FDesigner);
  FRows->Rebuild();
}

void TRowModel::AddRows(TGridRow* AParent, std::vector<std::unique_ptr<TGridRow>>& ARows,
                        std::vector<TInspectorRow>& AOut) {
  // Preparing a row whose editor keeps its place sorts its siblings again: all first, then read.
  std::vector<TGridRow*> rows;
  for (const std::unique_ptr<TGridRow>& row : ARows) rows.push_back(row.get());
  for (TGridRow* row : rows) FRows->Prepare(*row);
  TObject* first = FRows->FirstSelected();
  for (const std::unique_ptr<TGridRow>& row : ARows) {
    if (row->Hidden) continue;
    const TRef<IMemberEditor>& editor = row->Editor;
    TInspectorRow& out = AOut.emplace_back();
    out.Path = row->Path();
    out.Name = row->Name;
    out.DisplayName = row->DisplayName;
    out.Value = row->Value;
    out.EditorName = editor->GetEditorName();
    out.IsDefault = row->IsDefault;
    out.ReadOnly = row->ReadOnly;
    out.Expandable = row->Expandable;
    out.Expanded = row->Expanded;
    if (TRef<IPropertyRange> range; Supports(editor, range))
      out.Range = TInspectorRange{range->GetMinValue(), range->GetMaxValue()};
    if (TRef<IPropertySuggestedRange> range; Supports(editor, range))
      out.SuggestedRange = TInspectorRange{range->GetSuggestedMinValue(), range->GetSuggestedMaxValue()};
    if (!AParent && first && editor->GetFirstMember())
      out.Categories = CategoryNamesOf(editor->GetFirstMember(), first->ClassType());
    if (row->Expanded) AddRows(row.get(), row->Children, out.Children);
  }
}

std::vector<TInspectorRow> TRowModel::Rows() {
  std::vector<TInspectorRow> rows;
  AddRows(nullptr, FRows->Top(), rows);
  return rows;
}

TRef<IPropertyEditor> TRowModel::ValueEditor(const String& APath) {
  TGridRow& row = Find(APath);
  if (!row.Property) throw EInspectError("row \"" + row.Path() + "\" has no value");
  FRows->Prepare(row);
  if (row.ReadOnly) throw EInspectError("row \"" + row.Path() + "\" is read-only");
  return row.Property;
}

void TRowModel::SetValue(const String& APath, const String& AText) { ValueEditor(APath)->SetStringValue(AText); }

void TRowModel::ResetValue(const String& APath) { ValueEditor(APath)->ResetValue(); }

void TRowModel::Click(const String& APath) {
  const TGridRow& row = Find(APath);
  TRef<IPropertyEditorMouse> mouse;
  Boolean handled = false;
  // A cell of a usual row's size; the point lies on the check box's area.
  const TIGXRect cell(0, 0, 120, 16);
  if (Supports(row.Editor, mouse)) mouse->ValueMouseUp(mbLeft, TShiftState(), 6, 6, nullptr, cell, handled);
  if (!handled) throw EInspectError("row \"" + row.Path() + "\" takes no click");
}

std::vector<String> TRowModel::Values(const String& APath) {
  const TGridRow& row = Find(APath);
  TRef<IPropertyEditorDropDownStringList> list;
  if (!Supports(row.Editor, list)) throw EInspectError(row.Path() + ": no list of values");
  return list->GetStringListValues()->ToArray();
}

void TRowModel::Dialog(const String& APath) {
  const TGridRow& row = Find(APath);
  TRef<IPropertyEditorDialog> dialog;
  if (!Supports(row.Editor, dialog)) throw EInspectError("row \"" + row.Path() + "\" has no dialog");
  dialog->Execute(nullptr);
}

} // namespace Tarvo
