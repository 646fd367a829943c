#include "package/DesignUnit.h"

#include "containers/List.h"
#include "design/Registry.h"
#include "design/editors/BasicEditors.h"
#include "design/paint/PaintObjects.h"
#include "reflection/ComponentRegistration.h"
#include "reflection/RttiTypes.h"
#include "rtl/Module.h"

namespace Tarvo {

TDesignKeptTypes GDesignKeptTypes;

namespace {
int GComponentRegisteredKey = 0;
int GModuleUnloadKey = 0;
} // namespace

void InitializeDesignUnit() {
  GMemberEditors = New<TLinkedList<TRef<IMemberEditorItem>>>();
  GDesignKeptTypes = {TRttiObjectHelper::ClassTypeInfo(TComponent::ClassInfo()),
                      TTypeInfoHelper::TypeInfo(TypeInfo<TRef<IObjectArrayList>>()),
                      TTypeInfoHelper::TypeInfo(TypeInfo<TRef<IStringArrayList>>())};
  GComponentRegisteredKey = RegisterComponentRegisteredNotify(RegisterHiddenMembers);
  RegisterDesignEditors();
  GModuleUnloadKey = AddModuleUnloadProc(SweepMemberEditors);
}

void FinalizeDesignUnit() {
  RemoveModuleUnloadProc(GModuleUnloadKey);
  UnregisterComponentRegisteredNotify(GComponentRegisteredKey);
  FinalizeDesignPaintObjects();
  GMemberEditors = nullptr;
  DefaultEditorClasses = TFallbackEditorClasses();
  GDesignKeptTypes = TDesignKeptTypes();
}

} // namespace Tarvo
