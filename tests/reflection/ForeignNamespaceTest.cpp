// A component module keeps its own namespace: classes, enumerations and sets declared in it,
// implemented and published from outside it with qualified names.
#include <gtest/gtest.h>

#include "reflection/Publish.h"
#include "reflection/RttiTypes.h"
#include "rtl/Sets.h"

namespace Acme {

using namespace Tarvo;

TARVO_ENUM(TGearKind, gkSpur, gkHelical, gkWorm)
TARVO_SET(TGearKinds, TGearKind)

class TGadget : public TObject {
  TARVO_CLASS(TGadget, TObject)
public:
  TGearKind FKind = gkSpur;
  TGearKinds FKinds;
};

class TGizmo : public TGadget {
  TARVO_CLASS(TGizmo, TGadget)
};

} // namespace Acme

namespace Acme {
TARVO_IMPLEMENT_ENUM(TGearKind)
TARVO_IMPLEMENT_SET(TGearKinds, TGearKind)
} // namespace Acme

TARVO_IMPLEMENT_CLASS(Acme::TGadget)
TARVO_IMPLEMENT_CLASS(Acme::TGizmo)
TARVO_PUBLISH(Acme::TGadget) {
  Property("Kind", &Acme::TGadget::FKind, &Acme::TGadget::FKind).Default(Acme::gkSpur);
  Property("Kinds", &Acme::TGadget::FKinds, &Acme::TGadget::FKinds);
}

namespace {

using namespace Tarvo;

// Classes, enumerations and sets of another namespace are found and read by their plain names.
TEST(ForeignNamespaceTest, ClassesEnumerationsAndSetsOfAModuleNamespaceAreReflected) {
  ASSERT_EQ(FindClass("TGizmo"), Acme::TGizmo::ClassInfo());
  EXPECT_TRUE(Acme::TGizmo::ClassInfo()->InheritsFrom(Acme::TGadget::ClassInfo()));
  EXPECT_EQ(String(Acme::TGadget::ClassInfo()->ClassName()), "TGadget");

  Acme::TGizmo gizmo;
  std::vector<String> texts;
  for (const TRef<IMemberInfo>& member : TRttiObjectHelper::TypeInfo(&gizmo, false)->GetAllMembers()) {
    const TRef<IValueMemberInfo> value = QueryAs<IValueMemberInfo>(member);
    if (member->GetName() == "Kind") value->SetFromString(&gizmo, "gkWorm");
    if (member->GetName() == "Kinds") value->SetFromString(&gizmo, "[gkSpur,gkWorm]");
    texts.push_back(member->GetName() + "=" + value->GetValue(&gizmo).ToString());
  }
  EXPECT_EQ(texts, (std::vector<String>{"Kind=gkWorm", "Kinds=[gkSpur,gkWorm]"}));
  EXPECT_EQ(gizmo.FKind, Acme::gkWorm);
}

} // namespace
