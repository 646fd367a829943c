// Type infos: one object per type record, made on first request and kept until the module that
// declares the type goes away.
#include <unordered_map>

#include "reflection/RttiMembers.h"
#include "reflection/RttiTypes.h"
#include "rtl/KeyedHandlers.h"
#include "rtl/ModuleSwept.h"

namespace Tarvo {

namespace {

// Counts the member tables registered, so that what class types worked out from the tables before
// a change is worked out again; starts above the generation of what was never worked out.
std::uint64_t GMembersGeneration = 1;

class TRttiTypeInfo : public TImplements<TObjectInfo, ITypeInfo, IOrdinalTypeInfo, IEnumerationTypeInfo, ISetTypeInfo> {
public:
  explicit TRttiTypeInfo(PTypeInfo ARecord) : FRecord(ARecord) {}

  // The views answer only for types of their kind.
  HRESULT QueryInterface(const TGUID& AIID, void** AObj) override {
    const bool refused = (AIID == IOrdinalTypeInfo::IID && !FRecord->IsOrdinal()) ||
                         (AIID == IEnumerationTypeInfo::IID && FRecord->Kind != tkEnumeration) ||
                         (AIID == ISetTypeInfo::IID && FRecord->Kind != tkSet);
    if (refused) {
      *AObj = nullptr;
      return E_NOINTERFACE;
    }
    return TImplements::QueryInterface(AIID, AObj);
  }

  const void* GetRTTIHandle() override { return FRecord; }
  TModule* GetPackage() override { return FRecord->Module(); }
  String GetName() override { return FRecord->Name; }

  PTypeInfo GetHandle() override { return FRecord; }
  TTypeKind GetTypeKind() override { return FRecord->Kind; }
  bool InheritsFrom(const TRef<ITypeInfo>& AOther, bool) override {
    if (!AOther) return false;
    const PTypeInfo other = AOther->GetHandle();
    if (FRecord->Kind == tkClass && other->Kind == tkClass) return FRecord->ClassType->InheritsFrom(other->ClassType);
    for (PTypeInfo type = FRecord; type; type = type->Kind == tkInterface ? type->IntfParent : nullptr)
      if (type == other) return true;
    return false;
  }
  TGUID GetGuid() override { return FRecord->Kind == tkInterface ? FRecord->Guid : TGUID(); }

  Integer GetMinValue() override { return FRecord->MinValue; }
  Integer GetMaxValue() override { return FRecord->MaxValue; }
  TRef<IStringArrayList> GetNames() override {
    const TRef<IStringArrayList> names = New<TStringArrayList>();
    for (std::string_view name : FRecord->Names) names->Add(String(name));
    return names;
  }
  Integer GetOrdinal(Integer AIndex) override { return FRecord->MinValue + AIndex; }
  TRef<ITypeInfo> GetElementType() override { return TTypeInfoHelper::TypeInfo(FRecord->CompType); }

protected:
  std::vector<TCustomAttribute*> GetAttributeList() override { return TypeAttributes(FRecord); }

private:
  PTypeInfo FRecord;
};

class TRttiClassTypeInfo : public TImplements<TRttiTypeInfo, IClassTypeInfo, IDynamicTypeInfo> {
public:
  explicit TRttiClassTypeInfo(TClass AClass) : TImplements(AClass->ClassTypeRecord()), FClass(AClass) {
    LoadOwnMembers();
  }

  // Takes the members from the class's table as it stands now.
  void LoadOwnMembers() {
    FOwnMembers.clear();
    if (const TClassMemberTable* table = FindMemberTable(FClass))
      for (const auto& entry : table->Members) FOwnMembers.push_back(CreateMemberInfo(*entry));
  }

  // Only a class whose instances add members at run time answers IDynamicTypeInfo.
  HRESULT QueryInterface(const TGUID& AIID, void** AObj) override {
    if (AIID == IDynamicTypeInfo::IID && !DynamicTable()) {
      *AObj = nullptr;
      return E_NOINTERFACE;
    }
    return TImplements::QueryInterface(AIID, AObj);
  }

