#include "programs/demo_mix/Pcm16File.h"

#include <sndfile.h>

#include <cstdint>
#include <memory>

#include "host/files/AtomicFile.h"
#include "host/messages/Failure.h"

namespace host::demo_mix {
namespace {

std::int16_t quantised(double sample) {
  return static_cast<std::int16_t>(std::clamp(std::round(sample * 32768), -32768.0, 32767.0));
}

}  // namespace

void writePcm16(const Stereo& mix, const std::filesystem::path& path) {
  AtomicFile target(path);
  SF_INFO info{};
  info.samplerate = kSampleRate;
  info.channels = 2;
  info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
  std::unique_ptr<SNDFILE, int (*)(SNDFILE*)> file(
      sf_open(target.temporaryPath().c_str(), SFM_WRITE, &info), &sf_close);
  if (!file) throw Failure("cannot write '" + path.string() + "': " + sf_strerror(nullptr));
  std::vector<std::int16_t> interleaved;
  interleaved.reserve(2 * mix.frames());
  for (std::size_t i = 0; i < mix.frames(); ++i) {
    interleaved.push_back(quantised(mix.left[i]));
    interleaved.push_back(quantised(mix.right[i]));
  }
  const auto frames = static_cast<sf_count_t>(mix.frames());
  const bool whole = sf_writef_short(file.get(), interleaved.data(), frames) == frames;
  const bool closed = sf_close(file.release()) == 0;
  if (!whole || !closed) {
    throw Failure("cannot write '" + path.string() + "': the disk may be full; nothing was kept");
  }
  target.commit();
}

}  // namespace host::demo_mix
