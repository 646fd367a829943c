#pragma once
#pragma GCC visibility push(default)
// The drawing settings a control holds: font, pen and brush. Each tells its change handlers
// after every write that changes a value, and copies another of its class through Assign.

#include "runtime/Component.h"

namespace Tarvo {

class TFont : public TChangeNotifyPersistent {
  TARVO_CLASS(TFont, TChangeNotifyPersistent)

public:
  // Size and height convert at this resolution; the screen's own is the platform's business.
  static constexpr Integer PixelsPerInch = 96;
  static constexpr const char* DefaultName = "Sans Serif";
  static constexpr Integer DefaultHeight = -12; // 9 points

  void Assign(TPersistent* ASource) override;

  const TFontName& GetName() const { return FData.Name; }
  void SetName(const TFontName& AValue) { Change(FData.Name, AValue); }
  // Negative: the character height in pixels; positive: the cell height.
  Integer GetHeight() const { return FData.Height; }
  void SetHeight(Integer AValue) { Change(FData.Height, AValue); }
  // In points, from the height.
  Integer GetSize() const;
  void SetSize(Integer AValue);
  TColor GetColor() const { return FData.Color; }
  void SetColor(TColor AValue) { Change(FData.Color, AValue); }
  TFontStyles GetStyle() const { return FData.Style; }
  void SetStyle(TFontStyles AValue) { Change(FData.Style, AValue); }
  TFontCharset GetCharset() const { return FData.Charset; }
  void SetCharset(TFontCharset AValue) { Change(FData.Charset, AValue); }

private:
  struct TData {
    TFontName Name = DefaultName;
    Integer Height = DefaultHeight;
    TColor Color = clWindowText;
    TFontStyles Style;
    TFontCharset Charset = DEFAULT_CHARSET;
    friend bool operator==(const TData&, const TData&) = default;
  };
  TData FData;
};

class TPen : public TChangeNotifyPersistent {
  TARVO_CLASS(TPen, TChangeNotifyPersistent)

public:
  void Assign(TPersistent* ASource) override;

  TColor GetColor() const { return FData.Color; }
  void SetColor(TColor AValue) { Change(FData.Color, AValue); }
  Integer GetWidth() const { return FData.Width; }
  void SetWidth(Integer AValue) { Change(FData.Width, AValue); }
  TPenStyle GetStyle() const { return FData.Style; }
  void SetStyle(TPenStyle AValue) { Change(FData.Style, AValue); }

private:
  struct TData {
    TColor Color = clBlack;
    Integer Width = 1;
    TPenStyle Style = psSolid;
    friend bool operator==(const TData&, const TData&) = default;
  };
  TData FData;
};

class TBrush : public TChangeNotifyPersistent {
  TARVO_CLASS(TBrush, TChangeNotifyPersistent)

public:
  void Assign(TPersistent* ASource) override;

  TColor GetColor() const { return FData.Color; }
  // A clear brush that is given a colour becomes solid: a colour is meant to be seen.
  void SetColor(TColor AValue);
  TBrushStyle GetStyle() const { return FData.Style; }
  void SetStyle(TBrushStyle AValue) { Change(FData.Style, AValue); }

private:
  struct TData {
    TColor Color = clWhite;
    TBrushStyle Style = bsSolid;
    friend bool operator==(const TData&, const TData&) = default;
  };
  TData FData;
};

} // namespace Tarvo

#pragma GCC visibility pop
