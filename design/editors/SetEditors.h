#pragma once
// Sets: a row that expands into one Boolean sub-row for each element of the set's enumeration.
// Only the first 32 elements are distinct: an element's bit is its ordinal modulo 32, read and
// written in the set's first 32-bit word.

#include "design/MemberKinds.h"
#include "design/VirtualMembers.h"
#include "design/editors/EnumEditors.h"

namespace Tarvo {

// One element of a set, as a Boolean member that reads and writes the set through its owner.
class TARVO_API TSetValueMemberInfo : public TImplements<TNestedValueMemberInfo, ISetValueMemberInfo> {
public:
  TSetValueMemberInfo(TRef<IValueMemberInfo> AOwner, String AName, Integer ABit);

  TValue GetValue(TObject* AInstance) override;
  // Sets or clears the element's bit in the owner's value and writes the whole set back.
  void SetValue(TObject* AInstance, const TValue& AValue) override;
  TValue GetDefault(TObject* AInstance) override;
  bool GetHasDefault() override { return GetOwner()->GetHasDefault(); }
  // Default when the whole set is; else when the element's bit is as in the default.
  bool GetIsDefault(TObject* AInstance, bool AIncludeStored) override;
  TRef<IValueMemberInfo> GetOwnerMember() override { return GetOwner(); }

private:
  bool BitOf(const TValue& ASet) const;
  Integer FBit;
};

class TARVO_API TSetPropertyEditor : public TSinglePropertyEditor {
  TARVO_CLASS(TSetPropertyEditor, TSinglePropertyEditor)
public:
  using TSinglePropertyEditor::TSinglePropertyEditor;
  Boolean GetIsExpandable() override { return true; }
  // One member for each element of the set's enumeration, in declaration order; none for a set
  // of something else. Always true.
  Boolean GetSubMembers(TRef<IMembersInfo>& AResult, Boolean APublishedPropertiesOnly) override;
};

// An element's row: a check box, whose stored answer is the whole set's.
class TARVO_API TSetValuePropertyEditor : public TBooleanPropertyEditor {
  TARVO_CLASS(TSetValuePropertyEditor, TBooleanPropertyEditor)
public:
  using TBooleanPropertyEditor::TBooleanPropertyEditor;
  TRef<IArrayList<TIsDefaultByStrored>> GetIsDefaultsByStored(const TRef<IObjectArrayList>& AObjectsList) override;
};

} // namespace Tarvo
