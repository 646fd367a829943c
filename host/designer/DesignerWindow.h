#pragma once
// The main window of tarvo-designer: the component tree of one design, the palette that adds
// components to it, and the inspector grid over the tree's selection. The window owns the design
// (a root component and the designer over it) and the modules it loaded itself; the package and
// the modules loaded before it must outlive it.

#include <QMainWindow>

#include <span>

#include "host/headless/HostDesigner.h"
#include "host/headless/Modules.h"

namespace Tarvo {

class TComponentPalette;
class TComponentTree;
class TInspectorGrid;

class TDesignerWindow : public QMainWindow {
  Q_OBJECT
public:
  // Opens ADesignFile, or starts an empty design without a file when it is empty. Raises the
  // design file's errors.
  explicit TDesignerWindow(const String& ADesignFile, QWidget* AParent = nullptr);
  ~TDesignerWindow() override;

  TComponent* Root() const { return FRoot.get(); }
  THostDesigner* Designer() const { return FDesigner.get(); }
  TComponentTree* Tree() const { return FTree; }
  TComponentPalette* Palette() const { return FPalette; }
  TInspectorGrid* Grid() const { return FGrid; }
  const String& FileName() const { return FFileName; }
  // Some change was noticed since the design was opened or saved.
  bool IsModified() const { return FDesigner->ModifiedCount() != FSavedCount; }

  // The menu commands. Those that ask go through the modal seam; a failure is shown in a message
  // box and leaves the design as it was. Each answers whether it went through.
  bool Open();
  bool OpenDesign(const String& APath);
  bool Save();
  bool SaveAs();
  bool LoadModule();
  // Makes a component of AClass in the design and selects it alone.
  TComponent* CreateComponent(TClass AClass);
  // Selects AComponents in the tree and the designer, after the edit in progress is written;
  // false when the grid refused it (the selection stays).
  bool Select(std::span<TObject* const> AComponents);

protected:
  void closeEvent(QCloseEvent* AEvent) override;

private:
  void CreateMenus();
  // Takes ARoot over as the design of APath and lets the old one go.
  void SetDesign(TOwnedObject<TComponent> ARoot, const String& APath);
  bool WriteDesignTo(const String& APath);
  // Asks whether unsaved changes are to be saved first; false: the user cancelled.
  bool ConfirmDiscard();
  // Passes the selection to the designer once the grid has settled its edit; otherwise puts the
  // designer's selection back in the tree.
  bool SetDesignerSelection(std::span<TObject* const> AComponents);
  void TreeSelectionChanged();
  void DesignerSelectionChanged();
  void DesignModified();
  void UpdateTitle();
  void ShowError(const String& AMessage);

  // Declared first, so that the modules go after everything made of their classes.
  TModulesScope FModules;
  TOwnedObject<TComponent> FRoot;
  TRef<THostDesigner> FDesigner;
  TRef<ISelectionChange> FListener;
  TComponentTree* FTree;
  TComponentPalette* FPalette;
  TInspectorGrid* FGrid;
  String FFileName;
  Integer FSavedCount = 0;
  // Set while the window passes a selection of its own to the designer.
  bool FSelecting = false;
};

} // namespace Tarvo
