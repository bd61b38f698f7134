// Calls an export as the least careful caller does, and looks at what it leaves behind.
//
// On 32 bits the stack is aligned to 4 bytes only, at another of the four places each time. Around every call the SSE
// control word (but for its exception flags), the control word of the extended-precision unit and the emptiness of its
// stack must stay as they were.
#pragma once
#include <gtest/gtest.h>
#include <stdint.h>
#include <string.h>
#include <xmmintrin.h>

#include <type_traits>

namespace test {

struct float_state {
  uint32_t sse;
  uint16_t extended, tags;

  static float_state now() {
    struct {
      uint32_t control, status, tags, rest[4];
    } env;
    __asm__ volatile("fnstenv %0\n\tfldenv %0" : "+m"(env));
    return {_mm_getcsr() & ~0x3Fu, uint16_t(env.control), uint16_t(env.tags)};
  }
  bool operator==(const float_state&) const = default;
};

#if defined(__i386__)
extern "C" uint32_t tav_test_call(const void* function, const uint32_t* words, uint32_t count, uint32_t shift);

class argument_words {
 public:
  template <class T> void push(const T& value) {
    static_assert(std::is_trivially_copyable_v<T>);
    uint32_t w[(sizeof(T) + 3) / 4] = {};
    if constexpr (std::is_integral_v<T> && sizeof(T) < 4)
      w[0] = uint32_t(int32_t(value));
    else
      memcpy(w, &value, sizeof value);
    for (uint32_t x : w) words_[count_++] = x;
  }
  template <class R> R call(const void* function) const {
    static thread_local uint32_t shift = 0;
    shift                              = (shift + 4) % 16;
    const uint32_t result              = tav_test_call(function, words_, count_, shift);
    if constexpr (!std::is_void_v<R>) {
      static_assert(sizeof(R) <= 4);
      return R(result);
    }
  }

 private:
  uint32_t words_[32];
  uint32_t count_ = 0;
};

template <class R, class... P> R plain_call(R (*function)(P...), P... args) {
  argument_words words;
  (words.push(args), ...);
  return words.call<R>(reinterpret_cast<const void*>(function));
}
#else
template <class R, class... P> R plain_call(R (*function)(P...), P... args) { return function(args...); }
#endif

template <class R, class... P> R checked_call(R (*function)(P...), std::type_identity_t<P>... args) {
  const float_state before = float_state::now();
  if constexpr (std::is_void_v<R>) {
    plain_call<R, P...>(function, args...);
    EXPECT_TRUE(float_state::now() == before) << "the call left another floating-point mode behind";
  } else {
    const R result = plain_call<R, P...>(function, args...);
    EXPECT_TRUE(float_state::now() == before) << "the call left another floating-point mode behind";
    return result;
  }
}

template <auto* Export, class... A> auto call(A... args) { return checked_call(Export, args...); }

}  // namespace test
