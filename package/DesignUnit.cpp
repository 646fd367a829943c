#include "package/DesignUnit.h"

#include "containers/List.h"
#include "design/MemberCategoryRegistry.h"
#include "design/Registry.h"
#include "design/components/InjectedInterfaces.h"
#include "design/editors/BasicEditors.h"
#include "design/paint/PaintObjects.h"
#include "forms/AlphaColorEditForm.h"
#include "reflection/ComponentRegistration.h"
#include "reflection/RttiTypes.h"
#include "rtl/Module.h"

namespace Tarvo {

TDesignKeptTypes GDesignKeptTypes;

namespace {
int GComponentRegisteredKey = 0;
int GComponentRegistrationKey = 0;
int GModuleUnloadKey = 0;
int GEditorEntriesSizeKey = 0;
int GCategoryFiltersSizeKey = 0;

void SweepModule(TModule* AModule) {
  SweepMemberEditors(AModule);
  SweepMemberCategories(AModule);
}
} // namespace

void InitializeDesignUnit() {
  GMemberEditors = New<TLinkedList<TRef<IMemberEditorItem>>>();
  GMemberCategories = New<TMemberCategories>();
  GDesignKeptTypes = {TRttiObjectHelper::ClassTypeInfo(TComponent::ClassInfo()),
                      TTypeInfoHelper::TypeInfo(TypeInfo<TRef<IObjectArrayList>>()),
                      TTypeInfoHelper::TypeInfo(TypeInfo<TRef<IStringArrayList>>())};
  GComponentRegisteredKey = RegisterComponentRegisteredNotify(RegisterHiddenMembers);
  RegisterDesignCategories();
  RegisterDesignEditors();
  SetInjectedInterfaceQuery(QueryInjectedInterface);
  GComponentRegistrationKey = AddComponentRegistrationProcedure(RegisterMemberCategoriesOf);
  GModuleUnloadKey = AddModuleUnloadProc(SweepModule);
  GEditorEntriesSizeKey = AddSweptRegistry("editor entries", [] { return std::size_t(GMemberEditors->GetCount()); });
  GCategoryFiltersSizeKey = AddSweptRegistry("category filters", MemberCategoryFilterCount);
}

void FinalizeDesignUnit() {
  RemoveSweptRegistry(GCategoryFiltersSizeKey);
  RemoveSweptRegistry(GEditorEntriesSizeKey);
  RemoveModuleUnloadProc(GModuleUnloadKey);
  RemoveComponentRegistrationProcedure(GComponentRegistrationKey);
  UnregisterComponentRegisteredNotify(GComponentRegisteredKey);
  FinalizeDesignPaintObjects();
  // The kept dialog's code goes with the package.
  ReleaseAlphaColorEditForm();
  SetInjectedInterfaceQuery(nullptr);
  GMemberEditors = nullptr;
  GMemberCategories = nullptr;
  DefaultEditorClasses = TFallbackEditorClasses();
  GDesignKeptTypes = TDesignKeptTypes();
}

} // namespace Tarvo
