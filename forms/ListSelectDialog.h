#pragma once
// The dialog behind the "…" button of an editor whose values come from a list: one string picked
// from the list, narrowed by a filter typed above it. The rows are drawn by the editor's own list
// drawing when it has one, as in the grid's drop-down.

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>

#include <memory>

#include "design/SinglePropertyEditor.h"
#include "design/paint/EditorPaint.h"

namespace Tarvo {

class TTarvoListSelectDialogForm;

// The complete list the dialog picks from. The list box shows the part the filter lets through;
// every change here fills the box anew with all of it, so a filter shown at the time is dropped.
class TKBListBoxItems {
public:
  explicit TKBListBoxItems(TTarvoListSelectDialogForm* AOwner) : FOwner(AOwner) {}

  Integer Count() const { return Integer(FItems.size()); }
  String Strings(Integer AIndex) const { return FItems.at(AIndex).toStdString(); }
  const QStringList& Texts() const { return FItems; }

  void Add(const String& AValue);
  // A nil list empties.
  void Assign(const TRef<IStringArrayList>& AValues);
  void Clear();

private:
  void Changed();

  TTarvoListSelectDialogForm* FOwner;
  QStringList FItems;
};

class TTarvoListSelectDialogForm : public QDialog {
public:
  static constexpr int ClientWidth = 349;
  static constexpr int ClientHeight = 334;

  // Shown centred on AParent, the owner's window.
  explicit TTarvoListSelectDialogForm(QWidget* AParent = nullptr);
  ~TTarvoListSelectDialogForm() override;

  // An editor that also draws list rows draws the rows here, at the heights it asks for; any
  // other caller gets plain rows of one text height.
  void SetCaller(const TRef<IPropertyEditorDropDownStringList>& ACaller);
  void SetKBListBoxItems(const TRef<IStringArrayList>& AItems);
  TKBListBoxItems& Items() { return *FKBListBoxItems; }
  // The row whose text is shown bold in plain rows; -1, the start, for none. Read as Execute starts.
  void SetDefaultIndex(Integer AIndex) { FDefaultIndex = AIndex; }
  Integer GetDefaultIndex() const { return FDefaultIndex; }

  // Selects the first row equal to ADefault in any case (else the first row) and runs the
  // dialog; true when closed with OK.
  Boolean Execute(const String& ADefault);
  Boolean Execute(const String& ACaption, const String& ADefault);
  // The selected row's text; empty when no row is selected, OK or not.
  String GetSelection() const;

  // The row painting of the two modes, as the list box's delegate calls it.
  void MeasureItem(Integer AIndex, Integer& AHeight);
  void DrawItem(QPainter& APainter, Integer AIndex, const QRect& ARect, QStyle::State AState);
  void DefaultDrawItem(QPainter& APainter, Integer AIndex, const QRect& ARect, QStyle::State AState);

  QWidget* TopPanel;
  QLabel* FilterLabel;
  QLineEdit* FilterEdit;
  QToolButton* ClearButton;
  QListWidget* ListBox;
  QWidget* BottomPanel;
  QPushButton* OKButton;
  QPushButton* CancelButton;

private:
  friend class TListSelectItemDelegate;

  void FilterEditChange();
  // The rows of the full list that hold AFilter in any case, in the list's order.
  void PopulateListBox(const String& AFilter);
  void ClearButtonClick();
  void ListBoxDblClick();
  // The height of "Hg" in the list box's font: every plain row's, and where a measured one starts.
  Integer TextRowHeight() const;

  TRef<IPropertyEditorDropDownStringList> FCaller;
  TRef<IPropertyEditorListDraw> FListDraw;
  Integer FDefaultIndex = -1;
  String FDefaultText;
  std::unique_ptr<TKBListBoxItems> FKBListBoxItems;
};

} // namespace Tarvo
