#include "data/WebPage.h"

#include <cstdint>
#include <filesystem>

#include "data/Collection.h"
#include "data/Files.h"
#include "data/ProgramFolder.h"
#include "data/RecordFile.h"
#include "data/Result.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

// What stands in the template once, where the page's own content belongs.
constexpr std::string_view kPlace = "<!--given-->";

std::uint32_t ByteAt(std::string_view bytes, std::size_t place) {
  return place < bytes.size() ? static_cast<unsigned char>(bytes[place]) : 0;
}

// What the page calls it; empty for what it cannot show.
std::string_view KindOf(std::string_view bytes) {
  if (HoldsRecord(bytes)) return "record";
  const Result<PlayedCollection> collection = ReadForPlay(bytes);
  return collection && !collection->Caves.empty() ? "collection" : "";
}

}  // namespace

std::string Base64(std::string_view bytes) {
  constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text;
  text.reserve((bytes.size() + 2) / 3 * 4);
  for (std::size_t at = 0; at < bytes.size(); at += 3) {
    const std::uint32_t three =
        ByteAt(bytes, at) << 16U | ByteAt(bytes, at + 1) << 8U | ByteAt(bytes, at + 2);
    for (const unsigned shift : {18U, 12U, 6U, 0U}) text += kLetters[three >> shift & 63U];
  }
  const std::size_t missing = (3 - bytes.size() % 3) % 3;
  return text.replace(text.size() - missing, missing, missing, '=');
}

bool IsWebPageTemplate(std::string_view text) {
  return text.find(kPlace) != std::string_view::npos;
}

Result<std::string> BuildWebPage(std::string_view pageTemplate, std::string_view bytes) {
  const std::string_view kind = KindOf(bytes);
  if (kind.empty()) return Failure{"it is neither a record nor a collection of caves"};
  const std::size_t place = pageTemplate.find(kPlace);
  if (place == std::string_view::npos) return Failure{"the page's template has no place for it"};
  std::string page(pageTemplate.substr(0, place));
  page += R"(<script id="given" type="application/json">{"kind":")";
  page += kind;
  page += R"(","bytes":")" + Base64(bytes) + R"("}</script>)";
  page += pageTemplate.substr(place + kPlace.size());
  return page;
}

std::optional<std::string> FindWebPageTemplate(const std::string& programFolder) {
  const fs::path folder = programFolder;
  // Beside the program, in an installation, and in the build for the tool and for the game.
  for (const fs::path& place :
       {folder, fs::path(InstalledData(programFolder)), folder / "../../web", folder / "../../../web"}) {
    const fs::path file = (place / "page.html").lexically_normal();
    if (IsReadableFile(file.string())) return file.string();
  }
  return std::nullopt;
}

}  // namespace zorik
