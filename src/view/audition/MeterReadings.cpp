#include "view/audition/MeterReadings.h"

namespace velk {

namespace {

constexpr auto kStereo = ReadingSet::Stereo;
constexpr auto kMono = ReadingSet::Mono;
constexpr auto kSourceLeft = kPeakStatsSlot_SourceLeft;
constexpr auto kSourceRight = kPeakStatsSlot_SourceRight;
constexpr auto kEncodedLeft = kPeakStatsSlot_EncodedLeft;
constexpr auto kEncodedRight = kPeakStatsSlot_EncodedRight;
constexpr auto kSamplePeak = &TruePeakStats::mSamplePeak;
constexpr auto kSampleClips = &TruePeakStats::mSampleClipCount;
constexpr auto kInterSamplePeak = &TruePeakStats::mInterSamplePeak;
constexpr auto kInterSampleClips = &TruePeakStats::mInterSampleClipCount;

}  // namespace

const MeterReadings& meterReadings() {
  static constexpr MeterReadings kReadings = {{
      {kStereo, "ssl", kSourceLeft, kSamplePeak},
      {kStereo, "sslc", kSourceLeft, kSampleClips},
      {kStereo, "ssr", kSourceRight, kSamplePeak},
      {kStereo, "ssrc", kSourceRight, kSampleClips},
      {kStereo, "sil", kSourceLeft, kInterSamplePeak},
      {kStereo, "silc", kSourceLeft, kInterSampleClips},
      {kStereo, "sir", kSourceRight, kInterSamplePeak},
      {kStereo, "sirc", kSourceRight, kInterSampleClips},
      {kStereo, "esl", kEncodedLeft, kSamplePeak},
      {kStereo, "eslc", kEncodedLeft, kSampleClips},
      {kStereo, "esr", kEncodedRight, kSamplePeak},
      {kStereo, "esrc", kEncodedRight, kSampleClips},
      {kStereo, "eil", kEncodedLeft, kInterSamplePeak},
      {kStereo, "eilc", kEncodedLeft, kInterSampleClips},
      {kStereo, "eir", kEncodedRight, kInterSamplePeak},
      {kStereo, "eirc", kEncodedRight, kInterSampleClips},
      {kMono, "ssm", kSourceLeft, kSamplePeak},
      {kMono, "ssmc", kSourceLeft, kSampleClips},
      {kMono, "sim", kSourceLeft, kInterSamplePeak},
      {kMono, "simc", kSourceLeft, kInterSampleClips},
      {kMono, "esm", kEncodedLeft, kSamplePeak},
      {kMono, "esmc", kEncodedLeft, kSampleClips},
      {kMono, "eim", kEncodedLeft, kInterSamplePeak},
      {kMono, "eimc", kEncodedLeft, kInterSampleClips},
  }};
  return kReadings;
}

}  // namespace velk
