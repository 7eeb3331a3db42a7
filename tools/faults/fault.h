#pragma once

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>

// What planted sources ask: whether their fault is the one that FAULT names. Where FAULT_HITS names a file,
// the byte of each fault that was asked for is set in there, by all processes of a test.
namespace fault {

inline const int kChosen = std::getenv("FAULT") ? std::atoi(std::getenv("FAULT")) : 0;

inline unsigned char* Hits() {
  const char* name = std::getenv("FAULT_HITS");
  const int file = name ? open(name, O_RDWR | O_CLOEXEC) : -1;
  if (file < 0) return nullptr;
  struct stat about {};
  void* bytes = fstat(file, &about) == 0
                    ? mmap(nullptr, static_cast<std::size_t>(about.st_size), PROT_WRITE, MAP_SHARED, file, 0)
                    : MAP_FAILED;
  close(file);
  return bytes == MAP_FAILED ? nullptr : static_cast<unsigned char*>(bytes);
}
inline unsigned char* const kHits = Hits();

inline int On(int number) {
  if (kHits) kHits[number] = 1;
  return number == kChosen;
}
inline bool Flip(int number, bool value) {
  return On(number) ? !value : value;
}
template <class Number>
Number Neg(int number, Number value) {
  return On(number) ? static_cast<Number>(-value) : value;
}

}  // namespace fault
