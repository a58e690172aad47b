#pragma once

#include <QPixmap>
#include <QWidget>
#include <memory>
#include <optional>

#include "host/analysis/SharedOverview.h"
#include "host/files/AudioSource.h"
#include "host/playback/LoopRange.h"
#include "programs/audition/waveform/LoopGesture.h"
#include "programs/audition/waveform/VisibleRange.h"

namespace host::audition {

/// Shows the file or a part of it: waveform, overs, playhead and loop. A click moves the position;
/// dragging draws a loop, or moves an edge or the whole of one. Keys do the same. The wheel zooms
/// and scrolls.
class WaveformView : public QWidget {
  Q_OBJECT

 public:
  explicit WaveformView(QWidget* parent = nullptr);

  /// Shows another file; null for none.
  void setFile(std::shared_ptr<const SharedOverview> overview, AudioFormat format);
  /// Shows the current state. The overview may change at any time; changes show on the next call.
  void refresh(std::shared_ptr<const SharedOverview> overview, std::int64_t length,
               std::int64_t position);
  /// Shows the loop and whether it is switched on.
  void setLoop(const std::optional<LoopRange>& loop, bool isOn);
  /// Sets whether the range follows the playhead.
  void setFollowing(bool following) { following_ = following; }

  AudioFormat format() const { return format_; }
  std::int64_t length() const { return length_; }
  std::int64_t position() const { return position_; }
  const VisibleRange& range() const { return range_; }
  /// The position and what is marked, in words.
  QString valueText() const;
  /// A small step at the current zoom, in frames.
  std::int64_t step() const;
  /// Zooms around the playhead, or around the middle if the playhead is not visible.
  void zoom(double factor);
  /// The factor of one step in, by key or menu.
  static constexpr double kZoomStep = 0.5;

  QSize sizeHint() const override;

 Q_SIGNALS:
  void positionChosen(qint64 frame);
  /// `start` equals `end` for no loop.
  void loopChosen(qint64 start, qint64 end);
  void loopToggled();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void paintLoop(QPainter& painter) const;
  void paintPlayhead(QPainter& painter) const;
  void setRange(const VisibleRange& range);
  void showCursor(const QPointF& point);
  LoopPart partAt(const QPointF& point) const;
  std::int64_t frameAt(const QPointF& point) const;
  void choosePosition(std::int64_t frame);
  void chooseLoop(const std::optional<LoopRange>& loop);
  bool moveByKey(const QKeyEvent& event);
  bool loopByKey(const QKeyEvent& event);
  void extendLoop(std::int64_t by);
  void cancelGesture();
  QString tipAt(const QPointF& point) const;

  std::shared_ptr<const SharedOverview> overview_;
  AudioFormat format_;
  std::int64_t length_ = 0;
  std::int64_t position_ = 0;
  std::optional<LoopRange> loop_;
  bool loopIsOn_ = false;
  bool following_ = false;
  VisibleRange range_;

  /// Since the mouse press; `drags_` once it has moved far enough to mean a loop.
  std::optional<LoopGesture> gesture_;
  QPointF pressedAt_;
  bool drags_ = false;
  /// Where keys started to draw a loop, and where they have got to.
  std::optional<std::int64_t> anchor_;
  std::int64_t extended_ = 0;

  QPixmap picture_;
  std::uint64_t drawnRevision_ = 0;
  std::int64_t shownPosition_ = -1;
};

}  // namespace host::audition
