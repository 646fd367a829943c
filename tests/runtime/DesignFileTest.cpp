#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <tuple>

#include "reflection/Publish.h"
#include "rtl/SysUtils.h"
#include "runtime/Controls.h"
#include "runtime/DesignFile.h"
#include "runtime/Events.h"
#include "runtime/Shape.h"
#include "tests/rtl/ExpectError.h"
#include "tests/support/JsonText.h"
#include "tests/support/NamedRows.h"

namespace Tarvo {

TARVO_ENUM(TDesignFileTestMode, dmIdle, dmRun, dmHold)
TARVO_IMPLEMENT_ENUM(TDesignFileTestMode)

class TDesignFileTestPart : public TPersistent {
  TARVO_CLASS(TDesignFileTestPart, TPersistent)
public:
  Integer FLevel = 5;
};
TARVO_IMPLEMENT_CLASS(TDesignFileTestPart)
TARVO_PUBLISH(TDesignFileTestPart) {
  Property("Level", &TDesignFileTestPart::FLevel, &TDesignFileTestPart::FLevel).Default(5);
}

class TDesignFileTestGauge : public TComponent {
  TARVO_CLASS(TDesignFileTestGauge, TComponent)
public:
  explicit TDesignFileTestGauge(TComponent* AOwner) : TComponent(AOwner), FPart(Construct<TDesignFileTestPart>()) {}

  Double GetRatio() const { return FRatio; }
  void SetRatio(Double AValue) {
    if (AValue < 0) throw EConvertError("Ratio must not be negative");
    FRatio = AValue;
  }
  TDesignFileTestGauge* GetPeer() const { return FPeer; }
  void SetPeer(TDesignFileTestGauge* AValue) { SetComponentReference(FPeer, AValue); }
  TDesignFileTestPart* GetPart() const { return FPart.get(); }

