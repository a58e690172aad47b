#pragma once

namespace appkit_test {

/// The application object, set up so that it starts the same way everywhere. Make only one, on the
/// main thread.
class Application {
 public:
  Application();
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;
  ~Application();

 private:
  void* pool_;
};

}  // namespace appkit_test
