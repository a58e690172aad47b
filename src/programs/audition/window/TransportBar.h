#pragma once

#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QWidget>

#include "programs/audition/waveform/WaveformView.h"
#include "programs/audition/window/AnalysisIndicator.h"
#include "programs/audition/window/ElidedLabel.h"
#include "programs/audition/window/PlayButton.h"
#include "programs/audition/window/TimeDisplay.h"

namespace host::audition {

/// The rows above the view: file and device, waveform, and transport.
class TransportBar : public QWidget {
  Q_OBJECT

 public:
  explicit TransportBar(QWidget* parent = nullptr);

  void setFileName(const QString& name);
  void setTransportEnabled(bool enabled);
  void setOpenEnabled(bool enabled);
  void setPlaying(bool playing);
  void showTime(std::int64_t position, std::int64_t length, std::uint32_t sampleRate);
  /// Shows the loop, if any, and whether it is switched on.
  void setLoop(const std::optional<LoopRange>& loop, bool isOn, std::uint32_t sampleRate);
  void setDeviceName(const QString& name);
  /// Empty: to be filled on its `aboutToShow`.
  QMenu* deviceMenu() { return deviceMenu_; }
  WaveformView& waveform() { return *waveform_; }
  AnalysisIndicator& analysis() { return *analysis_; }

 Q_SIGNALS:
  void openClicked();
  void playClicked();
  void loopToggled();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void layOut();
  void showLoopState();

  QPushButton* open_;
  ElidedLabel* file_;
  QPushButton* device_;
  QMenu* deviceMenu_;
  WaveformView* waveform_;
  PlayButton* play_;
  TimeDisplay* time_;
  QLabel* total_;
  AnalysisIndicator* analysis_;
  QPushButton* loop_;
  bool loopIsLit_ = false;
};

}  // namespace host::audition
