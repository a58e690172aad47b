#pragma once

#import <Foundation/Foundation.h>

#include <string>

namespace ui::appkit {

/// Turns a level into text.
class LevelText {
 public:
  virtual ~LevelText() = default;
  /// `level` is in dB.
  virtual std::string text(double level) const = 0;
};

}  // namespace ui::appkit

/// Formats a field's number as a level.
@interface Velk_LevelFormatter : NSFormatter {
  const ui::appkit::LevelText* _levelText;
}
/// Not owned. Without one the plain number is shown.
- (void)setLevelText:(const ui::appkit::LevelText*)levelText;
@end
