#include "host/analysis/WaveformOverview.h"

#include <algorithm>

namespace host {
namespace {

constexpr std::size_t kFanOut = 16;

std::uint32_t saturatingSum(std::uint32_t one, std::uint32_t other) {
  return one > UINT32_MAX - other ? UINT32_MAX : one + other;
}

void merge(WaveformColumn& into, const WaveformColumn& column) {
  into.minimum = std::min(into.minimum, column.minimum);
  into.maximum = std::max(into.maximum, column.maximum);
  into.sourceOvers = saturatingSum(into.sourceOvers, column.sourceOvers);
  into.encodedOvers = saturatingSum(into.encodedOvers, column.encodedOvers);
}

}  // namespace

WaveformOverview::WaveformOverview(std::uint32_t channels, std::size_t maximumBuckets)
    : maximumBuckets_(maximumBuckets), pyramids_(channels) {
  for (auto& pyramid : pyramids_) {
    for (auto buckets = maximumBuckets; buckets > 0; buckets /= kFanOut) {
      pyramid.emplace_back().reserve(buckets);
    }
  }
}

template <class SampleAt>
void WaveformOverview::take(std::size_t frames, SampleAt sampleAt) {
  for (std::size_t done = 0; done < frames;) {
    const auto bucket = bucketFor(frames_);
    const auto left = bucketFrames_ - frames_ % bucketFrames_;
    const auto count =
        static_cast<std::size_t>(std::min(left, static_cast<std::int64_t>(frames - done)));
    for (std::size_t channel = 0; channel < pyramids_.size(); ++channel) {
      WaveformColumn column;
      for (auto i = done; i < done + count; ++i) {
        const float sample = sampleAt(channel, i);
        column.minimum = std::min(column.minimum, sample);
        column.maximum = std::max(column.maximum, sample);
      }
      add(pyramids_[channel], bucket, column);
    }
    frames_ += static_cast<std::int64_t>(count);
    done += count;
  }
}

void WaveformOverview::append(const float* const* planes, std::size_t frames) {
  take(frames, [=](std::size_t channel, std::size_t i) { return planes[channel][i]; });
}

void WaveformOverview::append(const float* interleaved, std::size_t frames) {
  const auto stride = pyramids_.size();
  take(frames,
       [=](std::size_t channel, std::size_t i) { return interleaved[i * stride + channel]; });
}

void WaveformOverview::addOvers(Signal signal, std::uint32_t channel, std::int64_t frame,
                                std::uint32_t count) {
  if (count == 0 || frame < 0) return;
  WaveformColumn column;
  (signal == Signal::Source ? column.sourceOvers : column.encodedOvers) = count;
  const auto bucket = bucketFor(frame);
  add(pyramids_.at(channel), bucket, column);
}

void WaveformOverview::clearOvers(Signal signal) {
  for (auto& pyramid : pyramids_) {
    for (auto& level : pyramid) {
      for (auto& bucket : level) {
        (signal == Signal::Source ? bucket.sourceOvers : bucket.encodedOvers) = 0;
      }
    }
  }
}

void WaveformOverview::add(Pyramid& pyramid, std::size_t bucket, const WaveformColumn& column) {
  for (auto& level : pyramid) {
    if (level.size() <= bucket) level.resize(bucket + 1);
    merge(level[bucket], column);
    bucket /= kFanOut;
  }
}

std::size_t WaveformOverview::bucketFor(std::int64_t frame) {
  while (frame / bucketFrames_ >= static_cast<std::int64_t>(maximumBuckets_)) halveResolution();
  return static_cast<std::size_t>(frame / bucketFrames_);
}

void WaveformOverview::halveResolution() {
  bucketFrames_ *= 2;
  for (auto& pyramid : pyramids_) {
    const auto fine = pyramid.front();
    for (auto& level : pyramid) level.clear();
    for (std::size_t i = 0; i < fine.size(); ++i) add(pyramid, i / 2, fine[i]);
  }
}

WaveformColumn WaveformOverview::sum(const Pyramid& pyramid, std::size_t begin, std::size_t end) {
  WaveformColumn result;
  for (const auto& level : pyramid) {
    end = std::min(end, level.size());
    const bool isTop = &level == &pyramid.back();
    // Whole buckets of the next level are left to that level.
    while (begin < end && (isTop || begin % kFanOut != 0)) merge(result, level[begin++]);
    while (begin < end && end % kFanOut != 0) merge(result, level[--end]);
    if (begin >= end) break;
    begin /= kFanOut;
    end /= kFanOut;
  }
  return result;
}

std::vector<WaveformColumn> WaveformOverview::columns(std::uint32_t channel, std::int64_t begin,
                                                      std::int64_t end, std::size_t count) const {
  const auto& pyramid = pyramids_.at(channel);
  const auto bucketAt = [&](std::int64_t frame) {
    return static_cast<std::size_t>(std::max<std::int64_t>(frame, 0) / bucketFrames_);
  };
  const auto columns = static_cast<std::int64_t>(count);
  std::vector<WaveformColumn> result;
  result.reserve(count);
  for (std::int64_t i = 0; i < columns; ++i) {
    const auto first = begin + (end - begin) * i / columns;
    const auto next = std::max(begin + (end - begin) * (i + 1) / columns, first + 1);
    // A column before the first frame is empty.
    result.push_back(next <= 0 ? WaveformColumn{}
                               : sum(pyramid, bucketAt(first), bucketAt(next - 1) + 1));
  }
  return result;
}

}  // namespace host
