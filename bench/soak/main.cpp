#include <CLI/CLI.hpp>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "Soak.h"

// Prints what it did and found. The exit status is 1 if anything drifted or went wrong.

namespace {

/// Growth to allow for the allocator and the libraries' caches, bytes.
constexpr double kMostGrowth = 65536;
constexpr double kMostOffset = 0.01;

bool report(const soak::Wear& wear) {
  const double growth =
      static_cast<double>(wear.memoryAfter) - static_cast<double>(wear.memoryBefore);
  std::printf(
      "%zu changes, %zu switches: memory %zu -> %zu bytes (%+.0f), offset %.4f -> %.4f "
      "samples, %zu wrong samples of the source\n",
      wear.changes, wear.switches, wear.memoryBefore, wear.memoryAfter, growth, wear.offsetBefore,
      wear.offsetAfter, wear.wrongSourceSamples);
  return growth <= kMostGrowth && std::fabs(wear.offsetAfter - wear.offsetBefore) <= kMostOffset &&
         wear.wrongSourceSamples == 0;
}

bool report(const soak::Endurance& endurance) {
  std::printf(
      "%.0f seconds of audio: %zu samples out of range, %llu failures of the codec, %llu "
      "frames missed\n",
      endurance.seconds, endurance.samplesOutOfRange, endurance.codecFailures,
      endurance.missedFrames);
  return endurance.samplesOutOfRange == 0 && endurance.codecFailures == 0 &&
         endurance.missedFrames == 0;
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app("Uses a converter unit at random for long, and looks whether it wears.");
  std::size_t changes = 10000;
  std::size_t switches = 100000;
  double hours = 1;
  unsigned seed = 1;
  app.add_option("--changes", changes, "changes of the encoder")->capture_default_str();
  app.add_option("--switches", switches, "switches of the monitor")->capture_default_str();
  app.add_option("--hours", hours, "audio rendered while everything changes at random")
      ->capture_default_str();
  app.add_option("--seed", seed, "of all that is random")->capture_default_str();
  CLI11_PARSE(app, argc, argv);

  bool isWell = true;
  if (changes > 0 || switches > 0) {
    isWell = report(soak::changeAndSwitch(changes, switches, seed));
  }
  std::fflush(stdout);
  if (hours > 0) isWell = report(soak::renderForLong(3600 * hours, seed)) && isWell;
  return isWell ? EXIT_SUCCESS : EXIT_FAILURE;
}
