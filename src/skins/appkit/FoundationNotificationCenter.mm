#include "skins/appkit/FoundationNotificationCenter.h"

#include <exception>
#include <map>
#include <utility>
#include <vector>

#include "skins/appkit/ActionTarget.h"
#include "skins/appkit/Strings.h"

using Deliver = std::function<void(const ui::Notification&)>;

namespace ui::appkit {

namespace {

/// Maps the core's objects to their native representatives and back.
class Representatives {
 public:
  void set(const void* object, id native) {
    tokens_.erase(object);
    if (native != nil) {
      natives_[object] = native;
    } else {
      natives_.erase(object);
    }
  }

  id native(const void* object) {
    if (object == nullptr) {
      return nil;
    }
    const auto found = natives_.find(object);
    if (found != natives_.end()) {
      return found->second;
    }
    // Observers compare identities, so there must be only one per object.
    auto& token = tokens_[object];
    if (token.get() == nil) {
      token = Retained<id>([NSValue valueWithPointer:object]);
    }
    return token.get();
  }

  const void* object(id native) const {
    for (const auto& [object, representative] : natives_) {
      if (representative == native) {
        return object;
      }
    }
    return [native isKindOfClass:[NSValue class]] ? [native pointerValue] : nullptr;
  }

 private:
  std::map<const void*, id> natives_;
  std::map<const void*, Retained<id>> tokens_;
};

Representatives& representatives() {
  // Never destroyed: views may outlive every static object.
  static Representatives& all = *new Representatives;
  return all;
}

/// Where the innermost `post` keeps what an observer throws, because a C++ exception must not pass
/// through Foundation. Null outside `post`: a host may post directly to NSNotificationCenter.
std::exception_ptr*& failure() {
  static std::exception_ptr* exception = nullptr;
  return exception;
}

/// Catches what is thrown during one `post`.
class Failure {
 public:
  Failure() : outer_(std::exchange(failure(), &thrown_)) {}
  Failure(const Failure&) = delete;
  Failure& operator=(const Failure&) = delete;
  ~Failure() { failure() = outer_; }

  const std::exception_ptr& thrown() const { return thrown_; }

 private:
  std::exception_ptr thrown_;
  std::exception_ptr* outer_;
};

/// Keeps what the observer throws for the current `post`; without one the exception propagates.
void receive(NSNotification* notification, const Deliver& deliver) {
  std::exception_ptr* const kept = failure();
  if (kept != nullptr && *kept) {
    return;
  }
  try {
    const std::string name = utf8([notification name]);
    deliver({name, representatives().object([notification object])});
  } catch (...) {
    if (kept == nullptr) {
      throw;
    }
    *kept = std::current_exception();
  }
}

}  // namespace

void representObject(const void* object, id native) {
  representatives().set(object, native);
}

id nativeObject(const void* object) {
  return representatives().native(object);
}

class FoundationNotificationCenter::Observers {
 public:
  // Shared, so that `removeObserver` can erase them before it unregisters them.
  std::multimap<const void*, std::shared_ptr<OwnedTarget>> registrations;
};

FoundationNotificationCenter::FoundationNotificationCenter()
    : observers_(std::make_unique<Observers>()) {}

FoundationNotificationCenter::~FoundationNotificationCenter() = default;

void FoundationNotificationCenter::addObserver(const void* observer, std::string_view name,
                                               const void* object, Deliver deliver) {
  auto target = std::make_shared<OwnedTarget>([deliver = std::move(deliver)](id notification) {
    receive(static_cast<NSNotification*>(notification), deliver);
  });
  [[NSNotificationCenter defaultCenter] addObserver:target->get()
                                           selector:@selector(perform:)
                                               name:nsString(name)
                                             object:nativeObject(object)];
  observers_->registrations.emplace(observer, std::move(target));
}

void FoundationNotificationCenter::removeObserver(const void* observer) {
  std::vector<std::shared_ptr<OwnedTarget>> removed;
  const auto [first, last] = observers_->registrations.equal_range(observer);
  for (auto next = first; next != last; ++next) {
    removed.push_back(next->second);
  }
  observers_->registrations.erase(first, last);
  for (const auto& target : removed) {
    [[NSNotificationCenter defaultCenter] removeObserver:target->get()];
  }
}

void FoundationNotificationCenter::post(std::string_view name, const void* object) {
  const Failure failure;
  [[NSNotificationCenter defaultCenter] postNotificationName:nsString(name)
                                                      object:nativeObject(object)];
  if (failure.thrown()) {
    std::rethrow_exception(failure.thrown());
  }
}

}  // namespace ui::appkit
