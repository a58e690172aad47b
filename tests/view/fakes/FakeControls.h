#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "ui/Controls.h"
#include "ui/Localization.h"
#include "ui/PopUpButton.h"
#include "view/fakes/CallLog.h"

/// Controls without widgets: every write by code is recorded as "<outlet>.<operation> <value>";
/// what a user does is a `user…` operation, which is not recorded and sends the action.
namespace fakes {

/// What all controls share.
template <class Base>
class FakeControl : public Base {
 public:
  FakeControl(CallLog& log, std::string name) : log_(log), name_(std::move(name)) {}

  const std::string& name() const { return name_; }
  /// The control's own action, sent with the control as its sender.
  void setAction(ui::Action action) { action_ = std::move(action); }

  bool isHidden() const override { return hidden_; }
  void setHidden(bool hidden) override {
    record("setHidden ", hidden);
    hidden_ = hidden;
  }
  bool isEnabled() const override { return enabled_; }
  void setEnabled(bool enabled) override {
    record("setEnabled ", enabled);
    enabled_ = enabled;
  }
  ui::Point frameOrigin() const override { return origin_; }
  void setFrameOrigin(ui::Point origin) override {
    record("setFrameOrigin ", origin.x, " ", origin.y);
    origin_ = origin;
  }
  /// As the interface file leaves it; not recorded.
  void layOut(bool hidden, ui::Point origin) {
    hidden_ = hidden;
    origin_ = origin;
  }

 protected:
  template <class... Parts>
  void record(const Parts&... parts) const {
    log_.add(name_, ".", parts...);
  }
  CallLog& callLog() const { return log_; }
  void sendAction(ui::Object* sender) {
    // A copy, since an action may replace itself.
    if (const ui::Action action = action_) {
      action(sender);
    }
  }

 private:
  CallLog& log_;
  std::string name_;
  ui::Action action_;
  bool hidden_ = false;
  bool enabled_ = true;
  ui::Point origin_;
};

using FakeView = FakeControl<ui::View>;

class FakeButton final : public FakeControl<ui::Button> {
 public:
  using FakeControl::FakeControl;

  void setOnOff(bool onOff) { onOff_ = onOff; }
  void setTag(int tag) { tag_ = tag; }
  void userClicks();

  int state() const override { return state_; }
  void setState(int state) override;
  void performClick() override;
  int tag() const override { return tag_; }

 private:
  int state_ = 0;
  bool onOff_ = false;
  int tag_ = 0;
};

class FakeTextField final : public FakeControl<ui::TextField> {
 public:
  FakeTextField(CallLog& log, std::string name, const ui::Localization& localization)
      : FakeControl(log, std::move(name)), localization_(localization) {}

  /// Floats show as a level, "−0.1 dB"; integers plain.
  const std::string& text() const { return text_; }
  /// As the interface file leaves it; not recorded.
  void setInitialText(std::string text) { text_ = std::move(text); }
  const ui::Color& color() const { return color_; }

  void setStringValue(const std::string& text) override;
  void setIntegerValue(std::int64_t value) override;
  void setFloatValue(float value) override;
  void setTextColor(const ui::Color& color) override;

 private:
  const ui::Localization& localization_;
  std::string text_;
  ui::Color color_ = ui::Color::black();
};

class FakeLevelIndicator final : public FakeControl<ui::LevelIndicator> {
 public:
  using FakeControl::FakeControl;
  int intValue() const override { return value_; }
  void setIntValue(int value) override;

 private:
  int value_ = 0;
};

class FakeSegmentedControl final : public FakeControl<ui::SegmentedControl> {
 public:
  using FakeControl::FakeControl;
  void userSelects(int segment);
  int selectedSegment() const override { return segment_; }
  void setSelectedSegment(int segment) override;

 private:
  int segment_ = 0;
};

class FakeSlider final : public FakeControl<ui::Slider> {
 public:
  using FakeControl::FakeControl;
  void userDrags(double position);
  double position() const { return position_; }
  int intValue() const override;
  void setFloatValue(float value) override;

 private:
  double position_ = 0;
};

}  // namespace fakes
