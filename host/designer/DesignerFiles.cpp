// The window's file commands: designs opened and saved, component modules loaded.
#include <QCloseEvent>
#include <QFileDialog>
#include <QSaveFile>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QUndoStack>

#include "host/designer/ComponentPalette.h"
#include "host/designer/ComponentTree.h"
#include "host/designer/DesignerWindow.h"
#include "host/grid/GridWidget.h"
#include "platform/MessageDlg.h"
#include "platform/ModalSeam.h"
#include "platform/OpenFileDialog.h"
#include "runtime/DesignFile.h"

namespace Tarvo {

namespace {

const char* const DesignFilter = "Designs|*.json|All files|*";

// Asks for the file to save to, starting at AFileName; the answer replaces it on OK.
bool ExecuteSaveDesignDialog(String& AFileName) {
  QFileDialog dialog;
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setNameFilters(FileDialogNameFilters(DesignFilter));
  dialog.setDefaultSuffix(QStringLiteral("json"));
  if (!AFileName.empty()) dialog.selectFile(QString::fromStdString(AFileName));
  if (ExecuteModal(dialog) != QDialog::Accepted) return false;
  const QStringList files = dialog.selectedFiles();
  if (files.isEmpty()) return false;
  AFileName = files.first().toStdString();
  return true;
}

} // namespace

bool TDesignerWindow::Open() {
  // Text being typed is written first, so that the question below knows of it.
  if (!FGrid->CommitEdit()) {
    statusBar()->showMessage(tr("The value being edited was not accepted; nothing was opened."));
    return false;
  }
  if (!ConfirmDiscard()) return false;
  String path;
  return ExecuteOpenFileDialog(DesignFilter, "json", path) && OpenDesign(path);
}

bool TDesignerWindow::OpenDesign(const String& APath) {
  // A design is read whole into a root of its own, so that a bad file leaves the open one alone.
  TOwnedObject<TComponent> root(TComponentHelper::CreateComponent(TComponent::ClassInfo(), nullptr, true, false));
  try {
    ReadDesignFile(APath, root.get());
  } catch (const std::exception& error) {
    ShowError(error.what());
    return false;
  }
  SetDesign(std::move(root), APath);
  statusBar()->showMessage(tr("Opened %1").arg(QString::fromStdString(APath)));
  return true;
}

void TDesignerWindow::SetDesign(TOwnedObject<TComponent> ARoot, const String& APath) {
  const TRef<THostDesigner> designer = New<THostDesigner>(ARoot.get());
  designer->AddSelectionChangeNotify(FListener);
  FGrid->SetDesigner(designer);
  if (FDesigner) FDesigner->RemoveSelectionChangeNotify(FListener);
  FDesigner = designer;
  std::swap(FRoot, ARoot);
  FTree->Rebuild(FRoot.get());
  FFileName = APath;
  FSavedCount = 0;
  // The old design's changes can't be undone on the new one. Only once the grid has left it:
  // leaving settles what the grid still had open there, and that is recorded too.
  FGrid->ClearUndo();
  if (QTreeWidgetItem* first = FTree->topLevelItem(0)) {
    TObject* const selection[] = {TComponentTree::ComponentOf(first)};
    Select(selection);
  }
  UpdateTitle();
  // ARoot, the old design, goes last: nothing refers to it any more.
}

bool TDesignerWindow::Save() { return FFileName.empty() ? SaveAs() : WriteDesignTo(FFileName); }

bool TDesignerWindow::SaveAs() {
  String path = FFileName;
  return ExecuteSaveDesignDialog(path) && WriteDesignTo(path);
}

bool TDesignerWindow::WriteDesignTo(const String& APath) {
  // The text being typed belongs to what is saved; refused text is not saved silently.
  if (!FGrid->CommitEdit()) {
    statusBar()->showMessage(tr("The value being edited was not accepted; nothing was saved."));
    return false;
  }
  QSaveFile file(QString::fromStdString(APath));
  const std::string text = WriteDesign(FRoot.get());
  if (!file.open(QIODevice::WriteOnly) || file.write(text.data(), qint64(text.size())) != qint64(text.size()) ||
      !file.commit()) {
    ShowError("Can't write '" + APath + "': " + file.errorString().toStdString());
    return false;
  }
  FFileName = APath;
  FSavedCount = FDesigner->ModifiedCount();
  FGrid->UndoStack()->setClean();
  UpdateTitle();
  statusBar()->showMessage(tr("Saved %1").arg(QString::fromStdString(APath)));
  return true;
}

bool TDesignerWindow::LoadModule() {
  String path;
  if (!ExecuteOpenFileDialog("Component modules|*.so|All files|*", "so", path)) return false;
  try {
    FModules.Load(path);
  } catch (const std::exception& error) {
    ShowError(error.what());
    return false;
  }
  FPalette->Refresh();
  statusBar()->showMessage(tr("Loaded %1").arg(QString::fromStdString(path)));
  return true;
}

bool TDesignerWindow::ConfirmDiscard() {
  if (!IsModified()) return true;
  const QString name = FFileName.empty() ? tr("the new design") : QString::fromStdString(FFileName);
  switch (MessageDlg(tr("Save the changes to %1?").arg(name).toStdString(), mtConfirmation, {mbYes, mbNo, mbCancel},
                     mbYes)) {
  case mbYes: return Save();
  case mbNo: return true;
  default: return false;
  }
}

// Closing is never held up by text the grid refuses; that text goes with the window.
void TDesignerWindow::closeEvent(QCloseEvent* AEvent) {
  FGrid->CommitEdit();
  if (ConfirmDiscard()) AEvent->accept();
  else AEvent->ignore();
}

} // namespace Tarvo
