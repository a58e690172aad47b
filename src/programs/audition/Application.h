#pragma once

#include <QApplication>

namespace host::audition {

/// The toolkit's application. Exceptions from event handlers are reported here and go no further,
/// because the toolkit cannot propagate them.
class Application : public QApplication {
 public:
  using QApplication::QApplication;

  bool notify(QObject* receiver, QEvent* event) override;
};

}  // namespace host::audition
