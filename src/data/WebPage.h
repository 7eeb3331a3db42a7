#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "data/ResultFwd.h"

namespace zorik {

// Pages for a browser that are one file: the game itself, and a record or a collection that they show when
// they are opened. They are made of a template that the build of web/ leaves.

// Text of bytes in base64, as a page holds them.
std::string Base64(std::string_view bytes);

// Whether a text is a template: it has the place where the bytes belong.
bool IsWebPageTemplate(std::string_view text);

// The page that shows these bytes of a record or a collection. Fails when they are neither, and when the
// template has no place for them.
Result<std::string> BuildWebPage(std::string_view pageTemplate, std::string_view bytes);

// Where the template may lie, seen from the folder of a program (a UTF-8 path): beside it, in the data of an
// installation, in the build tree. Nothing where it is in none of these.
std::optional<std::string> FindWebPageTemplate(const std::string& programFolder);

}  // namespace zorik
