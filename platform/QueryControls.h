#pragma once
#pragma GCC visibility push(default)
// Queries over the child widgets of a widget, narrowed to one widget class.

#include <QWidget>

#include <memory>
#include <unordered_map>

#include "containers/ArrayList.h"
#include "containers/ComponentEnumerators.h"

namespace Tarvo {

using IWidgetArrayList = IArrayList<QWidget*>;

namespace Detail {
// The direct children of each widget a walk enters, asked of Qt once per walk: a walk asks a
// widget for its count on every step and for each child by index.
class TChildWidgets {
public:
  Integer Count(QWidget* AWidget) { return Integer(Of(AWidget).size()); }
  QWidget* Item(QWidget* AWidget, Integer AIndex) { return Of(AWidget).at(AIndex); }

private:
  const QList<QWidget*>& Of(QWidget* AWidget) {
    auto [entry, added] = FChildren.try_emplace(AWidget);
    if (added) entry->second = AWidget->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    return entry->second;
  }
  std::unordered_map<QWidget*, QList<QWidget*>> FChildren;
};
} // namespace Detail

// The children of AParent that are a T, in creation order, or its whole subtree with ARecursive.
// The elements stay QWidget*, the type the walk goes through. Each walk sees the children as they
// are when it enters a widget.
template <class T>
TRef<IContainerQuery<QWidget*, TRef<IWidgetArrayList>, QWidget*>> QueryControls(QWidget* AParent,
                                                                                Boolean ARecursive = false) {
  TARVO_ASSERT(AParent != nullptr);
  auto createEnumerator = [AParent, ARecursive]() -> TRef<IEnumerator<QWidget*>> {
    const auto children = std::make_shared<Detail::TChildWidgets>();
    TFunc<QWidget*, Integer> count = [children](QWidget* AWidget) { return children->Count(AWidget); };
    TFunc<QWidget*, Integer, QWidget*> item = [children](QWidget* AWidget, Integer AIndex) {
      return children->Item(AWidget, AIndex);
    };
    TRef<IEnumerator<QWidget*>> walk;
    if (ARecursive) walk = New<TComponentEnumeratorRecursive<QWidget*>>(AParent, count, item);
    else walk = New<TComponentEnumerator<QWidget*>>(AParent, count, item);
    return New<TFilterEnumerator<QWidget*>>(
        walk, [](QWidget* const& AWidget) { return qobject_cast<T*>(AWidget) != nullptr; });
  };
  return New<TContainerQuery<QWidget*, TRef<IWidgetArrayList>, QWidget*>>(
      createEnumerator, [] { return TRef<IWidgetArrayList>(New<TArrayList<QWidget*>>()); },
      [](TRef<IWidgetArrayList> AList, QWidget* AWidget) { AList->Add(AWidget); }, AParent);
}

// Compiled once, in platform/instances/.
TARVO_ARRAY_LIST_INSTANCES(extern, QWidget*)

} // namespace Tarvo

#pragma GCC visibility pop
