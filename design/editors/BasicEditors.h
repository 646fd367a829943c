#pragma once
// The editors of rows that hold no value of their own: a member kept out of the grid, a method
// and an event. Their registrations: the members that the design core hides, the hidden members
// of registered components, and the fallback of every value kind to the base value editor until
// a typed family takes the kind over.

#include "design/MemberEditor.h"

namespace Tarvo {

// A member that stays out of the grid.
class TARVO_API THiddenEditor : public TMemberEditor {
  TARVO_CLASS(THiddenEditor, TMemberEditor)
public:
  using TMemberEditor::TMemberEditor;
  Boolean GetIsVisible() override { return false; }
};

class TARVO_API IMethodEditor : public virtual IInterface {
  TARVO_INTERFACE(IMethodEditor, "{6C1E2F3A-7B4D-4E8F-9A0B-1C2D3E4F5A62}", IInterface)
public:
  virtual String GetFunctionParamString() = 0;
};

class TARVO_API TMethodEditor : public TImplements<TMemberEditor, IMethodEditor> {
  TARVO_CLASS(TMethodEditor, TImplements<TMemberEditor, IMethodEditor>)
public:
  using TImplements::TImplements;
  // "(AName: Type; ...)", with " : Result" for a function, or "(???)" without parameter info.
  String GetFunctionParamString() override;
};

// Marks a row as an event; what the host does with it is the host's affair.
class TARVO_API IEventEditor : public virtual IMemberEditor {
  TARVO_INTERFACE(IEventEditor, "{6C1E2F3A-7B4D-4E8F-9A0B-1C2D3E4F5A63}", IMemberEditor)
};

class TARVO_API TEventPropertyEditor : public TImplements<TMemberEditor, IEventEditor> {
  TARVO_CLASS(TEventPropertyEditor, TImplements<TMemberEditor, IEventEditor>)
public:
  using TImplements::TImplements;
};

// Registers THiddenEditor for the hidden members reached from a component class's published
// members; a type met before in the walk is not looked at again.
void RegisterHiddenMembers(TClass AComponentClass);

} // namespace Tarvo
