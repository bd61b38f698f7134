// What all of tavsThreshold_* share: the argument patterns, the checks in their order, and the selection of lanes.
//
// An operation tells its `element`, the `arguments` behind the length, the `mode` of the processor it runs in and what
// it refuses (`check`). Only `many` is written: the scalar parts run it on an element repeated through a register.
#pragma once
#include "frame/rounding.h"
#include "vector/arithmetic_ops.h"

namespace tav::TAV_VARIANT::thresholds {

// On which side of the level an element fails.
enum class side { below, above };
inline constexpr side below = side::below, above = side::above;

template <class... A> struct given {};

struct callers_mode {};
// Lanes whose result is not taken may divide by zero.
using callers_mode_masked = sse_mode<sse_bits::all_masks, sse_bits::all_masks>;

// Elements are compared as they are, with any level.
template <class T, class... A> struct on_values {
  using element   = T;
  using arguments = given<A...>;
  using mode      = callers_mode;
  static TavStatus check(A...) { return tavStatusOk; }
};

// Magnitudes are compared, with a level that is not negative. -0.0 and NaNs are not; before a NaN no element fails.
template <class T, class Mode, class Level, class... A> struct on_magnitudes {
  using element   = T;
  using arguments = given<Level, A...>;
  using mode      = Mode;
  static TavStatus check(Level level, A...) { return level < 0 ? tavStatusNegativeLevel : tavStatusOk; }
};

template <class T, int N> TAV_INLINE group<T, N> filled_with(T x) {
  if constexpr (group_of<T, N>::registers > 1) {
    group<T, N> all;
    for (auto& r : all.r) r = from_bits<T>(repeated(x));
    return all;
  } else {
    return from_bits<T>(repeated(x));
  }
}

template <class T, class R> TAV_INLINE T first_of(R v) {
  const __m128i bits = as_bits(v);
  T             x;
  if constexpr (sizeof(T) == 16) {
    store_bits<access::unaligned>(&x, bits);
  } else if constexpr (sizeof(T) == 8) {
    _mm_storel_epi64(reinterpret_cast<__m128i*>(&x), bits);
  } else {
    const int word = _mm_cvtsi128_si32(bits);
    __builtin_memcpy(&x, &word, sizeof x);
  }
  return x;
}
template <class T, class R, int K> TAV_INLINE T first_of(several<R, K> v) { return first_of<T>(v.r[0]); }

template <class Op> struct kernel : Op {
  using Op::Op;
  using T = typename Op::element;

  TAV_INLINE T one(T x) { return first_of<T>(this->many(filled_with<T, step_of<Op, T>>(x))); }
};

template <class Op, class D, class S, class... A> TavStatus run(D* dst, size_t len, S src, A... args) {
  if (const TavStatus bad = Op::check(args...)) return bad;
  if constexpr (requires { Op::run(dst, len, src, args...); }) {
    return Op::run(dst, len, src, args...);
  } else {
    [[maybe_unused]] const typename Op::mode mode;
    return elementwise(kernel<Op>(args...), dst, len, src);
  }
}

template <class Op, class Arguments = typename Op::arguments> struct threshold;

template <class Op, class... A> struct threshold<Op, given<A...>> {
  using T = typename Op::element;

  static TavStatus apart(const T* src, T* dst, int len, A... args) {
    if (const TavStatus bad = check_vector(len, src, dst)) return bad;
    return thresholds::run<Op>(dst, size_t(len), src, args...);
  }
  static TavStatus in_place(T* srcDst, int len, A... args) {
    if (const TavStatus bad = check_vector(len, srcDst)) return bad;
    return thresholds::run<Op>(srcDst, size_t(len), self{}, args...);
  }
};

// The side is an argument, which is looked at before the level.
template <template <class, side> class Op, class T, class Arguments = typename Op<T, below>::arguments>
struct on_either_side;

template <template <class, side> class Op, class T, class Level> struct on_either_side<Op, T, given<Level>> {
  using element   = T;
  using arguments = given<Level, int>;

  static constexpr int less = 0, greater = 4;

  static TavStatus check(Level, int relation) {
    return relation == less || relation == greater ? tavStatusOk : tavStatusBadArgument;
  }
  template <class S> static TavStatus run(T* dst, size_t len, S src, Level level, int relation) {
    return relation == less ? thresholds::run<Op<T, below>>(dst, len, src, level)
                            : thresholds::run<Op<T, above>>(dst, len, src, level);
  }
};

}  // namespace tav::TAV_VARIANT::thresholds
