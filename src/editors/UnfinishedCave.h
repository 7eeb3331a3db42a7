#pragma once

#include <optional>
#include <string>

namespace zorik {

class CaveModel;

// A cave that is being edited, as a text, with the cat's program that is being edited, if there is one. Of
// texts that a cave has no room for there is as much as that holds. Nothing when it has no room for a number.
std::optional<std::string> UnfinishedCave(const CaveModel& model, const std::optional<std::string>& program);

}  // namespace zorik
