#include "data/Result.h"
#include "zktool/Commands.h"
#include "zktool/PictureTerms.h"
#include "zktool/Programs.h"

namespace zorik {

// The pictures are the game's, so a program that knows the game's looks makes them.
Exit RenderCommand(const CommandLine& line, Console& console) {
  const Result<PictureTerms> terms = ReadPictureTerms(line, kRenderedCell);
  if (!terms) return Fail(console, Exit::Usage, terms.Message());
  const std::string painter = ProgramBeside(kPainter);
  if (painter.empty()) return Fail(console, Exit::Failed, kNoPainter);
  ProgramCall call{painter, "picture"};
  for (const std::string& word : WordsOf(*terms)) call.push_back(word);
  call.insert(call.end(), {"-o", line.Value("-o"), "--", line.operands[0]});
  const Result<int> code = RunProgram(call);
  if (!code) return Fail(console, Exit::Failed, code.Message());
  return EndOf(*code, console);
}

}  // namespace zorik
