#include <string>

#include "ui/AssertionHandler.h"
#include "ui/Log.h"
#include "view/main/Velk_AUAACConverterCustomView.h"

/// Typed access to the converter: parameters, channel count, statistics.
namespace velk {

namespace {

constexpr const char* kSourceFile = "AACConverter/AUAACConverterCustomView";
constexpr int kParameterWriteLine = 84;
constexpr int kParameterReadLine = 90;

constexpr float kFallbackPeak = -60.0F;
/// Not 0, and below every count: readers react to values that rise.
constexpr std::int64_t kFallbackInterSampleCount = -60;

bool hasClipped(const TruePeakStats& record) {
  return record.mSampleClipCount > 0 || record.mInterSampleClipCount > 0;
}

}  // namespace

void Velk_AUAACConverterCustomView::setParameterValue(AudioUnitParameterID parameter, float value) {
  const std::string description = "[AUAACConverterCustomView param " +
                                  std::to_string(static_cast<SInt32>(parameter)) +
                                  " changed:] AUParameterSet()";
  const AudioUnitParameter address = {mAU, parameter, kAudioUnitScope_Global, 0};
  if (AUParameterSet(mAUEventListener, this, &address, value, 0) != noErr) {
    ui::AssertionHandler::currentHandler().handleFailure(
        {"setParameterValue:value:", this, kSourceFile, kParameterWriteLine, description});
  }
}

float Velk_AUAACConverterCustomView::getParameterValue(AudioUnitParameterID parameter) const {
  float value = 0.0F;
  if (AudioUnitGetParameter(mAU, parameter, kAudioUnitScope_Global, 0, &value) != noErr) {
    ui::AssertionHandler::currentHandler().handleFailure(
        {"getParameterValue:", this, kSourceFile, kParameterReadLine,
         "[AUAACConverterCustomView parameterValue] (x.1)"});
  }
  return value;
}

float Velk_AUAACConverterCustomView::getFormat() const {
  return getParameterValue(kConverterParam_Format);
}

void Velk_AUAACConverterCustomView::setFormat(float format) {
  setParameterValue(kConverterParam_Format, format);
}

float Velk_AUAACConverterCustomView::getStrategy() const {
  return getParameterValue(kConverterParam_Strategy);
}

void Velk_AUAACConverterCustomView::setStrategy(float strategy) {
  setParameterValue(kConverterParam_Strategy, strategy);
}

float Velk_AUAACConverterCustomView::getRate() const {
  if (getStrategy() == kStrategy_VBR) {
    ui::log("GetRate() not valid when strategy is VBR");
    return 0.0F;
  }
  return getParameterValue(kConverterParam_RateQuality);
}

void Velk_AUAACConverterCustomView::setRate(float rate) {
  if (getStrategy() == kStrategy_VBR) {
    ui::log("SetRate() not valid when strategy is VBR");
    return;
  }
  setParameterValue(kConverterParam_RateQuality, rate);
}

float Velk_AUAACConverterCustomView::getQuality() const {
  if (getStrategy() != kStrategy_VBR) {
    ui::log("GetQuality() only valid when strategy is VBR");
    return 0.0F;
  }
  return getParameterValue(kConverterParam_RateQuality);
}

void Velk_AUAACConverterCustomView::setQuality(float quality) {
  if (getStrategy() != kStrategy_VBR) {
    ui::log("SetQuality() only valid when strategy is VBR");
    return;
  }
  setParameterValue(kConverterParam_RateQuality, quality);
}

std::uint32_t Velk_AUAACConverterCustomView::getNumChannelsFromAudioUnit() const {
  const auto format = readProperty(mAU, audio_unit::outputFormatProperty);
  return format ? format->mChannelsPerFrame : 0;
}

void Velk_AUAACConverterCustomView::getPeakStats(PeakStatistics& block) const {
  const OSStatus status = readPropertyInto(block, mAU, kConverterProperty_PeakStats);
  if (status == noErr) {
    return;
  }
  ui::log("error getting peak stats: " + std::to_string(status));
  for (TruePeakStats& record : block) {
    record.mSampleClipCount = 0;
    record.mSamplePeak = kFallbackPeak;
    record.mInterSampleClipCount = kFallbackInterSampleCount;
  }
}

void Velk_AUAACConverterCustomView::isSourceClipped(bool& sourceClipped,
                                                    bool& encodedClipped) const {
  PeakStatistics block{};
  getPeakStats(block);
  const bool twoChannels = numChannels_ >= 2;
  encodedClipped = hasClipped(block[kPeakStatsSlot_EncodedLeft]) ||
                   (twoChannels && hasClipped(block[kPeakStatsSlot_EncodedRight]));
  sourceClipped = hasClipped(block[kPeakStatsSlot_SourceLeft]) ||
                  (twoChannels && hasClipped(block[kPeakStatsSlot_SourceRight]));
}

void Velk_AUAACConverterCustomView::resetClippingAndPeaks() {
  const OSStatus status = writeProperty(mAU, kConverterProperty_ResetPeakStats, 1);
  if (status != noErr) {
    ui::log("Unable to reset clipping and peak data- error from AU: " + std::to_string(status));
  }
}

}  // namespace velk
