#pragma once
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

// The attributes of one thing, in declaration order.
using IAttributeList = IArrayList<TCustomAttribute*>;

// The first attribute of AClass (or a descendant) in AAttributes; nil when none.
TCustomAttribute* FindAttribute(const std::vector<TCustomAttribute*>& AAttributes, TClass AClass);

} // namespace Tarvo

// Most attribute classes differ only in what they hold. These declare one with its fields, each
// read through an accessor of the field's name; the optional last argument is the default of the
// last field. The class still needs TARVO_IMPLEMENT_CLASS in a source file.

// Holds nothing of its own; takes the parent's constructors.
#define TARVO_ATTRIBUTE(AClass, AParent)                                                           \
  class AClass : public AParent {                                                                  \
    TARVO_CLASS(AClass, AParent)                                                                   \
  public:                                                                                          \
    using AParent::AParent;                                                                        \
  };

#define TARVO_ATTRIBUTE_1(AClass, AParent, AType, AField, ...)                                     \
  class AClass : public AParent {                                                                  \
    TARVO_CLASS(AClass, AParent)                                                                   \
  public:                                                                                          \
    explicit AClass(AType A##AField __VA_OPT__(= __VA_ARGS__)) : F##AField(std::move(A##AField)) {} \
    const AType& AField() const { return F##AField; }                                              \
                                                                                                   \
  private:                                                                                         \
    AType F##AField;                                                                               \
  };

#define TARVO_ATTRIBUTE_2(AClass, AParent, AType1, AField1, AType2, AField2, ...)                  \
  class AClass : public AParent {                                                                  \
    TARVO_CLASS(AClass, AParent)                                                                   \
  public:                                                                                          \
    AClass(AType1 A##AField1, AType2 A##AField2 __VA_OPT__(= __VA_ARGS__))                         \
        : F##AField1(std::move(A##AField1)), F##AField2(std::move(A##AField2)) {}                  \
    const AType1& AField1() const { return F##AField1; }                                           \
    const AType2& AField2() const { return F##AField2; }                                           \
                                                                                                   \
  private:                                                                                         \
    AType1 F##AField1;                                                                             \
    AType2 F##AField2;                                                                             \
  };

namespace Tarvo {

// ---- Editors chosen for a member ----
TARVO_ATTRIBUTE(HiddenDesignAttribute, TCustomAttribute)
TARVO_ATTRIBUTE(MultiLineAttribute, TCustomAttribute)
TARVO_ATTRIBUTE(DynamicElementAttribute, TCustomAttribute)

// ---- Rows ----
// The text shown in place of a member's or a class's own name.
TARVO_ATTRIBUTE_1(NameAttribute, TCustomAttribute, String, Name)
TARVO_ATTRIBUTE(ReadOnlyAttribute, TCustomAttribute)
TARVO_ATTRIBUTE(RefreshPropertiesAttribute, TCustomAttribute)
TARVO_ATTRIBUTE(PropertyFixedListDesignAttribute, TCustomAttribute)

// One Boolean, read as the attribute's value; written without an argument it says yes.
TARVO_ATTRIBUTE_1(TBasicBooleanAttribute, TCustomAttribute, Boolean, Value, true)
TARVO_ATTRIBUTE(DisplayNestedAttribute, TBasicBooleanAttribute)
TARVO_ATTRIBUTE(DisplayNestedShortAttribute, TBasicBooleanAttribute)
TARVO_ATTRIBUTE(HideNestedDefaultAttribute, TBasicBooleanAttribute)

// ---- Lists and dialogs injected into an editor ----
// A property and the methods that supply its list values share one association identity; the
// identities compare as exact text.
TARVO_ATTRIBUTE_1(DesignAssociationAttribute, TCustomAttribute, String, Identity)
TARVO_ATTRIBUTE_1(PropertyListDesignAssociationAttribute, TCustomAttribute, String, Identity)
// One literal list value; After places it behind the values of the associated methods.
TARVO_ATTRIBUTE_2(PropertyListDesignValueAttribute, TCustomAttribute, String, Value, Boolean, After, false)
TARVO_ATTRIBUTE_1(PropertyListDialogDesignAttribute, TCustomAttribute, String, Caption)
TARVO_ATTRIBUTE(PropertySortListDesignAttribute, TCustomAttribute)
TARVO_ATTRIBUTE_1(PropertyValueAttribute, TCustomAttribute, String, Value)

// ---- Ranges of numeric rows ----
// The Design... attributes suggest a range; the others state the member's own limits.
TARVO_ATTRIBUTE_1(DesignMinAttribute, TCustomAttribute, TValue, Value)
TARVO_ATTRIBUTE_1(DesignMaxAttribute, TCustomAttribute, TValue, Value)
TARVO_ATTRIBUTE_2(DesignRangeAttribute, TCustomAttribute, TValue, MinValue, TValue, MaxValue)
TARVO_ATTRIBUTE_1(MinValueAttribute, TCustomAttribute, TValue, Value)
TARVO_ATTRIBUTE_1(MaxValueAttribute, TCustomAttribute, TValue, Value)
TARVO_ATTRIBUTE_2(ValueRangeAttribute, TCustomAttribute, TValue, MinValue, TValue, MaxValue)
TARVO_ATTRIBUTE(SuppressRangeAttribute, TCustomAttribute)

// ---- String rows ----
TARVO_ATTRIBUTE(AutoUpdateAttribute, TCustomAttribute)
TARVO_ATTRIBUTE(IdentifierStringAttribute, TCustomAttribute)
TARVO_ATTRIBUTE(StringDesignAccessAttribute, TCustomAttribute)
// The filter and default extension of the file dialog.
TARVO_ATTRIBUTE_2(FileNameDesignAttribute, TCustomAttribute, String, Filter, String, DefaultExt, String())

// ---- Colours, class rows, collections ----
TARVO_ATTRIBUTE(ExcludeSystemColorsAttribute, TCustomAttribute)
TARVO_ATTRIBUTE(NotExpandableClassAttribute, TCustomAttribute)
TARVO_ATTRIBUTE(HideEmptyAttribute, TCustomAttribute)
TARVO_ATTRIBUTE(FixedCollectionAttribute, TCustomAttribute)
TARVO_ATTRIBUTE(FixedOrderCollectionAttribute, TCustomAttribute)
TARVO_ATTRIBUTE(AllowCollectionExpantionAttribute, TCustomAttribute)

// ---- Component editors ----
// The component editor class of the class that carries it.
TARVO_ATTRIBUTE_1(ComponentEditorAttribute, TCustomAttribute, TClass, ComponentEditor)
// The class offers verbs from its properties' attributes, and with IncludeMethods from its
// methods' too.
TARVO_ATTRIBUTE_1(ComponentEditorEntriesDesignAttribute, TCustomAttribute, Boolean, IncludeMethods, false)
// A verb with its caption; First puts it at the front, where it is also the double-click action.
TARVO_ATTRIBUTE_2(ComponentEditorEntryDesignAttribute, TCustomAttribute, String, Text, Boolean, First, false)
// A method verb after which the designer refreshes fully.
TARVO_ATTRIBUTE(ComponentEditorEntryFullRefreshDesignAttribute, ComponentEditorEntryDesignAttribute)
// The question put to the user before the verb runs.
TARVO_ATTRIBUTE_1(ComponentEditorEntryDesignConfirmationAttribute, TCustomAttribute, String, Text)
// Cancels, where it stands, the attribute class it names.
TARVO_ATTRIBUTE_1(SuppressAttribute, TCustomAttribute, TCustomAttributeClass, AttributeClass)
// The base of class attributes that pick a component editor registered for their class.
TARVO_ATTRIBUTE(TMBCommonFilterHostedPreviewAttribute, TCustomAttribute)

// ---- Categories ----
// The named category of a value or class in categorized lists and dialogs.
TARVO_ATTRIBUTE_1(CategoryAttribute, TCustomAttribute, String, Category)
TARVO_ATTRIBUTE_1(AlternateCategoryAttribute, TCustomAttribute, String, Category)

} // namespace Tarvo
