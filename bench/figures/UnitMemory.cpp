#include <malloc.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <memory>
#include <vector>

#include "Figure.h"
#include "Rig.h"

namespace figures {
namespace {

constexpr std::size_t kUnits = 20;
constexpr double kMebibyte = 1024 * 1024;

/// Resident memory of the process, bytes.
double residentBytes() {
  std::ifstream statm("/proc/self/statm");
  long size = 0;
  long resident = 0;
  statm >> size >> resident;
  return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE));
}

/// Memory per unit at 48 kHz stereo after some seconds of playing, its thread included.
double perUnit(SInt32 preset, bool changes) {
  const Signal input = music(2, 96000, 48000);
  const auto play = [&](Rig& rig) {
    rig.setPreset(preset);
    rig.render(input);
    if (!changes) return;
    rig.setSetting(velk::kFormat_HEv2, velk::kStrategy_ABR, 6);
    rig.render(input);
  };
  const converter::UnitFormat format{.sampleRate = 48000, .channels = 2, .maximumFrames = 4096};
  {
    Rig first(format);
    play(first);
  }
  // Memory freed earlier would be reused and not show up.
  malloc_trim(0);
  const double before = residentBytes();
  std::vector<std::unique_ptr<Rig>> rigs;
  for (std::size_t i = 0; i < kUnits; ++i) {
    rigs.push_back(std::make_unique<Rig>(format));
    play(*rigs.back());
  }
  return (residentBytes() - before) / kUnits / kMebibyte;
}

std::vector<Row> measure() {
  const double steady = std::max(perUnit(0, false), perUnit(2, false));
  return {atMost("memory_per_unit", steady, 8, "MiB"),
          atMost("memory_per_unit_after_changes", perUnit(0, true), 8, "MiB")};
}

}  // namespace

Family unitMemory() {
  return {{"memory_per_unit", "memory_per_unit_after_changes"}, measure};
}

}  // namespace figures
