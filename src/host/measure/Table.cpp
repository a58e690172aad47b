#include "host/measure/Table.h"

#include <algorithm>

#include "host/Decimal.h"
#include "host/measure/TextWidth.h"

namespace host::measure {
namespace {

constexpr std::size_t narrowestFile = 16;
constexpr std::size_t widestFile = 48;
constexpr std::size_t settingWidth = 18;
constexpr std::size_t rateWidth = 7;
constexpr std::size_t peakWidth = 8;
constexpr std::size_t countWidth = 7;
constexpr std::size_t trimWidth = 7;
constexpr std::size_t verdictWidth = 6;
constexpr std::size_t signalWidth = 2 * (peakWidth + countWidth);
constexpr std::size_t figuresWidth = 2 * signalWidth + verdictWidth;

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
  return right(text.starts_with('-') || text == "0.00" ? text : "+" + text, peakWidth);
}

std::string cells(const Summary& sum) {
  return peak(sum.samplePeak) + right(std::to_string(sum.clips), countWidth) + peak(sum.truePeak) +
         right(std::to_string(sum.overs), countWidth);
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
  const auto others = 2 + settingWidth + rateWidth + (withTrim ? trimWidth : 0);
  if (width == 0) {
    fileWidth_ = std::min(fileWidth_, widestFile);
  } else if (std::min(fileWidth_, narrowestFile) + others + figuresWidth <= width) {
    fileWidth_ = std::min(fileWidth_, width - others - figuresWidth);
  } else {
    fileWidth_ = std::min(fileWidth_, std::max(width, others + narrowestFile) - others);
    lineBreak_ = "\n  ";
  }
}

std::string Table::head() const {
  const auto trim = [&](const char* text) {
    return withTrim_ ? right(text, trimWidth) : std::string();
  };
  const auto above = padded("", fileWidth_ + 2) + padded("", settingWidth) +
                     right("Rate", rateWidth) + trim("Trim");
  const auto names = padded("File", fileWidth_ + 2) + padded("Encoder", settingWidth) +
                     right("kbit/s", rateWidth) + trim("dB");
  const auto columns = right("dBFS", peakWidth) + right("clips", countWidth) +
                       right("dBTP", peakWidth) + right("overs", countWidth);
  const auto signals = right("Source", signalWidth) + right("Encoded", signalWidth);
  if (lineBreak_.empty()) return above + signals + "\n" + names + columns + columns + "\n";
  return above + "\n" + names + lineBreak_ + signals + lineBreak_ + columns + columns + "\n";
}

std::string Table::lines(const Row& row) const {
  const auto& readings = row.readings;
  auto text = padded(elidedPath(readings.file, fileWidth_), fileWidth_ + 2) +
              padded(settingName(readings.setting), settingWidth) +
              right(decimal(readings.bitRateKbps, 1), rateWidth);
  if (withTrim_) text += right(row.trim ? trimText(*row.trim) : "", trimWidth);
  text += lineBreak_ + cells(summary(readings.source)) + cells(summary(readings.encoded));
  if (hasOvers(readings, interSample_)) {
    text += colored_ ? "  \x1b[1;31mOVER\x1b[0m" : "  OVER";
  }
  return text + "\n";
}

}  // namespace host::measure
