#include "ui/HelpManager.h"
#include "view/main/Velk_AUAACConverterCustomView.h"

namespace velk {

namespace {

constexpr int kAuditionHelpTag = 1000;
constexpr int kListeningTestHelpTag = 1001;
constexpr const char* kHelpBook = "Velk_NordaAACConverter";

}  // namespace

void Velk_AUAACConverterCustomView::showHelp(ui::Object* sender) {
  const auto* button = dynamic_cast<ui::Button*>(sender);
  if (button == nullptr) {
    return;
  }
  if (button->tag() == kAuditionHelpTag) {
    toolkit_.helpManager.openHelpAnchor("audition", kHelpBook);
  } else if (button->tag() == kListeningTestHelpTag) {
    toolkit_.helpManager.openHelpAnchor("listening-test", kHelpBook);
  }
}

}  // namespace velk
