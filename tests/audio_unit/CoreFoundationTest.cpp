#include <gtest/gtest.h>

#include <array>
#include <thread>
#include <vector>

#include "audio_unit/CoreFoundation.h"

TEST(CFString, KeepsACopyOfItsCharacters) {
  char characters[] = "Größe";
  const CFStringRef text = CFStringCreateWithUTF8(characters);
  characters[0] = '?';
  EXPECT_STREQ(CFStringGetUTF8Ptr(text), "Größe");
  CFRelease(text);
}

TEST(CFString, LivesUntilTheLastRelease) {
  const CFStringRef text = CFStringCreateWithUTF8("a text too long for any small buffer at all");
  CFRetain(text);
  CFRelease(text);
  EXPECT_STREQ(CFStringGetUTF8Ptr(text), "a text too long for any small buffer at all");
  CFRelease(text);
}

TEST(CFString, IsNullForNull) {
  EXPECT_EQ(CFStringCreateWithUTF8(nullptr), nullptr);
  EXPECT_EQ(CFStringGetUTF8Ptr(nullptr), nullptr);
}

TEST(CFString, CountsReferencesOfManyThreads) {
  const CFStringRef text = CFStringCreateWithUTF8("shared");
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    CFRetain(text);
    threads.emplace_back([text] {
      for (int j = 0; j < 1000; ++j) {
        CFRetain(text);
        EXPECT_EQ(CFStringGetUTF8Ptr(text)[0], 's');
        CFRelease(text);
      }
      CFRelease(text);
    });
  }
  CFRelease(text);
  for (std::thread& thread : threads) thread.join();
}

TEST(CFArray, KeepsACopyOfItsPointers) {
  int first = 1;
  int second = 2;
  std::array<const void*, 2> values{&first, &second};
  const CFArrayRef array = CFArrayCreateWithPointers(values.data(), 2);
  values = {};
  EXPECT_EQ(CFArrayGetCount(array), 2);
  EXPECT_EQ(CFArrayGetValueAtIndex(array, 0), &first);
  EXPECT_EQ(CFArrayGetValueAtIndex(array, 1), &second);
  CFRetain(array);
  CFRelease(array);
  EXPECT_EQ(CFArrayGetCount(array), 2);
  CFRelease(array);
}

TEST(CFArray, HasNothingOutsideItsBounds) {
  const int value = 1;
  const void* pointer = &value;
  const CFArrayRef array = CFArrayCreateWithPointers(&pointer, 1);
  EXPECT_EQ(CFArrayGetValueAtIndex(array, -1), nullptr);
  EXPECT_EQ(CFArrayGetValueAtIndex(array, 1), nullptr);
  EXPECT_EQ(CFArrayGetCount(nullptr), 0);
  EXPECT_EQ(CFArrayGetValueAtIndex(nullptr, 0), nullptr);
  CFRelease(array);
}

TEST(CFArray, MayBeEmptyButMustHaveItsValues) {
  const CFArrayRef empty = CFArrayCreateWithPointers(nullptr, 0);
  EXPECT_NE(empty, nullptr);
  EXPECT_EQ(CFArrayGetCount(empty), 0);
  CFRelease(empty);
  const void* pointer = nullptr;
  EXPECT_EQ(CFArrayCreateWithPointers(nullptr, 1), nullptr);
  EXPECT_EQ(CFArrayCreateWithPointers(&pointer, -1), nullptr);
}

TEST(CFRelease, DoesNothingForNull) {
  CFRetain(CFStringRef{});
  CFRelease(CFStringRef{});
  CFRetain(CFArrayRef{});
  CFRelease(CFArrayRef{});
}

TEST(CFRunLoopCommonModes, IsAText) {
  EXPECT_STREQ(CFStringGetUTF8Ptr(kCFRunLoopCommonModes), "kCFRunLoopCommonModes");
}
