#pragma once

#include <QWidget>
#include <functional>
#include <utility>

#include "ui/CustomView.h"

/// A view that takes any size and paints nothing.
class PlainView : public QWidget, public ui::NativeView {
 public:
  explicit PlainView(std::function<void()> destroyed = {}) : destroyed_(std::move(destroyed)) {
    setFocusPolicy(Qt::StrongFocus);
    setFixedSize(560, 195);
  }
  ~PlainView() override {
    if (destroyed_) destroyed_();
  }

  void setFrameSize(ui::Size size) override { applyFrameSize(size); }
  void setFrameSizeObserver(std::function<void(ui::Size)> observer) override {
    observer_ = std::move(observer);
  }
  ui::Size frameSize() const override {
    return {static_cast<double>(width()), static_cast<double>(height())};
  }
  void applyFrameSize(ui::Size size) override {
    setFixedSize(static_cast<int>(size.width), static_cast<int>(size.height));
    if (observer_) observer_(size);
  }
  bool hasWindow() const override { return window() != this; }
  void makeFirstResponder() override { setFocus(); }
  void interpretKeyEvents(const ui::KeyEvent& /*event*/) override {}

 private:
  std::function<void()> destroyed_;
  std::function<void(ui::Size)> observer_;
};
