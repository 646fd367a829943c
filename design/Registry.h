#pragma once
// The table that says which editor class edits which reflected member, and the lookup that
// answers it for one member of one object: the most specific registered entry wins by a fixed
// order of tests; when none matches, a fallback picks a default editor by the member's kind and
// its type's kind. Lookup is a linear scan in registration order: the order is part of the
// behaviour, so no index may replace it.

#include <array>
#include <span>

#include "design/MemberEditor.h"
#include "design/MemberKinds.h"

namespace Tarvo {

class TMemberEditorItem;

class TARVO_API IMemberEditorItem : public virtual IInterface {
  TARVO_INTERFACE(IMemberEditorItem, "{6C1E2F3A-7B4D-4E8F-9A0B-1C2D3E4F5A70}", IInterface)
public:
  virtual TMemberEditorItem* GetInstance() = 0;
};

// One registration; immutable once built.
class TARVO_API TMemberEditorItem : public TImplements<TInterfaced, IMemberEditorItem> {
  TARVO_CLASS(TMemberEditorItem, TImplements<TInterfaced, IMemberEditorItem>)
public:
  // The name is kept only together with an owner class.
  TMemberEditorItem(TMemberKinds AKinds, TRef<ITypeInfo> AMemberType, TClass AOwnerClass, const String& AMemberName,
                    TMemberEditorClass AEditorClass);
  TMemberEditorItem* GetInstance() override { return this; }

  const TMemberKinds Kinds;
  const TRef<ITypeInfo> MemberType;
  const String MemberName;
  const TClass OwnerClass;
  const TMemberEditorClass EditorClass;
  // The module on whose behalf the package made the entry (see TEditorRegistrationOrigin); nil
  // for an entry registered for its own sake.
  TModule* const Origin;
};

// Entries registered while one lasts leave with AModule when it unloads, whatever classes and
// types they name: those the package makes for a module's component classes (a hidden member of
// a runtime type is registered for TObject, which no module holds).
class TEditorRegistrationOrigin {
public:
  explicit TEditorRegistrationOrigin(TModule* AModule);
  ~TEditorRegistrationOrigin();
  TEditorRegistrationOrigin(const TEditorRegistrationOrigin&) = delete;
  TEditorRegistrationOrigin& operator=(const TEditorRegistrationOrigin&) = delete;

private:
  TModule* FPrevious;
};

using IMemberEditorItemList = IArrayList<TRef<IMemberEditorItem>>;

// The registry; made at the unit's initialisation and released at its finalisation.
extern TARVO_API TRef<ILinkedList<TRef<IMemberEditorItem>>> GMemberEditors;

// The editors the fallback chooses: one per type kind (nil where a kind has none) and the
// classes of its special cases. The package's registrations fill them in.
struct TFallbackEditorClasses {
  std::array<TMemberEditorClass, tkProcedure + 1> ByTypeKind{};
  TMemberEditorClass SetValueEditor;
  TMemberEditorClass VariantTypeEditor;
  TMemberEditorClass MultiLineStringEditor;
  TMemberEditorClass StringEditor;
  TMemberEditorClass DynamicElementEditor;
  TMemberEditorClass MethodEditor;
};
extern TARVO_API TFallbackEditorClasses DefaultEditorClasses;

TARVO_API void RegisterMemberEditor(TMemberKinds AKinds, const TRef<ITypeInfo>& AMemberType, TClass AOwnerClass,
                                    const String& AMemberName, TMemberEditorClass AEditorClass);

TARVO_API void RegisterPropertyEditor(const TRef<ITypeInfo>& AMemberType, TClass AOwnerClass, const String& AMemberName,
                                      TMemberEditorClass AEditorClass);
// One entry for each owner class, in order.
TARVO_API void RegisterPropertyEditor(const TRef<ITypeInfo>& AMemberType, std::span<const TClass> AOwnerClasses,
                                      const String& AMemberName, TMemberEditorClass AEditorClass);
TARVO_API void RegisterPropertyEditor(const TRef<ITypeInfo>& AMemberType, TMemberEditorClass AEditorClass);
TARVO_API void RegisterPropertyEditor(PTypeInfo AMemberType, TMemberEditorClass AEditorClass);
TARVO_API void RegisterPropertyEditor(PTypeInfo AMemberType, TClass AOwnerClass, const String& AMemberName,
                                      TMemberEditorClass AEditorClass);
TARVO_API void RegisterPropertyEditor(PTypeInfo AMemberType, std::span<const TClass> AOwnerClasses,
                                      const String& AMemberName, TMemberEditorClass AEditorClass);

// One line of an editor family's start-up table.
struct TEditorRegistration {
  PTypeInfo MemberType;
  TClass OwnerClass;      // nil: any class
  const char* MemberName; // empty: any name
  TMemberEditorClass EditorClass;
};
// Registers the lines in their order.
TARVO_API void RegisterPropertyEditors(std::initializer_list<TEditorRegistration> ALines);

// The entries that serve AMember of AObject, ties in registration order. False with a nil list
// for a hidden member; false with an empty list when nothing serves.
TARVO_API bool GetMemberEditorEntries(const TRef<IMemberInfo>& AMember, TObject* AObject,
                                      TRef<IMemberEditorItemList>& AResult);
// The editor classes of those entries; the caller builds element 0.
TARVO_API bool GetMemberEditorClasses(const TRef<IMemberInfo>& AMember, TObject* AObject,
                                      TRef<IArrayList<TMemberEditorClass>>& AResult);

// Removes every entry whose item class, owner class, editor class or member type lies in AModule,
// and every entry made on its behalf.
void SweepMemberEditors(TModule* AModule);

// Compiled once, in design/instances/.
TARVO_ARRAY_LIST_INSTANCES(extern, TRef<IMemberEditorItem>)
TARVO_LINKED_LIST_INSTANCES(extern, TRef<IMemberEditorItem>)

} // namespace Tarvo
