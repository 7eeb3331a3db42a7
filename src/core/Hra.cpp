#include "core/Hra.h"

namespace zorik {

Stage& Hra::Silence() {
  static Stage silence;
  return silence;
}

}  // namespace zorik
