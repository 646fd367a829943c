#include "forms/AdvancedStringsEditorForm.h"

#include <QApplication>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QTextBlock>
#include <QVBoxLayout>

#include "platform/ModalSeam.h"

namespace Tarvo {

TAdvancedStringsEditorForm::TAdvancedStringsEditorForm(QWidget* AParent)
    : QDialog(AParent), Editor(new QPlainTextEdit(this)), PositionLabel(new QLabel(this)),
      LineCountLabel(new QLabel(this)), MonospaceBox(new QCheckBox(QStringLiteral("&Monospace font"), this)),
      ButtonBox(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this)),
      FProportionalFont(Editor->font()) {
  Editor->setLineWrapMode(QPlainTextEdit::NoWrap);

  auto* status = new QHBoxLayout;
  status->addWidget(PositionLabel);
  status->addStretch();
  status->addWidget(LineCountLabel);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(MonospaceBox);
  buttons->addStretch();
  buttons->addWidget(ButtonBox);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(Editor, 1);
  layout->addLayout(status);
  layout->addLayout(buttons);

  connect(Editor, &QPlainTextEdit::cursorPositionChanged, this, [this] { UpdateStatus(); });
  connect(Editor, &QPlainTextEdit::textChanged, this, [this] { UpdateStatus(); });
  connect(MonospaceBox, &QCheckBox::toggled, this, [this](bool AChecked) { MonospaceToggled(AChecked); });
  connect(ButtonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(ButtonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);

  resize(480, 360);
  UpdateStatus();
}

Boolean TAdvancedStringsEditorForm::Execute(const String& ACaption, TStrings& ALines) {
  TAdvancedStringsEditorForm form(QApplication::activeWindow());
  form.setWindowTitle(QString::fromStdString(ACaption));
  form.SetLines(ALines);
  if (ExecuteModal(form) != QDialog::Accepted) return false;
  form.GetLines(ALines);
  return true;
}

void TAdvancedStringsEditorForm::SetLines(const TStrings& ALines) {
  QStringList lines;
  lines.reserve(ALines.Count());
  for (Integer i = 0; i < ALines.Count(); ++i) lines.append(QString::fromStdString(ALines.Strings(i)));
  Editor->setPlainText(lines.join(u'\n'));
}

void TAdvancedStringsEditorForm::GetLines(TStrings& ALines) const {
  ALines.SetText(Editor->toPlainText().toStdString());
}

void TAdvancedStringsEditorForm::UpdateStatus() {
  const QTextCursor cursor = Editor->textCursor();
  // The column counts characters, so that one outside the basic plane is one step, not two.
  const qsizetype column = QStringView(cursor.block().text()).left(cursor.positionInBlock()).toUcs4().size() + 1;
  PositionLabel->setText(QStringLiteral("Line %1, Column %2").arg(cursor.blockNumber() + 1).arg(column));

  // An empty last line is the break that ends the line before it, not a line of the list.
  const QTextDocument* document = Editor->document();
  const int count = document->blockCount() - (document->lastBlock().text().isEmpty() ? 1 : 0);
  LineCountLabel->setText(count == 1 ? QStringLiteral("1 line") : QStringLiteral("%1 lines").arg(count));
}

void TAdvancedStringsEditorForm::MonospaceToggled(Boolean AChecked) {
  Editor->setFont(AChecked ? QFontDatabase::systemFont(QFontDatabase::FixedFont) : FProportionalFont);
}

} // namespace Tarvo
