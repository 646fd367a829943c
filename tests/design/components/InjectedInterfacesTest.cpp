// Lists and dialogs an editor is given by its member's attributes alone.

#include <gtest/gtest.h>

#include "design/components/InjectedInterfaces.h"
#include "design/paint/EditorPaint.h"
#include "forms/ListSelectDialog.h"
#include "package/DesignUnit.h"
#include "platform/ModalSeam.h"
#include "reflection/ListAttributes.h"
#include "reflection/Publish.h"
#include "reflection/RowAttributes.h"
#include "tests/design/EditorTestSupport.h"

namespace Tarvo {

namespace InjectedTesting {

class TPicker : public TComponent {
  TARVO_CLASS(TPicker, TComponent)
public:
  TPicker() : TComponent(nullptr) {}
  String FPreset, FFilled, FUnit = "V", FFixed = "A", FPlain;
  TRef<IStringArrayList> Names() const { return New<TStringArrayList>()->Append(std::vector<String>{"b", "a"}); }
  void FillNames(const TRef<IStringArrayList>& AList) const { AList->Add("filled"); }
};

TARVO_IMPLEMENT_CLASS(TPicker)

TARVO_PUBLISH(TPicker) {
  Property("Preset", &TPicker::FPreset, &TPicker::FPreset)
      .Attr<PropertyListDesignAssociationAttribute>("presets")
      .Attr<PropertyListDesignValueAttribute>("Custom", true)
      .Attr<PropertyListDesignValueAttribute>("None")
      .Attr<PropertyListDialogDesignAttribute>("Pick a preset");
  Property("Filled", &TPicker::FFilled, &TPicker::FFilled).Attr<PropertyListDesignAssociationAttribute>("filled");
  Property("Unit", &TPicker::FUnit, &TPicker::FUnit)
      .Attr<PropertyListDesignValueAttribute>("V")
      .Attr<PropertyListDesignValueAttribute>("mV");
  Property("Fixed", &TPicker::FFixed, &TPicker::FFixed)
      .Attr<PropertyFixedListDesignAttribute>()
      .Attr<PropertyListDesignValueAttribute>("A")
      .Attr<PropertyListDesignValueAttribute>("B");
  Property("Plain", &TPicker::FPlain, &TPicker::FPlain);
  Method("Names", &TPicker::Names).Attr<DesignAssociationAttribute>("presets");
  Method("FillNames", &TPicker::FillNames, {"AList"}).Attr<DesignAssociationAttribute>("filled");
}

// An editor that keeps its list but offers no dialog for it.
class TNoDialogEditor : public TImplements<TSinglePropertyEditor, IOptionalPropertyEditorDialog> {
  TARVO_CLASS(TNoDialogEditor, TImplements<TSinglePropertyEditor, IOptionalPropertyEditorDialog>)
public:
  using TImplements::TImplements;
  Boolean GetDialogAvailable() override { return false; }
};
TARVO_IMPLEMENT_CLASS(TNoDialogEditor)

class InjectedInterfacesTest : public testing::Test {
protected:
  InjectedInterfacesTest() {
    InitializeDesignUnit();
    FDesigner->Select({&FFirst, &FSecond});
  }
  ~InjectedInterfacesTest() override { FinalizeDesignUnit(); }

  template <class E = TSinglePropertyEditor> TRef<IPropertyEditor> Editor(const String& AName) {
    return TRef<IPropertyEditor>(Testing::MakeEditor<E>(FDesigner, AName));
  }
  static std::vector<String> ListOf(const TRef<IPropertyEditor>& AEditor) {
    return QueryAs<IPropertyEditorDropDownStringList>(AEditor)->GetStringListValues()->ToArray();
  }

  std::vector<String> FLog;
  TRef<Testing::TLoggingDesigner> FDesigner = New<Testing::TLoggingDesigner>(FLog);
  TPicker FFirst, FSecond;
};

TEST_F(InjectedInterfacesTest, ListsComeFromTheAssociatedMethodBetweenTheLiteralValues) {
  EXPECT_EQ(ListOf(Editor("Preset")), (std::vector<String>{"None", "b", "a", "Custom"}));
  EXPECT_EQ(ListOf(Editor("Filled")), std::vector<String>{"filled"}) << "a procedure fills the list it is given";
  EXPECT_EQ(ListOf(Editor("Unit")), (std::vector<String>{"V", "mV"}));
  EXPECT_FALSE(Supports<IPropertyEditorDropDownStringList>(Editor("Plain")));
}

TEST_F(InjectedInterfacesTest, EveryListGetsTheDialogUnlessTheEditorWithholdsIt) {
  EXPECT_TRUE(Supports<IPropertyEditorDialog>(Editor("Unit")));
  EXPECT_FALSE(Supports<IPropertyEditorDialog>(Editor("Plain")));
  const TRef<IPropertyEditor> withheld = Editor<TNoDialogEditor>("Unit");
  EXPECT_FALSE(Supports<IPropertyEditorDialog>(withheld));
  EXPECT_TRUE(Supports<IPropertyEditorDropDownStringList>(withheld)) << "the list stays";
}

TEST_F(InjectedInterfacesTest, AnInjectedObjectLeadsBackToTheEditorAndKeepsItAlive) {
  TRef<IPropertyEditorDropDownStringList> list;
  {
    const TRef<IPropertyEditor> editor = Editor("Unit");
    list = QueryAs<IPropertyEditorDropDownStringList>(editor);
  }
  EXPECT_EQ(QueryAs<IPropertyEditor>(list)->GetName(), "Unit");
  EXPECT_FALSE(Supports<IPropertyEditorListDraw>(list)) << "an unrelated interface falls through to the editor's answer";
  EXPECT_FALSE(Supports<IPropertyEditorListDraw>(Editor("Unit")));
}

TEST_F(InjectedInterfacesTest, AFixedListDropsOtherTextWithoutAWord) {
  const TRef<IPropertyEditor> editor = Editor("Fixed");
  editor->SetStringValue("C");
  EXPECT_EQ(FFirst.FFixed, "A");
  EXPECT_TRUE(FLog.empty());
  editor->SetStringValue("B");
  EXPECT_EQ(FSecond.FFixed, "B");
}

TEST_F(InjectedInterfacesTest, TheDialogShowsTheListUnderItsCaptionAndWritesThePick) {
  FFirst.FPreset = FSecond.FPreset = "A"; // differs from row "a" in case only
  String caption, selected;
  std::vector<String> rows;
  const TModalHandlerScope user([&](QDialog& ADialog) {
    auto& form = dynamic_cast<TTarvoListSelectDialogForm&>(ADialog);
    caption = form.windowTitle().toStdString();
    selected = form.GetSelection();
    for (int i = 0; i < form.ListBox->count(); ++i) rows.push_back(form.ListBox->item(i)->text().toStdString());
    form.ListBox->setCurrentRow(1);
    return int(QDialog::Accepted);
  });
  QueryAs<IPropertyEditorDialog>(Editor("Preset"))->Execute(nullptr);
  EXPECT_EQ(caption, "Pick a preset");
  EXPECT_EQ(selected, "a");
  EXPECT_EQ(rows, (std::vector<String>{"None", "b", "a", "Custom"}));
  EXPECT_EQ(FFirst.FPreset, "b");
  EXPECT_EQ(FSecond.FPreset, "b");
}

} // namespace InjectedTesting

} // namespace Tarvo