  Integer FValue = 0;
  String FCaption;
  TDesignFileTestMode FMode = dmIdle;
  Double FRatio = 1;
  TDesignFileTestGauge* FPeer = nullptr;
  TOwnedObject<TDesignFileTestPart> FPart;
  TDesignFileTestPart* FSpare = nullptr;
  Integer FScratch = 0;
  TNotifyEvent FOnChange;
  bool FLoadingSeen = false;

protected:
  void Notification(TComponent* AComponent, TOperation AOperation) override {
    inherited::Notification(AComponent, AOperation);
    if (AOperation == opRemove && AComponent == FPeer) FPeer = nullptr;
  }
  void Loaded() override {
    FLoadingSeen = true;
    inherited::Loaded();
  }
};
TARVO_IMPLEMENT_CLASS(TDesignFileTestGauge)
TARVO_PUBLISH(TDesignFileTestGauge) {
  Property("Value", &TDesignFileTestGauge::FValue, &TDesignFileTestGauge::FValue).Default(0);
  Property("Caption", &TDesignFileTestGauge::FCaption, &TDesignFileTestGauge::FCaption);
  Property("Mode", &TDesignFileTestGauge::FMode, &TDesignFileTestGauge::FMode).Default(dmIdle);
  Property("Ratio", &TDesignFileTestGauge::GetRatio, &TDesignFileTestGauge::SetRatio).Default(1.0);
  Property("Peer", &TDesignFileTestGauge::GetPeer, &TDesignFileTestGauge::SetPeer);
  Property("Part", &TDesignFileTestGauge::GetPart);
  Property("Spare", &TDesignFileTestGauge::FSpare);
  Property("Scratch", &TDesignFileTestGauge::FScratch, &TDesignFileTestGauge::FScratch).Stored(false);
  Property("OnChange", &TDesignFileTestGauge::FOnChange, &TDesignFileTestGauge::FOnChange);
  Private();
  Property("Secret", &TDesignFileTestGauge::FValue, &TDesignFileTestGauge::FValue);
}

// Has no factory: it cannot be made from a design.
class TDesignFileTestAbstract : public TComponent {
  TARVO_CLASS(TDesignFileTestAbstract, TComponent)
public:
  using TComponent::TComponent;
  virtual void Run() = 0;
};
TARVO_IMPLEMENT_CLASS(TDesignFileTestAbstract)

namespace {

// A design of the components given as JSON objects.
String Design(const String& AComponents) { return R"({"components": [)" + AComponents + "]}"; }
// A design of one gauge, Gauge1, with the properties given as JSON members.
String Gauge1(const String& AProperties) {
  return Design(R"({"class": "TDesignFileTestGauge", "name": "Gauge1", "properties": {)" + AProperties + "}}");
}

TDesignFileTestGauge* Gauge(TComponent* ARoot, const char* AName) {
  return dynamic_cast<TDesignFileTestGauge*>(ARoot->FindComponent(AName));
}

class DesignFileTest : public ::testing::Test {
protected:
  TOwnedObject<TComponent> FRoot{Construct<TComponent>(nullptr)};
};

// Components come in file order with their values and references, and each has left loading.
TEST_F(DesignFileTest, ComponentsAreMadeInFileOrderWithTheirPropertiesAndReferencesAndLoadedAfterwards) {
  const std::vector<TComponent*> made = ReadDesign(Design(R"(
    {"class": "TDesignFileTestGauge", "name": "Gauge1", "properties": {"Value": "42", "Caption": "first\nsecond",
     "Mode": "dmHold", "Ratio": "0.25", "Part.Level": "9", "Peer": "Gauge2"}},
    {"class": "TDesignFileTestGauge", "name": "Gauge2", "properties": {"Peer": "Gauge1"}},
    {"class": "TDesignFileTestGauge", "name": "Gauge3", "properties": {"Peer": ""}})"),
                                                   FRoot.get());
  ASSERT_EQ(made.size(), 3u);
  const TDesignFileTestGauge* gauge = Gauge(FRoot.get(), "Gauge1");
  EXPECT_EQ(std::make_tuple(gauge->FValue, gauge->FCaption, gauge->FMode, gauge->FRatio, gauge->FPart->FLevel),
            std::make_tuple(42, String("first\nsecond"), dmHold, 0.25, 9));
  // References name components anywhere in the design, later ones too.
  EXPECT_EQ(gauge->GetPeer(), made[1]);
  EXPECT_EQ(Gauge(FRoot.get(), "Gauge2")->GetPeer(), made[0]);
  EXPECT_EQ(Gauge(FRoot.get(), "Gauge3")->GetPeer(), nullptr);
  for (TComponent* component : made) {
    EXPECT_TRUE(static_cast<TDesignFileTestGauge*>(component)->FLoadingSeen);
    EXPECT_FALSE(component->ComponentState().Contains(csLoading));
  }
}

// Children are owned by the root; only a window control becomes their parent.
TEST_F(DesignFileTest, ChildrenAreOwnedByTheRootAndParentedOnlyToAWindowControl) {
  ReadDesign(Design(R"({"class": "TWinControl", "name": "Panel1", "children": [
      {"class": "TShape", "name": "Shape1", "properties": {"Pen.Width": "3"}},
      {"class": "TDesignFileTestGauge", "name": "Gauge1"}]},
    {"class": "TDesignFileTestGauge", "name": "Gauge2", "children": [{"class": "TShape", "name": "Shape2"}]})"),
             FRoot.get());
  ASSERT_EQ(FRoot->ComponentCount(), 5);
  auto* shape1 = dynamic_cast<TShape*>(FRoot->FindComponent("Shape1"));
  ASSERT_TRUE(shape1);
  EXPECT_EQ(shape1->GetParent(), FRoot->FindComponent("Panel1"));
  EXPECT_EQ(shape1->GetPen()->GetWidth(), 3);
  EXPECT_EQ(dynamic_cast<TShape*>(FRoot->FindComponent("Shape2"))->GetParent(), nullptr);

  // Top-level controls of a window root are parented to it and see its designing state.
  TOwnedObject<TWinControl> root(Construct<TWinControl>(nullptr));
  TComponentHelper::SetIntDesigning(root.get(), true, false);
  const std::vector<TComponent*> made = ReadDesign(
      Design(R"({"class": "TShape", "name": "Shape1"}, {"class": "TDesignFileTestGauge", "name": "Gauge1"})"),
      root.get());
  EXPECT_EQ(static_cast<TShape*>(made[0])->GetParent(), root.get());
  EXPECT_TRUE(made[1]->ComponentState().Contains(csDesigning));
}

