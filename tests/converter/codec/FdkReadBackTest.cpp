#include <fdk-aac/aacenc_lib.h>
#include <gtest/gtest.h>

#include "contract/ConverterInterface.h"
#include "converter/codec/Setting.h"

namespace {

using converter::Setting;
using converter::UnitFormat;

/// The bit rate that the library actually uses; -1 when it refuses the setting.
int rateReadBack(const Setting& setting, const UnitFormat& unit) {
  const AUDIO_OBJECT_TYPE types[] = {AOT_AAC_LC, AOT_SBR, AOT_PS};
  AACENCODER* encoder = nullptr;
  if (aacEncOpen(&encoder, 0, 0) != AACENC_OK) return -1;
  aacEncoder_SetParam(encoder, AACENC_AOT,
                      static_cast<UINT>(types[static_cast<int>(setting.format)]));
  aacEncoder_SetParam(encoder, AACENC_SAMPLERATE, static_cast<UINT>(unit.sampleRate));
  aacEncoder_SetParam(encoder, AACENC_CHANNELMODE, unit.channels == 1 ? MODE_1 : MODE_2);
  aacEncoder_SetParam(encoder, AACENC_TRANSMUX, TT_MP4_RAW);
  aacEncoder_SetParam(encoder, AACENC_BITRATE, setting.bitRate);
  const bool taken = aacEncEncode(encoder, nullptr, nullptr, nullptr, nullptr) == AACENC_OK;
  const int rate = taken ? static_cast<int>(aacEncoder_GetParam(encoder, AACENC_BITRATE)) : -1;
  aacEncClose(&encoder);
  return rate;
}

TEST(FdkReadBack, IsTheAverageRateThatTheSettingStates) {
  for (const double sampleRate : {32000.0, 44100.0, 48000.0, 88200.0, 96000.0}) {
    for (const UInt32 channels : {1U, 2U}) {
      const UnitFormat unit{.sampleRate = sampleRate, .channels = channels, .maximumFrames = 512};
      const int formats = channels == 1 ? 2 : 3;
      for (int format = 0; format < formats; ++format) {
        for (std::size_t index = 0; index < velk::bitRates.size(); ++index) {
          const Setting setting =
              nearestSetting({static_cast<float>(format), 0, static_cast<float>(index)}, unit,
                             {.highEfficiency = true});
          EXPECT_EQ(rateReadBack(setting, unit), static_cast<int>(setting.bitRate))
              << "format " << format << ", " << channels << " channels, " << sampleRate << " Hz, "
              << velk::bitRates[index] << " kbit/s";
        }
      }
    }
  }
}

}  // namespace
