#pragma once
// Queries over the child widgets of a widget, narrowed to one widget class.

#include <QWidget>

#include "containers/ArrayList.h"
#include "containers/ComponentEnumerators.h"

namespace Tarvo {

using IWidgetArrayList = IArrayList<QWidget*>;

namespace Detail {
inline QList<QWidget*> ChildWidgets(QWidget* AParent) {
  return AParent->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
}
} // namespace Detail

// The children of AParent that are a T, in creation order, or its whole subtree with ARecursive.
// The elements stay QWidget*, the type the walk goes through.
template <class T>
TRef<IContainerQuery<QWidget*, TRef<IWidgetArrayList>, QWidget*>> QueryControls(QWidget* AParent,
                                                                                Boolean ARecursive = false) {
  TARVO_ASSERT(AParent != nullptr);
  return CreateComponentQuery<QWidget*, TRef<IWidgetArrayList>, QWidget*>(
      AParent, [](QWidget* AWidget) { return Integer(Detail::ChildWidgets(AWidget).size()); },
      [](QWidget* AWidget, Integer AIndex) { return Detail::ChildWidgets(AWidget).at(AIndex); }, ARecursive, false,
      [](QWidget* const& AWidget) { return qobject_cast<T*>(AWidget) != nullptr; },
      [] { return TRef<IWidgetArrayList>(New<TArrayList<QWidget*>>()); },
      [](TRef<IWidgetArrayList> AList, QWidget* AWidget) { AList->Add(AWidget); });
}

} // namespace Tarvo
