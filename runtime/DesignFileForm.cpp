// The JSON text of a design, parsed and written apart from the tree walks of the reader and the
// writer: the parser and serializer instances are compiled here only.
#include "runtime/DesignFileForm.h"

#include <string_view>

namespace Tarvo::DesignFile {

TJson ParseDesignText(const String& AText) {
  try {
    return TJson::parse(AText);
  } catch (const TJson::exception& e) {
    // A syntax error quotes the token it read last, which may be a whole unterminated text; a
    // number out of range quotes the number.
    const std::string_view detail = e.what();
    Fail("The design is no valid JSON: " + EscapedUtf8Excerpt(detail.substr(detail.find("] ") + 2), MaxMessageBytes));
  }
}

void FailNesting(std::span<const std::string_view> ANames) {
  const auto join = [](std::span<const std::string_view> AParts) {
    String text;
    for (const std::string_view part : AParts) text += (text.empty() ? "" : ".") + EscapedUtf8(part);
    return text;
  };
  // The outermost and innermost names tell the place; the ones between would fill a screen.
  constexpr std::size_t Shown = 3;
  const String path =
      ANames.size() <= 2 * Shown ? join(ANames) : join(ANames.first(Shown)) + "..." + join(ANames.last(Shown));
  Fail("Components nest deeper than " + std::to_string(MaxNesting) + " levels under '" + path + "'");
}

String DesignText(const TJson& ADesign, const String& ARootName, bool AIndented) {
  try {
    String text = ADesign.dump(AIndented ? 2 : -1);
    text += '\n';
    return text;
  } catch (const TJson::type_error&) {
    Fail("The design of '" + ARootName + "' holds a text that is no valid UTF-8");
  }
}

} // namespace Tarvo::DesignFile
