// zkpaint works for zktool, which knows no pictures, and checks what it is told:
//   zkpaint picture TERMS -o OUT.png -- CAVE|RECORD   one moment of a cave or a record
//   zkpaint film TERMS -- RECORD                      all of them to the standard output, each a PPM

#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "zkpaint/Painting.h"

int main(int count, char** arguments) {
  std::ios::sync_with_stdio(false);
  zorik::Console console{std::cin, std::cout, std::cerr};
  zorik::Exit exit = zorik::Exit::Failed;
  try {
    const std::vector<std::string> given(arguments + (count > 0 ? 1 : 0), arguments + count);
    exit = zorik::RunZkpaint(given, console);
  } catch (const std::exception& error) {
    zorik::Fail(console, exit, error.what());
  }
  return static_cast<int>(exit);
}
