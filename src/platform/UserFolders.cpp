#include "platform/UserFolders.h"

#include <filesystem>

#include "platform/PathText.h"
#include "platform/Variable.h"

namespace zorik {
namespace {

// What the desktop's variable tells; a relative folder is to be passed over.
std::string Told(const char* variable, const char* usual) {
  const std::filesystem::path told = Variable(variable);
  return told.is_absolute() ? told.string() : Variable("HOME") + usual;
}

}  // namespace

QString HomeText() {
  return PathText(Variable("HOME"));
}

std::string ConfigFolder() {
  return Told("XDG_CONFIG_HOME", "/.config");
}

std::string DataFolder() {
  return Told("XDG_DATA_HOME", "/.local/share");
}

}  // namespace zorik
