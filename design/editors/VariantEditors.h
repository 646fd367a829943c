#pragma once
// Variants: the value edited as text, keeping its type while the text fits it, and a "Type"
// sub-row that shows the type by name and changes it.

#include "design/MemberKinds.h"
#include "design/VirtualMembers.h"
#include "design/editors/OrdinalEditors.h"

namespace Tarvo {

// The type code of a variant member, masked to 16 bits, as a 32-bit integer member. Writing
// code 0 clears the variant, code 1 makes it Null, any other casts the variant to that type
// (EVariantTypeCastError where there is no cast).
class TARVO_API TVariantTypeMember
    : public TImplements<TNestedValueMemberInfo, IVariantTypeMemberInfo, INestedValueMemberInfo> {
public:
  explicit TVariantTypeMember(TRef<IValueMemberInfo> AOwner);
  TRef<IValueMemberInfo> GetOwnerMember() override { return GetOwner(); }

  TValue GetValue(TObject* AInstance) override;
  void SetValue(TObject* AInstance, const TValue& AValue) override;
  TValue GetDefault(TObject* AInstance) override;
  bool GetHasDefault() override { return GetOwner()->GetHasDefault(); }
  bool GetIsDefault(TObject* AInstance, bool AIncludeStored) override {
    return GetOwner()->GetIsDefault(AInstance, AIncludeStored);
  }
};

class TARVO_API TVariantPropertyEditor : public TSinglePropertyEditor {
  TARVO_CLASS(TVariantPropertyEditor, TSinglePropertyEditor)
public:
  using TSinglePropertyEditor::TSinglePropertyEditor;
  Boolean GetIsExpandable() override { return true; }
  // The one "Type" member.
  Boolean GetSubMembers(TRef<IMembersInfo>& AResult, Boolean APublishedPropertiesOnly) override;
  // "ERROR" for an object reference, currency and Boolean by their own texts, "(Null)" for Null.
  TRef<IStringArrayList> GetStringValues(const TRef<IObjectArrayList>& AObjectsList) override;
  // Empty text clears the variant, the null text in any case makes it Null; other text is cast to
  // the first value's type where it fits, else kept as a string.
  void SetStringValue(const String& AValue) override;
};

class TARVO_API TVariantTypePropertyEditor
    : public TImplements<TOrdinalPropertyEditor, IPropertyEditorDropDownStringList> {
  TARVO_CLASS(TVariantTypePropertyEditor, TImplements<TOrdinalPropertyEditor, IPropertyEditorDropDownStringList>)
public:
  using TImplements::TImplements;
  // The type's name, ignoring the array and by-reference flags; "String" for code 258, else
  // "(Unknown)".
  TRef<IStringArrayList> GetStringValues(const TRef<IObjectArrayList>& AObjectsList) override;
  // The code of the name (exactly as listed); "String" writes code 256, which reads back as 258.
  // An unknown name writes -1, which the cast refuses.
  void SetStringValue(const String& AValue) override;
  // The named codes in ascending order, then "String".
  TRef<IStringArrayList> GetStringListValues() override;
  // The variant's stored answer.
  TRef<IArrayList<TIsDefaultByStrored>> GetIsDefaultsByStored(const TRef<IObjectArrayList>& AObjectsList) override {
    return FParentEditor->GetIsDefaultsByStored(AObjectsList);
  }
};

} // namespace Tarvo
