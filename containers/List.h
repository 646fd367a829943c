#pragma once
#pragma GCC visibility push(default)
// The list containers and their two named instantiations: IObjectArrayList, the list of objects
// that stands for a selection, and IStringArrayList.

#include "containers/ArrayList.h"
#include "containers/LinkedList.h"

namespace Tarvo {

using IObjectArrayList = IArrayList<TObject*>;
using TObjectArrayList = TArrayList<TObject*>;
using IStringArrayList = IArrayList<String>;
// Sorts by the ordinal, case-sensitive order of the text.
using TStringArrayList = TArrayList<String>;

extern template class TArrayList<TObject*>;
extern template class TArrayList<String>;
extern template class TLinkedList<TInterfacedChangeNotifyItem>;

} // namespace Tarvo

#pragma GCC visibility pop
