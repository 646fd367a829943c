#include "reflection/ClassNames.h"

namespace Tarvo {

String GetClassNameBase(TClass AClass) {
  if (!AClass) return String();
  const String name = AClass->ClassName();
  // A class named "T" alone keeps its name rather than giving an empty base.
  return name.size() > 1 && name[0] == 'T' ? name.substr(1) : name;
}

String GetClassNameBase(TObject* AObject) { return AObject ? GetClassNameBase(AObject->ClassType()) : String(); }

} // namespace Tarvo
