#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "ui/Controls.h"
#include "ui/PopUpButton.h"
#include "ui/Sheets.h"
#include "ui/TabView.h"

namespace ui {

/// The outlets and actions of one object, by the names that interface files use. The object
/// declares them once; a skin fills the outlets and sends the actions.
class Connections {
 public:
  using Slot = std::variant<View**, Button**, TextField**, LevelIndicator**, SegmentedControl**,
                            Slider**, PopUpButton**, TabView**, Sheet**>;
  struct Outlet {
    std::string name;
    Slot slot;
  };
  struct NamedAction {
    std::string selector;
    Action action;
  };

  /// `slot` stays null until a skin fills it, and must outlive this object.
  template <class Control>
  void addOutlet(std::string name, Control*& slot) {
    outlets_.push_back({std::move(name), Slot(&slot)});
  }
  /// `selector` is the full selector, such as "monitorChanged:".
  void addAction(std::string selector, Action action) {
    actions_.push_back({std::move(selector), std::move(action)});
  }

  const std::vector<Outlet>& outlets() const { return outlets_; }
  const std::vector<NamedAction>& actions() const { return actions_; }

 private:
  std::vector<Outlet> outlets_;
  std::vector<NamedAction> actions_;
};

}  // namespace ui
