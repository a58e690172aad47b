#pragma once

#include <cstdlib>

namespace listening_test {

/// Seeds the process-wide generator so that the next draw of a test is known.
inline void nextDrawMakesASource(bool aIsSource) {
  for (unsigned seed = 1;; ++seed) {
    std::srand(seed);
    if ((std::rand() % 2 == 0) == aIsSource) {
      std::srand(seed);
      return;
    }
  }
}

}  // namespace listening_test
