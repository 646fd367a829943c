#pragma once
// The command line of tarvo-inspect.

#include <optional>
#include <vector>

#include "host/headless/RowModel.h"

namespace Tarvo {

struct TInspectEdit {
  enum TKind { ekSet, ekReset, ekClick, ekDialog } Kind;
  String Path;
  String Text;           // for ekSet; for ekDialog the answer
  Boolean Answered = false; // for ekDialog: without an answer the dialog is cancelled
};

struct TInspectOptions {
  String DesignFile;               // empty: the bundled sample design
  std::vector<String> Modules;     // loaded after the sample module
  std::vector<String> Select;      // empty: the first component of the design
  std::vector<TInspectEdit> Edits; // in command-line order
  std::vector<String> Expand;
  std::optional<String> Values; // the row whose list of values is printed instead of the rows
  String Filter;                // words every shown row must match; empty: all rows
  String Locale;                // numbers and dates as this locale writes them; empty: invariant
  String Png;                   // the file the grid's picture goes to; empty: print text
  Integer Width = 480;          // of the picture
  Boolean DarkPalette = false;  // of the picture
  Boolean Categories = false;   // rows under their category headings
  Boolean ExpandAll = false;
  Boolean Json = false;
  Boolean ListClasses = false;
  Boolean Help = false;
};

extern const char* const InspectUsage;

// Raises EInspectError for an unknown option or a missing or malformed argument.
TInspectOptions ParseInspectOptions(const std::vector<String>& AArguments);

} // namespace Tarvo
