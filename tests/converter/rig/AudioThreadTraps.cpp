#include "AudioThreadTraps.h"

#include <dlfcn.h>
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/futex.h>
#include <linux/seccomp.h>
#include <pthread.h>
#include <semaphore.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <ucontext.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <iterator>

// The C library's own allocator, under the names it provides for programs that replace malloc.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void* memory);
}
// NOLINTEND(bugprone-reserved-identifier)

namespace {

thread_local bool isCounting = false;
thread_local AudioThreadTraps::Counts current;
std::atomic<int> systemCalls{0};

void countSystemCall(int, siginfo_t*, void* context) {
  systemCalls.fetch_add(1);
  static_cast<ucontext_t*>(context)->uc_mcontext.gregs[REG_RAX] = -ENOSYS;
}

template <typename Function>
Function next(const char* name) {
  return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

}  // namespace

AudioThreadTraps::AudioThreadTraps() {
  current = {};
  isCounting = true;
}
AudioThreadTraps::~AudioThreadTraps() {
  isCounting = false;
}
AudioThreadTraps::Counts AudioThreadTraps::counts() const {
  return current;
}

bool trapSystemCalls() {
  struct sigaction action = {};
  action.sa_sigaction = countSystemCall;
  action.sa_flags = SA_SIGINFO;
  if (sigaction(SIGSYS, &action, nullptr) != 0) return false;
  constexpr auto kNumber = offsetof(seccomp_data, nr);
  constexpr auto kOperation = offsetof(seccomp_data, args) + sizeof(__u64);
  const auto load = [](std::size_t offset) {
    return sock_filter BPF_STMT(BPF_LD | BPF_W | BPF_ABS, static_cast<__u32>(offset));
  };
  const auto unlessEqual = [](long value, unsigned char skip) {
    return sock_filter BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<__u32>(value), 0, skip);
  };
  const sock_filter allow BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW);
  const sock_filter trap BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_TRAP);
  const sock_filter onlyOperation BPF_STMT(BPF_ALU | BPF_AND | BPF_K,
                                           static_cast<__u32>(FUTEX_CMD_MASK));
  sock_filter program[] = {
      load(kNumber),
      unlessEqual(SYS_futex, 5),
      load(kOperation),
      onlyOperation,
      unlessEqual(FUTEX_WAKE, 1),
      allow,
      trap,
      unlessEqual(SYS_rt_sigreturn, 1),
      allow,
      unlessEqual(SYS_rt_sigprocmask, 1),
      allow,
      unlessEqual(SYS_madvise, 1),
      allow,
      unlessEqual(SYS_munmap, 1),
      allow,
      unlessEqual(SYS_exit, 1),
      allow,
      unlessEqual(SYS_exit_group, 1),
      allow,
      trap,
  };
  const sock_fprog filter{static_cast<unsigned short>(std::size(program)), program};
  return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
         prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
}

int trappedSystemCalls() {
  return systemCalls.load();
}

extern "C" {

#define TRAP __attribute__((visibility("default")))

TRAP void* malloc(std::size_t size) {
  if (isCounting) ++current.allocations;
  return __libc_malloc(size);
}
TRAP void* calloc(std::size_t count, std::size_t size) {
  if (isCounting) ++current.allocations;
  return __libc_calloc(count, size);
}
TRAP void* realloc(void* memory, std::size_t size) {
  if (isCounting) ++current.allocations;
  return __libc_realloc(memory, size);
}
TRAP void* memalign(std::size_t alignment, std::size_t size) {
  if (isCounting) ++current.allocations;
  return __libc_memalign(alignment, size);
}
TRAP void* aligned_alloc(std::size_t alignment, std::size_t size) {
  if (isCounting) ++current.allocations;
  return __libc_memalign(alignment, size);
}
TRAP int posix_memalign(void** memory, std::size_t alignment, std::size_t size) {
  if (isCounting) ++current.allocations;
  *memory = __libc_memalign(alignment, size);
  return *memory == nullptr ? ENOMEM : 0;
}
TRAP void free(void* memory) {
  if (isCounting) ++current.allocations;
  __libc_free(memory);
}

TRAP int pthread_mutex_lock(pthread_mutex_t* mutex) noexcept {
  static const auto lock = next<int (*)(pthread_mutex_t*)>("pthread_mutex_lock");
  if (isCounting) ++current.locks;
  return lock(mutex);
}
TRAP int pthread_rwlock_rdlock(pthread_rwlock_t* mutex) noexcept {
  static const auto lock = next<int (*)(pthread_rwlock_t*)>("pthread_rwlock_rdlock");
  if (isCounting) ++current.locks;
  return lock(mutex);
}
TRAP int pthread_rwlock_wrlock(pthread_rwlock_t* mutex) noexcept {
  static const auto lock = next<int (*)(pthread_rwlock_t*)>("pthread_rwlock_wrlock");
  if (isCounting) ++current.locks;
  return lock(mutex);
}
TRAP int pthread_mutex_trylock(pthread_mutex_t* mutex) noexcept {
  static const auto lock = next<int (*)(pthread_mutex_t*)>("pthread_mutex_trylock");
  if (isCounting) ++current.locks;
  return lock(mutex);
}
TRAP int pthread_spin_lock(pthread_spinlock_t* spin) noexcept {
  static const auto lock = next<int (*)(pthread_spinlock_t*)>("pthread_spin_lock");
  if (isCounting) ++current.locks;
  return lock(spin);
}
TRAP int pthread_cond_timedwait(pthread_cond_t* condition, pthread_mutex_t* mutex,
                                const timespec* until) {
  static const auto wait =
      next<int (*)(pthread_cond_t*, pthread_mutex_t*, const timespec*)>("pthread_cond_timedwait");
  if (isCounting) ++current.locks;
  return wait(condition, mutex, until);
}
TRAP int pthread_cond_wait(pthread_cond_t* condition, pthread_mutex_t* mutex) {
  static const auto wait = next<int (*)(pthread_cond_t*, pthread_mutex_t*)>("pthread_cond_wait");
  if (isCounting) ++current.locks;
  return wait(condition, mutex);
}
TRAP int sem_wait(sem_t* semaphore) {
  static const auto wait = next<int (*)(sem_t*)>("sem_wait");
  if (isCounting) ++current.waits;
  return wait(semaphore);
}
TRAP int sem_clockwait(sem_t* semaphore, clockid_t clock, const timespec* time) {
  static const auto wait = next<int (*)(sem_t*, clockid_t, const timespec*)>("sem_clockwait");
  if (isCounting) ++current.waits;
  return wait(semaphore, clock, time);
}
TRAP int sem_post(sem_t* semaphore) noexcept {
  static const auto post = next<int (*)(sem_t*)>("sem_post");
  if (isCounting) ++current.wakeUps;
  return post(semaphore);
}
}
