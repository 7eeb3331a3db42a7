#include "zkpaint/Painting.h"

#include <QBuffer>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <ostream>

#include "data/Files.h"
#include "data/ProgramFolder.h"
#include "data/RecordFile.h"
#include "data/Result.h"
#include "zkpaint/CaveFilm.h"
#include "zktool/Caves.h"
#include "zktool/PictureTerms.h"

namespace zorik {
namespace {

namespace fs = std::filesystem;

constexpr std::array<Option, 6> kOptions{
    {{"--cell", true}, {"--scheme", true}, {"--follow"}, {"--tick", true}, {"--cave", true}, {"-o", true}}};

bool HoldsSkin(const fs::path& skins) {
  std::error_code error;
  return fs::is_directory(skins / kDefaultSkin / "Game", error);
}

Needed<std::string> ChosenCave(const CaveSet& set, const std::string& path, int number) {
  const auto count = static_cast<int>(set.caves.size());
  if (count == 0) return Refusal{{path + " holds no cave"}, Exit::BadCave};
  if (number == 0 && count == 1) return set.caves.front().text;
  if (number == 0)
    return Refusal{{path + " holds " + std::to_string(count) + " caves: say which by --cave N"}, Exit::Usage};
  if (!set.collection || number > count)
    return Refusal{{path + " has no cave with the number " + std::to_string(number)}, Exit::NoSuchCave};
  return set.caves[static_cast<std::size_t>(number) - 1].text;
}

Needed<Done> Opened(const Result<Done>& begun, const std::string& path) {
  if (begun) return Done{};
  return Refusal{{path + ": " + begun.Message()}, Exit::BadCave};
}

Needed<Done> OpenCave(CaveFilm& film, const Needed<CaveSet>& set, const std::string& path, int number) {
  if (!set) return set.Why();
  const Needed<std::string> text = ChosenCave(*set, path, number);
  if (!text) return text.Why();
  return Opened(film.OpenCave(*text), path);
}

Needed<Done> Open(CaveFilm& film, const std::string& path, int number) {
  std::error_code error;
  if (fs::is_directory(path, error)) return OpenCave(film, ReadCaves(path), path, number);
  Result<std::string> bytes = ReadStream(path);
  if (!bytes) return Refusal{{bytes.Message()}, Exit::CannotRead};
  if (HoldsRecord(*bytes)) return Opened(film.OpenRecord(*bytes), path);
  return OpenCave(film, ReadCavesIn(path, std::move(*bytes)), path, number);
}

Exit WritePicture(CaveFilm& film, const PictureTerms& terms, const std::string& out, Console& console) {
  for (int tick = 0; tick < terms.tick && film.Next(); ++tick) {
  }
  QByteArray bytes;
  QBuffer buffer(&bytes);
  if (!film.Picture().save(&buffer, "PNG")) return Fail(console, Exit::Failed, "the picture cannot be made");
  const Result<Done> written = WriteWhole(out, {bytes.data(), static_cast<std::size_t>(bytes.size())});
  return written ? Exit::Fine : Fail(console, Exit::CannotWrite, written.Message());
}

Exit WriteFilm(CaveFilm& film, Console& console) {
  do {
    const QImage picture = film.Picture().convertToFormat(QImage::Format_RGB888);
    console.out << "P6\n" << picture.width() << " " << picture.height() << "\n255\n";
    for (int y = 0; y < picture.height(); ++y)
      console.out.write(reinterpret_cast<const char*>(picture.constScanLine(y)), picture.width() * 3);
  } while (console.out && film.Next());
  if (console.out.flush()) return Exit::Fine;
  return Fail(console, Exit::CannotWrite, "nobody takes the pictures");
}

}  // namespace

Needed<SkinPlaces> FindSkin(const std::string& programFolder, const std::string& zorikHome) {
  const fs::path folder = programFolder;
  // In the build, in an installation, and beside the game.
  for (const fs::path& place : {folder / "../src/app", fs::path(InstalledData(programFolder)), folder}) {
    const fs::path skins = (place / "Skins").lexically_normal();
    if (!HoldsSkin(skins)) continue;
    if (zorikHome.empty()) return SkinPlaces{skins.string()};
    return SkinPlaces{zorikHome + "/Skins", kDefaultSkin, skins.string()};
  }
  if (!zorikHome.empty() && HoldsSkin(zorikHome + "/Skins")) return SkinPlaces{zorikHome + "/Skins"};
  return Refusal{{"the skins of the game are not where its programs are"}, Exit::CannotRead};
}

Exit RunZkpaint(std::span<const std::string> arguments, Console& console) {
  const std::string kind = arguments.empty() ? std::string() : arguments.front();
  if (kind != "picture" && kind != "film")
    return Fail(console, Exit::Usage, "zktool render and zktool movie call this");
  const Result<CommandLine> line = ReadCommandLine(arguments.subspan(1), kOptions, {1, 1});
  if (!line) return Fail(console, Exit::Usage, line.Message());
  const Result<PictureTerms> terms = ReadPictureTerms(*line, kRenderedCell);
  if (!terms) return Fail(console, Exit::Usage, terms.Message());
  if (line->Has("-o") != (kind == "picture")) return Fail(console, Exit::Usage, "-o belongs to picture");
  const char* const home = std::getenv("ZORIK_HOME");
  const Needed<SkinPlaces> skin = FindSkin(RunningProgramFolder(), home == nullptr ? "" : home);
  if (!skin) return Fail(console, skin.Why());
  CaveFilm film(*skin, *terms);
  const Needed<Done> opened = Open(film, line->operands[0], terms->number);
  if (!opened) return Fail(console, opened.Why());
  return kind == "film" ? WriteFilm(film, console) : WritePicture(film, *terms, line->Value("-o"), console);
}

}  // namespace zorik
