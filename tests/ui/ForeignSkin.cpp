#include "ui/ForeignSkin.h"

#include "ui/AssertionHandler.h"
#include "ui/Controls.h"
#include "ui/InterfaceFile.h"
#include "ui/NotificationCenter.h"
#include "ui/Sheets.h"
#include "ui/StringsTable.h"

namespace {

class ForeignButton final : public ui::Button {
 public:
  bool isHidden() const override { return false; }
  void setHidden(bool) override {}
  bool isEnabled() const override { return true; }
  void setEnabled(bool) override {}
  ui::Point frameOrigin() const override { return {}; }
  void setFrameOrigin(ui::Point) override {}
  int state() const override { return 0; }
  void setState(int) override {}
  void performClick() override {}
  int tag() const override { return 1000; }
};

class ForeignSheet final : public ui::Sheet {};

}  // namespace

extern "C" {

UI_EXPORT ui::Object* makeForeignButton() {
  return new ForeignButton;
}
UI_EXPORT ui::Object* makeForeignSheet() {
  return new ForeignSheet;
}

UI_EXPORT void throwForeignAssertion() {
  throw ui::AssertionFailure({"operation", nullptr, "file", 90, "foreign"});
}
UI_EXPORT void throwForeignInterfaceError() {
  throw ui::InterfaceError("no such outlet");
}
UI_EXPORT void throwForeignTableError() {
  throw ui::StringsTableError(7, "a semicolon is missing");
}

UI_EXPORT ui::NotificationCenter* foreignDefaultCenter() {
  return &ui::NotificationCenter::defaultCenter();
}

}  // extern "C"
