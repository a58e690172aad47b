#include "ui/Sheets.h"
#include "view/audition/Velk_AACEncodingViewAuditionController.h"
#include "view/listening_test/Velk_AACEncodingViewListeningTestController.h"
#include "view/main/RaisedFlag.h"
#include "view/main/Velk_AUAACConverterCustomView.h"

/// The two tabs: a change passes the active role from one controller to the other, unless a
/// listening test is running.
namespace velk {

TabController* Velk_AUAACConverterCustomView::controllerForTabAtIndex(int index) const {
  switch (index) {
    case 0:
      return auditionController;
    case 1:
      return listeningTestController;
    default:
      return nullptr;
  }
}

bool Velk_AUAACConverterCustomView::shouldSelectTabViewItem(ui::TabViewItem* item) {
  if (!isPerformingListeningTest_) {
    return true;
  }
  showEndTestAlert(item);
  return false;
}

void Velk_AUAACConverterCustomView::willSelectTabViewItem(ui::TabViewItem* item) {
  const int current = tabView->indexOfSelectedItem();
  const int next = tabView->indexOfItem(item);
  if (current == next || isTornDown()) {
    return;
  }
  if (TabController* controller = controllerForTabAtIndex(current)) {
    controller->cleanup();
  }
  if (TabController* controller = controllerForTabAtIndex(next)) {
    controller->prepare();
  }
}

void Velk_AUAACConverterCustomView::showEndTestAlert(ui::TabViewItem* requestedItem) {
  if (isAlertOpen_ || isTornDown()) {
    return;
  }
  const ui::AlertTexts texts = {
      "",
      localized("Resume"),
      localized("Stop"),
      localized("You are currently performing a listening test. Would you like to stop the test?"),
  };
  RaisedFlag open(isAlertOpen_);
  toolkit_.sheets.beginAlertSheet(
      texts, *settingsButton, whileInUse([this, requestedItem](ui::Window& alert, int returnCode) {
        isAlertOpen_ = false;
        testAlertSheetDidEnd(alert, returnCode, requestedItem);
      }));
  open.keep();
}

void Velk_AUAACConverterCustomView::testAlertSheetDidEnd(ui::Window& sheet, int returnCode,
                                                         ui::TabViewItem* contextInfo) {
  if (returnCode != ui::kAlertAlternateReturn) {
    return;
  }
  listeningTestController->endTest(&sheet);
  const int requested = tabView->indexOfItem(contextInfo);
  if (requested >= 0) {
    tabView->selectItemAtIndex(requested);
  }
}

}  // namespace velk
