#pragma once
// Which members belong to which category: for each category class in use, one list of member
// filters for each member kind, and the answer in which categories a member falls. The grid
// groups its rows by these answers, under category heading rows.

#include <array>
#include <initializer_list>

#include "design/MemberEditor.h"
#include "design/MemberFilter.h"
#include "design/MemberKinds.h"
#include "platform/GXImages.h"
#include "reflection/MemberCategories.h"

namespace Tarvo {

class TARVO_API IMemberCategoryInstance : public virtual IMemberCategory {
  TARVO_INTERFACE(IMemberCategoryInstance, "{2E8C4A71-0B5D-4F39-9A16-D7C3E85B04F2}", IMemberCategory)
public:
  virtual String GetCategoryName() = 0;
  // True when the category has a picture.
  virtual Boolean GetImage(TRef<IGXBitmap>& ABitmap) = 0;
  virtual TMemberCategoryClass GetCategoryClass() = 0;
  // Adds AFilter to the list of each kind that holds no filter equal to it.
  virtual void AddFilter(TMemberKinds AKinds, const TRef<IMemberFilter>& AFilter) = 0;
  // Whether a filter of the kind's list matches.
  virtual Boolean IsInCategory(TMemberKind AKind, TClass AClass, const String& AName, const TRef<ITypeInfo>& AType) = 0;
};

// A category as registrations fill it: its name and picture are taken once, when it is made.
class TARVO_API TMemberCategoryInstance : public TImplements<TInterfaced, IMemberCategoryInstance> {
public:
  explicit TMemberCategoryInstance(TMemberCategoryClass AClass);

  String GetName() override { return FCategoryName; }
  String GetBitmapName() override { return String(); }
  String GetCategoryName() override { return FCategoryName; }
  Boolean GetImage(TRef<IGXBitmap>& ABitmap) override;
  TMemberCategoryClass GetCategoryClass() override { return FClass; }
  void AddFilter(TMemberKinds AKinds, const TRef<IMemberFilter>& AFilter) override;
  Boolean IsInCategory(TMemberKind AKind, TClass AClass, const String& AName, const TRef<ITypeInfo>& AType) override;
  // The filters of a kind, in the order they were added.
  TRef<IMemberFilters> GetFilters(TMemberKind AKind) { return FFilters[AKind]; }
  // Drops the filters that name a class or a type of AModule.
  void SweepModule(TModule* AModule);

private:
  String FCategoryName;
  TRef<IGXBitmap> FBitmap;
  std::array<TRef<IMemberFilters>, mkSet + 1> FFilters;
  TMemberCategoryClass FClass;
};

using IMemberCategories = IArrayList<TRef<IMemberCategoryInstance>>;

class TARVO_API IMemberCategoriesList : public virtual IMemberCategories {
  TARVO_INTERFACE(IMemberCategoriesList, "{6A1F9D34-C2E8-47B0-8D5A-3B7E0F146C29}", IMemberCategories)
public:
  // The instance of AClass, made and appended on first use.
  virtual TRef<IMemberCategoryInstance> GetCategory(TMemberCategoryClass AClass) = 0;
};

class TARVO_API TMemberCategories
    : public TImplements<TArrayList<TRef<IMemberCategoryInstance>>, IMemberCategoriesList> {
public:
  TRef<IMemberCategoryInstance> GetCategory(TMemberCategoryClass AClass) override;
};

// Made at the design core's start-up, in first-use order; nil while the core is down.
TARVO_API extern TRef<TMemberCategories> GMemberCategories;

// The instances of GMemberCategories, in its order, that AKind, AClass, AName and AType fall in.
TARVO_API TRef<IMemberCategories> GetMemberCategories(TMemberKind AKind, TClass AClass, const String& AName,
                                                      const TRef<ITypeInfo>& AType);

// The heading row of a category in the grid.
class TARVO_API TCategoryEditor : public TMemberEditor {
  TARVO_CLASS(TCategoryEditor, TMemberEditor)
public:
  explicit TCategoryEditor(TRef<IMemberCategory> ACategory);
  String GetName() override { return FCategory->GetName(); }
  Boolean GetImage(TRef<IGXBitmap>& ABitmap);
  Boolean GetIsExpandable() override { return true; }

private:
  TRef<IMemberCategory> FCategory;
};

// ---- Registration ----

// The type of a registration: a type info or a type record.
struct TCategoryType {
  TCategoryType(TRef<ITypeInfo> AType) : Type(std::move(AType)) {}
  TCategoryType(PTypeInfo ATypeRecord);
  TRef<ITypeInfo> Type;
};
using TCategoryClasses = std::initializer_list<TMemberCategoryClass>;
using TCategoryNames = std::initializer_list<String>;
using TCategoryTypes = std::initializer_list<TCategoryType>;

// Each puts one filter (a member name, a type, or both) for AOwnerClass (nil: any class) into
// every category of ACategories, for the member kinds given; the plural forms one filter for each
// name or type, in order. The property forms stand for [mkSingleProperty].
TARVO_API void RegisterMemberInCategories(TCategoryClasses ACategories, TClass AOwnerClass, TMemberKinds AKinds,
                                          const TCategoryType& AType, const String& AName);
TARVO_API void RegisterMemberInCategories(TCategoryClasses ACategories, TClass AOwnerClass, TMemberKinds AKinds,
                                          const String& AName);
TARVO_API void RegisterMemberInCategories(TCategoryClasses ACategories, TClass AOwnerClass, TMemberKinds AKinds,
                                          const TCategoryType& AType);
TARVO_API void RegisterMembersInCategories(TCategoryClasses ACategories, TClass AOwnerClass, TMemberKinds AKinds,
                                           const TCategoryType& AType, TCategoryNames ANames);
TARVO_API void RegisterMembersInCategories(TCategoryClasses ACategories, TClass AOwnerClass, TMemberKinds AKinds,
                                           TCategoryNames ANames);
TARVO_API void RegisterMembersInCategories(TCategoryClasses ACategories, TClass AOwnerClass, TMemberKinds AKinds,
                                           TCategoryTypes ATypes);
TARVO_API void RegisterPropertyInCategories(TCategoryClasses ACategories, TClass AOwnerClass,
                                            const TCategoryType& AType, const String& AName);
TARVO_API void RegisterPropertyInCategories(TCategoryClasses ACategories, TClass AOwnerClass, const String& AName);
TARVO_API void RegisterPropertyInCategories(TCategoryClasses ACategories, TClass AOwnerClass,
                                            const TCategoryType& AType);
TARVO_API void RegisterPropertiesInCategories(TCategoryClasses ACategories, TClass AOwnerClass,
                                              const TCategoryType& AType, TCategoryNames ANames);
TARVO_API void RegisterPropertiesInCategories(TCategoryClasses ACategories, TClass AOwnerClass, TCategoryNames ANames);
TARVO_API void RegisterPropertiesInCategories(TCategoryClasses ACategories, TClass AOwnerClass, TCategoryTypes ATypes);

// Puts the members of a component class into the categories their TMemberCategoryAttribute
// names: a member's own attribute with its name, its type's attribute for the type.
void RegisterMemberCategoriesOf(TClass AComponentClass);

// Drops what the categories know of AModule's classes and types.
void SweepMemberCategories(TModule* AModule);
// The filters of every category and kind, all together.
std::size_t MemberCategoryFilterCount();

// Compiled once, in design/instances/.
TARVO_ARRAY_LIST_INSTANCES(extern, TRef<IMemberCategoryInstance>)

} // namespace Tarvo
