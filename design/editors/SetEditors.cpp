#include "design/editors/SetEditors.h"

#include <cstring>
#include <vector>

#include "design/Registry.h"
#include "design/editors/EditorFamilies.h"

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TSetPropertyEditor)
TARVO_IMPLEMENT_CLASS(TSetValuePropertyEditor)

namespace {

std::uint32_t MaskOf(Integer ABit) { return std::uint32_t(1) << (std::uint32_t(ABit) % 32); }

// The set's bytes, at least the first 32-bit word of them.
std::vector<unsigned char> BytesOf(const TValue& ASet) {
  std::vector<unsigned char> bytes(std::max<std::size_t>(ASet.GetDataSize(), sizeof(std::uint32_t)), 0);
  if (!ASet.IsEmpty()) std::memcpy(bytes.data(), ASet.GetReferenceToRawData(), ASet.GetDataSize());
  return bytes;
}

std::uint32_t FirstWord(const std::vector<unsigned char>& ABytes) {
  std::uint32_t word = 0;
  std::memcpy(&word, ABytes.data(), sizeof word);
  return word;
}

} // namespace

TSetValueMemberInfo::TSetValueMemberInfo(TRef<IValueMemberInfo> AOwner, String AName, Integer ABit)
    : TImplements(std::move(AOwner), &TypeInfo_Boolean, std::move(AName)), FBit(ABit) {}

bool TSetValueMemberInfo::BitOf(const TValue& ASet) const { return FirstWord(BytesOf(ASet)) & MaskOf(FBit); }

TValue TSetValueMemberInfo::GetValue(TObject* AInstance) {
  return TValue(Boolean(BitOf(GetOwner()->GetValue(AInstance))));
}

TValue TSetValueMemberInfo::GetDefault(TObject* AInstance) {
  return TValue(Boolean(BitOf(GetOwner()->GetDefault(AInstance))));
}

bool TSetValueMemberInfo::GetIsDefault(TObject* AInstance, bool AIncludeStored) {
  return GetOwner()->GetIsDefault(AInstance, AIncludeStored) ||
         GetValue(AInstance).AsBoolean() == GetDefault(AInstance).AsBoolean();
}

void TSetValueMemberInfo::SetValue(TObject* AInstance, const TValue& AValue) {
  const TValue set = GetOwner()->GetValue(AInstance);
  std::vector<unsigned char> bytes = BytesOf(set);
  std::uint32_t word = FirstWord(bytes);
  word = AValue.AsBoolean() ? word | MaskOf(FBit) : word & ~MaskOf(FBit);
  std::memcpy(bytes.data(), &word, sizeof word);
  GetOwner()->SetValue(AInstance, TValue::Make(bytes.data(), set.GetTypeInfo()));
}

Boolean TSetPropertyEditor::GetSubMembers(TRef<IMembersInfo>& AResult, Boolean) {
  const TRef<IMemberInfo> member = GetFirstMember();
  const TRef<TDynamicMembers> members = New<TDynamicMembers>();
  AResult = members;
  TRef<ISetTypeInfo> set;
  TRef<IEnumerationTypeInfo> elements;
  const TRef<IValueMemberInfo> owner = QueryAs<IValueMemberInfo>(member);
  if (!owner || !Supports(member->GetTypeInfo(), set) || !Supports(set->GetElementType(), elements)) return true;
  const TRef<IStringArrayList> names = elements->GetNames();
  for (Integer i = 0; i < names->GetCount(); ++i)
    members->Add(New<TSetValueMemberInfo>(owner, names->GetItem(i), elements->GetOrdinal(i)));
  return true;
}

TRef<IArrayList<TIsDefaultByStrored>>
TSetValuePropertyEditor::GetIsDefaultsByStored(const TRef<IObjectArrayList>& AObjectsList) {
  return FParentEditor->GetIsDefaultsByStored(AObjectsList);
}

void RegisterSetEditors() {
  DefaultEditorClasses.ByTypeKind[tkSet] = TSetPropertyEditor::ClassInfo();
  DefaultEditorClasses.SetValueEditor = TSetValuePropertyEditor::ClassInfo();
}

} // namespace Tarvo
