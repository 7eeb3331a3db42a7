#pragma once

namespace zorik {

// The names of Result.h, for headers that only declare what may fail. Whoever looks at a result includes
// that.

struct Failure;
struct Done;

template <class T, class Reason = Failure>
class Result;

}  // namespace zorik
