#include "programs/measure/WaveformPng.h"

#include <cairo.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <numeric>
#include <string>
#include <vector>

#include "host/messages/ClockText.h"
#include "host/messages/Decimal.h"
#include "host/messages/Failure.h"
#include "host/messages/TextWidth.h"

namespace host::measure {
namespace {

constexpr int kWidth = 1600;
constexpr int kMargin = 24;
constexpr int kLeft = 64;
constexpr int kColumnCount = kWidth - kLeft - kMargin;
constexpr int kHead = 88;
constexpr int kFoot = 40;
constexpr int kWaveHeight = 200;
constexpr int kLaneHeight = 16;
constexpr int kChannelGap = 24;
constexpr int kChannelHeight = kWaveHeight + 2 * kLaneHeight + kChannelGap;

struct Color {
  double red;
  double green;
  double blue;
};
constexpr Color kPaper{1, 1, 1};
constexpr Color kInk{0.13, 0.15, 0.18};
constexpr Color kFaint{0.84, 0.86, 0.88};
constexpr Color kQuiet{0.40, 0.43, 0.47};
constexpr Color kWave{0.36, 0.50, 0.66};
// Distinguishable for the red-green colour-blind too, and by their positions.
constexpr Color kSourceOver{0.85, 0.53, 0.0};
constexpr Color kEncodedOver{0.76, 0.08, 0.30};

struct Destroy {
  void operator()(cairo_t* context) const { cairo_destroy(context); }
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};

class Canvas {
 public:
  Canvas(int height)
      : surface_(cairo_image_surface_create(CAIRO_FORMAT_RGB24, kWidth, height)),
        context_(cairo_create(surface_.get())) {
    cairo_select_font_face(context_.get(), "sans-serif", CAIRO_FONT_SLANT_NORMAL,
                           CAIRO_FONT_WEIGHT_NORMAL);
    rectangle(0, 0, kWidth, height, kPaper);
  }

  void rectangle(double x, double y, double w, double h, const Color& color) {
    use(color);
    cairo_rectangle(context_.get(), x, y, w, h);
    cairo_fill(context_.get());
  }
  void triangle(double x, double tip, double base, const Color& color) {
    constexpr double half = 4;
    use(color);
    cairo_move_to(context_.get(), x, tip);
    cairo_line_to(context_.get(), x - half, base);
    cairo_line_to(context_.get(), x + half, base);
    cairo_close_path(context_.get());
    cairo_fill(context_.get());
  }
  double textLength(const std::string& text, double size) {
    cairo_text_extents_t extents;
    cairo_set_font_size(context_.get(), size);
    cairo_text_extents(context_.get(), text.c_str(), &extents);
    return extents.x_advance;
  }
  /// `alignment`: 0 starts at x, 1 ends there, 0.5 is centred on it.
  void text(double x, double baseline, const std::string& text, double size, const Color& color,
            double alignment = 0) {
    const auto length = textLength(text, size);
    use(color);
    cairo_move_to(context_.get(), x - alignment * length, baseline);
    cairo_show_text(context_.get(), text.c_str());
  }
  void save(const std::filesystem::path& file) {
    auto status = cairo_status(context_.get());
    if (status == CAIRO_STATUS_SUCCESS) {
      status = cairo_surface_write_to_png(surface_.get(), file.c_str());
    }
    if (status == CAIRO_STATUS_SUCCESS) return;
    throw Failure(std::string("cannot draw the waveform: ") + cairo_status_to_string(status));
  }

 private:
  void use(const Color& color) {
    cairo_set_source_rgb(context_.get(), color.red, color.green, color.blue);
  }

