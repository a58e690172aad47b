#include "programs/measure/ProgressLine.h"

#include <algorithm>
#include <cmath>

#include "host/messages/ClockText.h"
#include "host/messages/Decimal.h"
#include "host/messages/TextWidth.h"

namespace host::measure {
namespace {

constexpr int kBarWidth = 20;
/// Before that, the time left cannot be estimated.
constexpr double kSecondsToJudge = 2;

}  // namespace

std::string progressLine(const ProgressState& state, std::size_t width) {
  const auto part =
      state.jobs == 0 ? 1.0 : std::clamp(state.done / static_cast<double>(state.jobs), 0.0, 1.0);
  const auto filled = static_cast<int>(part * kBarWidth);
  std::string line = "[";
  for (int i = 0; i < kBarWidth; ++i) line += i < filled ? "#" : "·";
  const auto percent = std::to_string(static_cast<int>(part * 100));
  line += "] " + std::string(3 - std::min<std::size_t>(percent.size(), 3), ' ') + percent + " %  ";
  const auto ended = std::min(static_cast<std::size_t>(state.done) + 1, state.jobs);
  line += std::to_string(ended) + " of " + std::to_string(state.jobs);
  if (state.seconds >= kSecondsToJudge && part > 0.01) {
    const auto left = std::llround(state.seconds * (1 - part) / part);
    line += "  " + clockText(left * 1000, 0) + " left";
  }
  if (!state.file.empty()) {
    auto what = state.setting;
    if (state.reduction > 0) what += " at -" + decimal(state.reduction / 10.0, 1) + " dB";
    const auto taken = textWidth(line) + 2 + textWidth(what) + 2;
    if (taken + 4 < width) line += "  " + elidedPath(state.file, width - taken - 1) + "  " + what;
  }
  return elidedInTheMiddle(line, width > 0 ? width - 1 : 0);
}

double searchProgress(int encodes, double part) {
  // Five or so are usual; each further one takes a fixed share of what is left.
  constexpr double shrink = 0.7;
  const auto before = 1 - std::pow(shrink, encodes);
  const auto after = 1 - std::pow(shrink, encodes + 1);
  return before + (after - before) * part;
}

}  // namespace host::measure
