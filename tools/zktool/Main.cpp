#include <exception>
#include <iostream>

#include "zktool/Commands.h"

int main(int count, char** arguments) {
  std::ios::sync_with_stdio(false);
  zorik::Console console{std::cin, std::cout, std::cerr};
  zorik::Exit exit = zorik::Exit::Failed;
  try {
    const std::vector<std::string> given(arguments + (count > 0 ? 1 : 0), arguments + count);
    exit = zorik::RunZktool(given, console);
  } catch (const std::exception& error) {
    zorik::Fail(console, exit, error.what());
  }
  return static_cast<int>(exit);
}
