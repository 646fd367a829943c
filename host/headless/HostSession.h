#pragma once
// One run of the headless host: start the package, load the component modules, open the design,
// select, apply the edits, and give back the printed rows. Everything is taken down again, in
// reverse order, however the run ends.

#include "host/headless/HostOptions.h"

namespace Tarvo {

// Where the bundled pieces lie.
struct TInspectPaths {
  String SampleModule;
  String SampleDesign;
};

// The text to print. Raises EInspectError for input that names nothing there or text a row's
// editor does not take, and passes on the errors of the design file and of the editors
// (EDesignPropertyError among them).
String RunInspect(const TInspectOptions& AOptions, const TInspectPaths& APaths);

} // namespace Tarvo
