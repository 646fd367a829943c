#pragma once
// What the design core needs from the component side without knowing a component class: the
// designer's modification bracket, member categories, the registry of component classes with
// its hooks, generated name bases and the element classes offered for class members.

#include <vector>

#include "containers/List.h"
#include "design/reflection/Attributes.h"
#include "rtl/InterfacedObject.h"

namespace Tarvo {

class IBasicDesigner : public virtual IInterface {
  TARVO_INTERFACE(IBasicDesigner, IInterface, "{20F4E7BE-5DA8-4C9A-9591-BB8B7CA02E96}")
public:
  virtual void BeginModify() = 0;
  virtual void EndModify() = 0;
  virtual void Modified() = 0;
};

// ---- Member categories ----

class IMemberCategory : public virtual IInterface {
  TARVO_INTERFACE(IMemberCategory, IInterface, "{981BB9F0-9B52-4C3E-A079-0599082A1DCD}")
public:
  virtual String GetName() = 0;
  // The name of a bitmap resource of the category class's module; empty for none.
  virtual String GetBitmapName() = 0;
};

// The base of the category classes, which are built through their class reference.
class TMemberCategory : public TImplements<TInterfacedObject, IMemberCategory> {
  TARVO_CLASS(TMemberCategory, TImplements<TInterfacedObject, IMemberCategory>)
public:
  using TConstructor = TConstructorSignature<>;
  String GetBitmapName() override { return String(); }
};
using TMemberCategoryClass = TClassOf<TMemberCategory>;

// Builds the category that AClass stands for.
TRef<IMemberCategory> CreateMemberCategory(TMemberCategoryClass AClass);

// A category class that only names itself; TARVO_IMPLEMENT_MEMBER_CATEGORY gives the name.
#define TARVO_MEMBER_CATEGORY(AClass)                                                              \
  class AClass : public TMemberCategory {                                                          \
    TARVO_CLASS(AClass, TMemberCategory)                                                           \
  public:                                                                                          \
    String GetName() override;                                                                     \
  };

#define TARVO_IMPLEMENT_MEMBER_CATEGORY(AClass, AName)                                             \
  TARVO_IMPLEMENT_CLASS(AClass)                                                                    \
  String AClass::GetName() { return AName; }

TARVO_MEMBER_CATEGORY(TVisualMemberCategory)
TARVO_MEMBER_CATEGORY(TLayoutMemberCategory)
TARVO_MEMBER_CATEGORY(TBehaviorMemberCategory)
TARVO_MEMBER_CATEGORY(TActionMemberCategory)
TARVO_MEMBER_CATEGORY(TDragDropMemberCategory)
TARVO_MEMBER_CATEGORY(THelpMemberCategory)
TARVO_MEMBER_CATEGORY(TInputMemberCategory)
TARVO_MEMBER_CATEGORY(TLinkageMemberCategory)
TARVO_MEMBER_CATEGORY(TLocalizableMemberCategory)
TARVO_MEMBER_CATEGORY(TMiscellaneousMemberCategory)

// Puts the member it stands on, or every member of the type it stands on, into a category.
TARVO_ATTRIBUTE_1(TMemberCategoryAttribute, TCustomAttribute, TMemberCategoryClass, CategoryClass)

// ---- Component classes ----

// Registers component classes on a palette page, in the order given. Each new class runs the
// registration procedures, then the registered notifications, each in the order they were
// added. A class registered before keeps its first page and is not announced again. A hook's
// exception passes through; the classes announced before it stay registered.
void RegisterComponents(const String& APage, const std::vector<TClass>& AClasses);
// The registered classes in registration order; a module's classes leave when it unloads.
TRef<IArrayList<TClass>> GetRegisteredComponents();
// The palette page of a registered class; empty for one that is not registered.
String GetComponentPage(TClass AClass);

// The hooks are called for every class registered from then on, and at once for each class
// registered before, in registration order: what they do to a class does not depend on whether
// the design core or the component module loaded first. The key removes a hook again; a hook
// that raises while catching up is not kept.
int RegisterComponentRegisteredNotify(TProc<TClass> ANotify);
void UnregisterComponentRegisteredNotify(int AKey);
int AddComponentRegistrationProcedure(TProc<TClass> AProcedure);
void RemoveComponentRegistrationProcedure(int AKey);

// The class name without its leading "T": the base of generated names such as "Shape1".
String GetClassNameBase(TClass AClass);
String GetClassNameBase(TObject* AObject);

// ---- Dynamic elements ----

// Offers AElementClass, which must descend from ABase, for members of type ABase.
void RegisterDynamicElement(TClass ABase, TClass AElementClass);
// The element classes a member of type ABase can hold, in registration order, each once: those
// registered for ABase, and those registered for an ancestor of ABase that descend from ABase.
// Elements registered for a descendant of ABase are not offered. A module's registrations leave
// when it unloads, whether it holds the base or the element.
TRef<IArrayList<TClass>> GetDynamicElementsFor(TClass ABase);

} // namespace Tarvo
