#include <gtest/gtest.h>

#include "rtl/InterfacedObject.h"

namespace Tarvo {
namespace {

// A GUID parses at compile time and from text with or without braces; malformed texts are refused.
TEST(GuidTest, TextForms) {
  constexpr TGUID g = TGUID::Parse("{2251EB18-27B0-4C55-A4AC-4489C9076287}");
  static_assert(g.D1 == 0x2251EB18 && g.D2 == 0x27B0 && g.D3 == 0x4C55 && g.D4[0] == 0xA4 && g.D4[7] == 0x87);
  EXPECT_EQ(g.ToString(), "{2251EB18-27B0-4C55-A4AC-4489C9076287}");
  EXPECT_EQ(TGUID::FromString("2251eb18-27b0-4c55-a4ac-4489c9076287"), g);
  for (const char* text : {"", "{2251EB18-27B0-4C55-A4AC-4489C907628}", "{2251EB18-27B0-4C55-A4AC-4489C907628G}",
                           "{2251EB18+27B0-4C55-A4AC-4489C9076287}", "(2251EB18-27B0-4C55-A4AC-4489C9076287)"}) {
    TGUID parsed;
    EXPECT_FALSE(TGUID::TryParse(text, parsed)) << text;
    EXPECT_THROW(TGUID::FromString(text), EConvertError) << text;
  }
}

class IGreeter : public virtual IInterface {
  TARVO_INTERFACE(IGreeter, "{0B7C3D7E-1F4A-4E57-9C1B-2F3D4E5A6B70}", IInterface)
public:
  virtual std::string Greet() = 0;
};

class ILoudGreeter : public virtual IGreeter {
  TARVO_INTERFACE(ILoudGreeter, "{0B7C3D7E-1F4A-4E57-9C1B-2F3D4E5A6B71}", IGreeter)
public:
  virtual std::string Shout() = 0;
};

class ICounter : public virtual IInterface {
  TARVO_INTERFACE(ICounter, "{0B7C3D7E-1F4A-4E57-9C1B-2F3D4E5A6B72}", IInterface)
public:
  virtual int Next() = 0;
};

class TGreeter : public TImplements<TInterfacedObject, ILoudGreeter, ICounter> {
public:
  // Hands out and drops a reference to itself while constructing: the guard keeps it alive.
  explicit TGreeter(int* ADestroyed) : FDestroyed(ADestroyed) { TRef<IGreeter> self(this); }
  ~TGreeter() override { ++*FDestroyed; }
  std::string Greet() override { return "hello"; }
  std::string Shout() override { return "HELLO"; }
  int Next() override { return ++FCount; }

private:
  int* FDestroyed;
  int FCount = 0;
};

// References count and free the object once; queries reach listed interfaces and their parents only.
TEST(InterfaceTest, ReferenceCountsAndQueries) {
  int destroyed = 0;
  {
    TRef<TGreeter> greeter = New<TGreeter>(&destroyed);
    EXPECT_EQ(greeter->RefCount(), 1); // the self-reference taken while constructing has gone
    TRef<IGreeter> asGreeter = greeter;
    EXPECT_EQ(greeter->RefCount(), 2);
    // Listed interfaces and their parents are supported; all references denote one object.
    TRef<ILoudGreeter> loud;
    ASSERT_TRUE(Supports(asGreeter, loud));
    EXPECT_EQ(loud->Shout(), "HELLO");
    EXPECT_TRUE(Supports<IInterface>(asGreeter));
    EXPECT_EQ(QueryAs<ICounter>(loud)->Next(), 1);
    EXPECT_TRUE(loud == asGreeter);
    EXPECT_EQ(ObjectOf(loud), greeter.get());
  }
  EXPECT_EQ(destroyed, 1);

  class TPlain : public TInterfacedObject {};
  TRef<IInterface> plain = New<TPlain>();
  TRef<IGreeter> greeter;
  EXPECT_FALSE(Supports(plain, greeter));
  void* obj = reinterpret_cast<void*>(1);
  EXPECT_EQ(plain->QueryInterface(IGreeter::IID, &obj), E_NOINTERFACE);
  EXPECT_EQ(obj, nullptr);
}

class TShapeBase : public TObject {
  TARVO_CLASS(TShapeBase, TObject)
public:
  using TConstructor = TConstructorSignature<std::string>;
  explicit TShapeBase(std::string AName) : Name(std::move(AName)) {}
  virtual int Corners() const = 0;
  std::string Name;
  void AfterConstruction() override { Constructed = true; }
  bool Constructed = false;
};

class TSquare : public TShapeBase {
  TARVO_CLASS(TSquare, TShapeBase)
public:
  using TShapeBase::TShapeBase;
  int Corners() const override { return 4; }
};

class TTriangle : public TShapeBase {
  TARVO_CLASS(TTriangle, TShapeBase)
public:
  using TShapeBase::TShapeBase;
  int Corners() const override { return 3; }
};

TARVO_IMPLEMENT_CLASS(TShapeBase)
TARVO_IMPLEMENT_CLASS(TSquare)
TARVO_IMPLEMENT_CLASS(TTriangle)

// Class inheritance, and look-up by name in any case.
TEST(MetaClassTest, InheritanceAndLookUpByName) {
  const TClass square = TSquare::ClassInfo();
  EXPECT_EQ(square->ClassParent(), TShapeBase::ClassInfo());
  EXPECT_TRUE(square->InheritsFrom(TObject::ClassInfo()));
  EXPECT_TRUE(square->InheritsFrom(square));
  EXPECT_FALSE(square->InheritsFrom(TTriangle::ClassInfo()));
  EXPECT_FALSE(TShapeBase::ClassInfo()->InheritsFrom(square));
  EXPECT_EQ(FindClass("ttriangle"), TTriangle::ClassInfo());
  EXPECT_EQ(FindClass("TInterfacedObject"), TInterfacedObject::ClassInfo());
  EXPECT_EQ(FindClass("TNoSuchClass"), nullptr);
}

// A class reference makes an instance of the class it holds; abstract and unrelated classes are refused.
TEST(MetaClassTest, VirtualConstructorBuildsTheReferencedClass) {
  int corners = 0;
  for (const TClassOf<TShapeBase> shapeClass : {TSquare::ClassInfo(), TTriangle::ClassInfo()}) {
    TShapeBase* shape = shapeClass.Create(std::string("s"));
    EXPECT_EQ(shape->ClassType(), shapeClass.get());
    EXPECT_TRUE(shape->Constructed);
    corners += shape->Corners();
    TObject::Free(shape);
  }
  EXPECT_EQ(corners, 7);
  EXPECT_THROW(TClassOf<TShapeBase>{TShapeBase::ClassInfo()}.Create(std::string()), EInvalidCast); // abstract
  EXPECT_THROW(TClassOf<TSquare>{TTriangle::ClassInfo()}, EInvalidCast);
}

} // namespace
} // namespace Tarvo
