#pragma once
// A strip of picture buttons, one for each value of an enumeration drawn on a canvas (pen styles,
// brush styles, cursors). The strip wraps into rows and keeps to the right edge.

#include <QButtonGroup>
#include <QToolButton>
#include <QWidget>

#include <vector>

#include "containers/Common.h"
#include "platform/GXImages.h"

namespace Tarvo {

class TEnumCanvasInplaceForm : public QWidget {
public:
  static constexpr int Margin = 2;
  static constexpr int ButtonHeight = 21;
  static constexpr int RowHeight = 23;

  explicit TEnumCanvasInplaceForm(QWidget* AParent = nullptr);

  // A button showing ABitmap, AWidth + 5 wide, right of the last one; AValue comes back with
  // its click.
  void AddButton(const TRef<IGXImage>& ABitmap, const String& AHint, Boolean AIsDown, Integer AValue, Integer AWidth);
  // Flows the buttons into rows as wide as the form allows and fits the form's height to them.
  void ArrangeButtons();
  // Presses the button at index AValue.
  void SetSelectedValue(Integer AValue);

  // With the index of the button clicked and the value it was added with.
  TProc<Integer, Integer> OnButtonClick;

protected:
  void resizeEvent(QResizeEvent* AEvent) override;

private:
  void ButtonClick(QToolButton* AButton);

  QButtonGroup* FGroup;
  std::vector<std::pair<QToolButton*, Integer>> FButtons;
  QToolButton* FLastButton = nullptr;
  Integer FLastWidth = 0;
};

} // namespace Tarvo
