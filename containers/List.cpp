#include "containers/List.h"

#include <string>

namespace Tarvo {

void RaiseListIndexError(Integer AIndex) {
  throw EListError("List index out of bounds (" + std::to_string(AIndex) + ")");
}

void RaiseListRangeError(Integer AIndex, Integer ACount) {
  throw EListError("List range out of bounds (index " + std::to_string(AIndex) + ", count " + std::to_string(ACount) +
                   ")");
}

} // namespace Tarvo
