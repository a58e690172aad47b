#include "converter/stream/Lead.h"

#include <algorithm>

namespace converter {
namespace {

using Seconds = std::chrono::duration<double>;

/// A lead below this may be the jitter of a device that has no buffer to spare.
constexpr double kLeastLead = 0.02;
constexpr double kMostLead = 0.5;
/// What is left is for the rest of the chain.
constexpr double kPartToSpend = 0.5;
/// The lead leaks by more than clocks drift apart, a hundred parts per million at most.
constexpr double kLeak = 0.001;

}  // namespace

std::chrono::steady_clock::duration Lead::take(UInt32 frames) noexcept {
  const auto now = readClock_();
  // The first reading of the clock comes after a very long pause.
  const double elapsed = Seconds(now - last_).count();
  last_ = now;
  // Whoever is late has nothing left, and nothing to make up for.
  seconds_ = std::max(seconds_ - (1 + kLeak) * elapsed, 0.0);
  const double lead = seconds_;
  seconds_ = std::min(seconds_ + frames / sampleRate_, kMostLead);
  if (lead < kLeastLead) return {};
  return std::chrono::duration_cast<std::chrono::steady_clock::duration>(
      Seconds(kPartToSpend * lead));
}

}  // namespace converter
