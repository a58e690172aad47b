#include "programs/measure/Table.h"

#include <algorithm>

#include "host/messages/Decimal.h"
#include "host/messages/TextWidth.h"

namespace host::measure {
namespace {

constexpr std::size_t kNarrowestFile = 16;
constexpr std::size_t kWidestFile = 48;
constexpr std::size_t kSettingWidth = 18;
constexpr std::size_t kRateWidth = 7;
constexpr std::size_t kPeakWidth = 8;
constexpr std::size_t kCountWidth = 7;
constexpr std::size_t kTrimWidth = 7;
constexpr std::size_t kVerdictWidth = 6;
constexpr std::size_t kSignalWidth = 2 * (kPeakWidth + kCountWidth);
constexpr std::size_t kFiguresWidth = 2 * kSignalWidth + kVerdictWidth;

struct Summary {
  double samplePeak;
  double truePeak;
  std::int64_t clips = 0;
  std::int64_t overs = 0;
};

Summary summary(const std::vector<ChannelReading>& channels) {
  Summary sum{channels.front().samplePeakDbfs, channels.front().interSamplePeakDbtp};
  for (const auto& channel : channels) {
    sum.samplePeak = std::max(sum.samplePeak, channel.samplePeakDbfs);
    sum.truePeak = std::max(sum.truePeak, channel.interSamplePeakDbtp);
    sum.clips += channel.sampleClips;
    sum.overs += channel.interSampleOvers;
  }
  return sum;
}

std::string right(const std::string& text, std::size_t width) {
  return text.size() < width ? std::string(width - text.size(), ' ') + text : " " + text;
}

std::string peak(double value) {
  const auto text = decimal(value, 2);
  return right(text.starts_with('-') || text == "0.00" ? text : "+" + text, kPeakWidth);
}

std::string cells(const Summary& sum) {
  return peak(sum.samplePeak) + right(std::to_string(sum.clips), kCountWidth) + peak(sum.truePeak) +
         right(std::to_string(sum.overs), kCountWidth);
}

std::string trimText(const Trim& trim) {
  return trim.reduction == 0 ? "0.0" : decimal(-trim.reduction / 10.0, 1);
}

}  // namespace

Table::Table(const std::vector<std::string>& files, std::size_t width, bool withTrim,
             bool interSample, bool colored)
    : fileWidth_(textWidth("File")),
      withTrim_(withTrim),
      interSample_(interSample),
      colored_(colored) {
  for (const auto& file : files) fileWidth_ = std::max(fileWidth_, textWidth(file));
  const auto others = 2 + kSettingWidth + kRateWidth + (withTrim ? kTrimWidth : 0);
  if (width == 0) {
    fileWidth_ = std::min(fileWidth_, kWidestFile);
  } else if (std::min(fileWidth_, kNarrowestFile) + others + kFiguresWidth <= width) {
    fileWidth_ = std::min(fileWidth_, width - others - kFiguresWidth);
  } else {
    fileWidth_ = std::min(fileWidth_, std::max(width, others + kNarrowestFile) - others);
    lineBreak_ = "\n  ";
  }
}

std::string Table::head() const {
  const auto trim = [&](const char* text) {
    return withTrim_ ? right(text, kTrimWidth) : std::string();
  };
  const auto above = padded("", fileWidth_ + 2) + padded("", kSettingWidth) +
                     right("Rate", kRateWidth) + trim("Trim");
  const auto names = padded("File", fileWidth_ + 2) + padded("Encoder", kSettingWidth) +
                     right("kbit/s", kRateWidth) + trim("dB");
  const auto columns = right("dBFS", kPeakWidth) + right("clips", kCountWidth) +
                       right("dBTP", kPeakWidth) + right("overs", kCountWidth);
  const auto signals = right("Source", kSignalWidth) + right("Encoded", kSignalWidth);
  if (lineBreak_.empty()) return above + signals + "\n" + names + columns + columns + "\n";
  return above + "\n" + names + lineBreak_ + signals + lineBreak_ + columns + columns + "\n";
}

std::string Table::lines(const Row& row) const {
  const auto& readings = row.readings;
  auto text = padded(elidedPath(readings.file, fileWidth_), fileWidth_ + 2) +
              padded(settingName(readings.setting), kSettingWidth) +
              right(decimal(readings.bitRateKbps, 1), kRateWidth);
  if (withTrim_) text += right(row.trim ? trimText(*row.trim) : "", kTrimWidth);
  text += lineBreak_ + cells(summary(readings.source)) + cells(summary(readings.encoded));
  if (hasOvers(readings, interSample_)) {
    text += colored_ ? "  \x1b[1;31mOVER\x1b[0m" : "  OVER";
  }
  return text + "\n";
}

}  // namespace host::measure
