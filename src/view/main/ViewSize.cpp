#include "view/audition/Velk_AACEncodingViewAuditionController.h"
#include "view/audition/ViewHeight.h"
#include "view/main/RaisedFlag.h"
#include "view/main/Velk_AUAACConverterCustomView.h"

/// The view's size is not free: a size requested from outside stands for a page or the details.
namespace velk {

namespace {

constexpr int kListeningTestPage = 1;

}  // namespace

void Velk_AUAACConverterCustomView::changeHeight(double height) {
  const RaisedFlag gate(allowSizeChange);
  setFrameSize({native_.frameSize().width, height});
}

void Velk_AUAACConverterCustomView::setFrameSize(ui::Size size) {
  if (allowSizeChange) {
    native_.applyFrameSize(size);
    return;
  }
  if (isTornDown()) {
    return;
  }
  if (size.height == kListeningTestHeight) {
    tabView->selectItemAtIndex(kListeningTestPage);
    native_.applyFrameSize({size.width, kListeningTestHeight});
  } else if (size.height > kCollapsedAuditionHeight) {
    // Later, because the host is still in the middle of its own resizing.
    pendingExpand_ = toolkit_.runLoop.performLater([this] { auditionController->expand(); });
  }
}

}  // namespace velk