  TRef<IMembersInfo> GetMembers(TMemberVisibilities AFilter) override {
    return Collect([AFilter](const TRef<IMemberInfo>& AMember) {
      return (AFilter & VisibilityBit(AMember->GetVisibility())) != 0;
    });
  }
  TRef<IMembersInfo> GetAllMembers() override { return GetMembers(mvsAll); }
  TRef<IMembersInfo> GetAllMethods() override {
    return Collect([](const TRef<IMemberInfo>& AMember) { return Supports<IMethodInfo>(AMember); });
  }
  TRef<IMembersInfo> GetFields() override {
    return Collect([](const TRef<IMemberInfo>& AMember) { return Supports<IFieldInfo>(AMember); });
  }

  bool FindMember(const String& AName, TRef<IValueMemberInfo>& AMember) override { return Find(AName, AMember); }
  bool FindSinglePropertyMember(const String& AName, TRef<ISinglePropertyInfo>& AMember) override {
    return Find(AName, AMember);
  }
  TClass GetClass() override { return FClass; }

  void InitInstance(TObject* AInstance) override {
    for (TClass c = FClass; c; c = c->ClassParent())
      if (const TClassMemberTable* table = FindMemberTable(c); table && table->InitInstance) {
        table->InitInstance(AInstance);
        return;
      }
  }

  // The nearest table that says how instances add members. Asked for every object the
  // designer reads, so kept until a class takes a new table.
  const TClassMemberTable* DynamicTable() {
    if (FDynamicGeneration == GMembersGeneration) return FDynamicTable;
    FDynamicTable = nullptr;
    for (TClass c = FClass; c && !FDynamicTable; c = c->ClassParent())
      if (const TClassMemberTable* table = FindMemberTable(c); table && (table->DynamicMembers || table->InitInstance))
        FDynamicTable = table;
    FDynamicGeneration = GMembersGeneration;
    return FDynamicTable;
  }

protected:
  // The members an instance adds; none for the class itself.
  virtual TRef<IMembersInfo> DynamicMembers() { return nullptr; }

private:
  // Ancestors' members first, then the class's own, then the instance's.
  TRef<IMembersInfo> Collect(const TConstFunc<TRef<IMemberInfo>, Boolean>& AFilter) {
    const TRef<IMembersInfo> result = New<TMembersInfo>();
    AppendStatic(result, AFilter);
    if (const TRef<IMembersInfo> dynamic = DynamicMembers())
      for (const TRef<IMemberInfo>& member : dynamic)
        if (AFilter(member)) result->Add(member);
    return result;
  }

  void AppendStatic(const TRef<IMembersInfo>& AResult, const TConstFunc<TRef<IMemberInfo>, Boolean>& AFilter) {
    if (TClass parent = FClass->ClassParent()) Of(parent)->AppendStatic(AResult, AFilter);
    for (const TRef<IMemberInfo>& member : FOwnMembers)
      if (AFilter(member)) AResult->Add(member);
  }

  // The class's own members hide those of its ancestors; an instance's members come last.
  template <class I> bool Find(const String& AName, TRef<I>& AMember) {
    const auto& index = NameIndex();
    if (const auto found = index.find(AName); found != index.end())
      for (const TRef<IMemberInfo>& member : found->second)
        if (Supports(member, AMember)) return true;
    if (const TRef<IMembersInfo> dynamic = DynamicMembers())
      for (const TRef<IMemberInfo>& member : dynamic)
        if (member->GetName() == AName && Supports(member, AMember)) return true;
    AMember = nullptr;
    return false;
  }

