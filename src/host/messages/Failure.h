#pragma once

#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

#include "host/messages/Message.h"

namespace host {

/// Something that the program cannot do. The message is one line for the user: it names what went
/// wrong and says what to do about it. `what` gives it in English.
class Failure : public std::runtime_error {
 public:
  explicit Failure(Message message)
      : std::runtime_error(message.english()),
        message_(std::make_shared<const Message>(std::move(message))) {}
  explicit Failure(Message::Words words, std::vector<Message> values = {})
      : Failure(Message(words, std::move(values))) {}

  const Message& message() const { return *message_; }

 private:
  /// Shared, because copying an exception must not throw.
  std::shared_ptr<const Message> message_;
};

/// A command line that makes no sense.
class UsageError : public Failure {
 public:
  using Failure::Failure;
};

}  // namespace host
