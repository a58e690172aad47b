#include "view/fakes/FakeToolkit.h"

#include "ui/TextFile.h"

namespace fakes {

FakeToolkit::FakeToolkit(CallLog& log) : FakeToolkit(log, VELK_RESOURCES, "en", "en_US") {}

FakeToolkit::FakeToolkit(CallLog& log, const std::filesystem::path& resources,
                         const std::string& language, const std::string& locale)
    : runLoop(log),
      sheets(log),
      helpManager(log),
      bundle(resources, {language}),
      localization(ui::makeLocalization(locale)),
      services{runLoop, sheets, helpManager, bundle, *localization, ui::writeMacRoman} {}

}  // namespace fakes
