#include "PairSignal.h"

#include <algorithm>
#include <array>
#include <memory>

#include "converter/transcoder/CodecPair.h"
#include "converter/transcoder/Latency.h"

using converter::CodecPair;
using converter::kBlockFrames;
using converter::Position;

Signal encodeFrom(const converter::Setting& setting, const converter::UnitFormat& unit,
                  const Signal& source, Position start) {
  converter::SourceHistory history(unit.channels);
  converter::AudioBlock block;
  std::unique_ptr<CodecPair> pair;
  Signal encoded(unit.channels);
  Signal planes = silence(unit.channels, kBlockFrames);
  const std::array<float*, 2> output{planes.front().data(), planes.back().data()};
  const auto frames = static_cast<Position>(source[0].size());
  for (Position at = 0; at + kBlockFrames <= frames; at += kBlockFrames) {
    block.position = at;
    for (std::size_t channel = 0; channel < unit.channels; ++channel) {
      std::copy_n(source[channel].begin() + at, kBlockFrames, block.planes[channel].begin());
    }
    history.write(block);
    const Position from = start + static_cast<Position>(encoded[0].size());
    const Position end = block.end() - converter::kEncodedBehindSource;
    if (end <= from) continue;
    if (!pair) pair = std::make_unique<CodecPair>(openEncoder(setting, unit), unit, start);
    pair->render(history, from, static_cast<UInt32>(end - from), output);
    for (std::size_t channel = 0; channel < unit.channels; ++channel) {
      encoded[channel].insert(encoded[channel].end(), planes[channel].begin(),
                              planes[channel].begin() + (end - from));
    }
  }
  return encoded;
}
