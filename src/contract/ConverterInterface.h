#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "audio_unit/TypedProperty.h"
#include "contract/EncoderSetting.h"

/// What a converter unit offers and the view relies on, on the global scope, element 0. Of the
/// framework's own properties the view asks for the stream format on the output scope and for a
/// parameter's info with the parameter as the element. `EncoderSetting` says what the values of the
/// three parameters mean.
namespace velk {

/// AAC object type of the encoder: 0 AAC, 1 AAC HE, 2 AAC HEv2 (only where the parameter's maximum
/// is 2.0).
inline constexpr AudioUnitParameterID kConverterParam_Format = 0;
/// Bit-rate strategy: 0 ABR, 1 VBRC (constrained variable bit rate), 2 VBR.
inline constexpr AudioUnitParameterID kConverterParam_Strategy = 1;
/// Strategy 0 or 1: index into `bitRates`. Strategy 2: the encoder's quality value as it is.
inline constexpr AudioUnitParameterID kConverterParam_RateQuality = 2;

/// Peaks and counts of one channel of one signal since the last reset.
struct TruePeakStats {
  /// Highest sample peak, dBFS; above 0.0 is an over.
  float mSamplePeak;
  /// Highest inter-sample (true) peak, dBTP.
  float mInterSamplePeak;
  /// Samples that exceeded full scale.
  std::int64_t mSampleClipCount;
  /// Inter-sample overs.
  std::int64_t mInterSampleClipCount;
};

/// Place of each record in the block. The channel-1 slots mean nothing below two channels.
enum PeakStatsChannelSlot : std::size_t {
  kPeakStatsSlot_SourceLeft = 0,
  kPeakStatsSlot_SourceRight = 1,
  kPeakStatsSlot_EncodedLeft = 2,
  kPeakStatsSlot_EncodedRight = 3,
};

/// The data of `kConverterProperty_PeakStats`.
using PeakStatistics = std::array<TruePeakStats, 4>;

static_assert(sizeof(TruePeakStats) == 24 && offsetof(TruePeakStats, mSampleClipCount) == 8);
static_assert(sizeof(PeakStatistics) == 96);

/// Read, write, announced: 0 sends the encoded-then-decoded signal to the output, any other value
/// the untouched source.
inline constexpr audio_unit::Property<UInt32> kConverterProperty_MonitorSource{5301};
/// Read: peaks and clip counts since the last reset. Not announced: poll it.
inline constexpr audio_unit::Property<PeakStatistics> kConverterProperty_PeakStats{5302};
/// Write, announced: any value clears all peaks and counts.
inline constexpr audio_unit::Property<UInt32> kConverterProperty_ResetPeakStats{5303};
/// Read, write, announced: non-zero while a listening test runs.
inline constexpr audio_unit::Property<UInt32> kConverterProperty_ListeningTestActive{5304};

}  // namespace velk
