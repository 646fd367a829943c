#pragma once
#pragma GCC visibility push(default)
// The modification bracket of a designer, as far as code below the design core needs it.

#include "rtl/Interface.h"

namespace Tarvo {

class IBasicDesigner : public virtual IInterface {
  TARVO_INTERFACE(IBasicDesigner, "{20F4E7BE-5DA8-4C9A-9591-BB8B7CA02E96}", IInterface)
public:
  virtual void BeginModify() = 0;
  virtual void EndModify() = 0;
  virtual void Modified() = 0;
};

} // namespace Tarvo

#pragma GCC visibility pop
