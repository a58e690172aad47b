// Key functions of the abstract classes: they give each class a single type record and virtual
// table in the process, without which casts and exceptions would fail between host, bundle and
// skin.

#include <algorithm>
#include <cmath>

#include "ui/AUCocoaUIBase.h"
#include "ui/Controls.h"
#include "ui/CustomView.h"
#include "ui/HelpManager.h"
#include "ui/InterfaceFile.h"
#include "ui/Localization.h"
#include "ui/Object.h"
#include "ui/PopUpButton.h"
#include "ui/RunLoop.h"
#include "ui/Sheets.h"

AUCocoaUIBase::~AUCocoaUIBase() = default;

namespace ui {

Object::~Object() = default;

View::~View() = default;
Button::~Button() = default;
TextField::~TextField() = default;
LevelIndicator::~LevelIndicator() = default;
SegmentedControl::~SegmentedControl() = default;
Slider::~Slider() = default;
MenuItem::~MenuItem() = default;
PopUpButton::~PopUpButton() = default;
Window::~Window() = default;
Sheet::~Sheet() = default;

CustomView::~CustomView() = default;
NativeView::~NativeView() = default;

Timer::~Timer() = default;
Deferred::~Deferred() = default;
RunLoop::~RunLoop() = default;
Sheets::~Sheets() = default;
HelpManager::~HelpManager() = default;
Localization::~Localization() = default;

InterfaceObjects::~InterfaceObjects() = default;
InterfaceLoader::~InterfaceLoader() = default;
InterfaceError::InterfaceError(const std::string& message) : std::runtime_error(message) {}
InterfaceError::~InterfaceError() = default;

bool isEqual(const Dictionary& left, const Dictionary& right) {
  return std::equal(
      left.begin(), left.end(), right.begin(), right.end(), [](const auto& one, const auto& other) {
        return one.first == other.first &&
               (one.second == other.second || (std::isnan(one.second) && std::isnan(other.second)));
      });
}

}  // namespace ui
