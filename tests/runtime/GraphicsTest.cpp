#include <gtest/gtest.h>

#include <functional>

#include "reflection/RttiTypes.h"
#include "reflection/TypeInfo.h"
#include "runtime/Graphics.h"

namespace Tarvo {
namespace {

// Counts the change notices of a drawing setting.
struct TNoticeCounter {
  explicit TNoticeCounter(TChangeNotifyPersistent& ATarget) : Handler(ATarget.AddChangeHandler([this] { ++Count; })) {}
  int Count = 0;
  TNotifyHandler Handler;
};

TEST(GraphicsNotificationTest, EachReflectedWriteThatChangesAValueTellsOnce) {
  using TMaker = std::function<TChangeNotifyPersistent*()>;
  const TMaker font = [] { return Construct<TFont>(); }, pen = [] { return Construct<TPen>(); },
               brush = [] { return Construct<TBrush>(); };
  const std::tuple<TMaker, const char*, const char*> cases[] = {
      {font, "Name", "Serif"},
      {font, "Size", "12"},
      {font, "Height", "-20"},
      {font, "Color", "255"},
      {font, "Style", "[fsBold,fsItalic]"},
      {font, "Charset", "0"},
      {pen, "Color", "255"},
      {pen, "Width", "3"},
      {pen, "Style", "psDot"},
      {brush, "Color", "0"},
      {brush, "Style", "bsCross"},
  };
  for (const auto& [make, name, text] : cases) {
    const TOwnedObject<TChangeNotifyPersistent> object(make());
    SCOPED_TRACE(String(object->ClassName()) + "." + name);
    TNoticeCounter notices(*object);
    TRef<IValueMemberInfo> member;
    ASSERT_TRUE(TRttiObjectHelper::TypeInfo(object.get(), false)->FindMember(name, member));
    EXPECT_TRUE(member->GetIsDefault(object.get(), true));
    member->SetFromString(object.get(), text);
    EXPECT_EQ(notices.Count, 1);
    EXPECT_EQ(member->GetValue(object.get()).ToString(), text);
    member->SetFromString(object.get(), text); // the same value again: no change
    EXPECT_EQ(notices.Count, 1);
  }
}

TEST(GraphicsNotificationTest, BracketsTellOnceAndRemovedHandlersHearNothing) {
  const TOwnedObject<TFont> font(Construct<TFont>());
  TNoticeCounter notices(*font);
  font->BeginUpdate();
  font->BeginUpdate();
  font->SetColor(clBlack);
  font->SetSize(20);
  font->EndUpdate();
  EXPECT_EQ(notices.Count, 0);
  font->EndUpdate();
  EXPECT_EQ(notices.Count, 1);
  font->BeginUpdate();
  font->EndUpdate(); // nothing changed inside
  EXPECT_EQ(notices.Count, 1);

  // A handler may remove itself while the notice runs; the others still hear it.
  TNotifyHandler once;
  int onceCount = 0;
  once = font->AddChangeHandler([&] {
    ++onceCount;
    font->RemoveChangeHandler(once);
  });
  font->SetColor(clWhite);
  font->SetColor(clBlack);
  EXPECT_EQ(onceCount, 1);
  EXPECT_EQ(notices.Count, 3);
  font->RemoveChangeHandler(notices.Handler);
  font->SetColor(clWhite);
  EXPECT_EQ(notices.Count, 3);
}

TEST(GraphicsValueTest, FontSizeAndHeightAreTwoViewsOfOneValueAndAColouredClearBrushTurnsSolid) {
  const TOwnedObject<TFont> font(Construct<TFont>());
  EXPECT_EQ(font->GetSize(), 9);
  for (const auto& [size, height] : {std::pair{8, -11}, {10, -13}, {12, -16}, {72, -96}}) {
    font->SetSize(size);
    EXPECT_EQ(font->GetHeight(), height) << size;
    EXPECT_EQ(font->GetSize(), size) << size;
  }
  const TOwnedObject<TBrush> brush(Construct<TBrush>());
  brush->SetStyle(bsClear);
  TNoticeCounter notices(*brush);
  brush->SetColor(clBlack);
  EXPECT_EQ(brush->GetStyle(), bsSolid);
  EXPECT_EQ(notices.Count, 1);
}

TEST(GraphicsAssignTest, CopiesItsOwnClassOnceAndRefusesOthers) {
  const TOwnedObject<TFont> font(Construct<TFont>()), source(Construct<TFont>());
  source->SetName("Mono");
  source->SetStyle({fsUnderline});
  TNoticeCounter notices(*font);
  font->Assign(source.get());
  font->Assign(source.get());
  EXPECT_EQ(font->GetName(), "Mono");
  EXPECT_EQ(font->GetStyle(), TFontStyles{fsUnderline});
  EXPECT_EQ(notices.Count, 1);

  const TOwnedObject<TPen> pen(Construct<TPen>());
  for (const auto& [other, message] : {std::pair<TPersistent*, String>{pen.get(), "Cannot assign a TPen to a TFont"},
                                       {nullptr, "Cannot assign a nil to a TFont"}}) {
    try {
      font->Assign(other);
      ADD_FAILURE() << message;
    } catch (const EConvertError& e) {
      EXPECT_EQ(String(e.what()), message);
    }
  }
}

} // namespace
} // namespace Tarvo
