#pragma once

#include <QPointer>
#include <QWidget>
#include <chrono>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "programs/audition/Audition.h"

/// The program as a user sees it: its window with the real view, bound to a real converter that
/// plays a file, with a recording of what is played. Time passes only while the user listens.
class ListeningRoom {
 public:
  explicit ListeningRoom(const std::filesystem::path& file,
                         const std::filesystem::path& recording = {},
                         const host::AuditionOptions& options = {});
  ListeningRoom(const ListeningRoom&) = delete;
  ListeningRoom& operator=(const ListeningRoom&) = delete;
  ~ListeningRoom();

  /// Shows the listening test's page.
  void showTestPage();
  /// Clicks the tab of that index, whether or not it then opens.
  void clickTab(int index);
  /// Clicks the widget of that name.
  void click(const char* name);
  /// Presses a key; whatever has the focus receives it.
  void press(Qt::Key key);
  /// Plays that many frames in blocks of at most `block`, with the events and refreshes that occur
  /// in that time. Returns what was played.
  std::vector<std::vector<float>> listen(std::size_t frames, std::size_t block = 512);
  /// Delivers all pending events.
  void settle();
  /// Completes the recording.
  void finish() { audition_.finish(); }

  host::audition::Audition& audition() { return audition_; }
  QWidget& window() { return audition_.window(); }
  /// The widget of that name in the window or one of its sheets. Throws if there is none.
  QWidget& widget(const char* name);
  template <class Widget>
  Widget& widget(const char* name) {
    return dynamic_cast<Widget&>(widget(name));
  }
  std::string text(const char* label);
  /// The next frame to be heard.
  std::size_t position();
  bool monitorsSource();
  bool testRuns();

 private:
  std::unique_ptr<void, std::function<void(void*)>> pumping_;
  std::chrono::steady_clock::time_point time_;
  host::audition::Audition audition_;
};
