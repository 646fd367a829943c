#include "forms/AlphaColorEditForm.h"

#include <QColor>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPainter>
#include <QPointer>

#include "platform/AlphaColorNames.h"
#include "platform/GXBrushes.h"
#include "platform/GXGraphics.h"
#include "rtl/Exceptions.h"

namespace Tarvo {

namespace {

constexpr int WheelSize = 120;
constexpr int BarMax = 255;

// The colour over the pattern that the swatches of alpha colours show it against.
class TAlphaColorPreview : public QWidget {
public:
  TAlphaColorPreview(const TAlphaColor& AColor, QWidget* AParent) : QWidget(AParent), FColor(AColor) {
    setMinimumSize(48, 24);
  }

protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const TRef<IGXGraphics> graphics = New<TIGXGraphics>(painter);
    const TIGXRect all(0, 0, width(), height());
    graphics->FillRectangle(New<TIGXHatchBrush>(hsSolidDiamond, claWhite, claBlack), all);
    graphics->FillRectangle(New<TIGXSolidBrush>(FColor), all);
  }

private:
  const TAlphaColor& FColor;
};

QSlider* AddBar(QWidget* AParent) {
  auto* bar = new QSlider(Qt::Horizontal, AParent);
  bar->setRange(0, BarMax);
  return bar;
}

QPointer<TWXAlphaColorEditForm> GAlphaColorEditForm;

} // namespace

TWXAlphaColorEditForm::TWXAlphaColorEditForm(QWidget* AParent) : QDialog(AParent) {
  setWindowTitle(QStringLiteral("Alpha Colour"));
  HBHSVWheel = new THBHSVWheel(this);
  HBHSVWheel->setFixedSize(WheelSize, WheelSize);
  TrackBarValue = AddBar(this);
  TrackBarAlpha = AddBar(this);
  EditColor = new QLineEdit(this);
  FPreview = new TAlphaColorPreview(FColor, this);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);

  auto* fields = new QFormLayout();
  fields->addRow(QStringLiteral("Brightness"), TrackBarValue);
  fields->addRow(QStringLiteral("Alpha"), TrackBarAlpha);
  fields->addRow(QStringLiteral("Colour"), EditColor);
  fields->addRow(FPreview);
  auto* top = new QHBoxLayout();
  top->addWidget(HBHSVWheel);
  top->addLayout(fields);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(top);
  layout->addWidget(buttons);

  HBHSVWheel->OnChange = [this] { ControlsChange(); };
  connect(TrackBarValue, &QSlider::valueChanged, this, [this] { ControlsChange(); });
  connect(TrackBarAlpha, &QSlider::valueChanged, this, [this] { ControlsChange(); });
  connect(EditColor, &QLineEdit::textChanged, this, [this](const QString& AText) { TextChange(AText); });
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  ShowColor(true);
}

void TWXAlphaColorEditForm::SetColor(TAlphaColor AColor) {
  FColor = AColor;
  ShowColor(true);
}

void TWXAlphaColorEditForm::ControlsChange() {
  if (FInUpdate) return;
  Single hue, saturation, lightness;
  HBHSVToHSL(HBHSVWheel->GetHue() * 360, HBHSVWheel->GetSaturation(), Single(TrackBarValue->value()) / BarMax, hue,
             saturation, lightness);
  Byte red, green, blue;
  HBHSLToRGB(hue, saturation, lightness, red, green, blue);
  FColor = TAlphaColor(TrackBarAlpha->value()) << 24 | TAlphaColor(red) << 16 | TAlphaColor(green) << 8 | blue;
  ShowColor(true);
}

void TWXAlphaColorEditForm::TextChange(const QString& AText) {
  if (FInUpdate) return;
  try {
    FColor = StringToRGBAColor(AText.trimmed().toStdString());
  } catch (const EConvertError&) {
    // Text on its way to a colour: the colour stays until the text reads as one.
    return;
  }
  ShowColor(false);
}

void TWXAlphaColorEditForm::ShowColor(Boolean AText) {
  FInUpdate = true;
  float hue = 0, saturation = 0, value = 0;
  QColor::fromRgb(FColor >> 16 & 0xFF, FColor >> 8 & 0xFF, FColor & 0xFF).getHsvF(&hue, &saturation, &value);
  // A grey has no hue: the wheel keeps the one it has.
  if (hue >= 0) HBHSVWheel->SetHue(hue);
  HBHSVWheel->SetSaturation(saturation);
  HBHSVWheel->SetValue(value);
  TrackBarValue->setValue(qRound(value * BarMax));
  TrackBarAlpha->setValue(int(FColor >> 24));
  if (AText) EditColor->setText(QString::fromStdString(RGBAColorToString(FColor)));
  FPreview->update();
  FInUpdate = false;
}

TWXAlphaColorEditForm& AlphaColorEditForm() {
  if (!GAlphaColorEditForm) GAlphaColorEditForm = new TWXAlphaColorEditForm();
  return *GAlphaColorEditForm;
}

void ReleaseAlphaColorEditForm() { delete GAlphaColorEditForm.data(); }

} // namespace Tarvo
