#pragma once

#include <QSize>
#include <filesystem>
#include <memory>

#include "skins/qt/QtView.h"

namespace ui::qt {

/// The widgets of an interface file, not yet connected to anything.
struct Form {
  /// Has no parent. The sheets are its child windows.
  std::unique_ptr<QtView> view;
  /// The view's size as drawn in the file.
  QSize drawnSize;
};

/// Reads the file, gives the widgets the skin's look and separates the view from the sheets. Throws
/// `InterfaceError`, whose message describes the fault but does not name the file.
Form loadForm(const std::filesystem::path& file);

}  // namespace ui::qt
