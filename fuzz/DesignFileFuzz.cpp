// The design file reader on any bytes: a file is read whole or refused with EDesignFileError,
// leaving the root empty; a file that is read writes a design that reads back to the same text.

#include <cstdint>
#include <cstdlib>
#include <cstdio>

#include "rtl/Module.h"
#include "runtime/DesignFile.h"

using namespace Tarvo;

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  // The sample components give the files classes with members of every kind.
  LoadModule(TARVO_SAMPLES_MODULE_PATH);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* AData, size_t ASize) {
  const String text(reinterpret_cast<const char*>(AData), ASize);
  const TOwnedObject<TComponent> root(TComponentHelper::CreateComponent(TComponent::ClassInfo(), nullptr, true, false));
  try {
    ReadDesign(text, root.get());
  } catch (const EDesignFileError&) {
    if (root->ComponentCount() != 0) {
      std::fputs("a refused design left components behind\n", stderr);
      std::abort();
    }
    return 0;
  }
  String written;
  try {
    written = WriteDesign(root.get());
  } catch (const EDesignFileError&) {
    return 0; // a text of the design is no UTF-8, which a file cannot hold
  }
  const TOwnedObject<TComponent> copy(TComponentHelper::CreateComponent(TComponent::ClassInfo(), nullptr, true, false));
  ReadDesign(written, copy.get());
  if (WriteDesign(copy.get()) != written) {
    std::fputs("a written design reads back to another\n", stderr);
    std::abort();
  }
  return 0;
}
