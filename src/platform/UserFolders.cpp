#include "platform/UserFolders.h"

#include <filesystem>

#include "platform/PathText.h"
#include "platform/Variable.h"

namespace zorik {

QString HomeText() {
  return PathText(Variable("HOME"));
}

std::string ConfigFolder() {
  const std::filesystem::path told = Variable("XDG_CONFIG_HOME");
  return told.is_absolute() ? told.string() : Variable("HOME") + "/.config";
}

}  // namespace zorik
