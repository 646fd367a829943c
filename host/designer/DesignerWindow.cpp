#include "host/designer/DesignerWindow.h"

#include <QAction>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStatusBar>
#include <QUndoStack>

#include <filesystem>

#include "host/designer/ComponentPalette.h"
#include "host/designer/ComponentTree.h"
#include "host/grid/GridWidget.h"
#include "platform/MessageDlg.h"
#include "reflection/RttiTypes.h"
#include "runtime/DesignFile.h"

namespace Tarvo {

TDesignerWindow::TDesignerWindow(const String& ADesignFile, QWidget* AParent)
    : QMainWindow(AParent), FTree(new TComponentTree), FPalette(new TComponentPalette), FGrid(new TInspectorGrid) {
  auto* left = new QSplitter(Qt::Vertical);
  left->addWidget(FTree);
  left->addWidget(FPalette);
  auto* centre = new QSplitter(Qt::Horizontal);
  centre->addWidget(left);
  centre->addWidget(FGrid);
  centre->setStretchFactor(1, 1);
  setCentralWidget(centre);
  resize(900, 640);

  FListener = New<TSelectionChangeNotifier>()
                  ->SetOnSelectionChanged([this] { DesignerSelectionChanged(); })
                  ->SetOnModified([this] { DesignModified(); });
  connect(FTree, &QTreeWidget::itemSelectionChanged, this, &TDesignerWindow::TreeSelectionChanged);
  FPalette->SetOnCreate([this](TClass AClass) { CreateComponent(AClass); });
  connect(FGrid, &TInspectorGrid::Message, statusBar(), [this](const QString& AText) { statusBar()->showMessage(AText); });
  CreateMenus();

  TOwnedObject<TComponent> root(TComponentHelper::CreateComponent(TComponent::ClassInfo(), nullptr, true, false));
  if (!ADesignFile.empty()) ReadDesignFile(ADesignFile, root.get());
  SetDesign(std::move(root), ADesignFile);
}

// The grid goes first: it listens to the designer, and what it holds may come from the modules.
TDesignerWindow::~TDesignerWindow() {
  delete FGrid;
  FGrid = nullptr;
  FDesigner->RemoveSelectionChangeNotify(FListener);
  {
    const QSignalBlocker quiet(FTree);
    FTree->clear();
  }
  FDesigner = nullptr;
  FRoot.reset();
}

void TDesignerWindow::CreateMenus() {
  QMenu* file = menuBar()->addMenu(tr("&File"));
  const auto add = [this](QMenu* AMenu, const char* AName, const QString& AText, QKeySequence AKey, auto ASlot) {
    QAction* action = AMenu->addAction(AText, this, ASlot);
    action->setObjectName(AName);
    action->setShortcut(AKey);
    return action;
  };
  add(file, "actionOpen", tr("&Open..."), QKeySequence::Open, [this] { Open(); });
  add(file, "actionSave", tr("&Save"), QKeySequence::Save, [this] { Save(); });
  add(file, "actionSaveAs", tr("Save &As..."), QKeySequence::SaveAs, [this] { SaveAs(); });
  file->addSeparator();
  add(file, "actionLoadModule", tr("Load &Module..."), QKeySequence(), [this] { LoadModule(); });
  file->addSeparator();
  add(file, "actionQuit", tr("&Quit"), QKeySequence::Quit, [this] { close(); });

  QMenu* edit = menuBar()->addMenu(tr("&Edit"));
  QAction* undo = FGrid->UndoStack()->createUndoAction(this, tr("&Undo"));
  undo->setObjectName("actionUndo");
  undo->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Z));
  QAction* redo = FGrid->UndoStack()->createRedoAction(this, tr("&Redo"));
  redo->setObjectName("actionRedo");
  redo->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)});
  edit->addAction(undo);
  edit->addAction(redo);
  // An undone rename shows in the tree, an undo back to the saved state in the title.
  connect(FGrid->UndoStack(), &QUndoStack::indexChanged, this, [this] { DesignModified(); });
}

TComponent* TDesignerWindow::CreateComponent(TClass AClass) {
  // The new component is selected at once: the edit in progress must be settled first.
  if (!FGrid->CommitEdit()) return nullptr;
  TComponent* component;
  try {
    component = FDesigner->CreateComponent(TRttiObjectHelper::ClassTypeInfo(AClass), false);
  } catch (const std::exception& error) {
    ShowError(error.what());
    return nullptr;
  }
  FTree->Rebuild(FRoot.get());
  FDesigner->Modified();
  TObject* const selection[] = {component};
  Select(selection);
  statusBar()->showMessage(tr("%1 added").arg(QString::fromStdString(component->GetName())));
  return component;
}

bool TDesignerWindow::Select(std::span<TObject* const> AComponents) {
  if (!SetDesignerSelection(AComponents)) return false;
  FTree->SelectComponents(AComponents);
  return true;
}

bool TDesignerWindow::SetDesignerSelection(std::span<TObject* const> AComponents) {
  if (!FGrid->CommitEdit()) {
    FTree->SelectComponents(FDesigner->GetSelection()->ToArray());
    statusBar()->showMessage(tr("The value being edited was not accepted; the selection stays."));
    return false;
  }
  const QScopedValueRollback selecting(FSelecting, true);
  FDesigner->SetSelection(AComponents);
  return true;
}

// The tree has the selection already; setting it again would move the anchor of a shift-click.
void TDesignerWindow::TreeSelectionChanged() { SetDesignerSelection(FTree->SelectedComponents()); }

// A selection made elsewhere (a component editor, say) shows in the tree.
void TDesignerWindow::DesignerSelectionChanged() {
  if (!FSelecting) FTree->SelectComponents(FDesigner->GetSelection()->ToArray());
  UpdateTitle();
}

// An editor may have added or freed components as well as renamed them.
void TDesignerWindow::DesignModified() {
  if (FTree->Shows(FRoot.get())) FTree->RefreshTexts();
  else {
    FTree->Rebuild(FRoot.get());
    FTree->SelectComponents(FDesigner->GetSelection()->ToArray());
  }
  UpdateTitle();
}

void TDesignerWindow::UpdateTitle() {
  const QString name = FFileName.empty() ? tr("Untitled")
                                         : QString::fromStdString(std::filesystem::path(FFileName).filename().string());
  setWindowTitle(tr("%1[*] - Tarvo Designer").arg(name));
  setWindowModified(IsModified());
}

void TDesignerWindow::ShowError(const String& AMessage) { MessageDlg(AMessage, mtError, {mbOK}, mbOK); }

} // namespace Tarvo
