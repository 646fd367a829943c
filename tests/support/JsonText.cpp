#include "tests/support/JsonText.h"

#include <nlohmann/json.hpp>

namespace Tarvo::Testing {

std::string CanonicalJson(const std::string& AText) { return nlohmann::ordered_json::parse(AText).dump(1); }

} // namespace Tarvo::Testing
