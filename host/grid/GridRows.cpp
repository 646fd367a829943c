#include "host/grid/GridRows.h"

#include "design/MemberCategoryRegistry.h"
#include "design/Registry.h"
#include "design/editors/BasicEditors.h"
#include "design/editors/ClassEditors.h"
#include "host/grid/SelectionMembers.h"
#include "rtl/SysUtils.h"

namespace Tarvo {

namespace {

// The heading of the members no category takes.
class TMiscellaneousCategory : public TImplements<TInterfacedObject, IMemberCategory> {
public:
  String GetName() override { return "Miscellaneous"; }
  String GetBitmapName() override { return String(); }
};

std::unique_ptr<TGridRow> HeadingRow(const TRef<IMemberCategory>& ACategory) {
  auto row = std::make_unique<TGridRow>();
  row->IsHeading = true;
  row->Editor = New<TCategoryEditor>(ACategory);
  row->Name = row->DisplayName = ACategory->GetName();
  row->Expandable = row->ChildrenMade = row->Expanded = true;
  return row;
}

} // namespace

String TGridRow::Path() const { return Parent ? Parent->Path() + "." + Name : Name; }

void TGridRows::SetSearch(const String& AText) {
  FSearch = Trim(AText).empty() ? nullptr : TRef<IMatches>(New<TWordsMatch>(AText));
  FShownValid = false;
}

TObject* TGridRows::FirstSelected() const {
  if (!FDesigner) return nullptr;
  const TRef<IObjectArrayList> selection = FDesigner->GetRootSelection();
  return selection->GetCount() > 0 ? selection->GetItem(0) : nullptr;
}

std::unordered_set<String>& TGridRows::ExpandedPaths() { return FExpandedByClass[FFirstClass]; }

std::unique_ptr<TGridRow> TGridRows::MemberRow(const TRef<IMemberInfo>& AMember, std::size_t APlace,
                                               TObject* ALookupObject, TMemberEditor* AParentEditor,
                                               TGridRow* AParent) {
  TRef<IArrayList<TMemberEditorClass>> classes;
  if (!GetMemberEditorClasses(AMember, ALookupObject, classes)) return nullptr;
  auto row = std::make_unique<TGridRow>();
  row->Parent = AParent;
  row->Depth = AParent ? AParent->Depth + 1 : 0;
  row->Name = row->DisplayName = AMember->GetName();
  row->Member = AMember;
  row->EditorClass = classes->GetItem(0);
  row->ParentEditor = AParentEditor;
  row->MemberPlace = APlace;
  return row;
}

// The members' rows of the selection, by name.
std::vector<std::unique_ptr<TGridRow>> TGridRows::MemberRows(TObject* AFirst) {
  std::vector<std::unique_ptr<TGridRow>> rows;
  const std::vector<TRef<IMemberInfo>> members = CommonMembers(FDesigner->GetRootSelection());
  for (std::size_t i = 0; i < members.size(); ++i)
    if (auto row = MemberRow(members[i], i, AFirst, nullptr, nullptr)) rows.push_back(std::move(row));
  Sort(rows);
  return rows;
}

// Rows whose editor is not built yet count as sortable; an editor that keeps its place puts its
// row back there when it is built.
void TGridRows::Sort(std::vector<std::unique_ptr<TGridRow>>& ARows) {
  std::stable_sort(ARows.begin(), ARows.end(), [](const std::unique_ptr<TGridRow>& A, const std::unique_ptr<TGridRow>& B) {
    return A->MemberPlace < B->MemberPlace;
  });
  SortRowsByName(
      ARows, [](const std::unique_ptr<TGridRow>& ARow) { return !ARow->Editor || ARow->Editor->GetIsSortable(); },
      [](const std::unique_ptr<TGridRow>& ARow) -> const String& { return ARow->Name; });
}

void TGridRows::Rebuild() {
  FTop.clear();
  FShownValid = false;
  ++FGeneration;
  TObject* first = FirstSelected();
  FFirstClass = first ? first->ClassType() : nullptr;
  FSelectionCount = first ? FDesigner->GetRootSelection()->GetCount() : 0;
  if (!first) return;
  std::vector<std::unique_ptr<TGridRow>> members = MemberRows(first);
  if (!FCategoryView) {
    FTop = std::move(members);
  } else {
    // A member in several categories has a row under each.
    const auto addUnder = [&](TGridRow& AHeading, const std::unique_ptr<TGridRow>& AMember) {
      auto row = MemberRow(AMember->Member, AMember->MemberPlace, first, nullptr, &AHeading);
      AHeading.Children.push_back(std::move(row));
    };
    std::vector<std::vector<String>> categories;
    for (const auto& row : members) categories.push_back(CategoryNamesOf(row->Member, FFirstClass));
    const auto addHeading = [&](const TRef<IMemberCategory>& ACategory, auto AIsIn) {
      auto heading = HeadingRow(ACategory);
      for (std::size_t i = 0; i < members.size(); ++i)
        if (AIsIn(categories[i])) addUnder(*heading, members[i]);
      if (!heading->Children.empty()) FTop.push_back(std::move(heading));
    };
    for (const TRef<IMemberCategoryInstance>& category : *GMemberCategories)
      addHeading(category, [&](const std::vector<String>& ANames) {
        return std::find(ANames.begin(), ANames.end(), category->GetCategoryName()) != ANames.end();
      });
    addHeading(New<TMiscellaneousCategory>(), [](const std::vector<String>& ANames) { return ANames.empty(); });
  }
  ReExpand(FTop);
}

void TGridRows::ReExpand(std::vector<std::unique_ptr<TGridRow>>& ARows) {
  const std::unordered_set<String>& expanded = ExpandedPaths();
  for (const auto& row : ARows) {
    const String path = UpperCase(row->Path());
    if (row->IsHeading) row->Expanded = !FCollapsedHeadings.contains(path);
    else if (expanded.contains(path) && Prepare(*row) && row->Expandable) Expand(*row);
    if (row->Expanded) ReExpand(row->Children);
  }
}

Boolean TGridRows::Prepare(TGridRow& ARow) {
  if (ARow.Hidden) return false;
  if (!ARow.Editor) {
    ARow.Editor = TRef<IMemberEditor>(
        ARow.EditorClass.Create(nullptr, ARow.ParentEditor, FDesigner, nullptr, ARow.Member->GetName(), ARow.Member));
    Supports(ARow.Editor, ARow.Property);
    if (!ARow.Editor->GetIsVisible()) {
      ARow.Hidden = true;
      FShownValid = false;
      return false;
    }
    if (!ARow.Editor->GetIsSortable()) {
      FShownValid = false;
      Sort(ARow.Parent ? ARow.Parent->Children : FTop);
    }
  }
  if (ARow.ReadGeneration != FGeneration) ReadTexts(ARow);
  return true;
}

void TGridRows::ReadTexts(TGridRow& ARow) {
  ARow.ReadGeneration = FGeneration;
  if (ARow.IsHeading) return;
  const TRef<IMemberEditor>& editor = ARow.Editor;
  ARow.Name = editor->GetName();
  ARow.DisplayName = editor->GetDisplayName();
  ARow.ReadOnly = editor->GetIsReadOnly() || RefersThroughAReadOnlyMember(ARow);
  ARow.Expandable = editor->GetIsExpandable() && HasSubRows(editor);
  if (ARow.Property) {
    const Boolean readable = !ARow.Property->GetIsWriteOnly();
    ARow.Value = readable ? ARow.Property->GetDisplayValue(nullptr) : String();
    // One object's values never differ: the texts are read a second time only for several.
    const TRef<IStringArrayList> texts =
        readable && FSelectionCount > 1 ? ARow.Property->GetDisplayValues(nullptr) : nullptr;
    ARow.Mixed = texts && texts->Query()->Contains([&](const String& AText) { return AText != texts->GetItem(0); });
    ARow.IsDefault = ARow.Property->GetIsAllDefault();
  } else if (TRef<IMethodEditor> method; Supports(editor, method)) {
    ARow.Value = method->GetFunctionParamString();
  }
}

// A component reference's editor never says it is read-only, and writes the member itself: with
// no writer behind it (a component's Owner), every text would be refused.
Boolean TGridRows::RefersThroughAReadOnlyMember(const TGridRow& ARow) {
  TRef<ISinglePropertyInfo> property;
  return dynamic_cast<TComponentPropertyEditor*>(ARow.Editor.get()) && Supports(ARow.Member, property) &&
         !property->GetIsWritable();
}

void TGridRows::MakeChildren(TGridRow& ARow) {
  ARow.ChildrenMade = true;
  if (TRef<ISubPropertyEditors> subEditors; Supports(ARow.Editor, subEditors)) {
    // In the editor's order: a date's parts run from the year down.
    for (const TRef<IPropertyEditor>& editor : subEditors->GetPropertyEditors()) {
      auto child = std::make_unique<TGridRow>();
      child->Parent = &ARow;
      child->Depth = ARow.Depth + 1;
      child->Editor = editor;
      child->Property = editor;
      child->Name = child->DisplayName = editor->GetName();
      child->Hidden = !editor->GetIsVisible();
      ARow.Children.push_back(std::move(child));
    }
    return;
  }
  if (TRef<IMembersInfo> members; ARow.Editor->GetSubMembers(members, true)) {
    TMemberEditor* parent = ARow.Editor->GetInstance();
    TObject* first = FirstSelected();
    TObject* lookupObject = first ? parent->GetValueForRootInstance(first) : nullptr;
    for (Integer i = 0; i < members->GetCount(); ++i)
      if (auto child = MemberRow(members->GetItem(i), std::size_t(i), lookupObject, parent, &ARow))
        ARow.Children.push_back(std::move(child));
  }
  Sort(ARow.Children);
}

void TGridRows::Expand(TGridRow& ARow) {
  if (ARow.Expanded || !Prepare(ARow) || !ARow.Expandable) return;
  if (!ARow.ChildrenMade) MakeChildren(ARow);
  ARow.Expanded = true;
  FShownValid = false;
  const String path = UpperCase(ARow.Path());
  if (ARow.IsHeading) FCollapsedHeadings.erase(path);
  else ExpandedPaths().insert(path);
}

void TGridRows::Collapse(TGridRow& ARow) {
  if (!ARow.Expanded) return;
  ARow.Expanded = false;
  FShownValid = false;
  const String path = UpperCase(ARow.Path());
  if (ARow.IsHeading) FCollapsedHeadings.insert(path);
  else ExpandedPaths().erase(path);
}

void TGridRows::ExpandAll(Integer ADepth) { ExpandDown(FTop, ADepth); }

void TGridRows::ExpandDown(std::vector<std::unique_ptr<TGridRow>>& ARows, Integer ADepth) {
  if (ADepth <= 0) return;
  for (const auto& row : ARows) {
    Expand(*row);
    if (row->Expanded) ExpandDown(row->Children, ADepth - 1);
  }
}

Boolean TGridRows::Matches(TGridRow& ARow) {
  if (!Prepare(ARow)) return false;
  if (TRef<IMemberEditorSearch> search; Supports(ARow.Editor, search)) return search->MatchesSearch(FSearch);
  return FSearch->Matches(ARow.Name + " " + ARow.DisplayName);
}

Boolean TGridRows::AddShown(TGridRow& ARow, Boolean AAboveMatched, std::vector<TGridRow*>& AShown) {
  if (ARow.Hidden) return false;
  const Boolean self = !FSearch || AAboveMatched || (!ARow.IsHeading && Matches(ARow));
  if (ARow.Hidden) return false;
  const std::size_t place = AShown.size();
  AShown.push_back(&ARow);
  Boolean below = false;
  if (ARow.Expanded)
    for (const auto& child : ARow.Children) below = AddShown(*child, self && !ARow.IsHeading, AShown) || below;
  if (self || below) return true;
  AShown.resize(place);
  return false;
}

const std::vector<TGridRow*>& TGridRows::Shown() {
  if (!FShownValid) {
    FShown.clear();
    for (const auto& row : FTop) AddShown(*row, false, FShown);
    FShownValid = true;
  }
  return FShown;
}

TGridRow* TGridRows::Find(const String& APath) {
  std::vector<std::unique_ptr<TGridRow>>* rows = &FTop;
  TGridRow* found = nullptr;
  for (const std::string_view name : SplitString(APath, '.')) {
    if (found) {
      Expand(*found);
      if (!found->Expanded) return nullptr;
      rows = &found->Children;
    }
    const auto match = std::find_if(rows->begin(), rows->end(),
                                    [&](const std::unique_ptr<TGridRow>& ARow) { return SameText(ARow->Name, name); });
    if (match == rows->end()) return nullptr;
    found = match->get();
  }
  return found;
}

} // namespace Tarvo
