#pragma once

#include <QComboBox>

namespace ui::qt {

/// A combo box that behaves like a menu button: closed, it opens on Space and the arrow keys and
/// leaves every other key to the widgets around it, so that no key picks an item by its first
/// letter. The wheel does nothing, and neither does a click on a separator.
class PopUpBox final : public QComboBox {
 public:
  explicit PopUpBox(QWidget* parent = nullptr);

  void showPopup() override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool watchesMenu_ = false;
};

}  // namespace ui::qt
