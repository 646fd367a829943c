#include "design/Registry.h"

#include <utility>

#include "reflection/RowAttributes.h"
#include "reflection/RttiTypes.h"
#include "rtl/SysUtils.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TMemberEditorItem)

TRef<ILinkedList<TRef<IMemberEditorItem>>> GMemberEditors;
TFallbackEditorClasses DefaultEditorClasses;

namespace {
TModule* GRegistrationOrigin = nullptr;
} // namespace

TMemberEditorItem::TMemberEditorItem(TMemberKinds AKinds, TRef<ITypeInfo> AMemberType, TClass AOwnerClass,
                                     const String& AMemberName, TMemberEditorClass AEditorClass)
    : Kinds(AKinds), MemberType(std::move(AMemberType)), MemberName(AOwnerClass ? AMemberName : String()),
      OwnerClass(AOwnerClass), EditorClass(AEditorClass), Origin(GRegistrationOrigin) {}

TEditorRegistrationOrigin::TEditorRegistrationOrigin(TModule* AModule)
    : FPrevious(std::exchange(GRegistrationOrigin, AModule)) {}

TEditorRegistrationOrigin::~TEditorRegistrationOrigin() { GRegistrationOrigin = FPrevious; }

// ---- Registration ----

void RegisterMemberEditor(TMemberKinds AKinds, const TRef<ITypeInfo>& AMemberType, TClass AOwnerClass,
                          const String& AMemberName, TMemberEditorClass AEditorClass) {
  GMemberEditors->Add(New<TMemberEditorItem>(AKinds, AMemberType, AOwnerClass, AMemberName, AEditorClass));
}

void RegisterPropertyEditor(const TRef<ITypeInfo>& AMemberType, TClass AOwnerClass, const String& AMemberName,
                            TMemberEditorClass AEditorClass) {
  RegisterMemberEditor({mkSingleProperty}, AMemberType, AOwnerClass, AMemberName, AEditorClass);
}

void RegisterPropertyEditor(const TRef<ITypeInfo>& AMemberType, std::span<const TClass> AOwnerClasses,
                            const String& AMemberName, TMemberEditorClass AEditorClass) {
  for (TClass ownerClass : AOwnerClasses) RegisterPropertyEditor(AMemberType, ownerClass, AMemberName, AEditorClass);
}

void RegisterPropertyEditor(const TRef<ITypeInfo>& AMemberType, TMemberEditorClass AEditorClass) {
  RegisterPropertyEditor(AMemberType, nullptr, String(), AEditorClass);
}

void RegisterPropertyEditor(PTypeInfo AMemberType, TMemberEditorClass AEditorClass) {
  RegisterPropertyEditor(TTypeInfoHelper::TypeInfo(AMemberType), AEditorClass);
}

void RegisterPropertyEditor(PTypeInfo AMemberType, TClass AOwnerClass, const String& AMemberName,
                            TMemberEditorClass AEditorClass) {
  RegisterPropertyEditor(TTypeInfoHelper::TypeInfo(AMemberType), AOwnerClass, AMemberName, AEditorClass);
}

void RegisterPropertyEditor(PTypeInfo AMemberType, std::span<const TClass> AOwnerClasses, const String& AMemberName,
                            TMemberEditorClass AEditorClass) {
  RegisterPropertyEditor(TTypeInfoHelper::TypeInfo(AMemberType), AOwnerClasses, AMemberName, AEditorClass);
}

void RegisterPropertyEditors(std::initializer_list<TEditorRegistration> ALines) {
  for (const TEditorRegistration& line : ALines)
    RegisterPropertyEditor(line.MemberType, line.OwnerClass, line.MemberName, line.EditorClass);
}

// ---- Lookup ----

