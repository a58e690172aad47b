#include <fcntl.h>
#include <gmock/gmock.h>
#include <unistd.h>

#include <atomic>
#include <stdexcept>
#include <string>
#include <thread>

#include "host/messages/QuietCall.h"
#include "ui/TemporaryFolder.h"

using host::callQuietly;

namespace {

/// Catches what the process writes to standard error.
class QuietCall : public testing::Test {
 protected:
  QuietCall() : real_(::dup(STDERR_FILENO)) {
    const int file = ::open(caught_.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    ::dup2(file, STDERR_FILENO);
    ::close(file);
  }
  ~QuietCall() override {
    ::dup2(real_, STDERR_FILENO);
    ::close(real_);
  }

  static void print(const std::string& text) {
    ASSERT_EQ(::write(STDERR_FILENO, text.data(), text.size()), static_cast<ssize_t>(text.size()));
  }
  std::string caught() const { return readBytes(caught_); }

  const TemporaryFolder folder_;
  const std::filesystem::path caught_ = folder_ / "err";
  const int real_;
};

TEST_F(QuietCall, LetsNothingOfTheWorkThrough) {
  callQuietly([] { print("noise\n"); });
  print("words\n");
  EXPECT_EQ(caught(), "words\n");
}

TEST_F(QuietCall, LetsWhatOtherThreadsWriteThrough) {
  std::atomic<bool> isInside{false};
  std::atomic<bool> isWritten{false};
  std::thread other([&] {
    isInside.wait(false);
    print("words\n");
    isWritten = true;
    isWritten.notify_all();
  });
  callQuietly([&] {
    isInside = true;
    isInside.notify_all();
    isWritten.wait(false);
    print("noise\n");
  });
  other.join();
  EXPECT_EQ(caught(), "words\n");
}

TEST_F(QuietCall, LeavesOpenWhatWasOpen) {
  writeBytes(folder_ / "file", "bytes");
  const int file = ::open((folder_ / "file").c_str(), O_RDONLY | O_CLOEXEC);
  char byte = 0;
  callQuietly([&] { EXPECT_EQ(::read(file, &byte, 1), 1); });
  EXPECT_EQ(byte, 'b');
  EXPECT_EQ(::read(file, &byte, 1), 1);
  EXPECT_EQ(byte, 'y');
  EXPECT_EQ(::close(file), 0);
}

TEST_F(QuietCall, ThrowsWhatTheWorkThrows) {
  EXPECT_THROW(callQuietly([] { throw std::invalid_argument("work"); }), std::invalid_argument);
}

}  // namespace
