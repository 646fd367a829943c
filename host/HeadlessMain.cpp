// tarvo-inspect: the headless host. Prints the inspector's rows of a design's selected
// components as the package decides them; see --help.

#include <QApplication>

#include <iostream>
#include <optional>

#include "host/headless/BundledPaths.h"

namespace {

// Qt's notices that it picked a runtime directory itself, and that the offscreen platform can't
// do what a window on a screen could, say nothing to a user of a tool that needs no screen;
// everything else Qt says is passed on.
QtMessageHandler GQtMessages = nullptr;
void FilterQtMessages(QtMsgType AType, const QMessageLogContext& AContext, const QString& AMessage) {
  if (!AMessage.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set")) &&
      !AMessage.startsWith(QLatin1String("This plugin does not support")))
    GQtMessages(AType, AContext, AMessage);
}

} // namespace

int main(int argc, char** argv) {
  try {
    const Tarvo::TInspectOptions options = Tarvo::ParseInspectOptions({argv + 1, argv + argc});
    if (options.Help) {
      std::cout << Tarvo::InspectUsage;
      return 0;
    }
    // A list of values may come from the platform (the machine's fonts), and a dialog and a
    // picture are windows: they need an application object, though no screen.
    const auto runsDialog = [&] {
      for (const Tarvo::TInspectEdit& edit : options.Edits)
        if (edit.Kind == Tarvo::TInspectEdit::ekDialog) return true;
      return false;
    };
    std::optional<QApplication> application;
    if (options.Values || !options.Png.empty() || runsDialog()) {
      if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
      GQtMessages = qInstallMessageHandler(FilterQtMessages);
      application.emplace(argc, argv);
    }
    // Nothing is printed before the whole run has succeeded.
    std::cout << Tarvo::RunInspect(options, Tarvo::BundledPaths());
    return 0;
  } catch (const Tarvo::Exception& error) {
    std::cerr << "error: " << error.Message() << "\n";
    return 2;
  }
}
