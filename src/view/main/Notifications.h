#pragma once

#include <string_view>

/// Names of the in-process notifications. Each is posted to the default centre with the view as its
/// object. The skins export them from the bundle in their toolkit's string type.
namespace velk {

// Commands, posted by the key dispatch.
inline constexpr std::string_view monitorSourceActionPerformedNotification =
    "aac_monitorSourceActionPerformedNotification";
inline constexpr std::string_view monitorEncodedActionPerformedNotification =
    "aac_monitorEncodedActionPerformedNotification";
inline constexpr std::string_view clearClipActionPerformedNotification =
    "aac_clearClipActionPerformedNotification";
inline constexpr std::string_view listeningTestMonitorSourceActionPerformedNotification =
    "aac_listeningTestMonitorSourceActionPerformedNotification";
inline constexpr std::string_view listeningTestMonitorAActionPerformedNotification =
    "aac_monitorAActionPerformedNotification";
inline constexpr std::string_view listeningTestMonitorBActionPerformedNotification =
    "aac_monitorBActionPerformedNotification";
inline constexpr std::string_view listeningTestChooseAActionPerformedNotification =
    "aac_listeningTestChooseAActionPerformedNotification";
inline constexpr std::string_view listeningTestChooseBActionPerformedNotification =
    "aac_listeningTestChooseBActionPerformedNotification";

// Changes of the converter, posted by the event listener.
inline constexpr std::string_view auAACSourceSelectionChangedNotification =
    "auAACSourceSelectionChangedNotification";
inline constexpr std::string_view auAACResetStatsNotification = "auAACResetStatsNotification";
inline constexpr std::string_view auAACListeningTestStateChangedNotification =
    "auAACListeningTestStateChangedNotification";

}  // namespace velk
