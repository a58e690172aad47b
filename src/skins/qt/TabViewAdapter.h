#pragma once

#include <QObject>
#include <QStackedWidget>
#include <QTabWidget>

#include "skins/qt/Adapter.h"
#include "ui/TabView.h"

namespace ui::qt {

/// Pages with tabs (a QTabWidget) or without (a QStackedWidget). The delegate has the last word on
/// every change, whether a click, a key, an assistive tool or code asks for it.
class TabViewAdapter final : public Adapter<TabView, QWidget> {
 public:
  explicit TabViewAdapter(QTabWidget& tabs);
  explicit TabViewAdapter(QStackedWidget& pages);

  int indexOfSelectedItem() const override;
  void selectItemAtIndex(int index) override;
  void setDelegate(TabViewDelegate* delegate) override;

 private:
  void showPage(int index);
  /// Qt has changed the page already when it says so: takes that back and asks first.
  void userSelected(int index);

  QTabWidget* tabs_ = nullptr;
  QStackedWidget* pages_ = nullptr;
  TabViewDelegate* delegate_ = nullptr;
  int selected_ = 0;
};

}  // namespace ui::qt
