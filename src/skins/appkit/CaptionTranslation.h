#pragma once

#import <AppKit/AppKit.h>

namespace ui {
class Bundle;
}

namespace ui::appkit {

/// Replaces every caption of an interface file's objects by its entry in the bundle's strings
/// table: texts, titles, tabs, segments, menu items, tool tips and accessible labels.
void translateCaptions(NSArray* topLevelObjects, const Bundle& bundle);

}  // namespace ui::appkit
