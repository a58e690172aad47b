#pragma once

// VELK_VECTOR_CLONES before a function compiles it a second time for processors with AVX2; the
// choice is made when the program is loaded. Not under sanitizers, because it would be made before
// their run-time library is ready.
#if defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer) || \
    __has_feature(memory_sanitizer)
#define VELK_SANITIZED 1
#endif
#endif
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define VELK_SANITIZED 1
#endif

#if defined(__linux__) && defined(__x86_64__) && !defined(VELK_SANITIZED)
#define VELK_VECTOR_CLONES __attribute__((target_clones("avx2", "default")))
#else
#define VELK_VECTOR_CLONES
#endif
