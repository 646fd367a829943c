#pragma once
// Components that write what happens to them into a log the test owns.

#include <functional>
#include <vector>

#include "runtime/Component.h"

namespace Tarvo {

using TLog = std::vector<String>;

class TTestLogComponent : public TComponent {
  TARVO_CLASS(TTestLogComponent, TComponent)

public:
  explicit TTestLogComponent(TComponent* AOwner) : TComponent(AOwner), StateAtConstruction(ComponentState()) {
    HearOfSiblings();
  }
  ~TTestLogComponent() override { Write("destroy " + GetName()); }

  TLog* Log = nullptr;
  // Called when the component hears of another one going.
  std::function<void(TComponent*)> OnRemove;
  TComponentState StateAtConstruction;
  int LoadedCalls = 0;

protected:
  // A component hears of itself too; only others are logged.
  void Notification(TComponent* AComponent, TOperation AOperation) override {
    inherited::Notification(AComponent, AOperation);
    if (AComponent == this) return;
    Write(GetName() + (AOperation == opRemove ? ": remove " : ": insert ") + AComponent->GetName());
    if (AOperation == opRemove && OnRemove) OnRemove(AComponent);
  }
  void Loaded() override {
    inherited::Loaded();
    ++LoadedCalls;
  }

private:
  void Write(const String& AEntry) {
    if (Log) Log->push_back(AEntry);
  }
};

// A logging component of that name, named before its owner takes it; without owner the caller
// ends it.
inline TTestLogComponent* NewLogged(TComponent* AOwner, const String& AName, TLog* ALog = nullptr) {
  TOwnedObject<TTestLogComponent> component(Construct<TTestLogComponent>(nullptr));
  component->SetName(AName);
  component->Log = ALog;
  if (AOwner) AOwner->InsertComponent(component.get());
  return component.release();
}

} // namespace Tarvo
