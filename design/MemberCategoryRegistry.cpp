#include "design/MemberCategoryRegistry.h"

#include "reflection/RttiTypes.h"
#include "rtl/Module.h"

namespace Tarvo {

TRef<TMemberCategories> GMemberCategories;

// ---- Instances ----

TMemberCategoryInstance::TMemberCategoryInstance(TMemberCategoryClass AClass) : FClass(AClass) {
  const TRef<IMemberCategory> category = CreateMemberCategory(AClass);
  FCategoryName = category->GetName();
  if (const String bitmap = category->GetBitmapName(); !bitmap.empty())
    FBitmap = TIGXBitmap::Create(TClass(AClass)->Module(), bitmap);
  for (TRef<IMemberFilters>& filters : FFilters) filters = New<TMemberFilters>();
}

Boolean TMemberCategoryInstance::GetImage(TRef<IGXBitmap>& ABitmap) {
  ABitmap = FBitmap;
  return FBitmap != nullptr;
}

void TMemberCategoryInstance::AddFilter(TMemberKinds AKinds, const TRef<IMemberFilter>& AFilter) {
  for (TMemberKind kind = mkSingleProperty; kind <= mkSet; kind = TMemberKind(kind + 1)) {
    if (!AKinds.Contains(kind)) continue;
    const TRef<IMemberFilters>& filters = FFilters[kind];
    if (!filters->Query()->Contains([&](const TRef<IMemberFilter>& AOther) { return AOther->IsEqual(AFilter); }))
      filters->Add(AFilter);
  }
}

Boolean TMemberCategoryInstance::IsInCategory(TMemberKind AKind, TClass AClass, const String& AName,
                                              const TRef<ITypeInfo>& AType) {
  for (const TRef<IMemberFilter>& filter : FFilters[AKind])
    if (filter->Matches(AClass, AName, AType)) return true;
  return false;
}

void TMemberCategoryInstance::SweepModule(TModule* AModule) {
  for (const TRef<IMemberFilters>& filters : FFilters)
    filters->RemoveAll([AModule](const TRef<IMemberFilter>& AFilter) {
      const TRef<ITypeInfo> type = AFilter->GetMemberType();
      return (AFilter->GetComponentClass() && AFilter->GetComponentClass()->Module() == AModule) ||
             (type && type->GetHandle()->Module() == AModule);
    });
}

TRef<IMemberCategoryInstance> TMemberCategories::GetCategory(TMemberCategoryClass AClass) {
  for (const TRef<IMemberCategoryInstance>& instance : *this)
    if (instance->GetCategoryClass() == AClass) return instance;
  const TRef<IMemberCategoryInstance> instance = New<TMemberCategoryInstance>(AClass);
  Add(instance);
  return instance;
}

TRef<IMemberCategories> GetMemberCategories(TMemberKind AKind, TClass AClass, const String& AName,
                                            const TRef<ITypeInfo>& AType) {
  const TRef<IMemberCategories> result = New<TMemberCategories>();
  if (GMemberCategories)
    for (const TRef<IMemberCategoryInstance>& instance : *GMemberCategories)
      if (instance->IsInCategory(AKind, AClass, AName, AType)) result->Add(instance);
  return result;
}

void SweepMemberCategories(TModule* AModule) {
  if (!GMemberCategories) return;
  GMemberCategories->RemoveAll([AModule](const TRef<IMemberCategoryInstance>& AInstance) {
    return TClass(AInstance->GetCategoryClass())->Module() == AModule;
  });
  for (const TRef<IMemberCategoryInstance>& instance : *GMemberCategories)
    dynamic_cast<TMemberCategoryInstance&>(*instance).SweepModule(AModule);
}

std::size_t MemberCategoryFilterCount() {
  std::size_t count = 0;
  if (GMemberCategories)
    for (const TRef<IMemberCategoryInstance>& instance : *GMemberCategories)
      for (Integer kind = 0; kind <= mkSet; ++kind)
        count += dynamic_cast<TMemberCategoryInstance&>(*instance).GetFilters(TMemberKind(kind))->GetCount();
  return count;
}

// ---- The heading row ----

TARVO_IMPLEMENT_CLASS(TCategoryEditor)

TCategoryEditor::TCategoryEditor(TRef<IMemberCategory> ACategory)
    : TMemberEditor(nullptr, nullptr, nullptr, nullptr, String(), nullptr), FCategory(std::move(ACategory)) {}

Boolean TCategoryEditor::GetImage(TRef<IGXBitmap>& ABitmap) {
  TRef<IMemberCategoryInstance> instance;
  if (Supports(FCategory, instance)) return instance->GetImage(ABitmap);
  ABitmap = nullptr;
  return false;
}

// ---- Registration ----

TCategoryType::TCategoryType(PTypeInfo ATypeRecord) : Type(TTypeInfoHelper::TypeInfo(ATypeRecord)) {}

namespace {

void RegisterFilter(TCategoryClasses ACategories, TClass AOwnerClass, TMemberKinds AKinds, const TRef<ITypeInfo>& AType,
                    const String& AName) {
  const TRef<IMemberFilter> filter = New<TMemberFilter>(AName, AOwnerClass, AType);
  for (TMemberCategoryClass category : ACategories) GMemberCategories->GetCategory(category)->AddFilter(AKinds, filter);
}

const TMemberKinds Properties{mkSingleProperty};

} // namespace

void RegisterMemberInCategories(TCategoryClasses ACategories, TClass AOwnerClass, TMemberKinds AKinds,
                                const TCategoryType& AType, const String& AName) {
  RegisterFilter(ACategories, AOwnerClass, AKinds, AType.Type, AName);
}
void RegisterMemberInCategories(TCategoryClasses ACategories, TClass AOwnerClass, TMemberKinds AKinds,
                                const String& AName) {
  RegisterFilter(ACategories, AOwnerClass, AKinds, nullptr, AName);
}
void RegisterMemberInCategories(TCategoryClasses ACategories, TClass AOwnerClass, TMemberKinds AKinds,
                                const TCategoryType& AType) {
  RegisterFilter(ACategories, AOwnerClass, AKinds, AType.Type, String());
}
void RegisterMembersInCategories(TCategoryClasses ACategories, TClass AOwnerClass, TMemberKinds AKinds,
                                 const TCategoryType& AType, TCategoryNames ANames) {
  for (const String& name : ANames) RegisterFilter(ACategories, AOwnerClass, AKinds, AType.Type, name);
}
void RegisterMembersInCategories(TCategoryClasses ACategories, TClass AOwnerClass, TMemberKinds AKinds,
                                 TCategoryNames ANames) {
  for (const String& name : ANames) RegisterFilter(ACategories, AOwnerClass, AKinds, nullptr, name);
}
void RegisterMembersInCategories(TCategoryClasses ACategories, TClass AOwnerClass, TMemberKinds AKinds,
                                 TCategoryTypes ATypes) {
  for (const TCategoryType& type : ATypes) RegisterFilter(ACategories, AOwnerClass, AKinds, type.Type, String());
}
void RegisterPropertyInCategories(TCategoryClasses ACategories, TClass AOwnerClass, const TCategoryType& AType,
                                  const String& AName) {
  RegisterMemberInCategories(ACategories, AOwnerClass, Properties, AType, AName);
}
void RegisterPropertyInCategories(TCategoryClasses ACategories, TClass AOwnerClass, const String& AName) {
  RegisterMemberInCategories(ACategories, AOwnerClass, Properties, AName);
}
void RegisterPropertyInCategories(TCategoryClasses ACategories, TClass AOwnerClass, const TCategoryType& AType) {
  RegisterMemberInCategories(ACategories, AOwnerClass, Properties, AType);
}
void RegisterPropertiesInCategories(TCategoryClasses ACategories, TClass AOwnerClass, const TCategoryType& AType,
                                    TCategoryNames ANames) {
  RegisterMembersInCategories(ACategories, AOwnerClass, Properties, AType, ANames);
}
void RegisterPropertiesInCategories(TCategoryClasses ACategories, TClass AOwnerClass, TCategoryNames ANames) {
  RegisterMembersInCategories(ACategories, AOwnerClass, Properties, ANames);
}
void RegisterPropertiesInCategories(TCategoryClasses ACategories, TClass AOwnerClass, TCategoryTypes ATypes) {
  RegisterMembersInCategories(ACategories, AOwnerClass, Properties, ATypes);
}

void RegisterMemberCategoriesOf(TClass AComponentClass) {
  const TClass categoryAttribute = TMemberCategoryAttribute::ClassInfo();
  for (const TRef<IMemberInfo>& member : TRttiObjectHelper::ClassTypeInfo(AComponentClass)->GetAllMembers()) {
    const TRef<ITypeInfo> type = member->GetTypeInfo();
    for (TCustomAttribute* attribute : member->GetMemberAccessAttributes()->GetCustomAttributes(categoryAttribute))
      RegisterPropertyInCategories({static_cast<TMemberCategoryAttribute*>(attribute)->CategoryClass()},
                                   AComponentClass, type, member->GetName());
    if (!type) continue;
    for (TCustomAttribute* attribute : type->GetCustomAttributes(categoryAttribute))
      RegisterPropertyInCategories({static_cast<TMemberCategoryAttribute*>(attribute)->CategoryClass()},
                                   AComponentClass, type);
  }
}

TARVO_ARRAY_LIST_INSTANCES(, TRef<IMemberCategoryInstance>)

} // namespace Tarvo
