#pragma once

#include "audio_unit/TypedProperty.h"

/// What this converter has beyond what the view needs: for hosts.
namespace converter {

/// The highest quality of VBR; the lowest is 0.
inline constexpr UInt32 kHighestQuality = 127;

/// The setting really used: the nearest that works where the parameters ask for one that the
/// encoder cannot do at this rate and channel count. Where the codec could not be opened in
/// mid-play, the one that goes on in its place.
struct EffectiveSetting {
  UInt32 format;
  UInt32 strategy;
  /// ABR and VBRC: what the stream averages. VBR: 0. bit/s.
  UInt32 bitRate;
  /// VBR: the encoder's mode, 1 to 5. Otherwise 0.
  UInt32 vbrMode;
};

/// Bits of the access units, without any transport.
struct BitRate {
  /// Over the last seconds, kbit/s; 0 before the first access unit.
  Float32 recentKbps;
  /// Since the last change of setting or reset of the unit, kbit/s; 0 before the first access unit.
  Float32 averageKbps;
};

// Properties: global scope, element 0, read only unless they say otherwise.

inline constexpr audio_unit::Property<EffectiveSetting> kConverterProperty_EffectiveSetting{5310};
inline constexpr audio_unit::Property<BitRate> kConverterProperty_BitRate{5311};
/// Frames of encoded signal since the unit was made that came too late, or that no codec could be
/// opened for, and were silence.
inline constexpr audio_unit::Property<UInt64> kConverterProperty_MissedFrames{5312};
/// Codecs that could not be opened since the unit was made, and access units that could not be made
/// or decoded. 0 as long as all is well.
inline constexpr audio_unit::Property<UInt64> kConverterProperty_CodecFailures{5313};
/// May be written: 0 while what the unit renders is not metered, because nobody hears it and it
/// only leads up to what follows, as before the place that a player was sent to; otherwise 1.
inline constexpr audio_unit::Property<UInt32> kConverterProperty_Metering{5314};

}  // namespace converter
