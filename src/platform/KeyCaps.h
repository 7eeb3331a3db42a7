#pragma once

#include <QString>

namespace zorik {

// Whether a key, as Qt numbers it, has a letter, a digit or a sign on it.
bool HasSign(int key);

// What stands on a key in every language; empty where that is nothing, as on the space bar, or not known.
QString CapOf(int key);

}  // namespace zorik
