#pragma once
// The design surface of the headless host: a root component that owns the design, the
// selection the rows work on, and component names answered from the root.

#include "design/Designer.h"

namespace Tarvo {

class THostDesigner : public TDesigner {
public:
  // ARoot is not owned; it must outlive the designer.
  explicit THostDesigner(TComponent* ARoot) : FRoot(ARoot) {}

  TRef<IStringArrayList> GetComponentNames() override;
  TComponent* GetComponent(const String& AName) override { return FRoot->FindComponent(AName); }
  // ABaseName followed by the first number that makes it free.
  String UniqueName(const String& ABaseName) override;

protected:
  TComponent* GetEditRoot() override { return FRoot; }

private:
  TComponent* FRoot;
};

} // namespace Tarvo