  // The members of the class and its ancestors by name, in the order a search meets them. Built
  // on first need, and again after any class took a new table.
  const std::unordered_map<String, std::vector<TRef<IMemberInfo>>>& NameIndex() {
    if (FIndexGeneration == GMembersGeneration) return FNameIndex;
    FNameIndex.clear();
    for (TRttiClassTypeInfo* info = this; info;
         info = info->FClass->ClassParent() ? Of(info->FClass->ClassParent()) : nullptr)
      for (const TRef<IMemberInfo>& member : info->FOwnMembers) FNameIndex[member->GetName()].push_back(member);
    FIndexGeneration = GMembersGeneration;
    return FNameIndex;
  }

public:
  // The one type info of AClass, made on first need.
  static TRttiClassTypeInfo* Of(TClass AClass);

private:
  TClass FClass;
  std::vector<TRef<IMemberInfo>> FOwnMembers;
  std::unordered_map<String, std::vector<TRef<IMemberInfo>>> FNameIndex;
  std::uint64_t FIndexGeneration = 0;
  const TClassMemberTable* FDynamicTable = nullptr;
  std::uint64_t FDynamicGeneration = 0;
};

// The type of one object whose members include those it added at run time.
class TRttiInstanceTypeInfo : public TRttiClassTypeInfo {
public:
  TRttiInstanceTypeInfo(TClass AClass, TRef<IMembersInfo> ADynamicMembers)
      : TRttiClassTypeInfo(AClass), FDynamicMembers(std::move(ADynamicMembers)) {}

protected:
  TRef<IMembersInfo> DynamicMembers() override { return FDynamicMembers; }

private:
  TRef<IMembersInfo> FDynamicMembers;
};

struct TTypeInfoCache {
  // A class's entry also points at the object behind the interface, which every read of an
  // object's members needs.
  struct TEntry {
    TRef<ITypeInfo> Type;
    TRttiClassTypeInfo* Class = nullptr;
  };
  TModuleSwept<std::unordered_map<PTypeInfo, TEntry>> Types{"type infos", KeyBelongsTo};
  TKeyedHandlers<TObject*> MemberChangeHandlers;
};

TTypeInfoCache& Cache() {
  static TTypeInfoCache cache;
  return cache;
}

const TTypeInfoCache::TEntry& CacheEntry(PTypeInfo ATypeRecord) {
  TTypeInfoCache::TEntry& entry = Cache().Types.Items()[ATypeRecord];
  if (entry.Type) return entry;
  if (ATypeRecord->Kind == tkClass) {
    const TRef<TRttiClassTypeInfo> info = New<TRttiClassTypeInfo>(ATypeRecord->ClassType);
    entry.Class = info.get();
    entry.Type = info;
  } else {
    entry.Type = New<TRttiTypeInfo>(ATypeRecord);
  }
  return entry;
}

TRttiClassTypeInfo* TRttiClassTypeInfo::Of(TClass AClass) { return CacheEntry(AClass->ClassTypeRecord()).Class; }

} // namespace

TRef<ITypeInfo> TTypeInfoHelper::TypeInfo(PTypeInfo ATypeRecord) {
  return ATypeRecord ? CacheEntry(ATypeRecord).Type : nullptr;
}

void ReloadClassMembers(TClass AClass) {
  ++GMembersGeneration;
  const auto& types = Cache().Types.Items();
  const auto found = types.find(AClass->ClassTypeRecord());
  if (found != types.end()) found->second.Class->LoadOwnMembers();
}

TRef<IClassTypeInfo> TRttiObjectHelper::ClassTypeInfo(TClass AClass) {
  return AClass ? TRef<IClassTypeInfo>(TRttiClassTypeInfo::Of(AClass)) : nullptr;
}

TRef<IClassTypeInfo> TRttiObjectHelper::TypeInfo(TObject* AObject, bool AIncludeDynamicTypeInfo) {
  if (!AObject) return nullptr;
  TRttiClassTypeInfo* info = TRttiClassTypeInfo::Of(AObject->ClassType());
  if (!AIncludeDynamicTypeInfo) return TRef<IClassTypeInfo>(info);
  const TClassMemberTable* table = info->DynamicTable();
  if (!table || !table->DynamicMembers) return TRef<IClassTypeInfo>(info);
  return New<TRttiInstanceTypeInfo>(AObject->ClassType(), table->DynamicMembers(AObject));
}

void NotifyTypeInfoMemberValueChanges(TObject* AInstance) { Cache().MemberChangeHandlers.Run(AInstance); }

int AddTypeInfoMemberValueChangesHandler(TProc<TObject*> AHandler) {
  return Cache().MemberChangeHandlers.Add(std::move(AHandler));
}

void RemoveTypeInfoMemberValueChangesHandler(int AKey) { Cache().MemberChangeHandlers.Remove(AKey); }

} // namespace Tarvo
