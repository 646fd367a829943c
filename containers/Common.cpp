#include "containers/Common.h"

#include <algorithm>

namespace Tarvo {

TARVO_IMPLEMENT_CLASS(TInterfacedChangeNotifyObject)

namespace {
TNotifyHandler AddHandler(std::vector<TNotifyHandler>& AList, TProc<> AHandler) {
  TARVO_ASSERT(AHandler != nullptr);
  AList.push_back(std::make_shared<const TProc<>>(std::move(AHandler)));
  return AList.back();
}

void RemoveHandler(std::vector<TNotifyHandler>& AList, const TNotifyHandler& AHandler) {
  const auto found = std::find(AList.begin(), AList.end(), AHandler);
  if (found != AList.end()) AList.erase(found);
}

// Handlers may add or remove handlers while they run; each call sees the list as it was.
void CallHandlers(const std::vector<TNotifyHandler>& AList) {
  const std::vector<TNotifyHandler> handlers = AList;
  for (const auto& handler : handlers) (*handler)();
}
} // namespace

TNotifyHandler TInterfacedChangeNotifyObject::AddChangeHandler(TProc<> AHandler) {
  return AddHandler(FChangeHandlers, std::move(AHandler));
}

void TInterfacedChangeNotifyObject::RemoveChangeHandler(const TNotifyHandler& AHandler) {
  RemoveHandler(FChangeHandlers, AHandler);
}

TNotifyHandler TInterfacedChangeNotifyObject::AddDestructionHandler(TProc<> AHandler) {
  return AddHandler(FDestructionHandlers, std::move(AHandler));
}

void TInterfacedChangeNotifyObject::RemoveDestructionHandler(const TNotifyHandler& AHandler) {
  RemoveHandler(FDestructionHandlers, AHandler);
}

void RaiseNoDefaultOrder() { throw EListError("The element type has no default order; pass a comparison"); }

void TInterfacedChangeNotifyObject::ChangeNotify() {
  if (!FChangeHandlers.empty()) CallHandlers(FChangeHandlers);
}

void TInterfacedChangeNotifyObject::BeforeDestruction() {
  CallHandlers(FDestructionHandlers);
  inherited::BeforeDestruction();
}

} // namespace Tarvo
