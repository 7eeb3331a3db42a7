#pragma once

#include <unistd.h>

namespace zorik::test {

// While it lives, files that forbid to be read cannot be: root, who may read everything, is somebody else for
// that time.
class AsNobody {
 public:
  AsNobody() {
    if (root_) changed_ = seteuid(kNobodysNumber) == 0;
  }
  ~AsNobody() {
    if (changed_) changed_ = seteuid(0) != 0;
  }
  AsNobody(const AsNobody&) = delete;
  AsNobody& operator=(const AsNobody&) = delete;

 private:
  static constexpr uid_t kNobodysNumber = 65534;
  bool root_ = geteuid() == 0;
  bool changed_ = false;
};

}  // namespace zorik::test
