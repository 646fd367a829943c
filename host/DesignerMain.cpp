// tarvo-designer: the GUI host. A component tree, a palette and the inspector grid over one
// design; see --help.

#include <QApplication>

#include <iostream>
#include <string_view>
#include <vector>

#include "host/designer/DesignerWindow.h"
#include "host/headless/BundledPaths.h"
#include "host/headless/Modules.h"
#include "host/headless/PackageScope.h"

namespace {

const char* const Usage =
    "usage: tarvo-designer [DESIGN.json] [--module FILE]...\n"
    "  DESIGN.json      the design to open (default: the bundled sample design)\n"
    "  --module FILE    load a further component module (repeatable)\n"
    "  --help           print this text\n";

struct TDesignerOptions {
  std::string DesignFile;
  std::vector<std::string> Modules;
};

// Qt's own options (-style, -platform ...) are taken out by QApplication before this runs.
TDesignerOptions ParseOptions(const QStringList& AArguments) {
  TDesignerOptions options;
  for (qsizetype i = 1; i < AArguments.size(); ++i) {
    const QString& argument = AArguments[i];
    if (argument == "--module") {
      if (++i == AArguments.size()) throw Tarvo::Exception("--module needs a file");
      options.Modules.push_back(AArguments[i].toStdString());
    } else if (argument.startsWith("-")) throw Tarvo::Exception("unknown option \"" + argument.toStdString() + "\"");
    else if (!options.DesignFile.empty()) throw Tarvo::Exception("more than one design file given");
    else options.DesignFile = argument.toStdString();
  }
  return options;
}

} // namespace

int main(int argc, char** argv) {
  // Help needs no screen: it is answered before Qt looks for one.
  for (int i = 1; i < argc; ++i)
    if (std::string_view(argv[i]) == "--help" || std::string_view(argv[i]) == "-h") {
      std::cout << Usage;
      return 0;
    }
  QApplication application(argc, argv);
  QApplication::setApplicationDisplayName("Tarvo Designer");
  try {
    const TDesignerOptions options = ParseOptions(QApplication::arguments());
    const Tarvo::TInspectPaths bundled = Tarvo::BundledPaths();
    const Tarvo::TPackageScope package;
    Tarvo::TModulesScope modules;
    modules.Load(bundled.SampleModule);
    for (const std::string& path : options.Modules) modules.Load(path);
    Tarvo::TDesignerWindow window(options.DesignFile.empty() ? bundled.SampleDesign : options.DesignFile);
    window.show();
    return application.exec();
  } catch (const Tarvo::Exception& error) {
    std::cerr << "error: " << error.Message() << "\n";
    return 2;
  }
}
