#include <memory>

#include "Clock.h"
#include "Figure.h"
#include "Rig.h"

namespace figures {
namespace {

constexpr std::size_t kUnits = 50;
constexpr std::size_t kBlock = 512;
constexpr double kSeconds = 4;

/// Processor time of fifty units at LC 128 divided by the time played: the share of one core.
std::vector<Row> measure() {
  const Signal input = music(2, std::size_t{48000} * 4, 48000);
  std::vector<std::unique_ptr<Rig>> rigs;
  for (std::size_t i = 0; i < kUnits; ++i) {
    rigs.push_back(std::make_unique<Rig>(
        converter::UnitFormat{.sampleRate = 48000, .channels = 2, .maximumFrames = kBlock}));
    rigs.back()->setSetting(velk::kFormat_AAC, velk::kStrategy_ABR, 10);
  }
  Signal output = silence(2, kBlock);
  float* const out[] = {output[0].data(), output[1].data()};
  const double start = processorSeconds();
  for (std::size_t at = 0; at + kBlock <= input[0].size(); at += kBlock) {
    const float* const in[] = {input[0].data() + at, input[1].data() + at};
    for (auto& rig : rigs) rig->unit().render(in, out, kBlock);
  }
  return {
      atMost("units_50_load", 100 * (processorSeconds() - start) / kSeconds, 100, "% of a core")};
}

}  // namespace

Family manyUnits() {
  return {{"units_50_load"}, measure};
}

}  // namespace figures
