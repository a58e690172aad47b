#include "skins/qt/ViewServices.h"

#include <utility>

#include "skins/qt/Environment.h"
#include "skins/qt/QtRunLoop.h"
#include "ui/TextFile.h"

namespace ui::qt {

ViewServices::ViewServices(const Environment& environment, QWidget& view,
                           std::function<void()> didCloseSheet)
    : bundle_(environment.resources, environment.languages),
      localization_(makeLocalization(environment.locale)),
      runLoop_(environment.makeRunLoop ? environment.makeRunLoop() : std::make_unique<QtRunLoop>()),
      sheets_(view, std::move(didCloseSheet)),
      helpManager_(bundle_, environment.openUrl),
      toolkit_{*runLoop_, sheets_, helpManager_, bundle_, *localization_, writeMacRoman} {}

}  // namespace ui::qt
