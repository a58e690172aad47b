#include "ui/AssertionHandler.h"

#include <atomic>

#include "ui/Log.h"

namespace ui {

namespace {

std::string message(const Assertion& assertion) {
  return "Assertion failure in " + assertion.operation + ", " + assertion.file + ":" +
         std::to_string(assertion.line) + ": " + assertion.description;
}

class LoggingAndThrowingHandler final : public AssertionHandler {
 public:
  void handleFailure(const Assertion& assertion) override {
    log(message(assertion));
    throw AssertionFailure(assertion);
  }
};

std::atomic<AssertionHandler*>& handlerInPlaceOfOurs() {
  static std::atomic<AssertionHandler*> handler = nullptr;
  return handler;
}

}  // namespace

AssertionFailure::AssertionFailure(const Assertion& assertion)
    : std::logic_error(message(assertion)), assertion_(assertion) {}

AssertionFailure::~AssertionFailure() = default;

AssertionHandler::~AssertionHandler() = default;

AssertionHandler& AssertionHandler::currentHandler() {
  static LoggingAndThrowingHandler defaultHandler;
  AssertionHandler* const handler = handlerInPlaceOfOurs();
  return handler != nullptr ? *handler : defaultHandler;
}

void AssertionHandler::setCurrentHandler(AssertionHandler* handler) {
  handlerInPlaceOfOurs() = handler;
}

}  // namespace ui
