#pragma once
#pragma GCC visibility push(default)
// How a class publishes its members: a table in the class's own source file.
//
//   TARVO_PUBLISH(TShape) {
//     Published();
//     Property("Shape", &TShape::GetShape, &TShape::SetShape).Default(stRectangle);
//     Property("Pen", &TShape::GetPen, &TShape::SetPen);
//     Property("Caption", &TShape::FCaption, &TShape::SetCaption).Attr<MultiLineAttribute>();
//     Public();
//     Method("SetBounds", &TShape::SetBounds, {"ALeft", "ATop", "AWidth", "AHeight"});
//     Private();
//     Field("FTag", &TShape::FTag);
//   }
//
// Accessors are member functions or fields; a property without a writer is read-only. The value
// type is that of the accessor unless a named type's record is given (a TColor is an Integer).

#include <initializer_list>
#include <utility>

#include "reflection/MemberTable.h"
#include "rtl/Module.h"

namespace Tarvo {

namespace Detail {

// A TValue read as T, after a cast to the record that T represents here.
template <class T> T ValueTo(const TValue& AValue, PTypeInfo AType) {
  if constexpr (std::is_same_v<T, TValue>) return AValue;
  else if constexpr (TIsInterfaceRef<T>::value)
    return QueryAs<typename T::element_type>(AValue.Cast(AType).AsInterface());
  else {
    const TValue cast = AValue.Cast(AType);
    return *static_cast<const T*>(cast.GetReferenceToRawData());
  }
}

template <class T> TValue ValueFrom(const T& AValue, PTypeInfo AType) {
  if constexpr (std::is_same_v<T, TValue>) return AValue;
  else return TValue::From<T>(AValue, AType);
}

// The record argument of a member left out: its C++ type must have a record of its own.
struct TOwnTypeRecord {};

// A member whose type has no record, published without naming one, would fail only when its
// module loads. The type shows in the instantiation the compiler reports.
template <class TMemberType> struct TPublishedTypeNeedsARecord {
  static_assert(CHasTypeRecord<TMemberType> && !std::is_same_v<TMemberType, TValue>,
                "a published member's type has no type record: declare it with TARVO_ENUM or TARVO_SET, "
                "use a type that has one (Int64, not long long), or pass the record as the last argument");
  static PTypeInfo Get() { return TypeInfo<TMemberType>(); }
};

// The record a member's value has: the one given, else the record of T.
template <class T> PTypeInfo RecordOf(TOwnTypeRecord) { return TPublishedTypeNeedsARecord<T>::Get(); }
template <class T> PTypeInfo RecordOf(std::nullptr_t) { return TPublishedTypeNeedsARecord<T>::Get(); }
template <class T> PTypeInfo RecordOf(PTypeInfo AGiven) {
  TARVO_ASSERT(AGiven != nullptr);
  return AGiven;
}

// Whether a value written for a default or a limit stands for a value of the property's type:
// a Boolean takes bool, a number takes a number (a whole one for a whole-number type), a string
// takes text, an enumeration or a set only its own values, an object or interface only nullptr.
template <class T, class V> constexpr bool FitsMemberType() {
  using TGiven = std::decay_t<V>;
  if constexpr (std::is_same_v<T, TValue> || std::is_same_v<T, Variant> || std::is_same_v<T, TGiven>) return true;
  else if constexpr (std::is_same_v<T, bool> || std::is_same_v<TGiven, bool>) return false;
  else if constexpr (std::is_enum_v<T> || std::is_enum_v<TGiven>) return false;
  else if constexpr (std::is_integral_v<T>) return std::is_integral_v<TGiven>;
  else if constexpr (std::is_floating_point_v<T>) return std::is_arithmetic_v<TGiven>;
  else if constexpr (std::is_same_v<T, String>) return std::is_convertible_v<TGiven, String>;
  else if constexpr (std::is_pointer_v<T> || TIsInterfaceRef<T>::value) return std::is_null_pointer_v<TGiven>;
  else return !std::is_arithmetic_v<TGiven> && std::is_convertible_v<TGiven, T>;
}

// A default or limit of the wrong type would fail only when the module loads. Both types show in
// the instantiation the compiler reports.
template <class TPropertyType, class TGivenValue> struct TValueMustFitThePropertyType {
  static_assert(FitsMemberType<TPropertyType, TGivenValue>(),
                "a .Default(...) or .Limits(...) value does not fit the property's type");
};

// What a reader is: a field, or a member function with no argument.
template <class M> struct TReader;
template <class C, class R> struct TReader<R (C::*)() const> {
  using Value = std::remove_cvref_t<R>;
  static constexpr bool IsMethod = true;
  static Value Read(const C* AObject, R (C::*AGetter)() const) { return (AObject->*AGetter)(); }
};
template <class C, class T>
  requires(!std::is_function_v<T>)
struct TReader<T C::*> {
  using Value = T;
  static constexpr bool IsMethod = false;
  static Value Read(const C* AObject, T C::*AField) { return AObject->*AField; }
};

// What a writer is: a field, or a member function with one argument.
template <class M> struct TWriter;
template <class C, class A> struct TWriter<void (C::*)(A)> {
  using Value = std::remove_cvref_t<A>;
  static constexpr bool IsMethod = true;
  static void Write(C* AObject, void (C::*ASetter)(A), Value AValue) { (AObject->*ASetter)(std::move(AValue)); }
};
template <class C, class T>
  requires(!std::is_function_v<T>)
struct TWriter<T C::*> {
  using Value = T;
  static constexpr bool IsMethod = false;
  static void Write(C* AObject, T C::*AField, Value AValue) { AObject->*AField = std::move(AValue); }
};

// A value of any form the tables write for defaults and limits: of its own type where it has a
// record (an enumeration value stays one), else through the implicit builds ("text", 1.5).
template <class V> TValue AnyValue(const V& AValue) {
  if constexpr (CHasTypeRecord<V>) return TValue::From<V>(AValue);
  else return TValue(AValue);
}

} // namespace Detail

// Chains the details of one member of type T: .Default(0).Stored(false).Attr<HiddenDesignAttribute>().
template <class C, class T = void> class TMemberEntryBuilder {
public:
  explicit TMemberEntryBuilder(TMemberEntry& AEntry) : FEntry(AEntry) {}

  template <class V> TMemberEntryBuilder& Default(const V& AValue) {
    static_assert(sizeof(Detail::TValueMustFitThePropertyType<T, V>) > 0);
    FEntry.HasDefault = true;
    FEntry.Default = Detail::AnyValue(AValue).Cast(FEntry.Type);
    return *this;
  }
  TMemberEntryBuilder& Stored(bool AStored) {
    FEntry.Stored = [AStored](TObject*) { return AStored; };
    return *this;
  }
  TMemberEntryBuilder& Stored(bool (C::*AStored)() const) {
    FEntry.Stored = [AStored](TObject* AObject) { return (static_cast<const C*>(AObject)->*AStored)(); };
    return *this;
  }
  template <class V> TMemberEntryBuilder& Limits(const V& AMin, const V& AMax) {
    static_assert(sizeof(Detail::TValueMustFitThePropertyType<T, V>) > 0);
    FEntry.HasLimits = true;
    FEntry.MinValue = Detail::AnyValue(AMin);
    FEntry.MaxValue = Detail::AnyValue(AMax);
    return *this;
  }
  template <class A, class... AArgs> TMemberEntryBuilder& Attr(AArgs&&... AArgsList) {
    FEntry.Attributes.push_back(std::make_unique<A>(std::forward<AArgs>(AArgsList)...));
    return *this;
  }

private:
  TMemberEntry& FEntry;
};

template <class C> class TMemberTableBuilder {
public:
  TMemberTableBuilder() { FTable->Class = C::ClassInfo(); }
  std::unique_ptr<TClassMemberTable> Take() { return std::move(FTable); }
  // The class and the member published last, for the message of a table that failed.
  String Place() const {
    const String name = C::ClassInfo()->ClassName();
    return FTable->Members.empty() ? name : name + "." + FTable->Members.back()->Name;
  }

protected:
  // The visibility of the members that follow; published at the start.
  void Private() { FVisibility = mvPrivate; }
  void Protected() { FVisibility = mvProtected; }
  void Public() { FVisibility = mvPublic; }
  void Published() { FVisibility = mvPublished; }

  // A property over a reader and a writer (each a field or a member function); without a
  // writer it is read-only.
  template <class R, class W = std::nullptr_t, class P = Detail::TOwnTypeRecord>
  TMemberEntryBuilder<C, typename Detail::TReader<R>::Value> Property(const String& AName, R AReader,
                                                                      W AWriter = nullptr, P AType = {}) {
    using TRead = Detail::TReader<R>;
    using T = typename TRead::Value;
    TMemberEntry& entry = Add(TMemberEntryKind::Property, AName, Detail::RecordOf<T>(AType));
    const PTypeInfo type = entry.Type;
    entry.Read = [AReader, type](TObject* AObject) {
      return Detail::ValueFrom<T>(TRead::Read(static_cast<const C*>(AObject), AReader), type);
    };
    entry.HasReadMethod = TRead::IsMethod;
    if constexpr (!std::is_null_pointer_v<W>) SetWriter<T>(entry, AWriter);
    return TMemberEntryBuilder<C, T>(entry);
  }

  template <class W, class P = Detail::TOwnTypeRecord>
  TMemberEntryBuilder<C, typename Detail::TWriter<W>::Value> WriteOnlyProperty(const String& AName, W AWriter,
                                                                               P AType = {}) {
    using T = typename Detail::TWriter<W>::Value;
    TMemberEntry& entry = Add(TMemberEntryKind::Property, AName, Detail::RecordOf<T>(AType));
    SetWriter<T>(entry, AWriter);
    return TMemberEntryBuilder<C, T>(entry);
  }

  // A property with one index: T Get(I) const and void Set(I, T).
  template <class T, class I, class A = std::nullptr_t, class P = Detail::TOwnTypeRecord>
  TMemberEntryBuilder<C, std::remove_cvref_t<T>> IndexedProperty(const String& AName, T (C::*AReader)(I) const,
                                                                 A AWriter = nullptr, P AType = {}) {
    using TIndex = std::remove_cvref_t<I>;
    using TItem = std::remove_cvref_t<T>;
    TMemberEntry& entry = Add(TMemberEntryKind::IndexedProperty, AName, Detail::RecordOf<TItem>(AType));
    const PTypeInfo type = entry.Type;
    const PTypeInfo indexType = TypeInfo<TIndex>();
    entry.IndexTypes = {indexType};
    entry.ReadIndexed = [AReader, type, indexType](TObject* AObject, const std::vector<TValue>& AIndices) {
      TARVO_ASSERT(AIndices.size() == 1);
      return Detail::ValueFrom<TItem>(
          (static_cast<const C*>(AObject)->*AReader)(Detail::ValueTo<TIndex>(AIndices[0], indexType)), type);
    };
    entry.HasReadMethod = true;
    if constexpr (!std::is_null_pointer_v<A>) {
      entry.WriteIndexed = [AWriter, type, indexType](TObject* AObject, const std::vector<TValue>& AIndices,
                                                      const TValue& AValue) {
        TARVO_ASSERT(AIndices.size() == 1);
        (static_cast<C*>(AObject)->*AWriter)(Detail::ValueTo<TIndex>(AIndices[0], indexType),
                                             Detail::ValueTo<TItem>(AValue, type));
      };
      entry.HasWriteMethod = true;
    }
    return TMemberEntryBuilder<C, TItem>(entry);
  }

  template <class T, class P = Detail::TOwnTypeRecord>
  TMemberEntryBuilder<C, T> Field(const String& AName, T C::*AField, P AType = {}) {
    TMemberEntry& entry = Add(TMemberEntryKind::Field, AName, Detail::RecordOf<T>(AType));
    const PTypeInfo type = entry.Type;
    entry.Read = [AField, type](TObject* AObject) {
      return Detail::ValueFrom<T>(static_cast<const C*>(AObject)->*AField, type);
    };
    entry.Write = [AField, type](TObject* AObject, const TValue& AValue) {
      static_cast<C*>(AObject)->*AField = Detail::ValueTo<T>(AValue, type);
    };
    return TMemberEntryBuilder<C, T>(entry);
  }

  // A method; with the parameter names its parameters are known to the designer.
  template <class R, class... AArgs>
  TMemberEntryBuilder<C> Method(const String& AName, R (C::*AMethod)(AArgs...),
                                std::initializer_list<const char*> ANames = {}) {
    return AddMethod<R, AArgs...>(
        AName,
        [AMethod](C* AObject, AArgs... AValues) -> R { return (AObject->*AMethod)(std::forward<AArgs>(AValues)...); },
        ANames);
  }
  template <class R, class... AArgs>
  TMemberEntryBuilder<C> Method(const String& AName, R (C::*AMethod)(AArgs...) const,
                                std::initializer_list<const char*> ANames = {}) {
    return AddMethod<R, AArgs...>(
        AName,
        [AMethod](C* AObject, AArgs... AValues) -> R { return (AObject->*AMethod)(std::forward<AArgs>(AValues)...); },
        ANames);
  }

  // Attributes of the class itself.
  template <class A, class... AArgs> void ClassAttr(AArgs&&... AArgsList) {
    RegisterTypeAttribute(C::ClassInfo()->ClassTypeRecord(), new A(std::forward<AArgs>(AArgsList)...));
  }

  // Instances add members at run time: AMembers lists an instance's own members, AInit (when
  // given) prepares an instance the designer made.
  void DynamicMembers(TRef<IMembersInfo> (C::*AMembers)(), void (C::*AInit)() = nullptr) {
    FTable->DynamicMembers = [AMembers](TObject* AObject) { return (static_cast<C*>(AObject)->*AMembers)(); };
    if (AInit) FTable->InitInstance = [AInit](TObject* AObject) { (static_cast<C*>(AObject)->*AInit)(); };
  }

private:
  TMemberEntry& Add(TMemberEntryKind AKind, const String& AName, PTypeInfo AType) {
    auto entry = std::make_unique<TMemberEntry>();
    entry->Kind = AKind;
    entry->Name = AName;
    entry->Visibility = FVisibility;
    entry->Type = AType;
    FTable->Members.push_back(std::move(entry));
    return *FTable->Members.back();
  }

  template <class T, class W> void SetWriter(TMemberEntry& AEntry, W AWriter) {
    using TWrite = Detail::TWriter<W>;
    const PTypeInfo type = AEntry.Type;
    AEntry.Write = [AWriter, type](TObject* AObject, const TValue& AValue) {
      TWrite::Write(static_cast<C*>(AObject), AWriter, Detail::ValueTo<typename TWrite::Value>(AValue, type));
    };
    AEntry.HasWriteMethod = TWrite::IsMethod;
  }

  template <class R, class... AArgs, class F>
  TMemberEntryBuilder<C> AddMethod(const String& AName, F ACall, std::initializer_list<const char*> ANames) {
    using TResult = std::remove_cvref_t<R>;
    TMemberEntry& entry = Add(TMemberEntryKind::Method, AName, nullptr);
    if constexpr (!std::is_void_v<R>) entry.Type = TypeInfo<TResult>();
    const PTypeInfo types[] = {TypeInfo<std::remove_cvref_t<AArgs>>()..., nullptr};
    entry.HasExtendedInfo = ANames.size() == sizeof...(AArgs) && (ANames.size() > 0 || sizeof...(AArgs) == 0);
    if (entry.HasExtendedInfo) {
      std::size_t i = 0;
      for (const char* name : ANames) entry.Parameters.push_back({name, types[i++]});
    }
    entry.Invoke = [ACall, resultType = entry.Type](TObject* AObject, const std::vector<TValue>& AArguments) {
      TARVO_ASSERT(AArguments.size() == sizeof...(AArgs));
      return Call<R, AArgs...>(ACall, static_cast<C*>(AObject), AArguments, resultType,
                               std::index_sequence_for<AArgs...>());
    };
    return TMemberEntryBuilder<C>(entry);
  }

  template <class R, class... AArgs, class F, std::size_t... I>
  static TValue Call(const F& ACall, C* AObject, const std::vector<TValue>& AArguments, PTypeInfo AResultType,
                     std::index_sequence<I...>) {
    if constexpr (std::is_void_v<R>) {
      ACall(AObject,
            Detail::ValueTo<std::remove_cvref_t<AArgs>>(AArguments[I], TypeInfo<std::remove_cvref_t<AArgs>>())...);
      return TValue();
    } else {
      return Detail::ValueFrom<std::remove_cvref_t<R>>(
          ACall(AObject,
                Detail::ValueTo<std::remove_cvref_t<AArgs>>(AArguments[I], TypeInfo<std::remove_cvref_t<AArgs>>())...),
          AResultType);
    }
  }

  std::unique_ptr<TClassMemberTable> FTable = std::make_unique<TClassMemberTable>();
  TMemberVisibility FVisibility = mvPublished;
};

// Runs a class's table once, when its module starts, and keeps the result. A table that fails
// fails the module's load, with the place it stopped at.
template <class TTable> struct TMemberTablePublication {
  TMemberTablePublication() {
    GuardModuleRegistration([] {
      TTable table;
      try {
        table.Publish();
      } catch (const std::exception& AError) {
        throw EModuleError(table.Place() + ": " + AError.what());
      }
      RegisterMemberTable(table.Take());
    });
  }
};

} // namespace Tarvo

// Opens the registration table of a class; the body follows as a function body. The class may be
// named with its namespace (TARVO_PUBLISH(Acme::TThermostat)).
#define TARVO_PUBLISH(...) TARVO_PUBLISH_AS(TARVO_CONCAT(TarvoMemberTable, __COUNTER__), __VA_ARGS__)
#define TARVO_PUBLISH_AS(ATable, ...)                                                                                  \
  namespace {                                                                                                          \
  struct ATable : ::Tarvo::TMemberTableBuilder<__VA_ARGS__> {                                                          \
    void Publish();                                                                                                    \
    static const ::Tarvo::TMemberTablePublication<ATable> Publication;                                                 \
  };                                                                                                                   \
  const ::Tarvo::TMemberTablePublication<ATable> ATable::Publication;                                                  \
  }                                                                                                                    \
  void ATable::Publish()

#pragma GCC visibility pop
