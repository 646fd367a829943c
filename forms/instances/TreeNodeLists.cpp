// The tree select dialog's node lists, compiled here once; its header declares them extern.
#include "forms/TreeSelectDialog.h"

namespace Tarvo {
TARVO_ARRAY_LIST_INSTANCES(, TRef<TTarvoTreeSelectDialogForm::TNode>)
TARVO_ARRAY_LIST_INSTANCES(, TRef<TTarvoTreeSelectDialogForm::TNodeList>)
} // namespace Tarvo
