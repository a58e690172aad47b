#pragma once

#include <cstdint>

namespace velk {

/// Answers in a full test.
inline constexpr std::uint32_t kTrialsInTest = 20;

/// How many of `trialSize` answers have to be correct for a pass. A design table, not a binomial
/// quantile. A size that it does not list asks for as many as a full test does, which no shorter
/// test can reach.
std::uint32_t requiredCorrectAnswers(std::uint32_t trialSize);

}  // namespace velk
