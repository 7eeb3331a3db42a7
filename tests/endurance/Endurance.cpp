#include "endurance/Endurance.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <malloc.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#ifdef ZORIK_SANITIZED
#include <sanitizer/allocator_interface.h>
#endif

namespace zorik::test {
namespace {

namespace fs = std::filesystem;

double Now() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

double SecondsToGoOn() {
  const char* const asked = std::getenv("ENDURANCE_SECONDS");
  return asked == nullptr ? 0 : std::atof(asked);
}

fs::path FolderOfEvidence() {
  const char* const asked = std::getenv("ENDURANCE_FOLDER");
  return asked == nullptr ? fs::current_path() : fs::path(asked);
}

long BytesInUse() {
#ifdef ZORIK_SANITIZED
  return static_cast<long>(__sanitizer_get_current_allocated_bytes());
#else
  return static_cast<long>(mallinfo2().uordblks);
#endif
}

long OpenHandles() {
  return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
}

constexpr std::size_t kParts = 5;

// The least value of one of the parts.
long LeastOf(const std::vector<long>& values, std::size_t part) {
  const auto at = [&](std::size_t n) {
    return values.begin() + static_cast<std::ptrdiff_t>(values.size() * n / kParts);
  };
  return *std::min_element(at(part), at(part + 1));
}

}  // namespace

Patience::Patience(int rounds) : end_(Now() + SecondsToGoOn()), least_(rounds) {}

bool Patience::Lasts() {
  return rounds_++ < least_ || Now() < end_;
}

std::uint64_t SeedOfNow() {
  const char* const asked = std::getenv("ENDURANCE_SEED");
  return asked == nullptr ? 1 : std::strtoull(asked, nullptr, 10);
}

Chance ChanceOfNow() {
  return Chance(SeedOfNow());
}

void Count(long times, const std::string& what) {
  std::printf("count: %ld %s\n", times, what.c_str());
}

Evidence::Evidence(const std::string& name) : path_((FolderOfEvidence() / name).string()) {
  file_ = open(path_.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
}

Evidence::~Evidence() {
  close(file_);
  if (!testing::Test::HasFailure()) fs::remove(path_);
}

void Evidence::Hold(std::string_view bytes) const {
  const bool held = pwrite(file_, bytes.data(), bytes.size(), 0) == static_cast<ssize_t>(bytes.size()) &&
                    ftruncate(file_, static_cast<off_t>(bytes.size())) == 0;
  ASSERT_TRUE(held) << path_;
}

void KeepFolder(const std::string& folder, const std::string& name) {
  fs::copy(folder, FolderOfEvidence() / name,
           fs::copy_options::recursive | fs::copy_options::overwrite_existing);
}

void Growth::Look(const std::vector<long>& others) {
  looks_.push_back({BytesInUse(), OpenHandles(), others});
}

void Growth::ExpectNone() const {
  constexpr double kNoise = 4096;
  std::vector<long> bytes, handles;
  for (const Held& held : looks_) {
    bytes.push_back(held.bytes);
    handles.push_back(held.handles);
  }
  ExpectNone("bytes", bytes, kNoise + bytesEach_ * static_cast<double>(looks_.size()) / kParts);
  ExpectNone("handles", handles, 0);
  for (std::size_t i = 0; i < names_.size(); ++i) {
    std::vector<long> values;
    for (const Held& held : looks_) values.push_back(held.others[i]);
    ExpectNone(names_[i], values, 0);
  }
}

void Growth::ExpectNone(const std::string& name, const std::vector<long>& values, double slack) {
  ASSERT_GE(values.size(), kParts);
  std::size_t grown = 0;
  std::string leasts;
  for (std::size_t part = 1; part < kParts; ++part) {
    const long least = LeastOf(values, part);
    leasts += " " + std::to_string(least);
    grown += part > 1 && static_cast<double>(least - LeastOf(values, part - 1)) > slack ? 1 : 0;
  }
  std::printf("%s in %zu looks:%s\n", name.c_str(), values.size(), leasts.c_str());
  EXPECT_LT(grown, kParts - 2) << name << " grow all the way:" << leasts;
}

}  // namespace zorik::test
