// Scaled functions whose results have 32 bits: an operation makes exact numbers of its sources (`exact`), a scale
// brings them back, and a kernel is the two together.
#pragma once
#include "vector/forms.h"
#include "vector/move_forms.h"
#include "vector/scale.h"
#include "vector/wide_lanes.h"

namespace tav::TAV_VARIANT {

inline constexpr kernel_shape wide_shape{.vector_from = 7, .round_bytes = 16};

template <class T> TAV_INLINE __m128i in_a_lane(T v) { return load_low<sizeof(T)>(&v); }
template <class T> TAV_INLINE T       from_a_lane(__m128i v) {
        T one;
        if constexpr (sizeof(T) == 8) {
          _mm_storel_epi64(reinterpret_cast<__m128i*>(&one), v);
  } else {
          const int word = _mm_cvtsi128_si32(v);
          __builtin_memcpy(&one, &word, sizeof one);
  }
        return one;
}

// The scalar parts use the first lanes of a register: there is no narrower way to be exact that were faster.
template <class Op, class Scale> struct scaled_kernel {
  static constexpr kernel_shape shape = wide_shape;

  Scale scale;

  template <class... S> typename Op::dst one(S... s) const {
    return from_a_lane<typename Op::dst>(many(in_a_lane(s)...));
  }
  template <class... R> __m128i many(R... r) const { return scale.of(Op::exact(r...)); }
};

// The constant is the last source of the operation.
template <class Op, class Scale> struct constant_kernel {
  static constexpr kernel_shape shape = wide_shape;

  Scale   scale;
  __m128i val;

  typename Op::dst one(typename Op::src1 a) const { return from_a_lane<typename Op::dst>(many(in_a_lane(a))); }
  __m128i          many(__m128i a) const { return scale.of(Op::exact(a, val)); }
};

// Runs `with` one of the scales of the exact number X.
template <class X, class With> struct each_scale {
  const With& with;

  TavStatus none() const { return with(unscaled{}); }
  TavStatus up(int by) const { return with(scaled_up(by)); }
  TavStatus down(int s) const {
    if constexpr (std::is_same_v<X, exact_sum>)
      if (s == 1) return with(halved{});
    return with(scaled_down<X>(s));
  }
};

template <scale_range Range, class X, class D, class With>
TAV_INLINE TavStatus with_scale_of(int s, D* dst, size_t len, const With& with) {
  return with_scale<Range>(s, dst, len, each_scale<X, With>{with});
}

// In place and not share their kernels: here a source on the destination costs nothing.
template <class D> TAV_INLINE const D*          source(D* dst, self) { return dst; }
template <class D, class S> TAV_INLINE const S* source(D*, const S* src) { return src; }

// An operation on arrays: `Op` says what is exact, and from where to where.
template <class Op, scale_range Range> struct scaled : Op {
  template <class... S> static TavStatus run(int s, typename Op::dst* dst, size_t len, S... src) {
    return run_on(s, dst, len, source(dst, src)...);
  }

 private:
  template <class... S> static TavStatus run_on(int s, typename Op::dst* dst, size_t len, const S*... src) {
    using exact = decltype(Op::exact(((void)src, __m128i{})...));
    return with_scale_of<Range, exact>(s, dst, len, [&](auto scale) {
      return elementwise(scaled_kernel<Op, decltype(scale)>{scale}, dst, len, src...);
    });
  }
};

// What a constant can make superfluous.
enum class shortcut { none, zero_adds_nothing, one_changes_nothing };

template <class Op, scale_range Range, shortcut Shortcut> struct scaled_by_constant : Op {
  using D = typename Op::dst;

  template <class S> static TavStatus run(int s, D val, D* dst, size_t len, S src) {
    constexpr bool product = Shortcut == shortcut::one_changes_nothing;
    if (Shortcut != shortcut::none && s == 0 && equals(val, product ? 1 : 0)) return copied(dst, len, src);
    if (product && equals(val, 0)) return shared::zero_bytes(dst, len * sizeof(D));
    return run_on(s, val, dst, len, source(dst, src));
  }

 private:
  static TavStatus run_on(int s, D val, D* dst, size_t len, const D* src) {
    using exact = decltype(Op::exact(__m128i{}, __m128i{}));
    return with_scale_of<Range, exact>(s, dst, len, [&](auto scale) {
      return elementwise(constant_kernel<Op, decltype(scale)>{scale, repeated(val)}, dst, len, src);
    });
  }
};

}  // namespace tav::TAV_VARIANT
