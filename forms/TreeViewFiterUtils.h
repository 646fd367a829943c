#pragma once
// The model behind a tree view that is rebuilt as a filter changes: one node object per entry,
// holding its caption, its data and whether it was expanded and selected. The nodes outlive the
// tree items that show them, so a rebuild can give the new items the state the old ones had.

#include "containers/List.h"

namespace Tarvo {

template <class T> class ITreeViewNodeData : public virtual IInterface {
  TARVO_INTERFACE(ITreeViewNodeData, "{88216B5D-670C-4E0D-8041-9ABC4CD65990}", IInterface)
public:
  using TNodeList = IArrayList<TRef<ITreeViewNodeData<T>>>;

  virtual TRef<TNodeList> GetChildren() = 0;
  virtual String GetCaption() = 0;
  virtual void SetCaption(const String& AValue) = 0;
  virtual Boolean GetExpanded() = 0;
  virtual void SetExpanded(Boolean AValue) = 0;
  virtual Boolean GetSelected() = 0;
  virtual void SetSelected(Boolean AValue) = 0;
  virtual T GetData() = 0;
  virtual void SetData(const T& AValue) = 0;
};

// A node with an empty list of children, collapsed and not selected.
template <class T> class TTreeViewNodeData : public TImplements<TInterfacedObject, ITreeViewNodeData<T>> {
public:
  using TNodeList = typename ITreeViewNodeData<T>::TNodeList;

  TTreeViewNodeData(const String& ACaption, const T& AData)
      : FChildren(New<TArrayList<TRef<ITreeViewNodeData<T>>>>()), FCaption(ACaption), FData(AData) {}

  TRef<TNodeList> GetChildren() override { return FChildren; }
  String GetCaption() override { return FCaption; }
  void SetCaption(const String& AValue) override { FCaption = AValue; }
  Boolean GetExpanded() override { return FExpanded; }
  void SetExpanded(Boolean AValue) override { FExpanded = AValue; }
  Boolean GetSelected() override { return FSelected; }
  void SetSelected(Boolean AValue) override { FSelected = AValue; }
  T GetData() override { return FData; }
  void SetData(const T& AValue) override { FData = AValue; }

private:
  TRef<TNodeList> FChildren;
  String FCaption;
  Boolean FExpanded = false;
  Boolean FSelected = false;
  T FData;
};

} // namespace Tarvo
