#include "platform/ScreenLists.h"

#include <QFontDatabase>
#include <QStringList>

#include <cstdlib>

#include "rtl/SysUtils.h"

namespace Tarvo {

std::vector<String> ScreenFonts() {
  std::vector<String> result;
  for (const QString& family : QFontDatabase::families()) result.push_back(family.toStdString());
  return result;
}

std::vector<String> ScreenImes() {
  std::vector<String> result;
  const char* modules = std::getenv("QT_IM_MODULES");
  if (!modules || !*modules) modules = std::getenv("QT_IM_MODULE");
  if (!modules) return result;
  for (std::string_view name : SplitString(modules, ';'))
    if (!Trim(name).empty()) result.push_back(Trim(name));
  return result;
}

} // namespace Tarvo
