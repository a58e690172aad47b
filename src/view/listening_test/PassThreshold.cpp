#include "view/listening_test/PassThreshold.h"

#include <array>

namespace velk {

std::uint32_t requiredCorrectAnswers(std::uint32_t trialSize) {
  constexpr std::uint32_t kSmallestSize = 10;
  constexpr std::array<std::uint32_t, kTrialsInTest - kSmallestSize + 1> kRequired = {
      8, 8, 9, 9, 10, 11, 11, 12, 12, 13, 14};
  if (trialSize < kSmallestSize || trialSize > kTrialsInTest) {
    return kRequired.back();
  }
  return kRequired[trialSize - kSmallestSize];
}

}  // namespace velk