  std::unique_ptr<cairo_surface_t, Destroy> surface_;
  std::unique_ptr<cairo_t, Destroy> context_;
};

double place(int column) {
  return kLeft + column;
}

/// Marks lie in their lane and point at the waveform.
void drawChannel(Canvas& canvas, const char* name, const std::vector<WaveformColumn>& columns,
                 double top) {
  const double waveTop = top + kLaneHeight;
  const double middle = waveTop + kWaveHeight / 2.0;
  // A little headroom above full scale shows how far a float file exceeds it.
  constexpr double fullScale = kWaveHeight / 2.0 / 1.12;
  const auto height = [=](float sample) {
    return std::clamp(static_cast<double>(sample) * fullScale, -kWaveHeight / 2.0,
                      kWaveHeight / 2.0);
  };
  canvas.rectangle(kLeft, middle, kColumnCount, 1, kFaint);
  for (int column = 0; column < kColumnCount; ++column) {
    const auto& each = columns[static_cast<std::size_t>(column)];
    if (!each.hasSamples()) continue;
    const auto high = middle - height(each.maximum);
    const auto low = middle - height(each.minimum);
    canvas.rectangle(place(column), high, 1, std::max(low - high, 1.0), kWave);
  }
  for (const double edge : {middle - fullScale, middle + fullScale}) {
    canvas.rectangle(kLeft, edge, kColumnCount, 1, kQuiet);
  }
  for (int column = 0; column < kColumnCount; ++column) {
    const auto& each = columns[static_cast<std::size_t>(column)];
    const double x = place(column) + 0.5;
    if (each.sourceOvers > 0) canvas.triangle(x, waveTop, waveTop - kLaneHeight + 4, kSourceOver);
    if (each.encodedOvers > 0) {
      canvas.triangle(x, waveTop + kWaveHeight, waveTop + kWaveHeight + kLaneHeight - 4,
                      kEncodedOver);
    }
  }
  constexpr double small = 11;
  canvas.text(kLeft - 8, middle - fullScale + 4, "0 dBFS", small, kQuiet, 1);
  canvas.text(kLeft - 8, middle + fullScale + 4, "0 dBFS", small, kQuiet, 1);
  constexpr double large = 15;
  canvas.text(kLeft - 8, middle + 5, name, large, kInk, 1);
}

std::string timeAt(double seconds) {
  const auto milliseconds = std::llround(seconds * 1000);
  return clockText(milliseconds, milliseconds % 1000 == 0 ? 0 : 2);
}

void drawTime(Canvas& canvas, double seconds, double baseline) {
  constexpr std::array<double, 18> steps = {0.01, 0.02, 0.05, 0.1, 0.2, 0.5, 1,   2,    5,
                                            10,   15,   30,   60,  120, 300, 600, 1800, 3600};
  constexpr double mostTicks = 16;
  const auto* const step = std::find_if(steps.begin(), steps.end() - 1,
                                        [=](double each) { return seconds / each <= mostTicks; });
  for (double at = 0; at <= seconds; at += *step) {
    const double x = place(0) + kColumnCount * (seconds > 0 ? at / seconds : 0);
    canvas.rectangle(x, baseline - 20, 1, 6, kQuiet);
    canvas.text(x, baseline, timeAt(at), 12, kQuiet, 0.5);
    if (seconds <= 0) break;
  }
}

/// The highest peaks of the channels, and the sums of their overs.
std::string summary(const char* signal, const std::vector<ChannelReading>& channels) {
  auto peak = channels.front();
  peak.interSampleOvers = peak.sampleClips = 0;
  for (const auto& each : channels) {
    peak.samplePeakDbfs = std::max(peak.samplePeakDbfs, each.samplePeakDbfs);
    peak.interSamplePeakDbtp = std::max(peak.interSamplePeakDbtp, each.interSamplePeakDbtp);
    peak.sampleClips += each.sampleClips;
    peak.interSampleOvers += each.interSampleOvers;
  }
  return std::string(signal) + "  " + decimal(peak.samplePeakDbfs, 2) + " dBFS, " +
         std::to_string(peak.sampleClips) + " clips;  " + decimal(peak.interSamplePeakDbtp, 2) +
         " dBTP, " + std::to_string(peak.interSampleOvers) + " overs";
}

void drawHead(Canvas& canvas, const Readings& readings, int reduction) {
  constexpr std::size_t longestName = 90;
  constexpr double title = 18;
  constexpr double body = 13;
  constexpr double titleLine = 34;
  constexpr double bodyLine = 64;
  const auto name = std::filesystem::path(readings.file).filename().string();
  canvas.text(kLeft, titleLine, elidedInTheMiddle(name, longestName), title, kInk);
  auto encoder = settingName(readings.setting);
  if (!readings.setting.hasQuality()) encoder += " kbit/s";
  if (reduction > 0) encoder = "reduced by " + decimal(reduction / 10.0, 1) + " dB, " + encoder;
  canvas.text(kWidth - kMargin, titleLine, encoder, title, kInk, 1);
  const auto source = summary("Source", readings.source);
  canvas.triangle(kLeft + 4, bodyLine, bodyLine - 10, kSourceOver);
  canvas.text(kLeft + 16, bodyLine, source, body, kInk);
  const auto second = kLeft + 16 + canvas.textLength(source, body) + 48;
  canvas.triangle(second, bodyLine - 10, bodyLine, kEncodedOver);
  canvas.text(second + 12, bodyLine, summary("Encoded", readings.encoded), body, kInk);
}

}  // namespace

void drawWaveform(const WaveformOverview& overview, const Readings& readings, int reduction,
                  const std::filesystem::path& file) {
  const auto channels = static_cast<int>(overview.channels());
  Canvas canvas(kHead + channels * kChannelHeight + kFoot);
  drawHead(canvas, readings, reduction);
  for (int channel = 0; channel < channels; ++channel) {
    const char* const name = channels == 1 ? "M" : channel == 0 ? "L" : "R";
    drawChannel(canvas, name,
                overview.columns(static_cast<std::uint32_t>(channel), 0, overview.frames(),
                                 std::size_t{kColumnCount}),
                kHead + channel * kChannelHeight);
  }
  drawTime(canvas, readings.seconds, kHead + channels * kChannelHeight + kFoot / 2.0);
  canvas.save(file);
}

}  // namespace host::measure
