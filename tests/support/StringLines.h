#pragma once
// String lists as the tests write them: a vector of lines in, a vector of lines out.

#include <vector>

#include "runtime/Strings.h"

namespace Tarvo::Testing {

using TLines = std::vector<String>;

inline TLines LinesOf(const TStrings& AStrings) {
  TLines lines;
  for (Integer i = 0; i < AStrings.Count(); ++i) lines.push_back(AStrings.Strings(i));
  return lines;
}

inline TOwnedObject<TStringList> ListOf(const TLines& ALines) {
  TOwnedObject<TStringList> list(Construct<TStringList>());
  for (const String& line : ALines) list->Add(line);
  return list;
}

} // namespace Tarvo::Testing
