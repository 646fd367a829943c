#include "forms/ColorInplaceForm.h"

#include <algorithm>

#include "platform/EventHook.h"

namespace Tarvo {

namespace {

// The width of a bar's caption beside it.
constexpr int CaptionWidth = 12;

// The RGB the wheel's position and value stand for.
void WheelRGB(const THBHSVWheel& AWheel, Byte& ARed, Byte& AGreen, Byte& ABlue) {
  Single hue, saturation, lightness;
  HBHSVToHSL(AWheel.GetHue() * 360, AWheel.GetSaturation(), AWheel.GetValue(), hue, saturation, lightness);
  HBHSLToRGB(hue, saturation, lightness, ARed, AGreen, ABlue);
}

Byte Position(const QSlider* ABar) { return Byte(ABar->value()); }

} // namespace

TBasicColorInplaceForm::TBasicColorInplaceForm(int AClientHeight, QWidget* AParent) : TBasicInplaceForm(AParent) {
  HBHSVWheel = new THBHSVWheel(this);
  HBHSVWheel->OnChange = [this] { HBHSVWheelChange(); };
  HBHSVWheel->OnMouseDown = [this] { FormMouseDown(); };
  HBHSVWheel->OnMouseUp = [this] { FormMouseUp(); };
  TrackBarRed = AddColorBar("R");
  TrackBarGreen = AddColorBar("G");
  TrackBarBlue = AddColorBar("B");
  resize(200, AClientHeight);
}

QSlider* TBasicColorInplaceForm::AddColorBar(const char* ACaption) {
  QSlider* bar = AddTrackBar(255);
  auto* caption = new QLabel(ACaption, this);
  caption->setAlignment(Qt::AlignCenter);
  FRows.emplace_back(caption, bar);
  QObject::connect(bar, &QSlider::valueChanged, [this] { TrackBarChange(); });
  HookEvent(bar, QEvent::MouseButtonPress, [this](QEvent*) { FormMouseDown(); });
  HookEvent(bar, QEvent::MouseButtonRelease, [this](QEvent*) { FormMouseUp(); });
  return bar;
}

// The wheel takes the left edge at its own width; the bars share the rest of the height in rows.
void TBasicColorInplaceForm::resizeEvent(QResizeEvent* AEvent) {
  TBasicInplaceForm::resizeEvent(AEvent);
  HBHSVWheel->setGeometry(0, 0, WheelSize, height());
  const int count = int(FRows.size());
  for (int i = 0; i < count; ++i) {
    const int top = i * height() / count, bottom = (i + 1) * height() / count;
    FRows[i].first->setGeometry(WheelSize, top, CaptionWidth, bottom - top);
    FRows[i].second->setGeometry(WheelSize + CaptionWidth, top, std::max(0, width() - WheelSize - CaptionWidth - 2),
                                 bottom - top);
  }
}

void TBasicColorInplaceForm::TrackBarChange() {
  if (FInUpdate) return;
  FInUpdate = true;
  UpdateHue(Position(TrackBarRed), Position(TrackBarGreen), Position(TrackBarBlue));
  NotifyForm(OnColorChange, this);
  FInUpdate = false;
}

void TBasicColorInplaceForm::HBHSVWheelChange() {
  if (FInUpdate) return;
  Byte red, green, blue;
  WheelRGB(*HBHSVWheel, red, green, blue);
  FInWheelUpdate = true;
  TrackBarRed->setValue(red);
  TrackBarGreen->setValue(green);
  TrackBarBlue->setValue(blue);
  FInWheelUpdate = false;
}

void TBasicColorInplaceForm::UpdateHue(Byte ARed, Byte AGreen, Byte ABlue) {
  if (FInWheelUpdate) return;
  Byte red, green, blue;
  WheelRGB(*HBHSVWheel, red, green, blue);
  // Keeps the hue of a grey from jumping to 0.
  if (red == ARed && green == AGreen && blue == ABlue) return;
  const int least = std::min({ARed, AGreen, ABlue}), most = std::max({ARed, AGreen, ABlue});
  const Single delta = Single(most - least);
  // The least channel, as this form has always had it.
  HBHSVWheel->SetValue(Single(least) / 255);
  if (most == 0) {
    HBHSVWheel->SetSaturation(360);
    return;
  }
  if (delta == 0) return;
  Single sixths;
  if (ARed == most) sixths = (Single(AGreen) - ABlue) / delta;
  else if (AGreen == most) sixths = (Single(ABlue) - ARed) / delta + 2;
  else sixths = (Single(ARed) - AGreen) / delta + 4;
  if (sixths < 0) sixths += 6;
  else if (sixths > 6) sixths -= 6;
  HBHSVWheel->SetHue(sixths / 6);
}

void TBasicColorInplaceForm::SetPositions(const std::vector<std::pair<QSlider*, Byte>>& APositions) {
  if (FInUpdate) return;
  FInUpdate = true;
  UpdateHue(APositions[0].second, APositions[1].second, APositions[2].second);
  for (const auto& [bar, position] : APositions) bar->setValue(position);
  FInUpdate = false;
}

void TBasicColorInplaceForm::FormMouseDown() { NotifyForm(OnEditorEnter, this); }

void TBasicColorInplaceForm::FormMouseUp() { NotifyForm(OnEditorLeave, this); }

TColorInplaceForm::TColorInplaceForm(QWidget* AParent) : TBasicColorInplaceForm(ClientHeight, AParent) {}

TColor TColorInplaceForm::GetColor() const {
  return TColor(Position(TrackBarRed) | Position(TrackBarGreen) << 8 | Position(TrackBarBlue) << 16);
}

void TColorInplaceForm::SetColor(TColor AColor) {
  const Cardinal rgb = Cardinal(ColorToRGB(AColor));
  SetPositions({{TrackBarRed, Byte(rgb)}, {TrackBarGreen, Byte(rgb >> 8)}, {TrackBarBlue, Byte(rgb >> 16)}});
}

TAlphaColorInplaceForm::TAlphaColorInplaceForm(QWidget* AParent) : TBasicColorInplaceForm(ClientHeight, AParent) {
  TrackBarAlpha = AddColorBar("A");
}

TAlphaColor TAlphaColorInplaceForm::GetColor() const {
  return TAlphaColor(Position(TrackBarAlpha)) << 24 | TAlphaColor(Position(TrackBarRed)) << 16 |
         TAlphaColor(Position(TrackBarGreen)) << 8 | Position(TrackBarBlue);
}

void TAlphaColorInplaceForm::SetColor(TAlphaColor AColor) {
  SetPositions({{TrackBarRed, Byte(AColor >> 16)},
                {TrackBarGreen, Byte(AColor >> 8)},
                {TrackBarBlue, Byte(AColor)},
                {TrackBarAlpha, Byte(AColor >> 24)}});
}

} // namespace Tarvo
