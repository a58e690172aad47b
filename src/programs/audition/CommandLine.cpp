#include "programs/audition/CommandLine.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cmath>

#include "host/messages/Failure.h"
#include "host/unit/CodecTerms.h"

namespace host {
namespace {

constexpr const char* kDescription =
    R"(Plays a mix through an AAC encoder and decoder and shows what they do to it.

aac-audition opens a window with the converter's view: the encoder's setting, the
monitored signal, peaks and overs of the source and of the encoded signal, and the
blind listening test. Without FILE it waits for one to be opened or dropped.
It plays WAV, AIFF, FLAC, Ogg Vorbis, Opus and MP3 files: mono, stereo, or two channels
of more (--channels). Sample rates other than 32, 44.1, 48, 88.2, 96, 176.4 and 192 kHz
are converted.)";

constexpr const char* kFooter = R"(
With --headless the same window is made off screen and FILE is run through the
converter as fast as possible. When the last sample has left the converter, the
screenshot is written and the readings are printed: as text, or with --json as one
JSON object with the keys file, seconds, sample_rate_hz, channels, setting,
bit_rate_kbps, latency_samples, monitor, source and encoded. source and encoded have
one record per channel: sample_peak_dbfs, inter_sample_peak_dbtp, sample_clips and
inter_sample_overs.

Without --headless FILE is played at once, in a window with its waveform. Triangles
above the waveform mark overs of the source, triangles below it overs of the encoded
signal. Click to move to a position, drag to draw a loop, turn the wheel to zoom.
--seconds then closes the window after that time; --screenshot is written and --json
printed when the window closes.

The recording holds what is played, without pauses. --set takes the bit rates 16, 20,
24, 32, 40, 48, 56, 64, 80, 96, 128, 160, 192, 224, 256, 288 and 320 kbit/s; if the
encoder cannot do one, it uses the nearest that it can and the program says so.

Keys in the window: Ctrl+O opens a file, Ctrl+P or a keyboard's play key plays and
pauses, Ctrl+Left and Ctrl+Right move by five seconds, Ctrl+Home goes back to the
beginning, Ctrl+I and Ctrl+E start and end the loop here, Ctrl+L switches it on or
off, Ctrl+D removes it, Ctrl++ and Ctrl+- zoom, Ctrl+Q quits. In the waveform (Tab)
the arrow and page keys move the position, with Shift they draw a loop, with Alt they
move it; I or [ and O or ] set its edges, L switches it, Delete removes it, + and -
zoom. All other keys belong to the view.

Exit status: 0 for success, 1 if something went wrong, 2 if the command line makes no
sense. Every error is one line on standard error; no file is left half-written.

Examples:
  aac-audition mix.wav
  aac-audition mix.wav --headless --preset 128k --json
  aac-audition mix.flac --headless --set he,abr,64 --record decoded.wav)";

/// The file that a path leads to, however it is written.
std::filesystem::path resolve(const std::filesystem::path& path) {
  std::error_code error;
  return std::filesystem::weakly_canonical(std::filesystem::absolute(path, error), error);
}

bool monitorsSource(const std::string& word) {
  if (word == "source") return true;
  if (word == "encoded") return false;
  throw UsageError("bad --monitor '" + word + "': give source or encoded");
}

void check(const AuditionOptions& options) {
  if (options.headless && !options.file) {
    throw UsageError("--headless plays a file: give FILE");
  }
  if (options.restore && (options.headless || options.file)) {
    throw UsageError("--restore opens the last file in a window: give neither FILE nor --headless");
  }
  if (options.seconds && !(*options.seconds > 0 && std::isfinite(*options.seconds))) {
    throw UsageError("bad --seconds: give a number above 0");
  }
  if (options.preset && options.setting) {
    throw UsageError("--preset and --set contradict each other: give one of them");
  }
  if (options.device && options.device->empty()) {
    throw UsageError("bad --device '': give a device's name or none");
  }
  if (options.record && options.screenshot &&
      resolve(*options.record) == resolve(*options.screenshot)) {
    throw UsageError("--record and --screenshot name the same file: give two");
  }
  std::error_code error;
  if (options.file && options.record &&
      std::filesystem::equivalent(*options.file, *options.record, error)) {
    throw UsageError("--record would overwrite FILE: give another name");
  }
  if (options.file && options.screenshot &&
      std::filesystem::equivalent(*options.file, *options.screenshot, error)) {
    throw UsageError("--screenshot would overwrite FILE: give another name");
  }
}

}  // namespace

std::variant<AuditionOptions, HelpText> parseAuditionArguments(int argc, const char* const* argv) {
  CLI::App app(kDescription, "aac-audition");
  app.footer(kFooter);
  AuditionOptions options;
  std::optional<std::string> monitor;
  std::optional<std::string> preset;
  std::optional<std::string> setting;
  std::optional<std::string> channels;
  app.add_option("FILE", options.file, "The sound file to play");
  app.add_flag("--headless", options.headless, "Run off screen, as fast as possible, and exit");
  app.add_flag("--restore", options.restore,
               "Continue where you left off: file, position, loop, device and encoder setting");
  app.add_option("--seconds", options.seconds, "End after this much of the file")->type_name("N");
  app.add_option("--screenshot", options.screenshot, "Write a picture of the window at the end")
      ->type_name("PNG");
  app.add_flag("--json", options.json, "Print the readings as JSON at the end");
  app.add_option("--device", options.device,
                 "Play to this device (part of its name will do), or to none")
      ->type_name("NAME|none");
  app.add_option("--record", options.record,
                 "Record what the device plays, or would play, as 32-bit float")
      ->type_name("WAV");
  app.add_option("--monitor", monitor, "The signal to hear")->type_name("source|encoded");
  app.add_option("--preset", preset, "The encoder preset")->type_name("plus|128k|streaming|high");
  app.add_option("--set", setting,
                 "The encoder setting: aac, he or hev2; abr, vbrc or vbr; a bit rate listed below, "
                 "or for vbr a quality from 0 to 127")
      ->type_name("FORMAT,STRATEGY,RATE");
  app.add_option("--channels", channels,
                 "The channels to play of a file that has more than two, numbered from 1")
      ->type_name("L,R");
  if (const auto text = parseArguments(app, argc, argv, codecTerms())) return *text;
  if (monitor) options.monitorsSource = monitorsSource(*monitor);
  if (preset) options.preset = presetNamed(*preset).number;
  if (channels) options.channels = parsedChannelChoice(*channels);
  if (setting) options.setting = parsedEncoderSetting(*setting);
  check(options);
  return options;
}

}  // namespace host
