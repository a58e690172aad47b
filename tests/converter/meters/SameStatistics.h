#pragma once

#include <algorithm>

#include "contract/ConverterInterface.h"

/// Whether two sets of statistics hold the same values.
inline bool same(const velk::TruePeakStats& a, const velk::TruePeakStats& b) {
  return a.mSamplePeak == b.mSamplePeak && a.mInterSamplePeak == b.mInterSamplePeak &&
         a.mSampleClipCount == b.mSampleClipCount &&
         a.mInterSampleClipCount == b.mInterSampleClipCount;
}

inline bool same(const velk::PeakStatistics& a, const velk::PeakStatistics& b) {
  return std::equal(a.begin(), a.end(), b.begin(),
                    [](const auto& left, const auto& right) { return same(left, right); });
}