// Window controls nested ADepth deep, Panel1 outermost.
String NestedPanels(int ADepth) {
  String text;
  for (int i = 1; i <= ADepth; ++i)
    text +=
        R"({"class": "TWinControl", "name": "Panel)" + std::to_string(i) + (i < ADepth ? R"(", "children": [)" : "\"}");
  for (int i = 1; i < ADepth; ++i) text += "]}";
  return Design(text);
}

// Each kind of bad input gets its own message, naming the place and quoting at most a few hundred
// bytes of what the file holds, and nothing of a refused design stays. (A cycle of references is a
// design like any other: see the first test.)
TEST_F(DesignFileTest, BadInputIsNamedAndLeavesTheRootAsItWas) {
  const String huge(50 << 20, 'a');
  const struct {
    const char* Name;
    String Json;
    String Message;
    bool MessageGoesOn = false; // the message only begins so: its rest is a long excerpt of the file
  } rows[] = {
      {"unknown class", Design(R"({"class": "TFoo", "name": "Foo1"})"), "Unknown class 'TFoo' for component 'Foo1'"},
      {"no component class", Design(R"({"class": "TFont", "name": "Font1"})"),
       "Class 'TFont' of component 'Font1' is no component class"},
      {"abstract class after a made one",
       Design(R"({"class": "TShape", "name": "Shape1"}, {"class": "TDesignFileTestAbstract", "name": "Abstract1"})"),
       "Cannot create component 'Abstract1' of class 'TDesignFileTestAbstract': Cannot create an instance of the "
       "abstract class TDesignFileTestAbstract"},
      {"unpublished property", Gauge1(R"("Secret": "1")"),
       "Unknown property 'Secret' of component 'Gauge1' (TDesignFileTestGauge)"},
      {"unknown property of a nested object", Gauge1(R"("Part.Size": "1")"),
       "Unknown property 'Part.Size' of component 'Gauge1' (TDesignFileTestGauge)"},
      {"path through nil", Gauge1(R"("Spare.Level": "1")"),
       "Cannot reach 'Spare.Level' of component 'Gauge1': 'Spare' is nil"},
      {"no number", Gauge1(R"("Value": "abc")"),
       "Invalid value 'abc' for 'Value' of component 'Gauge1': 'abc' is not a valid value for Value"},
      {"refused by the setter", Gauge1(R"("Ratio": "-1")"),
       "Invalid value '-1' for 'Ratio' of component 'Gauge1': Ratio must not be negative"},
      {"a JSON number", Gauge1(R"("Value": 5)"), "The value of 'Value' of component 'Gauge1' must be a text"},
      {"unknown reference", Gauge1(R"("Peer": "Nobody")"),
       "Unknown component 'Nobody' for 'Peer' of component 'Gauge1'"},
      {"reference of another class", Design(R"({"class": "TShape", "name": "Shape1"},
                 {"class": "TDesignFileTestGauge", "name": "Gauge1", "properties": {"Peer": "Shape1"}})"),
       "Component 'Shape1' is no TDesignFileTestGauge for 'Peer' of component 'Gauge1'"},
      {"duplicate name in another case", Design(R"({"class": "TDesignFileTestGauge", "name": "Gauge1"},
                 {"class": "TWinControl", "name": "Panel1", "children": [{"class": "TShape", "name": "gauge1"}]})"),
       "Duplicate component name 'gauge1' at components[1].children[0]"},
      {"invalid name", Design(R"({"class": "TShape", "name": "1st"})"),
       "Invalid component name '1st' at components[0]"},
      {"no class", Design(R"({"name": "Shape1"})"), "components[0]: \"class\" must be given as a text"},
      {"unknown component key", Design(R"({"class": "TShape", "name": "Shape1", "colour": "red"})"),
       "components[0]: unknown key \"colour\""},
      {"components not a list", R"({"components": {"class": "TShape"}})", "components must be a list of components"},
      {"unknown design key", R"({"parts": []})", "The design: unknown key \"parts\""},
      {"no components", R"({})", "The design has no \"components\""},
      {"no JSON", R"({"components": [}")", "The design is no valid JSON: parse error at line 1, column 17: syntax error while parsing value - unexpected "
       "'}'; expected '[', '{', or a literal"},
      {"a number out of range", Gauge1(R"("Value": 8e888)"), "The design is no valid JSON: number overflow parsing '8e888'"},
      {"a 50 MB text never closed", Gauge1(R"("Caption": ")" + huge),
       "The design is no valid JSON: parse error at line 1, column 52428900: syntax error while parsing value - "
       "invalid string: missing closing quote; last read: '\"aaaa",
       true},
      {"components nested 10,000 deep", NestedPanels(10000),
       "Components nest deeper than 256 levels under 'Panel1.Panel2.Panel3...Panel254.Panel255.Panel256'"},
      {"a value nested 100,000 lists deep", Gauge1(R"("Caption": )" + String(100000, '[') + String(100000, ']')),
       "The value of 'Caption' of component 'Gauge1' must be a text"},
      {"a 50 MB value", Gauge1(R"("Caption": ")" + huge + "\""),
       "The value of 'Caption' of component 'Gauge1' holds 52428800 bytes; a text of a design holds at most 1048576"},
      {"a 50 MB name", Design(R"({"class": "TShape", "name": ")" + huge + "\"}"),
       "components[0]: \"name\" holds 52428800 bytes; a text of a design holds at most 1048576"},
      {"a long unknown member", Gauge1("\"" + String(300, 'k') + R"(": "1")"),
       "Unknown property '" + String(80, 'k') + "...' of component 'Gauge1' (TDesignFileTestGauge)"},
      {"a value too long to quote whole", Gauge1(R"("Value": ")" + String(2000, '9') + "\""),
       "Invalid value '" + String(80, '9') + "...' for 'Value' of component 'Gauge1': '" + String(300, '9'), true}};
  Testing::ForEachRow(rows, [this](const auto& ARow) {
    try {
      ReadDesign(ARow.Json, FRoot.get());
      ADD_FAILURE() << "read without an error";
    } catch (const EDesignFileError& e) {
      EXPECT_EQ(ARow.MessageGoesOn ? e.Message().substr(0, ARow.Message.size()) : e.Message(), ARow.Message);
      EXPECT_LT(e.Message().size(), 1000u);
    }
    EXPECT_EQ(FRoot->ComponentCount(), 0);
  });
}

