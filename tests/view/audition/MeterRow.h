#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "contract/ConverterInterface.h"

namespace audition_test {

/// A reading by its name alone: signal, measure and channel follow from its letters.
struct MeterRow {
  std::string name;

  bool isCounter() const { return name.size() == 4; }
  bool isEncoded() const { return name[0] == 'e'; }
  bool isInterSample() const { return name[1] == 'i'; }
  std::size_t record() const { return (isEncoded() ? 2U : 0U) + (name[2] == 'r' ? 1U : 0U); }

  void setPeak(velk::PeakStatistics& block, float peak) const {
    (isInterSample() ? block[record()].mInterSamplePeak : block[record()].mSamplePeak) = peak;
  }
  void setCount(velk::PeakStatistics& block, std::int64_t count) const {
    (isInterSample() ? block[record()].mInterSampleClipCount : block[record()].mSampleClipCount) =
        count;
  }
};

/// Both sets in the order of a poll.
inline const std::vector<MeterRow> kStereoRows = {
    {"ssl"}, {"sslc"}, {"ssr"}, {"ssrc"}, {"sil"}, {"silc"}, {"sir"}, {"sirc"},
    {"esl"}, {"eslc"}, {"esr"}, {"esrc"}, {"eil"}, {"eilc"}, {"eir"}, {"eirc"}};
inline const std::vector<MeterRow> kMonoRows = {{"ssm"}, {"ssmc"}, {"sim"}, {"simc"},
                                                {"esm"}, {"esmc"}, {"eim"}, {"eimc"}};

}  // namespace audition_test
