#pragma once
#pragma GCC visibility push(default)
// The dictionary container: a hash dictionary behind an interface, with the fluent operations of
// the lists and a query over its pairs.

#include <unordered_map>
#include <utility>
#include <vector>

#include "containers/List.h"
#include "containers/Query.h"

namespace Tarvo {

template <class K, class V> struct TPair {
  K Key;
  V Value;

  friend bool operator==(const TPair&, const TPair&) = default;
  // By key, then by value, so that the default comparer serves pairs too.
  friend bool operator<(const TPair& ALeft, const TPair& ARight) {
    const int byKey = DefaultCompare(ALeft.Key, ARight.Key);
    return byKey < 0 || (byKey == 0 && DefaultCompare(ALeft.Value, ARight.Value) < 0);
  }
};

// These two interfaces carry the empty GUID: they have no identity that a query could ask for,
// and are reached only through a reference handed out as such.
inline constexpr const char* EmptyInterfaceGUID = "{00000000-0000-0000-0000-000000000000}";

template <class K, class V> class IPairCollection : public virtual IEnumerable<TPair<K, V>> {
  TARVO_INTERFACE(IPairCollection, EmptyInterfaceGUID, IEnumerable<TPair<K, V>>)
};

template <class K, class V> class IDictionary : public virtual IPairCollection<K, V> {
  TARVO_INTERFACE(IDictionary, EmptyInterfaceGUID, IPairCollection<K, V>)
public:
  using TSelf = TRef<IDictionary>;
  using TPairQuery = TRef<IContainerQuery<TSelf, TSelf, TPair<K, V>>>;

  // Replaces the value of a key that is there already.
  virtual TSelf Add(const K& AKey, const V& AValue) = 0;
  // AProc, when given, sees the value before the key goes.
  virtual TSelf Remove(const K& AKey, TConstProc<V> AProc = nullptr) = 0;
  virtual TSelf RemoveOne(TConstFunc<K, V, Boolean> APredicate) = 0;
  virtual TSelf RemoveAll(TConstFunc<K, V, Boolean> APredicate, TConstProc<K, V> AProc = nullptr) = 0;
  // A missing key gives the key with the default value.
  virtual TPair<K, V> ExtractPair(const K& AKey) = 0;
  virtual TSelf Clear() = 0;
  virtual TSelf TrimExcess() = 0;
  virtual Boolean ContainsKey(const K& AKey) = 0;
  virtual Boolean ContainsValue(const V& AValue) = 0;
  // AValue is set to the default when the key is missing.
  virtual Boolean TryGetValue(const K& AKey, V& AValue) = 0;
  virtual V GetOrAdd(const K& AKey, TFunc<V> ACreate) = 0;
  virtual TSelf ForKey(const K& AKey, TConstProc<V> AProc) = 0;
  // Each call makes a new list; the forms with a procedure hand it over.
  virtual TRef<IArrayList<K>> Keys() = 0;
  virtual TSelf Keys(TConstProc<TRef<IArrayList<K>>> AProc) = 0;
  virtual TRef<IArrayList<V>> Values() = 0;
  virtual TSelf Values(TConstProc<TRef<IArrayList<V>>> AProc) = 0;
  virtual TPairQuery Query() = 0;
  virtual Integer GetCount() = 0;
  // The key must be there.
  virtual V GetItem(const K& AKey) = 0;
  virtual void SetItem(const K& AKey, const V& AValue) = 0;
};

template <class K, class V> class TDictionary : public TImplements<TInterfacedChangeNotifyObject, IDictionary<K, V>> {
  using TIntf = IDictionary<K, V>;
  using TSelf = typename TIntf::TSelf;

public:
  TRef<IEnumerator<TPair<K, V>>> GetEnumerator() override { return New<TPairEnumerator>(TRef<TDictionary>(this)); }

  TSelf Add(const K& AKey, const V& AValue) override {
    SetItem(AKey, AValue);
    return Self();
  }

  TSelf Remove(const K& AKey, TConstProc<V> AProc = nullptr) override {
    if (AProc) {
      const auto found = FDictionary.find(AKey);
      if (found != FDictionary.end()) AProc(V(found->second)); // a copy: AProc may change the dictionary
    }
    Erase(AKey);
    return Self();
  }

  TSelf RemoveOne(TConstFunc<K, V, Boolean> APredicate) override {
    TARVO_ASSERT(APredicate != nullptr);
    for (auto it = FDictionary.begin(); it != FDictionary.end(); ++it)
      if (APredicate(it->first, it->second)) {
        FDictionary.erase(it);
        ++FVersion;
        break;
      }
    return Self();
  }

  // Matches are gathered first, so that the procedure may change the dictionary.
  TSelf RemoveAll(TConstFunc<K, V, Boolean> APredicate, TConstProc<K, V> AProc = nullptr) override {
    TARVO_ASSERT(APredicate != nullptr);
    std::vector<TPair<K, V>> matches;
    for (const auto& [key, value] : FDictionary)
      if (APredicate(key, value)) matches.push_back({key, value});
    for (const auto& match : matches) {
      if (AProc) AProc(match.Key, match.Value);
      Erase(match.Key);
    }
    return Self();
  }

  TPair<K, V> ExtractPair(const K& AKey) override {
    const auto found = FDictionary.find(AKey);
    if (found == FDictionary.end()) return {AKey, V{}};
    TPair<K, V> result{found->first, std::move(found->second)};
    FDictionary.erase(found);
    ++FVersion;
    return result;
  }

  TSelf Clear() override {
    FDictionary.clear();
    ++FVersion;
    return Self();
  }

  TSelf TrimExcess() override {
    FDictionary.rehash(0);
    ++FVersion;
    return Self();
  }

  Boolean ContainsKey(const K& AKey) override { return FDictionary.contains(AKey); }

  Boolean ContainsValue(const V& AValue) override {
    for (const auto& entry : FDictionary)
      if (DefaultCompare(entry.second, AValue) == 0) return true;
    return false;
  }

  Boolean TryGetValue(const K& AKey, V& AValue) override {
    const auto found = FDictionary.find(AKey);
    AValue = found == FDictionary.end() ? V{} : found->second;
    return found != FDictionary.end();
  }

  V GetOrAdd(const K& AKey, TFunc<V> ACreate) override {
    TARVO_ASSERT(ACreate != nullptr);
    const auto found = FDictionary.find(AKey);
    if (found != FDictionary.end()) return found->second;
    V result = ACreate();
    SetItem(AKey, result);
    return result;
  }

  TSelf ForKey(const K& AKey, TConstProc<V> AProc) override {
    TARVO_ASSERT(AProc != nullptr);
    const auto found = FDictionary.find(AKey);
    if (found != FDictionary.end()) AProc(V(found->second));
    return Self();
  }

  TRef<IArrayList<K>> Keys() override { return ListOf(&TPair<K, V>::Key); }
  TSelf Keys(TConstProc<TRef<IArrayList<K>>> AProc) override {
    TARVO_ASSERT(AProc != nullptr);
    AProc(Keys());
    return Self();
  }
  TRef<IArrayList<V>> Values() override { return ListOf(&TPair<K, V>::Value); }
  TSelf Values(TConstProc<TRef<IArrayList<V>>> AProc) override {
    TARVO_ASSERT(AProc != nullptr);
    AProc(Values());
    return Self();
  }

  // Filter, Skip and Take give new dictionaries.
  typename TIntf::TPairQuery Query() override {
    const TSelf self = Self();
    return New<TContainerQuery<TSelf, TSelf, TPair<K, V>>>(
        [self] { return self->GetEnumerator(); }, [] { return TSelf(New<TDictionary>()); },
        [](TSelf ADictionary, TPair<K, V> APair) { ADictionary->Add(APair.Key, APair.Value); }, self);
  }

  Integer GetCount() override { return static_cast<Integer>(FDictionary.size()); }

  V GetItem(const K& AKey) override {
    const auto found = FDictionary.find(AKey);
    if (found == FDictionary.end()) throw EListError("Key not found");
    return found->second;
  }

  void SetItem(const K& AKey, const V& AValue) override {
    if (FDictionary.insert_or_assign(AKey, AValue).second) ++FVersion;
  }

private:
  // Walks the pairs as they stand; a key added or removed during the walk ends it with an error
  // rather than with a stale position. Values may change freely.
  class TPairEnumerator : public TBasicEnumerator<TPair<K, V>> {
  public:
    explicit TPairEnumerator(TRef<TDictionary> ADictionary) : FOwner(std::move(ADictionary)) {
      TPairEnumerator::Reset();
    }

    void Reset() override {
      FVersion = FOwner->FVersion;
      FStarted = false;
    }
    bool MoveNext() override {
      CheckVersion();
      if (!FStarted) {
        FCurrent = FOwner->FDictionary.begin();
        FStarted = true;
      } else if (FCurrent != FOwner->FDictionary.end()) ++FCurrent;
      return FCurrent != FOwner->FDictionary.end();
    }
    TPair<K, V> GenericGetCurrent() override {
      CheckVersion();
      return {FCurrent->first, FCurrent->second};
    }

  private:
    void CheckVersion() const {
      if (FVersion != FOwner->FVersion) throw EListError("Dictionary changed during enumeration");
    }

    TRef<TDictionary> FOwner;
    typename std::unordered_map<K, V>::iterator FCurrent;
    Cardinal FVersion = 0;
    bool FStarted = false;
  };

  TSelf Self() { return TSelf(this); }

  template <class E> TRef<IArrayList<E>> ListOf(E TPair<K, V>::*AField) {
    const TRef<IArrayList<E>> result = New<TArrayList<E>>();
    Query()->ForEach([&](const TPair<K, V>& APair) { result->Add(APair.*AField); });
    return result;
  }

  void Erase(const K& AKey) {
    if (FDictionary.erase(AKey) != 0) ++FVersion;
  }

  std::unordered_map<K, V> FDictionary;
  // Counts changes of the key set, which move the positions of an enumerator.
  Cardinal FVersion = 0;
};

} // namespace Tarvo

#pragma GCC visibility pop
