#pragma once

#include <memory>
#include <stdexcept>
#include <string>

#include "ui/Export.h"

namespace ui {

struct Assertion {
  /// Full selector of the operation that failed.
  std::string operation;
  /// The object it failed on; used only as an identity.
  const void* object;
  std::string file;
  int line;
  std::string description;
};

class UI_EXPORT AssertionFailure : public std::logic_error {
 public:
  explicit AssertionFailure(const Assertion& assertion);
  ~AssertionFailure() override;
  const Assertion& assertion() const { return assertion_; }

 private:
  Assertion assertion_;
};

/// Receives programming errors. The default handler logs and throws `AssertionFailure`.
class UI_EXPORT AssertionHandler {
 public:
  virtual ~AssertionHandler();
  virtual void handleFailure(const Assertion& assertion) = 0;

  static AssertionHandler& currentHandler();
  /// Null restores the default. Not owned.
  static void setCurrentHandler(AssertionHandler* handler);
};

}  // namespace ui
