#include "rtl/Utf8Text.h"

#include <algorithm>

namespace Tarvo {

namespace {

// Lead bytes of sequences longer than one byte, the sequence's length and the range its second
// byte must lie in: the ranges rule out overlong forms, surrogates and code points above U+10FFFF.
struct TLead {
  unsigned char First, Last;
  std::size_t Length;
  unsigned char Low, High;
};
constexpr TLead Leads[] = {{0xC2, 0xDF, 2, 0x80, 0xBF}, {0xE0, 0xE0, 3, 0xA0, 0xBF}, {0xE1, 0xEC, 3, 0x80, 0xBF},
                           {0xED, 0xED, 3, 0x80, 0x9F}, {0xEE, 0xEF, 3, 0x80, 0xBF}, {0xF0, 0xF0, 4, 0x90, 0xBF},
                           {0xF1, 0xF3, 4, 0x80, 0xBF}, {0xF4, 0xF4, 4, 0x80, 0x8F}};

// The length of the well-formed sequence that starts AText, or 0 when its first byte starts none.
std::size_t SequenceLength(std::string_view AText) {
  const auto byte = [&](std::size_t AIndex) { return static_cast<unsigned char>(AText[AIndex]); };
  if (byte(0) < 0x80) return 1;
  for (const TLead& lead : Leads) {
    if (byte(0) < lead.First || byte(0) > lead.Last) continue;
    if (AText.size() < lead.Length || byte(1) < lead.Low || byte(1) > lead.High) return 0;
    for (std::size_t i = 2; i < lead.Length; ++i)
      if (byte(i) < 0x80 || byte(i) > 0xBF) return 0;
    return lead.Length;
  }
  return 0;
}

} // namespace

bool IsValidUtf8(std::string_view AText) {
  while (!AText.empty()) {
    const std::size_t length = SequenceLength(AText);
    if (length == 0) return false;
    AText.remove_prefix(length);
  }
  return true;
}

String EscapedUtf8(std::string_view AText) {
  static constexpr char Digits[] = "0123456789ABCDEF";
  String result;
  result.reserve(AText.size());
  while (!AText.empty()) {
    const std::size_t length = SequenceLength(AText);
    if (length > 0) {
      result.append(AText.substr(0, length));
      AText.remove_prefix(length);
      continue;
    }
    const auto bad = static_cast<unsigned char>(AText.front());
    result += "\\x";
    result += Digits[bad >> 4];
    result += Digits[bad & 0xF];
    AText.remove_prefix(1);
  }
  return result;
}

String EscapedUtf8Excerpt(std::string_view AText, std::size_t AMaxBytes) {
  std::size_t cut = 0;
  while (cut < AText.size()) {
    const std::size_t length = std::max<std::size_t>(SequenceLength(AText.substr(cut)), 1);
    if (cut + length > AMaxBytes) return EscapedUtf8(AText.substr(0, cut)) + "...";
    cut += length;
  }
  return EscapedUtf8(AText);
}

} // namespace Tarvo
