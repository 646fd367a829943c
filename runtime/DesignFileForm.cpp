// The JSON text of a design, parsed and written apart from the tree walks of the reader and the
// writer: the parser and serializer instances are compiled here only.
#include "runtime/DesignFileForm.h"

#include <string_view>

namespace Tarvo::DesignFile {

TJson ParseDesignText(const String& AText) {
  try {
    return TJson::parse(AText);
  } catch (const TJson::parse_error& e) {
    const std::string_view detail = e.what();
    Fail("The design is no valid JSON: " + String(detail.substr(detail.find("] ") + 2)));
  }
}

String DesignText(const TJson& ADesign, const String& ARootName) {
  try {
    return ADesign.dump(2) + "\n";
  } catch (const TJson::type_error&) {
    Fail("The design of '" + ARootName + "' holds a text that is no valid UTF-8");
  }
}

} // namespace Tarvo::DesignFile
