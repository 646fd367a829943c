#pragma once
// The design surface of the headless host: a root component that owns the design, the
// selection the rows work on, component names answered from the root, and a count of the
// modification notices, by which the host tells a write from text an editor dropped.

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
  // Every call counts, also one made while a notice is under way.
  void Modified() override;
  Integer ModifiedCount() const { return FModifiedCount; }

protected:
  TComponent* GetEditRoot() override { return FRoot; }

private:
  TComponent* FRoot;
  Integer FModifiedCount = 0;
};

} // namespace Tarvo
