#pragma once

#import <AppKit/AppKit.h>

namespace ui {
class Bundle;
}

namespace ui::appkit {

/// Looks up every caption in the bundle's strings table that the objects of an interface file show
/// or have read out: texts, titles, tabs, segments, menu items, tool tips and accessible labels.
void translateCaptions(NSArray* topLevelObjects, const Bundle& bundle);

}  // namespace ui::appkit
