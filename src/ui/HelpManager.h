#pragma once

#include <string>

#include "ui/Export.h"

namespace ui {

/// Opens help pages of the bundle. Main thread only.
class UI_EXPORT HelpManager {
 public:
  virtual ~HelpManager();
  virtual void openHelpAnchor(const std::string& anchor, const std::string& book) = 0;
};

}  // namespace ui
