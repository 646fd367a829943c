#include <gtest/gtest.h>

#include <functional>

#include "reflection/RttiTypes.h"
#include "reflection/TypeInfo.h"
#include "runtime/Graphics.h"
#include "tests/rtl/ExpectError.h"
#include "tests/support/NamedRows.h"

namespace Tarvo {
namespace {

// Counts the change notices of a drawing setting.
struct TNoticeCounter {
  explicit TNoticeCounter(TChangeNotifyPersistent& ATarget) : Handler(ATarget.AddChangeHandler([this] { ++Count; })) {}
  int Count = 0;
  TNotifyHandler Handler;
};

// Each reflected write that changes a value tells once; writing the same value again tells nothing.
TEST(GraphicsNotificationTest, EachReflectedWriteThatChangesAValueTellsOnce) {
  using TMaker = std::function<TChangeNotifyPersistent*()>;
  const TMaker font = [] { return Construct<TFont>(); }, pen = [] { return Construct<TPen>(); },
               brush = [] { return Construct<TBrush>(); };
  const struct {
    const char* Name;
    TMaker Make;
    const char *Member, *Text;
  } cases[] = {{"font name", font, "Name", "Serif"},
               {"font height", font, "Height", "-20"},
               {"font style", font, "Style", "[fsBold,fsItalic]"},
               {"font charset", font, "Charset", "0"},
               {"pen width", pen, "Width", "3"},
               {"pen style", pen, "Style", "psDot"},
               {"brush colour", brush, "Color", "0"},
               {"brush style", brush, "Style", "bsCross"}};
  Testing::ForEachRow(cases, [](const auto& ACase) {
    const TOwnedObject<TChangeNotifyPersistent> object(ACase.Make());
    TNoticeCounter notices(*object);
    TRef<IValueMemberInfo> member;
    ASSERT_TRUE(TRttiObjectHelper::TypeInfo(object.get(), false)->FindMember(ACase.Member, member));
    EXPECT_TRUE(member->GetIsDefault(object.get(), true));
    member->SetFromString(object.get(), ACase.Text);
    EXPECT_EQ(notices.Count, 1);
    EXPECT_EQ(member->GetValue(object.get()).ToString(), ACase.Text);
    member->SetFromString(object.get(), ACase.Text); // the same value again: no change
    EXPECT_EQ(notices.Count, 1);
  });
}

// Nested update brackets tell once at the end if something changed; a handler may remove itself while told.
TEST(GraphicsNotificationTest, BracketsTellOnceAndRemovedHandlersHearNothing) {
  const TOwnedObject<TFont> font(Construct<TFont>());
  TNoticeCounter notices(*font);
  font->BeginUpdate();
  font->BeginUpdate();
  font->SetColor(clBlack);
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

// Font size and height are two views of one value; colouring a clear brush makes it solid.
TEST(GraphicsValueTest, FontSizeAndHeightAreTwoViewsOfOneValueAndAColouredClearBrushTurnsSolid) {
  const TOwnedObject<TFont> font(Construct<TFont>());
  EXPECT_EQ(font->GetSize(), 9);
  const struct {
    const char* Name;
    Integer Size, Height;
  } sizes[] = {{"small", 8, -11}, {"rounded down", 10, -13}, {"large", 72, -96}};
  Testing::ForEachRow(sizes, [&](const auto& ARow) {
    font->SetSize(ARow.Size);
    EXPECT_EQ(font->GetHeight(), ARow.Height);
    EXPECT_EQ(font->GetSize(), ARow.Size);
  });
  const TOwnedObject<TBrush> brush(Construct<TBrush>());
  brush->SetStyle(bsClear);
  TNoticeCounter notices(*brush);
  brush->SetColor(clBlack);
  EXPECT_EQ(brush->GetStyle(), bsSolid);
  EXPECT_EQ(notices.Count, 1);
}

// Assign copies from its own class, telling once; other classes and nil are refused by name.
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
  const struct {
    const char* Name;
    TPersistent* Other;
    const char* Message;
  } refused[] = {{"another class", pen.get(), "Cannot assign a TPen to a TFont"},
                 {"nil", nullptr, "Cannot assign a nil to a TFont"}};
  Testing::ForEachRow(refused,
                      [&](const auto& ARow) { Testing::ExpectError([&] { font->Assign(ARow.Other); }, ARow.Message); });
}

} // namespace
} // namespace Tarvo
