#pragma once

#include <cstdint>
#include <string>

#include "ui/Color.h"
#include "ui/Geometry.h"
#include "ui/Object.h"

/// The controls that controllers reach through outlets, with just the operations that are used,
/// under AppKit's names. A skin implements each over a widget of its toolkit. Main thread only.
///
/// Setting a value from code never sends the control's action; a user's click, key or
/// `performClick` does, after the control's own state has changed.
namespace ui {

class UI_EXPORT View : public Object {
 public:
  ~View() override;
  virtual bool isHidden() const = 0;
  virtual void setHidden(bool hidden) = 0;
  virtual bool isEnabled() const = 0;
  virtual void setEnabled(bool enabled) = 0;
  /// Lower-left corner in the enclosing view, y upwards.
  virtual Point frameOrigin() const = 0;
  virtual void setFrameOrigin(Point origin) = 0;
};

class UI_EXPORT Button : public View {
 public:
  ~Button() override;
  /// 0 off, 1 on. A push button is always off.
  virtual int state() const = 0;
  virtual void setState(int state) = 0;
  /// Does what a user's click would: an on/off button flips, then the action is sent. A disabled
  /// button does nothing.
  virtual void performClick() = 0;
  virtual int tag() const = 0;
};

class UI_EXPORT TextField : public View {
 public:
  ~TextField() override;
  virtual void setStringValue(const std::string& text) = 0;
  virtual void setIntegerValue(std::int64_t value) = 0;
  /// Shown in the field's own number format.
  virtual void setFloatValue(float value) = 0;
  virtual void setTextColor(const Color& color) = 0;
};

/// A lamp: 0 is dark, 2 means over full scale.
class UI_EXPORT LevelIndicator : public View {
 public:
  ~LevelIndicator() override;
  virtual int intValue() const = 0;
  virtual void setIntValue(int value) = 0;
};

class UI_EXPORT SegmentedControl : public View {
 public:
  ~SegmentedControl() override;
  virtual int selectedSegment() const = 0;
  virtual void setSelectedSegment(int segment) = 0;
};

class UI_EXPORT Slider : public View {
 public:
  ~Slider() override;
  /// The position truncated toward zero.
  virtual int intValue() const = 0;
  virtual void setFloatValue(float value) = 0;
};

}  // namespace ui
