#include "CallTraps.h"

#include <dlfcn.h>
#include <pthread.h>

#include <cstdlib>
#include <new>

#if defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define TRAPS_NO_LOCKS
#endif
#endif
#ifdef __SANITIZE_THREAD__
#define TRAPS_NO_LOCKS
#endif

namespace {

thread_local bool isCounting = false;
thread_local CallTraps::Counts current;

void* allocate(std::size_t size, std::size_t alignment) {
  if (isCounting) ++current.allocations;
  if (size == 0) size = 1;
  void* memory = alignment == 0 ? std::malloc(size)
                                : std::aligned_alloc(
                                      alignment, (size + alignment - 1) / alignment * alignment);
  if (!memory) throw std::bad_alloc();
  return memory;
}

void release(void* memory) noexcept {
  if (isCounting) ++current.frees;
  std::free(memory);
}

}  // namespace

CallTraps::CallTraps() {
  current = {};
  isCounting = true;
}
CallTraps::~CallTraps() {
  isCounting = false;
}
CallTraps::Counts CallTraps::counts() const {
  return current;
}

void* operator new(std::size_t size) {
  return allocate(size, 0);
}
void* operator new[](std::size_t size) {
  return allocate(size, 0);
}
void* operator new(std::size_t size, std::align_val_t alignment) {
  return allocate(size, static_cast<std::size_t>(alignment));
}
void* operator new[](std::size_t size, std::align_val_t alignment) {
  return allocate(size, static_cast<std::size_t>(alignment));
}
void operator delete(void* memory) noexcept {
  release(memory);
}
void operator delete[](void* memory) noexcept {
  release(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  release(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
  release(memory);
}
void operator delete(void* memory, std::align_val_t) noexcept {
  release(memory);
}
void operator delete[](void* memory, std::align_val_t) noexcept {
  release(memory);
}
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept {
  release(memory);
}
void operator delete[](void* memory, std::size_t, std::align_val_t) noexcept {
  release(memory);
}

#ifdef TRAPS_NO_LOCKS
bool CallTraps::trapsLocks() {
  return false;
}
#else
bool CallTraps::trapsLocks() {
  return true;
}

extern "C" __attribute__((visibility("default"))) int pthread_mutex_lock(
    pthread_mutex_t* mutex) noexcept {
  using Lock = int (*)(pthread_mutex_t*);
  static const auto next = reinterpret_cast<Lock>(dlsym(RTLD_NEXT, "pthread_mutex_lock"));
  if (isCounting) ++current.locks;
  return next(mutex);
}
#endif
