// Scopes that give a kernel the floating-point mode it needs and put the caller's back.
//
// Each reads the thread's control word, changes it only if it differs from what is needed, and restores the word as it
// was, exception flags included. Reading costs a few cycles, changing drains the pipeline: make one scope per call.
#pragma once
#include <stdint.h>
#include <xmmintrin.h>

namespace tav {

// The control word of the SSE unit (MXCSR) with the bits of `Field` set to `Value` while the scope lasts.
template <uint32_t Field, uint32_t Value> class sse_mode {
 public:
  sse_mode() : callers_(_mm_getcsr()), changed_((callers_ & Field) != Value) {
    if (changed_) set((callers_ & ~Field) | Value);
  }
  ~sse_mode() {
    if (changed_) set(callers_);
  }
  sse_mode(const sse_mode&)            = delete;
  sse_mode& operator=(const sse_mode&) = delete;

 private:
  // A barrier for loads and stores, so that no work on memory moves out of the scope.
  static void set(uint32_t word) { __asm__ volatile("ldmxcsr %0" : : "m"(word) : "memory"); }

  uint32_t callers_;
  bool     changed_;
};

namespace sse_bits {
inline constexpr uint32_t rounding = 0x6000, to_nearest = 0x0000, toward_zero = 0x6000, all_masks = 0x1F80;
}

using round_to_nearest  = sse_mode<sse_bits::rounding, sse_bits::to_nearest>;
using round_toward_zero = sse_mode<sse_bits::rounding, sse_bits::toward_zero>;
// For kernels whose exceptions are part of their work: 1 / 0 must not trap in a caller who unmasked it.
using round_to_nearest_masked =
    sse_mode<sse_bits::rounding | sse_bits::all_masks, sse_bits::to_nearest | sse_bits::all_masks>;

// A scope holds back work on memory. A computation on arguments alone has to be held inside: result = held(f(held(x))).
template <class T> inline T held(T v) {
  __asm__ volatile("" : "+x"(v));
  return v;
}

// The same for values of any type, by way of memory.
template <class T> inline T settled(T v) {
  __asm__ volatile("" : "+m"(v));
  return v;
}

// Up to 2^63 - 2^31 in magnitude, rounded once, in the mode of the SSE unit for either word size: in that of a scope,
// if the caller has one. 0 is +0.0 in every mode: neither half is negative zero.
inline double double_of(int64_t v) {
  const int low = int(uint32_t(v)), high = int((v - low) >> 32);
  return held(double(high)) * 0x1p32 + double(low);
}

// The control word of the extended-precision unit: 64-bit precision, to nearest, all exceptions masked.
//
// What it puts back, the caller's environment, includes which registers of the unit are in use. Naming them all keeps
// the compiler from holding a number in one of them across either change.
#define TAV_ALL_OF_THE_UNIT "st", "st(1)", "st(2)", "st(3)", "st(4)", "st(5)", "st(6)", "st(7)"

class extended_mode {
 public:
  extended_mode() {
    uint16_t word;
    __asm__ volatile("fnstcw %0" : "=m"(word));
    changed_ = (word & field) != value;
    if (!changed_) return;
    __asm__ volatile("fnstenv %0" : "=m"(callers_) : : TAV_ALL_OF_THE_UNIT);
    word = uint16_t((word & ~field) | value);
    __asm__ volatile("fldcw %0" : : "m"(word) : "memory");
  }
  ~extended_mode() {
    if (changed_) __asm__ volatile("fldenv %0" : : "m"(callers_) : "memory", TAV_ALL_OF_THE_UNIT);
  }
  extended_mode(const extended_mode&)            = delete;
  extended_mode& operator=(const extended_mode&) = delete;

 private:
  static constexpr uint16_t field = 0x0F3F, value = 0x033F;  // rounding, precision, masks
  struct environment {
    uint32_t words[7];
  };

  environment callers_;  // flags included: one raised here must not trap under the caller's masks
  bool        changed_;
};

#undef TAV_ALL_OF_THE_UNIT

}  // namespace tav
