#include "platform/GXTypes.h"

#include <QGuiApplication>
#include <QPalette>

#include <array>
#include <optional>
#include <string>

#include "rtl/Exceptions.h"

namespace Tarvo {

namespace {

struct TPaletteEntry {
  QPalette::ColorGroup Group;
  QPalette::ColorRole Role;
};

// The palette colour that plays the part of each system colour; index 25 has no meaning.
constexpr std::array<std::optional<TPaletteEntry>, scMenuBar + 1> SystemColorTable = {{
    TPaletteEntry{QPalette::Active, QPalette::Button},            // scroll bar
    TPaletteEntry{QPalette::Active, QPalette::Dark},              // desktop background
    TPaletteEntry{QPalette::Active, QPalette::Highlight},         // active caption
    TPaletteEntry{QPalette::Inactive, QPalette::Highlight},       // inactive caption
    TPaletteEntry{QPalette::Active, QPalette::Window},            // menu
    TPaletteEntry{QPalette::Active, QPalette::Base},              // window (edit and list background)
    TPaletteEntry{QPalette::Active, QPalette::Shadow},            // window frame
    TPaletteEntry{QPalette::Active, QPalette::WindowText},        // menu text
    TPaletteEntry{QPalette::Active, QPalette::Text},              // window text
    TPaletteEntry{QPalette::Active, QPalette::HighlightedText},   // caption text
    TPaletteEntry{QPalette::Active, QPalette::Window},            // active border
    TPaletteEntry{QPalette::Inactive, QPalette::Window},          // inactive border
    TPaletteEntry{QPalette::Active, QPalette::Dark},              // application workspace
    TPaletteEntry{QPalette::Active, QPalette::Highlight},         // highlight
    TPaletteEntry{QPalette::Active, QPalette::HighlightedText},   // highlight text
    TPaletteEntry{QPalette::Active, QPalette::Button},            // button face
    TPaletteEntry{QPalette::Active, QPalette::Dark},              // button shadow
    TPaletteEntry{QPalette::Disabled, QPalette::Text},            // grey text
    TPaletteEntry{QPalette::Active, QPalette::ButtonText},        // button text
    TPaletteEntry{QPalette::Inactive, QPalette::HighlightedText}, // inactive caption text
    TPaletteEntry{QPalette::Active, QPalette::Light},             // button highlight
    TPaletteEntry{QPalette::Active, QPalette::Shadow},            // 3D dark shadow
    TPaletteEntry{QPalette::Active, QPalette::Midlight},          // 3D light
    TPaletteEntry{QPalette::Active, QPalette::ToolTipText},       // info text
    TPaletteEntry{QPalette::Active, QPalette::ToolTipBase},       // info background
    std::nullopt,
    TPaletteEntry{QPalette::Active, QPalette::Link},        // hot light
    TPaletteEntry{QPalette::Active, QPalette::Highlight},   // gradient active caption
    TPaletteEntry{QPalette::Inactive, QPalette::Highlight}, // gradient inactive caption
    TPaletteEntry{QPalette::Active, QPalette::Highlight},   // menu highlight
    TPaletteEntry{QPalette::Active, QPalette::Window},      // menu bar
}};

} // namespace

TColor ColorToRGB(TColor AColor) {
  if (AColor >= 0) return AColor;
  const std::size_t index = Cardinal(AColor) & 0xFFu;
  if (index >= SystemColorTable.size() || !SystemColorTable[index]) return 0;
  const auto [group, role] = *SystemColorTable[index];
  const QColor color = QGuiApplication::palette().color(group, role);
  return TColor(color.red() | color.green() << 8 | color.blue() << 16);
}

TAlphaColor MakeColor(TColor AColor, Byte AAlpha) {
  const Cardinal rgb = Cardinal(ColorToRGB(AColor));
  const Cardinal red = rgb & 0xFFu, green = rgb >> 8 & 0xFFu, blue = rgb >> 16 & 0xFFu;
  return TAlphaColor(AAlpha) << 24 | red << 16 | green << 8 | blue;
}

void CheckEnumValue(Integer AValue, Integer ACount, const char* ATypeName) {
  if (AValue < 0 || AValue >= ACount)
    throw EArgumentOutOfRangeException(std::to_string(AValue) + " is no value of " + ATypeName);
}

} // namespace Tarvo
