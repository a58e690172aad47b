#pragma once

#include <QObject>
#include <QStackedWidget>
#include <QTabWidget>

#include "skins/qt/Adapter.h"
#include "ui/TabView.h"

namespace ui::qt {

/// Pages with tabs (a QTabWidget) or without (a QStackedWidget). The delegate decides on every page
/// change, whether requested by a click, a key, an assistive tool or code.
class TabViewAdapter final : public Adapter<TabView, QWidget> {
 public:
  explicit TabViewAdapter(QTabWidget& tabs);
  explicit TabViewAdapter(QStackedWidget& pages);

  int indexOfSelectedItem() const override;
  void selectItemAtIndex(int index) override;
  void setDelegate(TabViewDelegate* delegate) override;

 private:
  void showPage(int index);
  /// Qt reports the user's choice only after it has changed the page: goes back and asks first.
  void handleUserSelection(int index);

  QTabWidget* tabs_ = nullptr;
  QStackedWidget* pages_ = nullptr;
  TabViewDelegate* delegate_ = nullptr;
  int selected_ = 0;
};

}  // namespace ui::qt
