#include <gtest/gtest.h>

#include <functional>

#include "design/reflection/TypeInfo.h"
#include "runtime/Graphics.h"

namespace Tarvo {
namespace {

using TMaker = std::function<TChangeNotifyPersistent*()>;

// Counts the change notices of a drawing setting.
struct TNoticeCounter {
  explicit TNoticeCounter(TChangeNotifyPersistent& ATarget) : Handler(ATarget.AddChangeHandler([this] { ++Count; })) {}
  int Count = 0;
  TNotifyHandler Handler;
};

TEST(GraphicsNotificationTest, EachReflectedWriteThatChangesAValueTellsOnce) {
  const TMaker font = [] { return Construct<TFont>(); };
  const TMaker pen = [] { return Construct<TPen>(); };
  const TMaker brush = [] { return Construct<TBrush>(); };
  const struct {
    TMaker Make;
    const char* Member;
    const char* Text;
  } cases[] = {
      {font, "Name", "Serif"},   {font, "Size", "12"},      {font, "Height", "-20"}, {font, "Color", "255"},
      {font, "Style", "[fsBold,fsItalic]"}, {font, "Charset", "0"}, {pen, "Color", "255"},  {pen, "Width", "3"},
      {pen, "Style", "psDot"},   {brush, "Color", "0"},     {brush, "Style", "bsCross"},
  };
  for (const auto& c : cases) {
    const TOwnedObject<TChangeNotifyPersistent> object(c.Make());
    TNoticeCounter notices(*object);
    TRef<IValueMemberInfo> member;
    ASSERT_TRUE(TRttiObjectHelper::TypeInfo(object.get(), false)->FindMember(c.Member, member)) << c.Member;
    EXPECT_TRUE(member->GetIsDefault(object.get(), true)) << object->ClassName() << "." << c.Member;
    member->SetFromString(object.get(), c.Text);
    EXPECT_EQ(notices.Count, 1) << object->ClassName() << "." << c.Member;
    EXPECT_EQ(member->GetValue(object.get()).ToString(), c.Text);
    member->SetFromString(object.get(), c.Text); // the same value again: no change
    EXPECT_EQ(notices.Count, 1) << object->ClassName() << "." << c.Member;
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

TEST(GraphicsValueTest, SizeAndHeightAreTwoViewsOfOneValue) {
  const TOwnedObject<TFont> font(Construct<TFont>());
  EXPECT_EQ(font->GetSize(), 9);
  const std::pair<Integer, Integer> sizeToHeight[] = {{8, -11}, {10, -13}, {12, -16}, {72, -96}};
  for (const auto& [size, height] : sizeToHeight) {
    font->SetSize(size);
    EXPECT_EQ(font->GetHeight(), height) << size;
    EXPECT_EQ(font->GetSize(), size) << size;
  }
}

TEST(GraphicsValueTest, AClearBrushGivenAColourTurnsSolidInOneNotice) {
  const TOwnedObject<TBrush> brush(Construct<TBrush>());
  brush->SetStyle(bsClear);
  TNoticeCounter notices(*brush);
  brush->SetColor(clBlack);
  EXPECT_EQ(brush->GetStyle(), bsSolid);
  EXPECT_EQ(notices.Count, 1);
}

TEST(GraphicsAssignTest, CopiesItsOwnClassOnceAndRefusesOthers) {
  const TOwnedObject<TFont> font(Construct<TFont>());
  const TOwnedObject<TFont> source(Construct<TFont>());
  source->SetName("Mono");
  source->SetStyle({fsUnderline});
  TNoticeCounter notices(*font);
  font->Assign(source.get());
  EXPECT_EQ(font->GetName(), "Mono");
  EXPECT_EQ(font->GetStyle(), TFontStyles{fsUnderline});
  font->Assign(source.get());
  EXPECT_EQ(notices.Count, 1);

  const TOwnedObject<TPen> pen(Construct<TPen>());
  const auto message = [&](TPersistent* ASource) {
    try {
      font->Assign(ASource);
    } catch (const EConvertError& e) {
      return String(e.what());
    }
    return String();
  };
  EXPECT_EQ(message(pen.get()), "Cannot assign a TPen to a TFont");
  EXPECT_EQ(message(nullptr), "Cannot assign a nil to a TFont");
}

} // namespace
} // namespace Tarvo
