#pragma once

#include <QApplication>

namespace host::audition {

/// The toolkit's application. What goes wrong in answer to an event is said and goes no further:
/// the toolkit cannot carry exceptions.
class Application : public QApplication {
 public:
  using QApplication::QApplication;

  bool notify(QObject* receiver, QEvent* event) override;
};

}  // namespace host::audition
