#pragma once

#include <QToolButton>
#include <cstdint>

namespace host::audition {

/// Shows the elapsed time; a click switches to the remaining time and back.
class TimeDisplay : public QToolButton {
  Q_OBJECT

 public:
  explicit TimeDisplay(QWidget* parent = nullptr);

  void showTime(std::int64_t position, std::int64_t length, std::uint32_t sampleRate);

 private:
  void showText();

  bool showsRemaining_ = false;
  std::int64_t position_ = 0;
  std::int64_t length_ = 0;
  std::uint32_t sampleRate_ = 0;
};

}  // namespace host::audition
