#pragma once

#include <QAbstractButton>

#include "skins/qt/Adapter.h"

namespace ui::qt {

/// A push button or, if it is checkable, an on/off button or check box. The dynamic property `tag`
/// holds its tag.
class ButtonAdapter final : public Adapter<Button, QAbstractButton>, public ActionSource {
 public:
  explicit ButtonAdapter(QAbstractButton& button);

  int state() const override;
  void setState(int state) override;
  void performClick() override;
  int tag() const override;
  void setAction(Action action) override;

 private:
  Action action_;
};

}  // namespace ui::qt
