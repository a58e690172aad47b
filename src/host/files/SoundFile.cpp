#include "host/files/SoundFile.h"

#include <sndfile.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <system_error>
#include <utility>

#include "host/files/OggEnd.h"
#include "host/messages/Failure.h"

namespace host {
namespace {

constexpr std::uint32_t kLowestSampleRate = 2000;
constexpr std::uint32_t kHighestSampleRate = 768000;
constexpr std::size_t kMostChannels = 2;
constexpr std::size_t kWideFrames = 1024;

SNDFILE* handle(void* file) {
  return static_cast<SNDFILE*>(file);
}

[[noreturn]] void refuse(const std::filesystem::path& path, Message::Words why,
                         std::vector<Message> values = {}) {
  throw Failure(Message::words("cannot read '%1': %2"), {path.string(), {why, std::move(values)}});
}

void requireOrdinaryFile(const std::filesystem::path& path) {
  std::error_code error;
  const auto status = std::filesystem::status(path, error);
  if (status.type() == std::filesystem::file_type::not_found) {
    refuse(path, Message::words("there is no such file; give the path of a sound file"));
  }
  if (error) {
    refuse(path, Message::words("%1; check the path and its permissions"), {error.message()});
  }
  if (status.type() == std::filesystem::file_type::directory) {
    refuse(path, Message::words("it is a folder; give the path of a sound file"));
  }
  if (status.type() != std::filesystem::file_type::regular) {
    refuse(path, Message::words("it is not an ordinary file; give the path of a sound file"));
  }
  const auto size = std::filesystem::file_size(path, error);
  if (!error && size == 0) {
    refuse(path, Message::words("the file is empty; give a file that holds audio"));
  }
}

}  // namespace

bool promisesMoreThanItHolds(std::string_view log) {
  if (log.find("File ended unexpectedly") != std::string_view::npos) return true;
  if (log.find("does not match value from 'ds64'") != std::string_view::npos) return true;
  const auto number = [](std::string_view text) {
    std::uint64_t value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
  };
  // Rows such as "data : 384000 (should be 230382)". Recorders that were
  // never able to fill in the size leave 0 or all ones; a few bytes of padding are no loss either.
  constexpr std::uint64_t padding = 8;
  constexpr std::uint64_t neverWritten = 0xFFFFFF00;
  constexpr std::string_view correction = " (should be ";
  for (const std::string_view name : {"data : ", "SSND : ", "Data Size   : ", "riff : "}) {
    for (auto at = log.find(name); at != std::string_view::npos; at = log.find(name, at + 1)) {
      const auto line = log.substr(at, log.find('\n', at) - at);
      const auto corrected = line.find(correction);
      if (corrected == std::string_view::npos) continue;
      const auto promised = number(line.substr(name.size()));
      const auto held = number(line.substr(corrected + correction.size()));
      if (promised > held + padding && promised < neverWritten) return true;
    }
  }
  return false;
}

SoundFile::SoundFile(const std::filesystem::path& path, ChannelChoice choice)
    : path_(path), choice_(std::move(choice)) {
  requireOrdinaryFile(path);
  open();
  std::array<char, 16384> log{};
  sf_command(handle(file_.get()), SFC_GET_LOG_INFO, log.data(), static_cast<int>(log.size()));
  if (promisesMoreThanItHolds(log.data())) *truncated_ = true;
  // Not every version of the library tells.
  if (isOgg_ && !endsWithLastOggPage(path)) *truncated_ = true;
  if (frames_ == SF_COUNT_MAX) {
    // An Ogg file whose end is missing, or a FLAC stream written to a pipe, which never learnt its
    // length.
    const auto held = countFrames();
    open();
    frames_ = held;
  }
  if (frames_ <= 0) {
    refuse(path, Message::words("it holds no audio; give a file with at least one sample"));
  }
}

SoundFile::~SoundFile() = default;

void SoundFile::open() {
  SF_INFO info{};
  std::string why;
  try {
    file_ = openQuietly(path_, info, why);
  } catch (const std::system_error& error) {
    refuse(path_, Message::words("%1; check the path and its permissions"),
           {error.code().message()});
  }
  if (!file_) {
    while (!why.empty() && (why.back() == '.' || why.back() == '\n')) why.pop_back();
    std::replace(why.begin(), why.end(), '\n', ' ');
    refuse(path_, Message::words("%1; give a WAV, AIFF, FLAC, Ogg or MP3 file"), {why});
  }
  fileChannels_ = static_cast<std::size_t>(info.channels);
  format_ = {static_cast<std::uint32_t>(info.samplerate),
             static_cast<std::uint32_t>(info.channels)};
  if (fileChannels_ > kMostChannels) chooseChannels();
  if (format_.sampleRate < kLowestSampleRate || format_.sampleRate > kHighestSampleRate) {
    refuse(path_, Message::words("its sample rate is %1 Hz; give a file from 2 to 768 kHz"),
           {info.samplerate});
  }
  frames_ = info.frames;
  isOgg_ = (info.format & SF_FORMAT_TYPEMASK) == SF_FORMAT_OGG;
}

void SoundFile::chooseChannels() {
  if (choice_.empty()) {
    throw TooManyChannels(
        {Message::words("cannot read '%1': it has %2 channels; give a mono or stereo file, or "
                        "choose two of them with --channels, such as 1,2"),
         {path_.string(), fileChannels_}},
        static_cast<std::uint32_t>(fileChannels_));
  }
  for (const auto channel : choice_) {
    if (channel > fileChannels_) {
      refuse(path_, Message::words("it has no channel %1; give channels from 1 to %2"),
             {channel, fileChannels_});
    }
  }
  format_.channels = static_cast<std::uint32_t>(choice_.size());
  wide_.resize(kWideFrames * fileChannels_);
}

std::int64_t SoundFile::countFrames() {
  constexpr std::size_t block = 8192;
  std::vector<float> scratch(block * fileChannels_);
  std::int64_t count = 0;
  for (;;) {
    const auto got = sf_readf_float(handle(file_.get()), scratch.data(), block);
    if (got <= 0) break;
    count += got;
  }
  return count;
}

std::int64_t SoundFile::readFrames(float* interleaved, std::int64_t frames) {
  if (wide_.empty()) return sf_readf_float(handle(file_.get()), interleaved, frames);
  const auto got = sf_readf_float(handle(file_.get()), wide_.data(),
                                  std::min(frames, static_cast<std::int64_t>(kWideFrames)));
  for (std::int64_t frame = 0; frame < got; ++frame) {
    const float* const samples = wide_.data() + static_cast<std::size_t>(frame) * fileChannels_;
    for (const auto channel : choice_) *interleaved++ = samples[channel - 1];
  }
  return got;
}

std::size_t SoundFile::read(float* interleaved, std::size_t frames) {
  const auto wanted = std::min<std::int64_t>(static_cast<std::int64_t>(frames),
                                             std::max<std::int64_t>(frames_ - position_, 0));
  std::int64_t done = 0;
  while (done < wanted) {
    const auto got = readFrames(interleaved + done * format_.channels, wanted - done);
    if (got <= 0) break;
    done += got;
  }
  if (done < wanted) *truncated_ = true;
  position_ += done;
  const auto samples = static_cast<std::size_t>(done) * format_.channels;
  std::replace_if(
      interleaved, interleaved + samples, [](float sample) { return !std::isfinite(sample); },
      0.0F);
  return static_cast<std::size_t>(done);
}

void SoundFile::seek(std::int64_t frame) {
  frame = std::clamp<std::int64_t>(frame, 0, frames_);
  const auto reached = sf_seek(handle(file_.get()), frame, SEEK_SET);
  // Where a damaged file cannot be sought to, it ends.
  position_ = reached < 0 ? frames_ : frame;
  if (reached < 0) *truncated_ = true;
}

}  // namespace host
