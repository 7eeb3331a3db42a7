#include <algorithm>
#include <array>
#include <filesystem>
#include <memory>
#include <string_view>

#include "core/Hra.h"
#include "core/Speed.h"
#include "data/Cp1250.h"
#include "data/Files.h"
#include "data/Result.h"
#include "zktool/Commands.h"
#include "zktool/PictureTerms.h"
#include "zktool/Programs.h"

namespace zorik {
namespace {

constexpr int kPlaySpeed = 8;  // at which the game begins with a new player
constexpr const char* kFfmpeg = "ffmpeg";

// How a kind of file is made of the pictures.
struct Kind {
  std::string_view ending;
  std::vector<std::string> words;
  bool palette = false;  // it holds 256 colours, which a first look at all pictures chooses
};

const std::vector<Kind>& Kinds() {
  // The last picture of one that begins again and again stays for two seconds. H.264 halves its colours, so
  // both edges have to be even.
  static const std::vector<Kind> kinds{
      {".gif", {"-lavfi", "paletteuse=dither=none:diff_mode=rectangle", "-final_delay", "200"}, true},
      {".webp",
       {"-c:v", "libwebp_anim", "-lossless", "1", "-compression_level", "1", "-q:v", "30", "-loop", "0"}},
      {".mp4",
       {"-c:v", "libx264", "-crf", "18", "-pix_fmt", "yuv420p", "-vf", "pad=ceil(iw/2)*2:ceil(ih/2)*2",
        "-movflags", "+faststart"}},
  };
  return kinds;
}

const Kind* KindOf(const std::string& path) {
  const std::string ending = FoldFileName(std::filesystem::path(path).extension().string());
  const auto kind =
      std::find_if(Kinds().begin(), Kinds().end(), [&](const Kind& known) { return known.ending == ending; });
  return kind == Kinds().end() ? nullptr : &*kind;
}

// The pictures of a run, and the folder in which they become a movie.
class Film {
 public:
  Film(std::string painter, const PictureTerms& terms) : painter_(std::move(painter)), terms_(terms) {}

  // The bytes of the movie of a record.
  Needed<std::string> Make(const std::string& record, const Kind& kind) {
    if (!folder_.IsThere()) return Refusal{{"there is no folder for temporary files"}, Exit::CannotWrite};
    const Result<Done> kept = WriteWhole(folder_.In("run.zkr"), record);
    if (!kept) return Refusal{{kept.Message()}, Exit::CannotWrite};
    const std::string palette = folder_.In("palette.png"), movie = folder_.In("movie");
    ProgramCall words;
    if (kind.palette) {
      const Needed<Done> chosen = Send({"-lavfi", "palettegen=reserve_transparent=0"}, palette);
      if (!chosen) return chosen.Why();
      words = {"-i", palette};
    }
    words.insert(words.end(), kind.words.begin(), kind.words.end());
    const std::string out = movie + std::string(kind.ending);
    const Needed<Done> sent = Send(words, out);
    if (!sent) return sent.Why();
    Result<std::string> bytes = ReadWhole(out);
    if (!bytes) return Refusal{{bytes.Message()}, Exit::Failed};
    return std::move(*bytes);
  }

 private:
  // Sends all pictures to a program that makes a file of them.
  Needed<Done> Send(const ProgramCall& words, const std::string& out) {
    ProgramCall writer{painter_, "film"};
    for (const std::string& word : WordsOf(terms_)) writer.push_back(word);
    writer.insert(writer.end(), {"--", folder_.In("run.zkr")});
    const std::string rate = "1000/" + std::to_string(TimerInterval(kPlaySpeed));
    ProgramCall reader{kFfmpeg,      "-loglevel", "error", "-y",  "-f", "image2pipe",
                       "-framerate", rate,        "-c:v",  "ppm", "-i", "pipe:0"};
    reader.insert(reader.end(), words.begin(), words.end());
    reader.push_back(out);
    const std::string said = folder_.In("words.txt");
    const Result<PipeEnd, NoPipe> end = RunPipe(writer, reader, said);
    if (!end) return Refusal{{end.Message() + HintAt(end.Why())}, Exit::Failed};
    // A writer that nobody reads cannot help it.
    const bool unread = end->reader != 0 && end->writer == static_cast<int>(Exit::CannotWrite);
    if (!unread && end->writer > 0 && end->writer < kKilled)  // it has said why
      return Refusal{{"there are no pictures for the movie"}, static_cast<Exit>(end->writer)};
    if (end->reader != 0) return Refusal{{"ffmpeg could not make the movie: " + Start(said)}, Exit::Failed};
    if (end->writer != 0) return Refusal{{"zkpaint has come to a bad end"}, Exit::Failed};
    return Done{};
  }

  static std::string HintAt(const NoPipe& reason) {
    return reason.lacksReader ? " (in Debian it is the package ffmpeg)" : "";
  }

  // What a program has said, as far as a line holds it.
  static std::string Start(const std::string& said) {
    constexpr std::size_t kMost = 400;
    const Result<std::string> words = ReadStart(said, kMost);
    return words ? WithoutControls(*words) : std::string();
  }

  std::string painter_;
  PictureTerms terms_;
  WorkFolder folder_;
};

}  // namespace

Exit MovieCommand(const CommandLine& line, Console& console) {
  const std::string &path = line.operands[0], &out = line.Value("-o");
  const Kind* const kind = KindOf(out);
  if (kind == nullptr) return Fail(console, Exit::Usage, "-o: a name that ends in .gif, .webp or .mp4");
  const Result<PictureTerms> terms = ReadPictureTerms(line, kFilmedCell);
  if (!terms) return Fail(console, Exit::Usage, terms.Message());
  const Result<std::string> record = ReadStream(path);
  if (!record) return Fail(console, Exit::CannotRead, record.Message());
  const auto hra = std::make_unique<Hra>();
  const Result<Done> cave = Replay(*hra, *record);
  if (!cave) return Fail(console, Exit::BadCave, path + ": " + cave.Message());
  const std::string painter = ProgramBeside(kPainter);
  if (painter.empty()) return Fail(console, Exit::Failed, kNoPainter);
  const Needed<std::string> movie = Film(painter, *terms).Make(*record, *kind);
  if (!movie) return Fail(console, movie.Why());
  const Result<Done> written = WriteWhole(out, *movie);
  return written ? Exit::Fine : Fail(console, Exit::CannotWrite, written.Message());
}

}  // namespace zorik
