#pragma once
#pragma GCC visibility push(default)
// The entry points of reflection: the type info of an object, a class or a type record, and the
// listeners told when an instance's dynamic members change.

#include "reflection/TypeInfo.h"

namespace Tarvo {

struct TRttiObjectHelper {
  // The class type of an object; with the flag, its dynamic members are included.
  static TRef<IClassTypeInfo> TypeInfo(TObject* AObject, bool AIncludeDynamicTypeInfo);
  static TRef<IClassTypeInfo> ClassTypeInfo(TClass AClass);
};

struct TTypeInfoHelper {
  // The unique ITypeInfo of a type record; nil for nil.
  static TRef<ITypeInfo> TypeInfo(PTypeInfo ATypeRecord);
};

struct TRttiInfo {
  static TRef<ITypeInfo> GetTypeInfoType(PTypeInfo ATypeRecord) { return TTypeInfoHelper::TypeInfo(ATypeRecord); }
};

// Tells the listeners that the dynamic members of AInstance changed.
void NotifyTypeInfoMemberValueChanges(TObject* AInstance);
int AddTypeInfoMemberValueChangesHandler(TProc<TObject*> AHandler);
void RemoveTypeInfoMemberValueChangesHandler(int AKey);

// Brings the type info of AClass, if one was made already, up to the class's current table.
void ReloadClassMembers(TClass AClass);

} // namespace Tarvo

#pragma GCC visibility pop
