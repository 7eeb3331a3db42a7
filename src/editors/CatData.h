#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zorik {

// A command of the cat's language: two characters of its program, in Windows-1250, and what people read for
// them, UTF-8.
struct CatCommand {
  std::string Token;
  std::string Caption;

  bool operator==(const CatCommand&) const = default;
};

// The skin's file on the cat's language: the words of the editor and a caption for each token.
struct CatData {
  // Commands beyond these are not kept.
  static constexpr std::size_t kMostCommands = 101;

  std::string Caption;        // of the editor's window, UTF-8
  std::string CloseQuestion;  // UTF-8
  std::vector<CatCommand> CatCommands;
};

// Reads the file: the caption, the question, then a definition a line. One with a blank in second place says
// what "#" in the captions of its group of tokens stands for; one of more than three characters is a token,
// any character, and its caption; all others are passed over.
CatData ReadCatData(std::string_view bytes);

// Makes a program whole: "*A" in front unless it begins with a label, "/Z" behind unless it ends with a token
// in "/".
std::string TestScript(std::string program);

// A program and the list of captions that is shown for it. Each change is made to both, line by token; with a
// file that lacks a token of the program, or has it twice, they are out of step, and changes then hit another
// token than the line that they were made on. Lines count from 0.
class CatScript {
 public:
  explicit CatScript(std::vector<CatCommand> commands);

  // LoadScript: makes a program whole, shows it and selects line 1.
  void Load(std::string program);

  // lblScript: the program as it is by now, in Windows-1250.
  const std::string& Program() const { return program_; }
  // lstScript: the captions, UTF-8.
  const std::vector<std::string>& Lines() const { return lines_; }
  const std::vector<CatCommand>& Commands() const { return commands_; }

  int Selected() const { return selected_; }
  // A number that no line has is ignored.
  void Select(int line);

  // Head and end can be neither removed nor preceded by anything, but for the end.
  bool CanDelete() const { return selected_ > 0 && selected_ < LineCount() - 1; }
  bool CanInsert() const { return selected_ > 0; }

  // Takes the selected line and its token away and selects the line before.
  void Delete();
  // Puts a command before the selected line, which stays selected.
  void Insert(std::size_t command);
  // Exchanges the captions of the selected line and the one behind it and selects the line before. The
  // program stays as it is. Nothing happens on the first line and on the last.
  void Swap();

  // Moves the selected line and its token one place towards the head or the end; the line stays selected.
  // Head and end stay where they are.
  bool CanMoveUp() const { return CanDelete() && selected_ > 1; }
  bool CanMoveDown() const { return CanDelete() && selected_ < LineCount() - 2; }
  void MoveUp();
  void MoveDown();

  // Takes up a program and its list as they were once.
  void Restore(std::string program, std::vector<std::string> lines, int selected);

 private:
  // Exchanges a line and its token with those behind it.
  void Exchange(int line);
  int LineCount() const { return static_cast<int>(lines_.size()); }

  std::vector<CatCommand> commands_;
  std::string program_;
  std::vector<std::string> lines_;
  int selected_ = 0;
};

}  // namespace zorik
