#include "programs/measure/Options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <thread>

#include "host/messages/Failure.h"
#include "host/unit/CodecTerms.h"

namespace host::measure {
namespace {

constexpr const char* kDescription =
    R"(Runs sound files through an AAC encoder and decoder and tells the peaks and overs of
the source and of what comes out.

aac-measure measures every FILE, and every sound file in and below a FOLDER: WAV, AIFF,
FLAC, Ogg Vorbis, Opus and MP3; mono, stereo, or two channels of more (--channels). The
encoder is that of the preset plus unless others are chosen; with several, every file
is measured with each.)";

constexpr const char* kFooter = R"(
The table has a row for every file and setting. Peaks are the largest of the channels in
dBFS (samples) and dBTP (between the samples), -144.00 for silence; clips are samples
above full scale and overs intervals between samples in which the waveform is, both
summed over the channels. A row with clips after encoding ends in OVER.

With --json every row is one JSON object on a line of its own with the keys file,
seconds, sample_rate_hz, channels, setting, bit_rate_kbps, latency_samples, monitor,
source and encoded, the same as those of aac-audition --headless --json. source and
encoded have one record per channel: sample_peak_dbfs, inter_sample_peak_dbtp,
sample_clips and inter_sample_overs.

--find-trim looks for the smallest reduction of the file, in steps of 0.1 dB, with which
the encoded signal has no clip, or with --inter-sample no over either, by encoding the
whole file at every reduction it tries. The row is then that of the reduced file, and
tells the reduction; JSON has one more key, trim: reduction_db, inter_sample and
encodes. The answer was tried and is clean, and the three next smaller reductions were
tried and are not. An encoder decides anew at every level, so a smaller one still may
be clean by chance, and a greater one need not be.

--m4a writes the bit stream that was measured, with what a player needs to leave out
the encoder's delay; --png draws the waveform with the overs marked on it. Their names
are the file's with the setting behind it: mix.aac-vbrc-256.m4a.

Exit status: 0 success; 1 a file could not be measured, or something could not be
written; 2 the command line makes no sense; 3 with --fail-on-overs, when all is
measured and something has overs after encoding (with --find-trim: has to be reduced);
129, 130 or 143 after the signals HUP, INT (Ctrl-C) or TERM. Files that cannot be
measured are told on standard error and the others are measured all the same; a file
that is damaged or cut off is measured as far as it goes and counts as one that could
not be, and neither .m4a nor .png is left of it. No file is left half-written.

Examples:
  aac-measure --all album/
  aac-measure --preset 128k --find-trim --inter-sample mix.wav
  aac-measure --set he,abr,64 --set hev2,abr,48 --json *.flac > readings.jsonl)";

void check(const Options& options) {
  if (options.inputs.empty()) throw UsageError("there is nothing to measure: give FILE or FOLDER");
  if (options.interSample && !options.findTrim && !options.failOnOvers) {
    throw UsageError("--inter-sample belongs to --find-trim or --fail-on-overs: give one of them");
  }
  if (options.jobs == 0) throw UsageError("bad --jobs '0': give a number from 1 on");
}

}  // namespace

std::variant<Options, HelpText> parsedArguments(int argc, const char* const* argv) {
  CLI::App app(kDescription, "aac-measure");
  app.footer(kFooter);
  Options options;
  options.jobs = std::max(std::thread::hardware_concurrency(), 1U);
  std::vector<std::string> presets;
  std::vector<std::string> settings;
  std::optional<std::string> channels;
  bool all = false;
  app.add_option("FILE|FOLDER", options.inputs, "What to measure");
  // One word each, so that a file after the option is not taken for another preset or setting.
  app.add_option("--preset", presets, "An encoder preset; may be given several times")
      ->type_name("plus|128k|streaming|high")
      ->allow_extra_args(false);
  app.add_flag("--all", all, "All four presets");
  app.add_option("--set", settings,
                 "An encoder setting: aac, he or hev2; abr, vbrc or vbr; kbit/s of the list, or "
                 "for vbr a quality from 0 to 127; may be given several times")
      ->type_name("FORMAT,STRATEGY,RATE")
      ->allow_extra_args(false);
  app.add_option("--channels", channels,
                 "The channels to measure of files that have more than two, by number from 1 on")
      ->type_name("L,R");
  app.add_flag("--find-trim", options.findTrim,
               "Find the smallest reduction with which nothing clips after encoding");
  app.add_flag("--inter-sample", options.interSample,
               "Let inter-sample overs count for --find-trim and --fail-on-overs");
  app.add_flag("--fail-on-overs", options.failOnOvers,
               "End with status 3 when anything clips after encoding");
  app.add_option("--jobs", options.jobs, "Measure so many at once; as many as there are cores")
      ->type_name("N");
  app.add_flag("--json", options.json, "Print a JSON object per row in place of the table");
  app.add_option("--m4a", options.bitStreams, "Write what was encoded to this folder")
      ->type_name("FOLDER");
  app.add_option("--png", options.pictures, "Draw the waveforms with their overs to this folder")
      ->type_name("FOLDER");
  if (const auto text = parseArguments(app, argc, argv, codecTerms())) return *text;
  if (channels) options.channels = parsedChannelChoice(*channels);
  if (all) options.encoders = everyPreset();
  for (const auto& preset : presets) addUnlessThere(options.encoders, presetChoice(preset));
  for (const auto& setting : settings) addUnlessThere(options.encoders, settingChoice(setting));
  if (options.encoders.empty()) options.encoders.push_back(everyPreset().front());
  check(options);
  return options;
}

}  // namespace host::measure
