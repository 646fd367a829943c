#pragma once
// What the design file reader and writer share: the JSON form, the error, the invariant format
// settings, the deepest nesting, and which members are written as texts or as component names.

#include <span>
#include <string_view>
#include <utility>

#include <nlohmann/json.hpp>

#include "reflection/TypeInfo.h"
#include "rtl/SysUtils.h"
#include "rtl/Utf8Text.h"
#include "runtime/Component.h"
#include "runtime/DesignFile.h"

namespace Tarvo::DesignFile {

// Keys keep their order: properties are set in the order the file gives them.
using TJson = nlohmann::ordered_json;

[[noreturn]] inline void Fail(const String& AMessage) { throw EDesignFileError(AMessage); }

// A text of the file in a message, quoted, its bytes that are no UTF-8 escaped, a long one cut.
inline String Quoted(std::string_view AText) { return "'" + EscapedUtf8Excerpt(AText, 80) + "'"; }

// A text of a design (a name, a class, a value) holds at most this many bytes: a megabyte is
// more than any caption or list needs, and keeps what one hostile file costs in bounds.
inline constexpr std::size_t MaxTextBytes = 1 << 20;
// A conversion's message that quotes such a text is cut to this length.
inline constexpr std::size_t MaxMessageBytes = 400;

// Components nest at most this deep: far more than any form needs, and few enough that the
// recursive walks of reader, writer and serializer stay far from the end of the stack (512 levels
// overflowed a sanitized debug build's 8 MB in the serializer).
inline constexpr std::size_t MaxNesting = 256;
// Refuses a design whose components nest deeper than MaxNesting below the components of
// ANames, the outermost first.
[[noreturn]] void FailNesting(std::span<const std::string_view> ANames);

// A design reads the same on every machine: numbers and dates go through the invariant settings
// for as long as a file is read or written, whatever the host set. Times keep their milliseconds.
class TInvariantFormatScope {
public:
  TInvariantFormatScope() : FSaved(std::exchange(FormatSettings, FileSettings())) {}
  ~TInvariantFormatScope() { FormatSettings = FSaved; }
  TInvariantFormatScope(const TInvariantFormatScope&) = delete;
  TInvariantFormatScope& operator=(const TInvariantFormatScope&) = delete;

private:
  static TFormatSettings FileSettings() {
    TFormatSettings settings = TFormatSettings::Invariant();
    settings.LongTimeFormat = "hh:nn:ss.zzz";
    return settings;
  }

  TFormatSettings FSaved;
};

// A member of these types names a component of the design rather than having a text of its own.
inline bool RefersToComponent(PTypeInfo AType) {
  return AType->Kind == tkInterface ||
         (AType->Kind == tkClass && AType->ClassType->InheritsFrom(TComponent::ClassInfo()));
}

// Values that the members' own conversion reads back from their text.
inline bool HasTextForm(PTypeInfo AType) {
  return AType->IsOrdinal() || AType->IsString() || AType->Kind == tkFloat || AType->Kind == tkSet ||
         AType->Kind == tkVariant;
}

// The document of a design text; EDesignFileError says where the text is no valid JSON.
TJson ParseDesignText(const String& AText);
// Designs nested up to this deep are written indented, to be read and compared by people; a
// deeper one is written compact, so that its text grows with its content and not with the square
// of its depth.
inline constexpr std::size_t IndentedNesting = 16;

// The text of a design document, indented or compact, one line feed at its end; EDesignFileError
// names the root when a text in the document is no valid UTF-8.
String DesignText(const TJson& ADesign, const String& ARootName, bool AIndented);

} // namespace Tarvo::DesignFile
