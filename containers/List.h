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

// The lists that the runtime's own interfaces hand out are compiled once, in
// containers/instances/. Lists of other element types are compiled where they are used, which
// also lets a tight loop over them be inlined.
TARVO_ARRAY_LIST_INSTANCES(extern, TObject*)
TARVO_ARRAY_LIST_INSTANCES(extern, String)
TARVO_ARRAY_LIST_INSTANCES(extern, Boolean)
TARVO_ARRAY_LIST_INSTANCES(extern, TValue)
TARVO_ARRAY_LIST_INSTANCES(extern, TClass)
TARVO_LIST_ELEMENT_INSTANCES(extern, TInterfacedChangeNotifyItem)
TARVO_LINKED_LIST_INSTANCES(extern, TInterfacedChangeNotifyItem)

} // namespace Tarvo

#pragma GCC visibility pop
