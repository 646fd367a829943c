#include <gtest/gtest.h>

#include <QPainter>

#include "forms/ListSelectDialog.h"
#include "platform/ModalSeam.h"
#include "tests/support/NamedRows.h"

namespace Tarvo {
namespace ListSelectDialogTesting {

using TForm = TTarvoListSelectDialogForm;

TRef<IStringArrayList> Strings(std::vector<String> AItems) { return TStringArrayList::CreateArray(AItems); }

String Rows(const TForm& AForm) {
  QStringList rows;
  for (int i = 0; i < AForm.ListBox->count(); ++i) rows << AForm.ListBox->item(i)->text();
  return rows.join(u' ').toStdString();
}

// Runs AForm with AUser standing in for the user; answers what Execute answers.
Boolean RunList(TForm& AForm, const String& ADefault, const std::function<int(TForm&)>& AUser) {
  TModalHandlerScope user([&](QDialog& ADialog) { return AUser(static_cast<TForm&>(ADialog)); });
  return AForm.Execute("Pick", ADefault);
}

int Accept(TForm&) { return QDialog::Accepted; }

// A row as the list box's delegate paints it.
QImage PaintRow(TForm& AForm, int ARow, Boolean ASelected) {
  QStyleOptionViewItem option;
  option.initFrom(AForm.ListBox);
  option.rect = QRect(0, 0, 120, 20);
  option.state = QStyle::State_Enabled | (ASelected ? QStyle::State_Selected : QStyle::State_None);
  QImage image(option.rect.size(), QImage::Format_ARGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  AForm.ListBox->itemDelegate()->paint(&painter, option, AForm.ListBox->model()->index(ARow, 0));
  return image;
}

// Rows in any case, the filter typed, the Clear button, then the filter typed again and OK.
TEST(ListSelectDialogTest, FilterKeepsRowsHoldingItInAnyCase) {
  const struct {
    const char *Name, *Filter, *Rows, *Selection;
  } cases[] = {{"no filter ever typed keeps the selection", "", "Alpha beta Gamma alphabet Delta", "beta"},
               {"upper-case filter over lower-case rows", "ALP", "Alpha alphabet", ""},
               {"anywhere in the row, kept in order", "ta", "beta Delta", ""},
               {"nothing matches", "zzz", "", ""}};
  Testing::ForEachRow(cases, [](const auto& ACase) {
    TForm form;
    form.SetKBListBoxItems(Strings({"Alpha", "beta", "Gamma", "alphabet", "Delta"}));
    EXPECT_TRUE(RunList(form, "beta", [&](TForm& AForm) {
      AForm.FilterEdit->setText(ACase.Filter);
      EXPECT_EQ(Rows(AForm), ACase.Rows);
      EXPECT_EQ(AForm.ClearButton->isEnabled(), *ACase.Filter != 0);
      AForm.ClearButton->click();
      EXPECT_EQ(Rows(AForm), "Alpha beta Gamma alphabet Delta");
      EXPECT_FALSE(AForm.ClearButton->isEnabled());
      AForm.FilterEdit->setText(ACase.Filter);
      return QDialog::Accepted;
    }));
    // Filtering drops the selection; OK without one gives nothing, yet true.
    EXPECT_EQ(form.GetSelection(), ACase.Selection);
    // A change of the full list shows all of it, filter or not.
    form.Items().Add("Omega");
    EXPECT_EQ(Rows(form), "Alpha beta Gamma alphabet Delta Omega");
  });
}

TEST(ListSelectDialogTest, DefaultSelectsTheFirstRowEqualInAnyCase) {
  const struct {
    const char *Name, *Default;
    int Code;
    const char* Selection;
    Boolean Result;
  } cases[] = {{"the same text", "Gamma", QDialog::Accepted, "Gamma", true},
               {"another case, two candidates", "BETA", QDialog::Accepted, "Beta", true},
               {"no such row: the first", "Delta", QDialog::Accepted, "alpha", true},
               {"cancelled", "Gamma", QDialog::Rejected, "Gamma", false}};
  Testing::ForEachRow(cases, [](const auto& ACase) {
    TForm form;
    form.SetKBListBoxItems(Strings({"alpha", "Beta", "beta", "Gamma"}));
    EXPECT_EQ(RunList(form, ACase.Default,
                      [&](TForm& AForm) {
                        EXPECT_EQ(AForm.windowTitle(), "Pick");
                        return ACase.Code;
                      }),
              ACase.Result);
    EXPECT_EQ(form.GetSelection(), ACase.Selection);
  });
  TForm empty;
  EXPECT_TRUE(RunList(empty, "x", [](TForm& AForm) { return AForm.OKButton->click(), AForm.result(); }));
  EXPECT_EQ(empty.GetSelection(), "");
}

// The reference is a row never run with a default; a default given to Execute bolds nothing.
TEST(ListSelectDialogTest, PlainRowsAreBoldForTheDefaultRowsExactText) {
  TForm reference, executed, marked;
  for (TForm* form : {&reference, &executed, &marked}) form->SetKBListBoxItems(Strings({"Alpha", "alpha", "Hg\nHg"}));
  marked.SetDefaultIndex(0);
  RunList(executed, "ALPHA", Accept);
  RunList(marked, "ALPHA", Accept);
  EXPECT_EQ(executed.GetSelection(), "Alpha");
  EXPECT_EQ(PaintRow(executed, 0, false), PaintRow(reference, 0, false));
  EXPECT_NE(PaintRow(marked, 0, false), PaintRow(reference, 0, false));
  EXPECT_EQ(PaintRow(marked, 1, false), PaintRow(reference, 1, false));
  // One text height for every row, two lines or not.
  EXPECT_EQ(marked.ListBox->sizeHintForRow(2), marked.ListBox->sizeHintForRow(0));
}

class TListSelectFakeEditor
    : public TImplements<TInterfacedObject, IPropertyEditorDropDownStringList, IPropertyEditorListDraw> {
public:
  struct TDrawn {
    String Value;
    TRef<IPaintObjectSet> Set;
    Boolean Selected;
  };
  TRef<IStringArrayList> GetStringListValues() override { return Strings({"Short", "Tall"}); }
  void ListGetSize(const TValue& AValue, const TRef<IGXGraphics>&, const TRef<IPaintObjects>&,
                   const TRef<IPaintObjectSet>&, TIGXSize& ASize) override {
    if (AValue.ToString() == "Tall") ASize.Height = 40;
  }
  void ListDrawValue(const TValue& AValue, const TRef<IGXGraphics>& AGraphics, const TRef<IPaintObjects>&,
                     const TRef<IPaintObjectSet>& ASet, const TIGXRect& ARect, Boolean ASelected) override {
    Drawn.push_back({AValue.ToString(), ASet, ASelected});
    AGraphics->GetPainter().fillRect(ARect.ToQRectF(), Qt::green);
  }
  std::vector<TDrawn> Drawn;
};

TEST(ListSelectDialogTest, AnEditorThatDrawsListRowsDrawsAndMeasuresEachRow) {
  const auto editor = New<TListSelectFakeEditor>();
  TForm form;
  form.SetCaller(editor);
  form.SetKBListBoxItems(editor->GetStringListValues());
  form.SetDefaultIndex(0);
  RunList(form, "", Accept);
  EXPECT_EQ(form.ListBox->sizeHintForRow(1), 40);
  EXPECT_LT(form.ListBox->sizeHintForRow(0), 40);

  // The default row is all the editor's: the dialog draws no text of its own.
  QImage green(120, 20, QImage::Format_ARGB32);
  green.fill(Qt::green);
  EXPECT_EQ(PaintRow(form, 0, false), green);
  PaintRow(form, 0, true);
  const TRef<IItemObjectSet> sets = GetDesignPaintObjects()->GetListSet();
  ASSERT_EQ(editor->Drawn.size(), 2u);
  EXPECT_TRUE(editor->Drawn[0].Value == "Short" && editor->Drawn[0].Set == sets->GetNone() &&
              !editor->Drawn[0].Selected);
  EXPECT_TRUE(editor->Drawn[1].Set == sets->GetSelected() && editor->Drawn[1].Selected);
}

} // namespace ListSelectDialogTesting
} // namespace Tarvo
