#include <memory>
#include <string_view>
#include <vector>

#include "ui/NotificationCenter.h"
#include "view/keys/KeyLabels.h"
#include "view/main/Velk_AUAACConverterCustomView.h"

/// From a key press to the commands bound to it. Whichever page's controller observes a command
/// acts on it.
namespace velk {

std::string Velk_AUAACConverterCustomView::unicodeStringForKeyCode(std::uint16_t keyCode) {
  return std::string(keyLabel(keyCode));
}

void Velk_AUAACConverterCustomView::keyDown(const ui::KeyEvent& event) {
  const auto binding = keyBindings_.find(keyLabel(event.keyCode));
  if (binding != keyBindings_.end()) {
    // An observer may tear the view down, which clears the table, or destroy the view.
    const std::vector<std::string_view> names = binding->second;
    const std::weak_ptr<const bool> exists = exists_;
    for (const std::string_view name : names) {
      ui::NotificationCenter::defaultCenter().post(name, this);
      if (exists.expired()) {
        return;
      }
    }
  }
  native_.interpretKeyEvents(event);
}

}  // namespace velk
