#include "host/headless/RowModel.h"

#include <algorithm>

#include "design/Registry.h"
#include "design/editors/BasicEditors.h"
#include "design/paint/EditorPaint.h"
#include "design/paint/PropertyRange.h"
#include "host/grid/SelectionMembers.h"
#include "reflection/RttiTypes.h"
#include "rtl/SysUtils.h"

namespace Tarvo {

namespace {

String JoinPath(const String& AParentPath, const String& AName) {
  return AParentPath.empty() ? AName : AParentPath + "." + AName;
}

} // namespace

void SortRows(std::vector<TInspectorRow>& ARows) {
  SortRowsByName(
      ARows, [](const TInspectorRow& ARow) { return ARow.Editor->GetIsSortable(); },
      [](const TInspectorRow& ARow) -> const String& { return ARow.Name; });
}

TObject* TRowModel::FirstSelected() {
  const TRef<IObjectArrayList> selection = FDesigner->GetRootSelection();
  return selection->GetCount() > 0 ? selection->GetItem(0) : nullptr;
}

bool TRowModel::MakeRow(const TRef<IMemberInfo>& AMember, TObject* ALookupObject, TMemberEditor* AParentEditor,
                        const String& AParentPath, TInspectorRow& ARow) {
  TRef<IArrayList<TMemberEditorClass>> classes;
  if (!GetMemberEditorClasses(AMember, ALookupObject, classes)) return false;
  TMemberEditor* editor =
      classes->GetItem(0).Create(nullptr, AParentEditor, FDesigner, nullptr, AMember->GetName(), AMember);
  ARow.Editor = TRef<IMemberEditor>(editor);
  if (!ARow.Editor->GetIsVisible()) return false;
  ReadRow(ARow, AParentPath);
  return true;
}

void TRowModel::ReadRow(TInspectorRow& ARow, const String& AParentPath) {
  const TRef<IMemberEditor>& editor = ARow.Editor;
  ARow.Name = editor->GetName();
  ARow.Path = JoinPath(AParentPath, ARow.Name);
  ARow.DisplayName = editor->GetDisplayName();
  ARow.EditorName = editor->GetEditorName();
  ARow.ReadOnly = editor->GetIsReadOnly();
  ARow.Expandable = editor->GetIsExpandable() && HasSubRows(editor);
  if (TRef<IPropertyRange> range; Supports(editor, range))
    ARow.Range = TInspectorRange{range->GetMinValue(), range->GetMaxValue()};
  if (TRef<IPropertySuggestedRange> range; Supports(editor, range))
    ARow.SuggestedRange = TInspectorRange{range->GetSuggestedMinValue(), range->GetSuggestedMaxValue()};
  if (AParentPath.empty())
    if (TObject* first = FirstSelected(); first && editor->GetFirstMember())
      ARow.Categories = CategoryNamesOf(editor->GetFirstMember(), first->ClassType());
  if (TRef<IPropertyEditor> property; Supports(editor, property)) {
    ARow.Value = property->GetIsWriteOnly() ? String() : property->GetDisplayValue(nullptr);
    ARow.IsDefault = property->GetIsAllDefault();
  } else if (TRef<IMethodEditor> method; Supports(editor, method)) {
    ARow.Value = method->GetFunctionParamString();
  }
}

void TRowModel::Refresh() {
  FRows.clear();
  TObject* first = FirstSelected();
  for (const TRef<IMemberInfo>& member : CommonMembers(FDesigner->GetRootSelection())) {
    TInspectorRow row;
    if (MakeRow(member, first, nullptr, String(), row)) FRows.push_back(std::move(row));
  }
  SortRows(FRows);
}

void TRowModel::Expand(TInspectorRow& ARow) {
  if (ARow.Expanded) return;
  if (!ARow.Expandable) throw EInspectError("row \"" + ARow.Path + "\" does not expand");
  ARow.Expanded = true;
  if (TRef<ISubPropertyEditors> subEditors; Supports(ARow.Editor, subEditors)) {
    for (const TRef<IPropertyEditor>& editor : subEditors->GetPropertyEditors()) {
      TInspectorRow child;
      child.Editor = editor;
      if (!editor->GetIsVisible()) continue;
      ReadRow(child, ARow.Path);
      ARow.Children.push_back(std::move(child));
    }
    return; // in the editor's order: a date's parts run from the year down
  }
  if (TRef<IMembersInfo> members; ARow.Editor->GetSubMembers(members, true)) {
    TMemberEditor* parent = ARow.Editor->GetInstance();
    TObject* first = FirstSelected();
    TObject* lookupObject = first ? parent->GetValueForRootInstance(first) : nullptr;
    for (const TRef<IMemberInfo>& member : members) {
      TInspectorRow child;
      if (MakeRow(member, lookupObject, parent, ARow.Path, child)) ARow.Children.push_back(std::move(child));
    }
  }
  SortRows(ARow.Children);
}

void TRowModel::ExpandDown(TInspectorRow& ARow, Integer ADepth) {
  if (!ARow.Expandable || ADepth >= MaxExpandDepth) return;
  Expand(ARow);
  for (TInspectorRow& child : ARow.Children) ExpandDown(child, ADepth + 1);
}

void TRowModel::ExpandAll() {
  for (TInspectorRow& row : FRows) ExpandDown(row, 0);
}

TInspectorRow& TRowModel::Find(const String& APath) {
  std::vector<TInspectorRow>* rows = &FRows;
  TInspectorRow* found = nullptr;
  for (const std::string_view name : SplitString(APath, '.')) {
    if (found) {
      if (!found->Expandable) throw EInspectError("no row \"" + APath + "\": \"" + found->Path + "\" does not expand");
      Expand(*found);
      rows = &found->Children;
    }
    const auto match =
        std::find_if(rows->begin(), rows->end(), [&](const TInspectorRow& ARow) { return SameText(ARow.Name, name); });
    if (match == rows->end()) throw EInspectError("no row \"" + APath + "\"");
    found = &*match;
  }
  return *found;
}

TRef<IPropertyEditor> TRowModel::ValueEditor(const String& APath) {
  TInspectorRow& row = Find(APath);
  TRef<IPropertyEditor> editor;
  if (!Supports(row.Editor, editor)) throw EInspectError("row \"" + row.Path + "\" has no value");
  if (editor->GetIsReadOnly()) throw EInspectError("row \"" + row.Path + "\" is read-only");
  return editor;
}

void TRowModel::SetValue(const String& APath, const String& AText) { ValueEditor(APath)->SetStringValue(AText); }

void TRowModel::ResetValue(const String& APath) { ValueEditor(APath)->ResetValue(); }

void TRowModel::Click(const String& APath) {
  const TInspectorRow& row = Find(APath);
  TRef<IPropertyEditorMouse> mouse;
  Boolean handled = false;
  // A cell of a usual row's size; the point lies on the check box's area.
  const TIGXRect cell(0, 0, 120, 16);
  if (Supports(row.Editor, mouse)) mouse->ValueMouseUp(mbLeft, TShiftState(), 6, 6, nullptr, cell, handled);
  if (!handled) throw EInspectError("row \"" + row.Path + "\" takes no click");
}

std::vector<String> TRowModel::Values(const String& APath) {
  const TInspectorRow& row = Find(APath);
  TRef<IPropertyEditorDropDownStringList> list;
  if (!Supports(row.Editor, list)) throw EInspectError(row.Path + ": no list of values");
  return list->GetStringListValues()->ToArray();
}

void TRowModel::Dialog(const String& APath) {
  const TInspectorRow& row = Find(APath);
  TRef<IPropertyEditorDialog> dialog;
  if (!Supports(row.Editor, dialog)) throw EInspectError("row \"" + row.Path + "\" has no dialog");
  dialog->Execute(nullptr);
}

} // namespace Tarvo
