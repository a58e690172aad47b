#pragma once

#include <QString>
#include <chrono>

namespace host::audition {

/// A notice about something that happens again and again: it is shown while that goes on and for a
/// short time after, and then goes by itself.
class PassingNotice {
 public:
  using Clock = std::chrono::steady_clock;
  static constexpr auto kStays = std::chrono::seconds(3);

  /// It has happened at `now`.
  void tell(const QString& text, Clock::time_point now);
  /// What to show at `now`; empty for nothing.
  QString shownAt(Clock::time_point now) const;

 private:
  QString text_;
  Clock::time_point last_;
};

}  // namespace host::audition
