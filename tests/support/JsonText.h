#pragma once
// JSON texts compared by what they hold, members in their order, not by their layout. The parser
// is the heaviest header a test could include, so it is compiled once, in JsonText.cpp.

#include <string>

namespace Tarvo::Testing {

// AText parsed and written again in one fixed layout; text that is no JSON throws the parser's error.
std::string CanonicalJson(const std::string& AText);

} // namespace Tarvo::Testing
