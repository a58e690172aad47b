#include "programs/measure/TrimSearch.h"

#include <algorithm>
#include <map>

namespace host::measure {
namespace {

/// Remembers results, so that no reduction is tried twice.
class Tries {
 public:
  explicit Tries(const IsClean& isClean) : isClean_(isClean) { known_[0] = false; }

  bool isClean(int tenths) {
    const auto known = known_.find(tenths);
    if (known != known_.end()) return known->second;
    return known_[tenths] = isClean_(tenths);
  }

 private:
  const IsClean& isClean_;
  std::map<int, bool> known_;
};

/// A clean reduction of at least `from`; the steps grow with the distance.
std::optional<int> someCleanTrim(int from, Tries& tries) {
  for (int step = 1;; step *= 2) {
    if (tries.isClean(from)) return from;
    if (from == kGreatestTrim) return std::nullopt;
    from = std::min(from + step, kGreatestTrim);
  }
}

/// A clean reduction, at most `clean`, whose next smaller neighbour is not clean.
int edgeBelow(int clean, Tries& tries) {
  int over = std::max(clean - 1, 0);
  for (int step = 1; tries.isClean(over); step *= 2) {
    clean = over;
    over = std::max(over - step, 0);
  }
  while (clean - over > 1) {
    const int middle = over + (clean - over) / 2;
    (tries.isClean(middle) ? clean : over) = middle;
  }
  return clean;
}

}  // namespace

std::optional<int> smallestCleanTrim(int guess, const IsClean& isClean) {
  Tries tries(isClean);
  auto clean = someCleanTrim(std::clamp(guess, 1, kGreatestTrim), tries);
  if (!clean) return std::nullopt;
  auto answer = edgeBelow(*clean, tries);
  for (int above = 1; above <= kRefutedSteps && answer - above > 0; ++above) {
    if (!tries.isClean(answer - above)) continue;
    answer = edgeBelow(answer - above, tries);
    above = 0;
  }
  return answer;
}

}  // namespace host::measure
