#include "reflection/RttiMembers.h"

#include "reflection/RttiTypes.h"

namespace Tarvo {

namespace {

// Values compare by their kind: ordinals by number, floats exactly, strings by text.
bool SameValue(const TValue& A, const TValue& B) {
  if (A.IsOrdinal() && B.IsOrdinal()) return A.AsOrdinal() == B.AsOrdinal();
  if (A.GetTypeKind() == tkFloat && B.GetTypeKind() == tkFloat) return A.AsExtended() == B.AsExtended();
  if (A.IsObject() && B.IsObject()) return A.AsObject() == B.AsObject();
  return A.ToString() == B.ToString();
}

// What properties and fields share: reading and writing through the entry, and defaults.
class TRttiValueMember : public TValueMemberInfo {
public:
  explicit TRttiValueMember(const TMemberEntry& AEntry) : TValueMemberInfo(AEntry.Type, &AEntry) {}

  TValue GetValue(TObject* AInstance) override {
    if (!Entry()->Read) throw Exception("Property " + GetName() + " is write-only");
    return Entry()->Read(AInstance);
  }
  void SetValue(TObject* AInstance, const TValue& AValue) override {
    if (!Entry()->Write) throw Exception("Property " + GetName() + " is read-only");
    Entry()->Write(AInstance, AValue);
  }
  // The declared default, or else the type's empty value (0, "", nil).
  TValue GetDefault(TObject*) override {
    return Entry()->HasDefault ? Entry()->Default : TValue::Make(nullptr, TypeRecord());
  }
  bool GetHasDefault() override { return Entry()->HasDefault; }
  bool GetIsDefault(TObject* AObject, bool AIncludeStored) override {
    if (AIncludeStored && Entry()->Stored && !Entry()->Stored(AObject)) return true;
    if (!Entry()->Read) return false;
    const TValue value = GetValue(AObject);
    if (Entry()->HasDefault) return SameValue(value, Entry()->Default);
    // Without a declared default only an empty text, a zero float or a nil reference is default.
    switch (value.GetTypeKind()) {
    case tkFloat:
      return value.AsExtended() == 0;
    case tkClass:
      return value.AsObject() == nullptr;
    case tkInterface:
      return !value.AsInterface();
    case tkMethod:
      return TypeRecord()->IsAssigned && !TypeRecord()->IsAssigned(value.GetReferenceToRawData());
    default:
      return TypeRecord()->IsString() && value.AsString().empty();
    }
  }
};

class TRttiPropertyInfo : public TImplements<TRttiValueMember, IPropertyInfo, ISinglePropertyInfo, IValueLimitsInfo> {
public:
  explicit TRttiPropertyInfo(const TMemberEntry& AEntry) : TImplements(AEntry) {}

  // Only a property declared with limits reports them.
  HRESULT QueryInterface(const TGUID& AIID, void** AObj) override {
    if (AIID == IValueLimitsInfo::IID && !Entry()->HasLimits) {
      *AObj = nullptr;
      return E_NOINTERFACE;
    }
    return TImplements::QueryInterface(AIID, AObj);
  }

  bool GetIsReadable() override { return Entry()->Read != nullptr; }
  bool GetIsWritable() override { return Entry()->Write != nullptr; }
  bool GetHasReadMethod() override { return Entry()->HasReadMethod; }
  bool GetHasWriteMethod() override { return Entry()->HasWriteMethod; }
  bool GetHasStored(TObject*) override { return Entry()->Stored != nullptr; }
  bool GetIsStored(TObject* AObject) override { return !Entry()->Stored || Entry()->Stored(AObject); }
  bool GetHasLimits() override { return Entry()->HasLimits; }
  TValue GetMinValue() override { return Entry()->MinValue; }
  TValue GetMaxValue() override { return Entry()->MaxValue; }
};

class TRttiFieldInfo : public TImplements<TRttiValueMember, IFieldInfo> {
public:
  explicit TRttiFieldInfo(const TMemberEntry& AEntry) : TImplements(AEntry) {}
};

class TRttiIndexedPropertyInfo : public TImplements<TMemberInfo, IPropertyInfo, IIndexedPropertyInfo> {
public:
  explicit TRttiIndexedPropertyInfo(const TMemberEntry& AEntry) : TImplements(AEntry.Type, &AEntry) {}

  bool GetIsReadable() override { return Entry()->ReadIndexed != nullptr; }
  bool GetIsWritable() override { return Entry()->WriteIndexed != nullptr; }
  TRef<IArrayList<TRef<ITypeInfo>>> GetIndexTypes() override {
    const TRef<IArrayList<TRef<ITypeInfo>>> result = New<TArrayList<TRef<ITypeInfo>>>();
    for (PTypeInfo type : Entry()->IndexTypes) result->Add(TTypeInfoHelper::TypeInfo(type));
    return result;
  }
  TValue GetValue(TObject* AInstance, const std::vector<TValue>& AIndices) override {
    if (!Entry()->ReadIndexed) throw Exception("Property " + GetName() + " is write-only");
    return Entry()->ReadIndexed(AInstance, AIndices);
  }
  void SetValue(TObject* AInstance, const std::vector<TValue>& AIndices, const TValue& AValue) override {
    if (!Entry()->WriteIndexed) throw Exception("Property " + GetName() + " is read-only");
    Entry()->WriteIndexed(AInstance, AIndices, AValue);
  }
};

class TRttiParameterInfo : public TImplements<TInterfacedObject, IParameterInfo> {
public:
  explicit TRttiParameterInfo(const TParameterEntry& AEntry) : FEntry(AEntry) {}
  String GetName() override { return FEntry.Name; }
  TRef<ITypeInfo> GetTypeInfo() override { return TTypeInfoHelper::TypeInfo(FEntry.Type); }
  String GetParameterText() override { return FEntry.Name + ": " + FEntry.Type->Name; }

private:
  const TParameterEntry& FEntry;
};

class TRttiMethodInfo : public TImplements<TMemberInfo, IMethodInfo> {
public:
  explicit TRttiMethodInfo(const TMemberEntry& AEntry) : TImplements(AEntry.Type, &AEntry) {}

  TMethodKind GetMethodKind() override { return Entry()->Type ? mkFunction : mkProcedure; }
  TRef<IArrayList<TRef<IParameterInfo>>> GetParameters() override {
    const TRef<IArrayList<TRef<IParameterInfo>>> result = New<TArrayList<TRef<IParameterInfo>>>();
    for (const TParameterEntry& parameter : Entry()->Parameters) result->Add(New<TRttiParameterInfo>(parameter));
    return result;
  }
  bool GetHasExtendedInfo() override { return Entry()->HasExtendedInfo; }
  TValue Invoke(TObject* AInstance, const std::vector<TValue>& AArguments) override {
    return Entry()->Invoke(AInstance, AArguments);
  }
};

} // namespace

TRef<IMemberInfo> CreateMemberInfo(const TMemberEntry& AEntry) {
  switch (AEntry.Kind) {
  case TMemberEntryKind::Property:
    return New<TRttiPropertyInfo>(AEntry);
  case TMemberEntryKind::IndexedProperty:
    return New<TRttiIndexedPropertyInfo>(AEntry);
  case TMemberEntryKind::Field:
    return New<TRttiFieldInfo>(AEntry);
  case TMemberEntryKind::Method:
    return New<TRttiMethodInfo>(AEntry);
  }
  return nullptr;
}

} // namespace Tarvo
