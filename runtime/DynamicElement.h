#pragma once
#pragma GCC visibility push(default)
// TDynamicElement: the base of an element a component owns and a designer may replace by another
// class registered for the element's type (reflection/DynamicElements.h). Element classes are
// built through their class reference, given the object that owns them.

#include "runtime/Component.h"

namespace Tarvo {

class TDynamicElement : public TPersistent {
  TARVO_CLASS(TDynamicElement, TPersistent)
public:
  using TConstructor = TConstructorSignature<TPersistent*>;
  explicit TDynamicElement(TPersistent* AOwner) : FOwner(AOwner) {}
  TPersistent* GetOwner() const override { return FOwner; }

private:
  TPersistent* FOwner; // not owned
};

using TDynamicElementClass = TClassOf<TDynamicElement>;

} // namespace Tarvo

#pragma GCC visibility pop
