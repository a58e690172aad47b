#include "programs/audition/window/PassingNotice.h"

namespace host::audition {

void PassingNotice::tell(const QString& text, Clock::time_point now) {
  text_ = text;
  last_ = now;
}

QString PassingNotice::shownAt(Clock::time_point now) const {
  return now - last_ < kStays ? text_ : QString();
}

}  // namespace host::audition
