#pragma once

#include <memory>

#include "skins/qt/QtHelpManager.h"
#include "skins/qt/QtSheets.h"
#include "ui/Bundle.h"
#include "ui/Localization.h"
#include "ui/RunLoop.h"
#include "ui/Toolkit.h"

namespace ui::qt {

struct Environment;

/// The services of one view, which must outlive them.
class ViewServices {
 public:
  ViewServices(const Environment& environment, QWidget& view, std::function<void()> didCloseSheet);

  Toolkit& toolkit() { return toolkit_; }
  QtSheets& sheets() { return sheets_; }

 private:
  Bundle bundle_;
  std::unique_ptr<Localization> localization_;
  std::unique_ptr<RunLoop> runLoop_;
  QtSheets sheets_;
  QtHelpManager helpManager_;
  Toolkit toolkit_;
};

}  // namespace ui::qt
