#pragma once

#include <QSize>
#include <filesystem>
#include <memory>

#include "skins/qt/QtView.h"

namespace ui::qt {

/// The widgets of an interface file, not yet connected to anything.
struct Form {
  /// Without a parent; the sheets are windows that belong to it.
  std::unique_ptr<QtView> view;
  /// The size of the view as the file draws it.
  QSize drawnSize;
};

/// Reads the file, gives the widgets the skin's look and takes view and sheets apart. Throws
/// `InterfaceError`, whose message names the fault but not the file.
Form loadForm(const std::filesystem::path& file);

}  // namespace ui::qt
