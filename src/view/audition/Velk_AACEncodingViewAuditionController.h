#pragma once

#include <memory>

#include "ui/Connections.h"
#include "ui/NotificationCenter.h"
#include "ui/RunLoop.h"
#include "ui/Toolkit.h"
#include "view/audition/PeakHoldMeters.h"
#include "view/main/TabController.h"

namespace velk {

class Velk_AUAACConverterCustomView;

/// The audition page: which signal is heard, the clip lamps and peak readings, and the details
/// disclosure. Main thread only.
class Velk_AACEncodingViewAuditionController final : public TabController {
 public:
  /// `toolkit` must outlive the controller.
  explicit Velk_AACEncodingViewAuditionController(ui::Toolkit& toolkit);
  ~Velk_AACEncodingViewAuditionController() override;

  /// Stores the main view, which is not owned, and shows the meters for its channel count.
  void setOwner(Velk_AUAACConverterCustomView* owner);

  /// Outlets and actions by name, for the skin.
  ui::Connections& connections() { return connections_; }

  void prepare() override;
  void cleanup() override;

  // Monitoring.
  void monitorChanged(ui::Object* sender);
  void monitorSource(const ui::Notification& notification);
  void monitorEncoder(const ui::Notification& notification);
  void updateMonitor(const ui::Notification& notification);
  void handleListeningTestStateChanged(const ui::Notification& notification);

  // Meters.
  /// Polls the converter's statistics once.
  void updateClipIndicators();
  void resetClip(ui::Object* sender);
  void handleClearClip(const ui::Notification& notification);

  // Details.
  void toggleShowDetails(ui::Object* sender);
  void expand();
  void collapse();
  void expand(bool show);

 private:
  void observe();
  void showMonitoredSignal();

  ui::Toolkit& toolkit_;
  ui::Connections connections_;

  Velk_AUAACConverterCustomView* owner = nullptr;
  ui::SegmentedControl* monitorControl = nullptr;
  ui::LevelIndicator* sourceClipIndicator = nullptr;
  ui::LevelIndicator* encoderClipIndicator = nullptr;
  ui::Button* resetButton = nullptr;
  ui::Button* showDetailsButton = nullptr;
  ui::TextField* showDetailsText = nullptr;
  ui::TabView* monoStereoTabView = nullptr;
  ui::Button* helpButton = nullptr;
  std::unique_ptr<ui::Timer> clipIndicatorTimer;
  PeakHoldMeters meters_;
};

}  // namespace velk
