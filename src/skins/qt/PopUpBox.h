#pragma once

#include <QComboBox>

namespace ui::qt {

/// A combo box that behaves like a menu button. While closed it opens on Space, Up and Down and
/// leaves all other keys to its parents, so that no letter selects an item. The wheel and a click
/// on a separator have no effect.
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