// Components nest 256 levels deep at most, when read and when written; one level more is refused
// with the place, and nothing of a refused file stays.
TEST_F(DesignFileTest, NestingBeyondTheLimitIsRefusedWithItsPlace) {
  const String message =
      "Components nest deeper than 256 levels under 'Panel1.Panel2.Panel3...Panel254.Panel255.Panel256'";
  Testing::ExpectError<EDesignFileError>([this] { ReadDesign(NestedPanels(257), FRoot.get()); }, message);
  EXPECT_EQ(FRoot->ComponentCount(), 0);

  ReadDesign(NestedPanels(256), FRoot.get());
  const String written = WriteDesign(FRoot.get());
  EXPECT_EQ(std::ranges::count(written, '\n'), 1) << "a deep design is written compact, on one line";
  TOwnedObject<TComponent> copy(Construct<TComponent>(nullptr));
  EXPECT_EQ(ReadDesign(written, copy.get()).size(), 256u);
  TControl* below = Construct<TShape>(FRoot.get());
  below->SetName("Shape1");
  below->SetParent(dynamic_cast<TWinControl*>(FRoot->FindComponent("Panel256")));
  Testing::ExpectError<EDesignFileError>([this] { WriteDesign(FRoot.get()); }, message);
}

// Bytes that are no UTF-8 reach no message as they are: a file that holds them is no JSON, and a
// text that holds them is not written.
TEST_F(DesignFileTest, TextsThatAreNoUtf8AreRefusedWithTheirBytesEscaped) {
  Testing::ExpectError<EDesignFileError>(
      [this] { ReadDesign(Design("{\"class\": \"TShape\", \"name\": \"Ab\xFF\"}"), FRoot.get()); },
      "The design is no valid JSON: parse error at line 1, column 48: syntax error while parsing value - invalid "
      "string: ill-formed UTF-8 byte; last read: '\"Ab\\xFF'");
  ReadDesign(Gauge1(R"("Caption": "fine")"), FRoot.get());
  Gauge(FRoot.get(), "Gauge1")->FCaption = "a\xFF-";
  Testing::ExpectError<EDesignFileError>([this] { WriteDesign(FRoot.get()); },
                                         "The text 'a\\xFF-' of 'Caption' of component 'Gauge1' is no valid UTF-8");
}

