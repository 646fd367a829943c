#pragma once
#pragma GCC visibility push(default)
// The reflection contract: reflected types and members behind interfaces. The design framework
// never knows a component class at compile time; it asks an object for its members by name,
// reads and writes them as TValues and decides by attributes.

#include "containers/List.h"
#include "reflection/Attributes.h"
#include "rtl/Module.h"
#include "rtl/Value.h"

namespace Tarvo {

class ITypeInfo;
class IMemberInfo;

// Ordinals 0 private, 1 protected, 2 public, 3 published.
TARVO_ENUM(TMemberVisibility, mvPrivate, mvProtected, mvPublic, mvPublished)
// A set of visibilities as a filter: published alone is the value 8.
using TMemberVisibilities = Byte;
constexpr TMemberVisibilities VisibilityBit(TMemberVisibility AVisibility) { return Byte(1u << AVisibility); }
inline constexpr TMemberVisibilities mvsPublished = VisibilityBit(mvPublished);
inline constexpr TMemberVisibilities mvsPublicAndPublished = VisibilityBit(mvPublic) | VisibilityBit(mvPublished);
inline constexpr TMemberVisibilities mvsAll = 0x0F;

TARVO_ENUM(TMethodKind, mkProcedure, mkFunction)

// The attributes of a reflected thing.
class IAttributesInfo : public virtual IInterface {
  TARVO_INTERFACE(IAttributesInfo, "{4B7E5C1A-8F2D-4A63-9E1B-6C0D2F7A3B51}", IInterface)
public:
  virtual TRef<IAttributeList> GetCustomAttributes() = 0;
  virtual TRef<IAttributeList> GetCustomAttributes(TClass AClass) = 0;
  // The first attribute of AClass or a descendant.
  virtual bool GetCustomAttribute(TClass AClass, TCustomAttribute*& AAttribute) = 0;
  virtual bool HasCustomAttribute(TClass AClass) = 0;
};

// The common base of every reflected thing.
class IObjectInfo : public virtual IAttributesInfo {
  TARVO_INTERFACE(IObjectInfo, "{4B7E5C1A-8F2D-4A63-9E1B-6C0D2F7A3B52}", IAttributesInfo)
public:
  // The run-time object behind: a type record or a member's table entry; nil for virtual things.
  virtual const void* GetRTTIHandle() = 0;
  // The module that declares it.
  virtual TModule* GetPackage() = 0;
  virtual TRef<IAttributesInfo> GetAccessAttributes() = 0;
  virtual String GetName() = 0;
  virtual String GetDisplayName() = 0;
  virtual String GetSaveName() = 0;
};

class IMemberInfo : public virtual IObjectInfo {
  TARVO_INTERFACE(IMemberInfo, "{4B7E5C1A-8F2D-4A63-9E1B-6C0D2F7A3B53}", IObjectInfo)
public:
  // The member's type; for a method the result type, nil for a procedure.
  virtual TRef<ITypeInfo> GetTypeInfo() = 0;
  using IAttributesInfo::GetCustomAttribute;
  using IAttributesInfo::HasCustomAttribute;
  // With AInherited the attributes of the member's type count too, after the member's own.
  virtual bool GetCustomAttribute(TClass AClass, bool AInherited, TCustomAttribute*& AAttribute) = 0;
  virtual bool HasCustomAttribute(TClass AClass, bool AInherited) = 0;
  // The attributes the design core searches: the member's, then its type's.
  virtual TRef<IAttributesInfo> GetMemberAccessAttributes() = 0;
  virtual TMemberVisibility GetVisibility() = 0;
};

// The member's attribute of class A, its type's attributes included; nil when it has none.
template <class A> A* FindMemberAttribute(const TRef<IMemberInfo>& AMember) {
  TCustomAttribute* found = nullptr;
  return AMember->GetCustomAttribute(A::ClassInfo(), true, found) ? static_cast<A*>(found) : nullptr;
}

// The members of a type: a list of IMemberInfo.
using IMembersInfo = IArrayList<TRef<IMemberInfo>>;
using TMembersInfo = TArrayList<TRef<IMemberInfo>>;

// A member that is a property of any kind.
class IPropertyInfo : public virtual IMemberInfo {
  TARVO_INTERFACE(IPropertyInfo, "{2251EB18-27B0-4C55-A4AC-4489C9076287}", IMemberInfo)
public:
  virtual bool GetIsReadable() = 0;
  virtual bool GetIsWritable() = 0;
};

class IValueMemberInfo : public virtual IMemberInfo {
  TARVO_INTERFACE(IValueMemberInfo, "{4AC1B21D-3101-48E8-B0A2-F161963DE59A}", IMemberInfo)
public:
  virtual TValue GetDefault(TObject* AInstance) = 0;
  virtual bool GetHasDefault() = 0;
  // Whether the object's value is the default; with AIncludeStored a value the object does not
  // store counts as default too.
  virtual bool GetIsDefault(TObject* AObject, bool AIncludeStored) = 0;
  virtual TValue GetValue(TObject* AInstance) = 0;
  // A setter's exception passes through.
  virtual void SetValue(TObject* AInstance, const TValue& AValue) = 0;
  virtual void SetFromString(TObject* AInstance, const String& AText) = 0;
};

class ISinglePropertyInfo : public virtual IValueMemberInfo {
  TARVO_INTERFACE(ISinglePropertyInfo, "{45492121-74A5-4891-9DE5-C47533EC53F9}", IValueMemberInfo)
public:
  virtual bool GetIsReadable() = 0;
  virtual bool GetIsWritable() = 0;
  virtual bool GetHasReadMethod() = 0;
  virtual bool GetHasWriteMethod() = 0;
  // Whether a stored specifier can be asked on this object, and its answer.
  virtual bool GetHasStored(TObject* AObject) = 0;
  virtual bool GetIsStored(TObject* AObject) = 0;
};

class IIndexedPropertyInfo : public virtual IMemberInfo {
  TARVO_INTERFACE(IIndexedPropertyInfo, "{8AD133C5-1942-4DD5-890E-031DE512870D}", IMemberInfo)
public:
  virtual TRef<IArrayList<TRef<ITypeInfo>>> GetIndexTypes() = 0;
  virtual TValue GetValue(TObject* AInstance, const std::vector<TValue>& AIndices) = 0;
  virtual void SetValue(TObject* AInstance, const std::vector<TValue>& AIndices, const TValue& AValue) = 0;
};

class IFieldInfo : public virtual IValueMemberInfo {
  TARVO_INTERFACE(IFieldInfo, "{89F370C6-526A-48FC-B70E-874B6BE9D537}", IValueMemberInfo)
};

class IParameterInfo : public virtual IInterface {
  TARVO_INTERFACE(IParameterInfo, "{4B7E5C1A-8F2D-4A63-9E1B-6C0D2F7A3B54}", IInterface)
public:
  virtual String GetName() = 0;
  virtual TRef<ITypeInfo> GetTypeInfo() = 0;
  // "AName: TypeName", the text a method's signature shows for it.
  virtual String GetParameterText() = 0;
};

class IMethodInfo : public virtual IMemberInfo {
  TARVO_INTERFACE(IMethodInfo, "{09A28225-A23F-493B-A8BF-B9929C640CBF}", IMemberInfo)
public:
  virtual TMethodKind GetMethodKind() = 0;
  virtual TRef<IArrayList<TRef<IParameterInfo>>> GetParameters() = 0;
  // True when the parameters are known.
  virtual bool GetHasExtendedInfo() = 0;
  // Each argument is converted to its parameter's type; a procedure gives the empty value.
  virtual TValue Invoke(TObject* AInstance, const std::vector<TValue>& AArguments) = 0;
};

// Limits a member reports of itself.
class IValueLimitsInfo : public virtual IInterface {
  TARVO_INTERFACE(IValueLimitsInfo, "{4B7E5C1A-8F2D-4A63-9E1B-6C0D2F7A3B55}", IInterface)
public:
  virtual bool GetHasLimits() = 0;
  virtual TValue GetMinValue() = 0;
  virtual TValue GetMaxValue() = 0;
};

class ITypeInfo : public virtual IObjectInfo {
  TARVO_INTERFACE(ITypeInfo, "{4B7E5C1A-8F2D-4A63-9E1B-6C0D2F7A3B56}", IObjectInfo)
public:
  // The type record; the same for the same type.
  virtual PTypeInfo GetHandle() = 0;
  virtual TTypeKind GetTypeKind() = 0;
  // True when this class or interface type descends from AOther (itself included).
  virtual bool InheritsFrom(const TRef<ITypeInfo>& AOther, bool AFlag) = 0;
  // The identifier of an interface type; empty for other types.
  virtual TGUID GetGuid() = 0;
};

// An enumeration type: its names and ordinals in declaration order.
class IEnumerationTypeInfo : public virtual ITypeInfo {
  TARVO_INTERFACE(IEnumerationTypeInfo, "{4B7E5C1A-8F2D-4A63-9E1B-6C0D2F7A3B57}", ITypeInfo)
public:
  virtual TRef<IStringArrayList> GetNames() = 0;
  virtual Integer GetOrdinal(Integer AIndex) = 0;
};

// A set type and the type of its elements.
class ISetTypeInfo : public virtual ITypeInfo {
  TARVO_INTERFACE(ISetTypeInfo, "{4B7E5C1A-8F2D-4A63-9E1B-6C0D2F7A3B58}", ITypeInfo)
public:
  virtual TRef<ITypeInfo> GetElementType() = 0;
};

// An ordinal type with its declared limits, read as 32-bit signed numbers.
class IOrdinalTypeInfo : public virtual ITypeInfo {
  TARVO_INTERFACE(IOrdinalTypeInfo, "{4B7E5C1A-8F2D-4A63-9E1B-6C0D2F7A3B59}", ITypeInfo)
public:
  virtual Integer GetMinValue() = 0;
  virtual Integer GetMaxValue() = 0;
};

class IClassTypeInfo : public virtual ITypeInfo {
  TARVO_INTERFACE(IClassTypeInfo, "{4B7E5C1A-8F2D-4A63-9E1B-6C0D2F7A3B5A}", ITypeInfo)
public:
  // The members of the given visibilities, ancestors' included (theirs first).
  virtual TRef<IMembersInfo> GetMembers(TMemberVisibilities AFilter) = 0;
  virtual TRef<IMembersInfo> GetAllMembers() = 0;
  virtual TRef<IMembersInfo> GetAllMethods() = 0;
  virtual TRef<IMembersInfo> GetFields() = 0;
  // A value member of exactly that name; the dynamic members count for an object's type info.
  virtual bool FindMember(const String& AName, TRef<IValueMemberInfo>& AMember) = 0;
  virtual bool FindSinglePropertyMember(const String& AName, TRef<ISinglePropertyInfo>& AMember) = 0;
  virtual TClass GetClass() = 0;
};

// Supported by the type of a class whose instances add members at run time.
class IDynamicTypeInfo : public virtual IInterface {
  TARVO_INTERFACE(IDynamicTypeInfo, "{4B7E5C1A-8F2D-4A63-9E1B-6C0D2F7A3B5B}", IInterface)
public:
  // Called with every instance the designer makes.
  virtual void InitInstance(TObject* AInstance) = 0;
};

// The member, type and parameter lists are compiled once, in reflection/instances/.
TARVO_ARRAY_LIST_INSTANCES(extern, TRef<IMemberInfo>)
TARVO_ARRAY_LIST_INSTANCES(extern, TRef<ITypeInfo>)
TARVO_ARRAY_LIST_INSTANCES(extern, TRef<IParameterInfo>)

} // namespace Tarvo

#pragma GCC visibility pop
