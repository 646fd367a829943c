#pragma once
// What every inspector of a selection asks before it makes rows: the members the selected objects
// share, the kind a member counts as for its categories, whether an expandable row opens on
// anything, and the name order that leaves unsortable rows in their places.

#include <algorithm>
#include <vector>

#include "design/MemberEditor.h"
#include "design/MemberKinds.h"
#include "rtl/SysUtils.h"

namespace Tarvo {

// The public and published members of the first object whose names every other selected object
// has as well; protected and private ones are no one's business in an inspector, whatever editor
// the package would give them. Objects of one class are looked at once.
std::vector<TRef<IMemberInfo>> CommonMembers(const TRef<IObjectArrayList>& ASelection);

TMemberKind MemberKindOf(const TRef<IMemberInfo>& AMember);

// The names of the categories AMember of AClass falls in, in the categories' order.
std::vector<String> CategoryNamesOf(const TRef<IMemberInfo>& AMember, TClass AClass);

// A row marked as expandable that would open on nothing (a reference to a component) is not
// offered as one.
Boolean HasSubRows(const TRef<IMemberEditor>& AEditor);

// Sorts the rows for which ASortable holds by the text AName gives, without regard to case; the
// others keep their places.
template <class TRow, class FSortable, class FName>
void SortRowsByName(std::vector<TRow>& ARows, FSortable ASortable, FName AName) {
  std::vector<std::size_t> places;
  std::vector<TRow> sortable;
  for (std::size_t i = 0; i < ARows.size(); ++i)
    if (ASortable(ARows[i])) {
      places.push_back(i);
      sortable.push_back(std::move(ARows[i]));
    }
  std::stable_sort(sortable.begin(), sortable.end(),
                   [&](const TRow& A, const TRow& B) { return CompareText(AName(A), AName(B)) < 0; });
  for (std::size_t i = 0; i < places.size(); ++i) ARows[places[i]] = std::move(sortable[i]);
}

} // namespace Tarvo
