#include "programs/audition/waveform/WaveformPicture.h"

#include <QPainter>
#include <algorithm>
#include <vector>

namespace host::audition {
namespace {

/// Finer columns in each column of pixels. Their average extremes are the body of the waveform,
/// which the peaks stand out from.
constexpr std::size_t kFinePerColumn = 4;
/// A little room above full scale shows by how much a file exceeds it.
constexpr float kHeadroom = 1.12F;

QColor mixed(const QColor& one, const QColor& other, float share) {
  const auto mix = [=](float a, float b) { return a + (b - a) * share; };
  return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                          mix(one.blueF(), other.blueF()));
}

bool isDark(const QPalette& palette) {
  return palette.color(QPalette::Base).lightnessF() < 0.5F;
}

/// One channel's columns of pixels.
class Columns {
 public:
  Columns(const SharedOverview& overview, std::uint32_t channel, const VisibleRange& range,
          std::size_t count)
      : fine_(overview.columns(channel, range.start(), range.end(), count * kFinePerColumn)) {}

  WaveformColumn peaks(std::size_t column) const {
    WaveformColumn sum;
    for (std::size_t i = 0; i < kFinePerColumn; ++i) {
      const auto& each = fine_[column * kFinePerColumn + i];
      sum.minimum = std::min(sum.minimum, each.minimum);
      sum.maximum = std::max(sum.maximum, each.maximum);
      sum.sourceOvers = std::max(sum.sourceOvers, each.sourceOvers);
      sum.encodedOvers = std::max(sum.encodedOvers, each.encodedOvers);
    }
    return sum;
  }
  WaveformColumn body(std::size_t column) const {
    WaveformColumn sum = {0, 0, 0, 0};
    for (std::size_t i = 0; i < kFinePerColumn; ++i) {
      const auto& each = fine_[column * kFinePerColumn + i];
      if (!each.hasSamples()) continue;
      sum.minimum += each.minimum / kFinePerColumn;
      sum.maximum += each.maximum / kFinePerColumn;
    }
    return sum;
  }

 private:
  std::vector<WaveformColumn> fine_;
};

class Picture {
 public:
  Picture(QPixmap& pixmap, int width, double pixelRatio, const QPalette& palette)
      : painter_(&pixmap),
        palette_(palette),
        width_(width),
        columns_(static_cast<std::size_t>(width * pixelRatio)),
        columnWidth_(1 / pixelRatio) {
    painter_.fillRect(QRect(0, 0, width, WaveformLanes::kHeight), palette.color(QPalette::Base));
  }

  void drawChannel(const SharedOverview& overview, std::uint32_t channel,
                   const VisibleRange& range) {
    const auto base = palette_.color(QPalette::Base);
    const auto text = palette_.color(QPalette::Text);
    const double height = WaveformLanes::kWave / static_cast<double>(overview.channels());
    const double middle = WaveformLanes::kWaveTop + height * (channel + 0.5);
    const double fullScale = (height / 2 - 1) / kHeadroom;
    painter_.fillRect(QRectF(0, middle, width_, columnWidth_), mixed(base, text, 0.25F));
    const Columns columns(overview, channel, range, columns_);
    for (std::size_t i = 0; i < columns_; ++i) {
      const auto peaks = columns.peaks(i);
      if (!peaks.hasSamples()) continue;
      drawColumn(i, middle, fullScale, peaks, mixed(base, text, 0.32F));
      drawColumn(i, middle, fullScale, columns.body(i), mixed(base, text, 0.6F));
    }
    drawFullScale(middle - fullScale);
    drawFullScale(middle + fullScale);
    for (std::size_t i = 0; i < columns_; ++i) drawMarks(i, columns.peaks(i));
  }

 private:
  double x(std::size_t column) const { return static_cast<double>(column) * columnWidth_; }

  void drawColumn(std::size_t column, double middle, double fullScale, const WaveformColumn& each,
                  const QColor& color) {
    const auto height = [=](float sample) {
      return static_cast<double>(std::clamp(sample, -kHeadroom, kHeadroom)) * fullScale;
    };
    const auto top = middle - height(each.maximum);
    const auto bottom = middle - height(each.minimum);
    painter_.fillRect(QRectF(x(column), top, columnWidth_, std::max(bottom - top, columnWidth_)),
                      color);
  }

  void drawFullScale(double y) {
    auto line = palette_.color(QPalette::Text);
    line.setAlphaF(0.25F);
    QPen pen(line, 0);
    pen.setDashPattern({2, 6});
    painter_.setPen(pen);
    painter_.drawLine(QPointF(0, y), QPointF(width_, y));
  }

  /// A triangle that points at the waveform, from above for the source, from below for the other.
  void drawMarks(std::size_t column, const WaveformColumn& each) {
    constexpr double half = 3.5;
    constexpr double tall = 6;
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setPen(Qt::NoPen);
    const auto draw = [&](Signal signal, double tip, double base) {
      painter_.setBrush(markColor(signal, palette_));
      const double middle = x(column) + columnWidth_ / 2;
      painter_.drawPolygon(
          QPolygonF({{middle, tip}, {middle - half, base}, {middle + half, base}}));
    };
    constexpr double top = WaveformLanes::kWaveTop;
    constexpr double bottom = WaveformLanes::kWaveBottom;
    if (each.sourceOvers > 0) draw(Signal::Source, top - 1, top - 1 - tall);
    if (each.encodedOvers > 0) draw(Signal::Encoded, bottom + 1, bottom + 1 + tall);
    painter_.setRenderHint(QPainter::Antialiasing, false);
  }

  QPainter painter_;
  const QPalette& palette_;
  const double width_;
  const std::size_t columns_;
  const double columnWidth_;
};

}  // namespace

QColor markColor(Signal signal, const QPalette& palette) {
  if (signal == Signal::Source) return isDark(palette) ? QColor(255, 176, 58) : QColor(201, 120, 0);
  return isDark(palette) ? QColor(255, 107, 138) : QColor(194, 20, 77);
}

QPixmap waveformPicture(const SharedOverview& overview, const VisibleRange& range, int width,
                        double pixelRatio, const QPalette& palette) {
  QPixmap pixmap((QSizeF(width, WaveformLanes::kHeight) * pixelRatio).toSize());
  pixmap.setDevicePixelRatio(pixelRatio);
  Picture picture(pixmap, width, pixelRatio, palette);
  for (std::uint32_t channel = 0; channel < overview.channels(); ++channel) {
    picture.drawChannel(overview, channel, range);
  }
  return pixmap;
}

}  // namespace host::audition
