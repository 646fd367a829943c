#include "rtl/Object.h"

#include "rtl/Module.h"
#include "rtl/SysUtils.h"

namespace Tarvo {

TMetaClass::TMetaClass(const char* AName, TClass AParent, TFactory AFactory) : FParent(AParent), FFactory(AFactory) {
  FTypeRecord.Kind = tkClass;
  FTypeRecord.Name = AName;
  FTypeRecord.Ops = &TypeOpsOf<TObject*>;
  FTypeRecord.ClassType = this;
}

bool TMetaClass::InheritsFrom(TClass AClass) const {
  for (TClass c = this; c; c = c->FParent)
    if (c == AClass) return true;
  return false;
}

TModule* TMetaClass::Module() const { return FindModule(this); }

TClass TObject::ClassInfo() {
  static const TMetaClass metaClass("TObject", nullptr, nullptr);
  return &metaClass;
}

bool TObject::GetInterface(const TGUID&, void** AObj) {
  *AObj = nullptr;
  return false;
}

void TObject::Free(TObject* AObject) {
  if (!AObject) return;
  AObject->BeforeDestruction();
  delete AObject;
}

TObject* ObjectOf(IInterface* AIntf) {
  void* obj = nullptr;
  if (AIntf && AIntf->QueryInterface(ObjCastGUID, &obj) == S_OK) return static_cast<TObject*>(obj);
  return nullptr;
}

TClassRegistration::TClassRegistration(TClass AClass) {
  GuardModuleRegistration([AClass] {
    TModule* module = AClass->Module();
    if (!module) return;
    // Designs name classes: a second class of a name would be shadowed without a word.
    if (const TClass other = FindClass(AClass->ClassName()); other && other != AClass)
      throw EModuleError(std::string(AClass->ClassName()) + ": the class name is taken by " +
                         (other->Module() ? other->Module()->FileName() : std::string("another module")));
    module->AddClass(AClass);
  });
}

TClass FindClass(const std::string& AName) {
  for (TModule* module : Modules())
    for (TClass c : module->Classes())
      if (SameText(c->ClassName(), AName)) return c;
  return nullptr;
}

namespace Detail {
void RaiseAbstractClass(TClass AClass) {
  throw EInvalidCast(std::string("Cannot create an instance of the abstract class ") + AClass->ClassName());
}
void RaiseClassMismatch(TClass AClass, TClass ABase) {
  throw EInvalidCast(std::string("Class ") + AClass->ClassName() + " does not descend from " + ABase->ClassName());
}
} // namespace Detail

} // namespace Tarvo
