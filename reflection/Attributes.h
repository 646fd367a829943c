#pragma once
#pragma GCC visibility push(default)
// Attributes: objects of attribute classes attached to members, types and classes in the
// registration tables. They are found by class, descendants included, so an attribute class
// that derives from another answers for it too.

#include <utility>

#include "containers/List.h"
#include "rtl/Object.h"
#include "rtl/Value.h"

namespace Tarvo {

class TCustomAttribute : public TObject {
  TARVO_CLASS(TCustomAttribute, TObject)
};
using TCustomAttributeClass = TClassOf<TCustomAttribute>;

// The attributes of one thing, in declaration order; compiled once, in reflection/instances/.
using IAttributeList = IArrayList<TCustomAttribute*>;
TARVO_ARRAY_LIST_INSTANCES(extern, TCustomAttribute*)

// The first attribute of AClass (or a descendant) in AAttributes; nil when none.
TCustomAttribute* FindAttribute(const std::vector<TCustomAttribute*>& AAttributes, TClass AClass);

// Attributes of a type, a class included, looked up by type record. The registry owns them; the
// attributes of a module's types leave with the module.
void RegisterTypeAttribute(PTypeInfo AType, TCustomAttribute* AAttribute);
// The attributes attached to a type record, in declaration order.
std::vector<TCustomAttribute*> TypeAttributes(PTypeInfo AType);

} // namespace Tarvo

// Most attribute classes differ only in what they hold. These declare one with its fields, each
// read through an accessor of the field's name; the optional last argument is the default of the
// last field. The class still needs TARVO_IMPLEMENT_CLASS in a source file.

// Holds nothing of its own; takes the parent's constructors.
#define TARVO_ATTRIBUTE(AClass, AParent)                                                                               \
  class AClass : public AParent {                                                                                      \
    TARVO_CLASS(AClass, AParent)                                                                                       \
  public:                                                                                                              \
    using AParent::AParent;                                                                                            \
  };

#define TARVO_ATTRIBUTE_1(AClass, AParent, AType, AField, ...)                                                         \
  class AClass : public AParent {                                                                                      \
    TARVO_CLASS(AClass, AParent)                                                                                       \
  public:                                                                                                              \
    explicit AClass(AType A##AField __VA_OPT__(= __VA_ARGS__)) : F##AField(std::move(A##AField)) {}                    \
    const AType& AField() const { return F##AField; }                                                                  \
                                                                                                                       \
  private:                                                                                                             \
    AType F##AField;                                                                                                   \
  };

#define TARVO_ATTRIBUTE_2(AClass, AParent, AType1, AField1, AType2, AField2, ...)                                      \
  class AClass : public AParent {                                                                                      \
    TARVO_CLASS(AClass, AParent)                                                                                       \
  public:                                                                                                              \
    AClass(AType1 A##AField1, AType2 A##AField2 __VA_OPT__(= __VA_ARGS__))                                             \
        : F##AField1(std::move(A##AField1)), F##AField2(std::move(A##AField2)) {}                                      \
    const AType1& AField1() const { return F##AField1; }                                                               \
    const AType2& AField2() const { return F##AField2; }                                                               \
                                                                                                                       \
  private:                                                                                                             \
    AType1 F##AField1;                                                                                                 \
    AType2 F##AField2;                                                                                                 \
  };

#pragma GCC visibility pop