// Errors of a file carry its name.
TEST_F(DesignFileTest, ErrorsOfAFileNameTheFile) {
  const String path = ::testing::TempDir() + "design_file_test.json";
  std::ofstream(path) << Design(R"({"class": "TFoo", "name": "Foo1"})");
  Testing::ExpectError<EDesignFileError>([this] { ReadDesignFile("/nonexistent/design.json", FRoot.get()); },
                                         "Cannot open design file '/nonexistent/design.json'");
  Testing::ExpectError<EDesignFileError>([&] { ReadDesignFile(path, FRoot.get()); },
                                         path + ": Unknown class 'TFoo' for component 'Foo1'");
  std::remove(path.c_str());
}

// Only stored members that differ from their defaults are written, as invariant text and references by name,
// events never; reading what was written gives the same design, whatever decimal separator the host set.
TEST_F(DesignFileTest, WritingKeepsStoredNonDefaultMembersAndReadsBackTheSameDesign) {
  struct TRestore {
    TFormatSettings Saved = FormatSettings;
    ~TRestore() { FormatSettings = Saved; }
  } restore;
  FormatSettings.DecimalSeparator = ',';
  ReadDesign(Design(R"(
    {"class": "TDesignFileTestGauge", "name": "Gauge1", "properties": {"Value": "-3", "Caption": "a \"quoted\"\nline",
     "Mode": "dmIdle", "Ratio": "0.125", "Peer": "Gauge2", "Part.Level": "0"}},
    {"class": "TDesignFileTestGauge", "name": "Gauge2"},
    {"class": "TWinControl", "name": "Panel1", "children": [
      {"class": "TShape", "name": "Shape1", "properties": {"Shape": "stCircle", "Brush.Color": "65280"}}]})"),
             FRoot.get());
  EXPECT_EQ(Gauge(FRoot.get(), "Gauge1")->FRatio, 0.125);
  Gauge(FRoot.get(), "Gauge1")->FScratch = 99;               // not stored
  Gauge(FRoot.get(), "Gauge1")->FOnChange = [](TObject*) {}; // code, not data
  const String written = WriteDesign(FRoot.get());
  const String expected = Design(R"(
    {"class": "TDesignFileTestGauge", "name": "Gauge1", "properties": {"Value": "-3", "Caption": "a \"quoted\"\nline",
     "Ratio": "0.125", "Peer": "Gauge2", "Part.Level": "0"}},
    {"class": "TDesignFileTestGauge", "name": "Gauge2"},
    {"class": "TWinControl", "name": "Panel1", "properties": {"Left": "0", "Top": "0", "Width": "0", "Height": "0"},
     "children": [{"class": "TShape", "name": "Shape1", "properties": {"Left": "0", "Top": "0", "Width": "65",
                   "Height": "65", "Brush.Color": "65280", "Shape": "stCircle"}}]})");
  EXPECT_EQ(Testing::CanonicalJson(written), Testing::CanonicalJson(expected));
  TOwnedObject<TComponent> copy(Construct<TComponent>(nullptr));
  ReadDesign(written, copy.get());
  EXPECT_EQ(WriteDesign(copy.get()), written);
  EXPECT_EQ(FloatToStr(Extended(0.75)), "0,75"); // the host's settings are back
}

} // namespace
} // namespace Tarvo
