#pragma once
// The dialog that edits a list of strings as lines of text, with the caret's place and the number
// of lines under the text and a choice of a fixed-pitch font.

#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>

#include "runtime/Strings.h"

namespace Tarvo {

class TAdvancedStringsEditorForm : public QDialog {
public:
  explicit TAdvancedStringsEditorForm(QWidget* AParent = nullptr);

  // Edits ALines under ACaption; on OK ALines takes the edited lines, on Cancel it is left as it
  // was. Answers whether the user pressed OK.
  static Boolean Execute(const String& ACaption, TStrings& ALines);

  // One line of the editor for each string; no empty line follows the last.
  void SetLines(const TStrings& ALines);
  // The editor's text split into lines as TStrings::SetText splits it: a break at the very end
  // starts no further line.
  void GetLines(TStrings& ALines) const;

  QPlainTextEdit* Editor;
  // "Line 3, Column 7": the caret's place, counted from 1.
  QLabel* PositionLabel;
  // "12 lines": as many as GetLines gives.
  QLabel* LineCountLabel;
  QCheckBox* MonospaceBox;
  QDialogButtonBox* ButtonBox;

private:
  void UpdateStatus();
  void MonospaceToggled(Boolean AChecked);

  QFont FProportionalFont;
};

} // namespace Tarvo
