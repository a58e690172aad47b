#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ui/NotificationCenter.h"
#include "view/fakes/CallLog.h"
#include "view/main/Notifications.h"

namespace fakes {

/// Observes all of the view's notifications from every object while it lives. Each is also added to
/// the call log as "posted …".
class NotificationRecorder {
 public:
  explicit NotificationRecorder(CallLog& calls) {
    for (const std::string_view name :
         {velk::monitorSourceActionPerformedNotification,
          velk::monitorEncodedActionPerformedNotification,
          velk::clearClipActionPerformedNotification,
          velk::listeningTestMonitorSourceActionPerformedNotification,
          velk::listeningTestMonitorAActionPerformedNotification,
          velk::listeningTestMonitorBActionPerformedNotification,
          velk::listeningTestChooseAActionPerformedNotification,
          velk::listeningTestChooseBActionPerformedNotification,
          velk::auAACSourceSelectionChangedNotification, velk::auAACResetStatsNotification,
          velk::auAACListeningTestStateChangedNotification}) {
      ui::NotificationCenter::defaultCenter().addObserver(
          this, name, nullptr, [this, &calls](const ui::Notification& notification) {
            names_.emplace_back(notification.name);
            objects_.push_back(notification.object);
            calls.add("posted ", notification.name);
          });
    }
  }
  NotificationRecorder(const NotificationRecorder&) = delete;
  NotificationRecorder& operator=(const NotificationRecorder&) = delete;
  ~NotificationRecorder() { ui::NotificationCenter::defaultCenter().removeObserver(this); }

  const std::vector<std::string>& names() const { return names_; }
  /// The object of each notification, beside `names`.
  const std::vector<const void*>& objects() const { return objects_; }
  void clear() {
    names_.clear();
    objects_.clear();
  }

 private:
  std::vector<std::string> names_;
  std::vector<const void*> objects_;
};

}  // namespace fakes
