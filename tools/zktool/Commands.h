#pragma once

#include <iosfwd>
#include <span>
#include <string>
#include <vector>

#include "zktool/CommandLine.h"
#include "zktool/Console.h"

namespace zorik {

// The whole program: the first argument names the command. Answers how it ended.
Exit RunZktool(std::span<const std::string> arguments, Console& console);

// The names of all commands.
std::vector<std::string> CommandNames();

// The commands, each in a file of its own. What stands on the command line has been checked against the
// table of commands, so the operands and the required options are there.
Exit RunCommand(const CommandLine& line, Console& console);
Exit ReplayCommand(const CommandLine& line, Console& console);
Exit VerifyCommand(const CommandLine& line, Console& console);
Exit DiffCommand(const CommandLine& line, Console& console);
Exit UnpackCommand(const CommandLine& line, Console& console);
Exit PackCommand(const CommandLine& line, Console& console);
Exit CarryCommand(const CommandLine& line, Console& console);
Exit FetchCommand(const CommandLine& line, Console& console);
Exit NewCommand(const CommandLine& line, Console& console);
Exit PageCommand(const CommandLine& line, Console& console);
Exit ProgressCommand(const CommandLine& line, Console& console);
Exit ScrambleCommand(const CommandLine& line, Console& console);
Exit UnscrambleCommand(const CommandLine& line, Console& console);
Exit SolveCommand(const CommandLine& line, Console& console);
Exit LintCommand(const CommandLine& line, Console& console);
Exit RateCommand(const CommandLine& line, Console& console);
Exit TableCommand(const CommandLine& line, Console& console);

// The words of the doubts, for the help of the commands that tell them.
void PrintDoubtWords(std::ostream& out);

}  // namespace zorik
