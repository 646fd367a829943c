#include "host/headless/HostOptions.h"

#include "rtl/SysUtils.h"

namespace Tarvo {

const char* const InspectUsage = "usage: tarvo-inspect [options]\n"
                                 "Prints the object inspector's rows for the selected components of a design.\n"
                                 "\n"
                                 "  --design FILE          the design to open (default: the bundled sample design)\n"
                                 "  --module FILE          load a further component module (repeatable)\n"
                                 "  --select NAME[,NAME]   the components to select (default: the first one)\n"
                                 "  --set PATH=TEXT        write TEXT through the row's editor (repeatable, in order)\n"
                                 "  --reset PATH           reset the row to its default (repeatable, in order)\n"
                                 "  --click PATH           click the row's value cell, as on a check box (repeatable,\n"
                                 "                         in order with --set and --reset)\n"
                                 "  --dialog PATH          run the row's dialog (repeatable, in order with the edits);\n"
                                 "                         it is cancelled unless an --answer follows\n"
                                 "  --answer TEXT          what the user picks or types in the dialog of the --dialog\n"
                                 "                         before it, then OK\n"
                                 "  --expand PATH          show the sub-rows of a row (repeatable)\n"
                                 "  --expand-all           show the sub-rows of every row\n"
                                 "  --filter WORDS         show the rows whose name or value holds all the words, in\n"
                                 "                         any order and case\n"
                                 "  --categories           show the rows under their category headings\n"
                                 "  --values PATH          print the row's list of values, one a line, instead of\n"
                                 "                         the rows (after the edits)\n"
                                 "  --locale NAME          show and read numbers and dates as the locale NAME\n"
                                 "                         writes them (de, en_US, ...); the design file keeps its\n"
                                 "                         own form\n"
                                 "  --json                 print the rows as JSON: an array of row objects, a\n"
                                 "                         \"range\" and \"suggested_range\" [min, max] in those\n"
                                 "                         whose editor has them; with --values, an array of strings\n"
                                 "  --png FILE             draw the grid of the rows (the list of --values) into\n"
                                 "                         the PNG file FILE instead of printing them\n"
                                 "  --width N              the picture's width in pixels (default 480)\n"
                                 "  --palette light|dark   the picture's colours (default light)\n"
                                 "  --list-classes         print the registered component classes and their pages\n"
                                 "  --help                 print this text\n"
                                 "\n"
                                 "A PATH names a row by member names joined with \".\", as in Font.Size.\n"
                                 "Markers after a row: * differs from the default, [ro] read-only, + expands.\n"
                                 "A --set whose text the row's editor does not take is an error.\n";

namespace {

std::vector<String> SplitNames(const String& AText) {
  std::vector<String> names;
  for (const std::string_view name : SplitString(AText, ',')) {
    if (name.empty()) throw EInspectError("--select expects component names separated by \",\"");
    names.emplace_back(name);
  }
  return names;
}

} // namespace

TInspectOptions ParseInspectOptions(const std::vector<String>& AArguments) {
  TInspectOptions options;
  for (std::size_t i = 0; i < AArguments.size(); ++i) {
    const String& option = AArguments[i];
    const auto argument = [&]() -> const String& {
      if (i + 1 >= AArguments.size()) throw EInspectError(option + " expects an argument");
      return AArguments[++i];
    };
    if (option == "--design") options.DesignFile = argument();
    else if (option == "--module") options.Modules.push_back(argument());
    else if (option == "--select") {
      for (const String& name : SplitNames(argument())) options.Select.push_back(name);
    } else if (option == "--set") {
      const String& assignment = argument();
      const std::size_t equals = assignment.find('=');
      if (equals == String::npos || equals == 0)
        throw EInspectError("--set expects PATH=TEXT, not \"" + assignment + "\"");
      options.Edits.push_back({TInspectEdit::ekSet, assignment.substr(0, equals), assignment.substr(equals + 1)});
    } else if (option == "--reset") options.Edits.push_back({TInspectEdit::ekReset, argument(), String()});
    else if (option == "--click") options.Edits.push_back({TInspectEdit::ekClick, argument(), String()});
    else if (option == "--dialog") options.Edits.push_back({TInspectEdit::ekDialog, argument(), String()});
    else if (option == "--answer") {
      if (options.Edits.empty() || options.Edits.back().Kind != TInspectEdit::ekDialog || options.Edits.back().Answered)
        throw EInspectError("--answer follows the --dialog it answers");
      options.Edits.back().Text = argument();
      options.Edits.back().Answered = true;
    } else if (option == "--filter") options.Filter = argument();
    else if (option == "--locale") options.Locale = argument();
    else if (option == "--categories") options.Categories = true;
    else if (option == "--expand") options.Expand.push_back(argument());
    else if (option == "--expand-all") options.ExpandAll = true;
    else if (option == "--values") {
      if (options.Values) throw EInspectError("--values may be given once");
      options.Values = argument();
    } else if (option == "--png") options.Png = argument();
    else if (option == "--width") {
      const String& width = argument();
      if (!TryStrToInt(width, options.Width) || options.Width < 100 || options.Width > 4000)
        throw EInspectError("--width expects a number of pixels from 100 to 4000, not \"" + width + "\"");
    } else if (option == "--palette") {
      const String& palette = argument();
      if (palette != "light" && palette != "dark") throw EInspectError("--palette expects light or dark, not \"" + palette + "\"");
      options.DarkPalette = palette == "dark";
    } else if (option == "--json") options.Json = true;
    else if (option == "--list-classes") options.ListClasses = true;
    else if (option == "--help" || option == "-h") options.Help = true;
    else throw EInspectError("unknown option \"" + option + "\" (see --help)");
  }
  return options;
}

} // namespace Tarvo