namespace {

// What the scan asks of the member, worked out once before it.
struct TMemberFacts {
  TRef<ITypeInfo> Type;
  PTypeInfo Handle = nullptr;
  String Name;
  TMemberKinds Supported; // the kinds an entry can name and this member answers
  TClass ObjectClass = nullptr;
};

TMemberFacts FactsOf(const TRef<IMemberInfo>& AMember, TObject* AObject) {
  TMemberFacts facts;
  facts.Type = AMember->GetTypeInfo();
  facts.Handle = facts.Type ? facts.Type->GetHandle() : nullptr;
  facts.Name = AMember->GetName();
  if (Supports<ISinglePropertyInfo>(AMember)) facts.Supported.Include(mkSingleProperty);
  if (Supports<IIndexedPropertyInfo>(AMember)) facts.Supported.Include(mkIndexedProperty);
  if (Supports<IMethodInfo>(AMember)) facts.Supported.Include(mkMethod);
  if (Supports<IFieldInfo>(AMember)) facts.Supported.Include(mkField);
  facts.ObjectClass = AObject ? AObject->ClassType() : nullptr;
  return facts;
}

bool IsKind(const TRef<ITypeInfo>& AType, TTypeKind AKind) { return AType && AType->GetTypeKind() == AKind; }

// Whether entry C applies to the member: type, kinds, owner class, name.
bool Matches(const TMemberEditorItem& C, const TMemberFacts& AFacts) {
  const bool typeMatches =
      AFacts.Handle == C.MemberType->GetHandle() ||
      (IsKind(AFacts.Type, tkClass) && IsKind(C.MemberType, tkClass) && AFacts.Type->InheritsFrom(C.MemberType, false));
  if (!typeMatches) return false;
  if ((C.Kinds * AFacts.Supported).IsEmpty()) return false; // mkEvent and mkSet never count here
  if (C.OwnerClass && !AFacts.ObjectClass->InheritsFrom(C.OwnerClass)) return false;
  return C.MemberName.empty() || SameText(C.MemberName, AFacts.Name);
}

// Whether C takes the place of the best entry so far; the first rule that holds decides.
bool Replaces(const TMemberEditorItem& C, const TMemberEditorItem* ABest, const TMemberFacts& AFacts) {
  if (!ABest) return true;
  if (!ABest->OwnerClass && C.OwnerClass) return true;
  if (ABest->MemberName.empty() && !C.MemberName.empty()) return true;
  if (!(ABest->MemberType == AFacts.Type) && C.MemberType == AFacts.Type) return true;
  const bool bothClasses = IsKind(C.MemberType, tkClass) && IsKind(ABest->MemberType, tkClass);
  const bool bothInterfaces = IsKind(C.MemberType, tkInterface) && IsKind(ABest->MemberType, tkInterface);
  if (!(C.MemberType == ABest->MemberType) && (bothClasses || bothInterfaces) &&
      C.MemberType->InheritsFrom(ABest->MemberType, false))
    return true;
  return C.OwnerClass && ABest->OwnerClass && C.OwnerClass != ABest->OwnerClass &&
         C.OwnerClass->InheritsFrom(ABest->OwnerClass);
}

// A default editor by the member's kind and its type's kind; the entries made never enter the
// registry.
void AddFallback(const TRef<IMemberInfo>& AMember, const TMemberFacts& AFacts,
                 const TRef<IMemberEditorItemList>& AResult) {
  const TMemberVisibility visibility = AMember->GetVisibility();
  if (visibility != mvPublic && visibility != mvPublished) return;
  const auto add = [&](TMemberKinds AKinds, TMemberEditorClass AEditor) {
    AResult->Add(New<TMemberEditorItem>(AKinds, AFacts.Type, nullptr, String(), AEditor));
  };
  if (Supports<IValueMemberInfo>(AMember)) {
    const TTypeKind kind = AFacts.Type->GetTypeKind();
    const TMemberEditorClass byKind = DefaultEditorClasses.ByTypeKind[kind];
    if (!byKind) return;
    const bool isString = kind == tkString || kind == tkLString || kind == tkUString;
    if (kind == tkMethod) add({mkEvent}, byKind);
    else if (Supports<ISetValueMemberInfo>(AMember)) add({mkSet}, DefaultEditorClasses.SetValueEditor);
    else if (Supports<IVariantTypeMemberInfo>(AMember)) add({mkField}, DefaultEditorClasses.VariantTypeEditor);
    else if (isString && AMember->HasCustomAttribute(MultiLineAttribute::ClassInfo(), true))
      add({mkSet}, DefaultEditorClasses.MultiLineStringEditor);
    else if (isString) add({mkSet}, DefaultEditorClasses.StringEditor);
    else if (kind == tkClass && AMember->HasCustomAttribute(DynamicElementAttribute::ClassInfo(), true))
      add({mkSingleProperty}, DefaultEditorClasses.DynamicElementEditor);
    else add({mkSingleProperty}, byKind);
    return;
  }
  TRef<IMethodInfo> method;
  if (Supports(AMember, method) && (method->GetMethodKind() == mkProcedure || method->GetMethodKind() == mkFunction))
    add({mkMethod}, DefaultEditorClasses.MethodEditor);
}

} // namespace

bool GetMemberEditorEntries(const TRef<IMemberInfo>& AMember, TObject* AObject, TRef<IMemberEditorItemList>& AResult) {
  AResult = nullptr;
  if (AMember->HasCustomAttribute(HiddenDesignAttribute::ClassInfo(), true)) return false;
  AResult = New<TArrayList<TRef<IMemberEditorItem>>>();
  TRef<IMethodInfo> method;
  if (Supports(AMember, method) && !method->GetHasExtendedInfo()) return false;
  const TMemberFacts facts = FactsOf(AMember, AObject);
  if (Supports<IPropertyInfo>(AMember)) {
    const TMemberEditorItem* best = nullptr;
    for (const TRef<IMemberEditorItem>& entry : GMemberEditors) {
      const TMemberEditorItem& candidate = *entry->GetInstance();
      if (!Matches(candidate, facts)) continue;
      if (Replaces(candidate, best, facts)) {
        AResult->Clear();
      } else if (!best || candidate.OwnerClass != best->OwnerClass || !(candidate.MemberType == best->MemberType)) {
        continue;
      }
      // A tie (same owner and type; names are not compared) stays behind the entries before it.
      AResult->Add(entry);
      best = &candidate;
    }
  }
  if (AResult->GetCount() == 0) AddFallback(AMember, facts, AResult);
  return AResult->GetCount() > 0;
}

bool GetMemberEditorClasses(const TRef<IMemberInfo>& AMember, TObject* AObject,
                            TRef<IArrayList<TMemberEditorClass>>& AResult) {
  AResult = New<TArrayList<TMemberEditorClass>>();
  TRef<IMemberEditorItemList> entries;
  if (GetMemberEditorEntries(AMember, AObject, entries))
    for (const TRef<IMemberEditorItem>& entry : entries) AResult->Add(entry->GetInstance()->EditorClass);
  return AResult->GetCount() > 0;
}

// ---- Unloading ----

void SweepMemberEditors(TModule* AModule) {
  if (!GMemberEditors) return;
  GMemberEditors->RemoveAll([AModule](const TRef<IMemberEditorItem>& AEntry) {
    const TMemberEditorItem& item = *AEntry->GetInstance();
    return item.Origin == AModule || item.ClassType()->Module() == AModule ||
           (item.OwnerClass && item.OwnerClass->Module() == AModule) ||
           (item.EditorClass && item.EditorClass->Module() == AModule) ||
           (item.MemberType && item.MemberType->GetHandle()->Module() == AModule);
  });
}

} // namespace Tarvo
