// The engine of the families with a scale factor.
//
// An operation computes exact results and brings its kind of kernel: `scales<Op, With>`, whose none, down and up call
// `with` a scale, and `kernel<Op, Scale>`, which the element-wise shape runs. narrow_scale.h and wide_ops.h hold the
// two kinds, by how wide exact results become. `scaled<Op, Range>` is what the argument patterns run.
#pragma once
#include "vector/forms.h"
#include "vector/scale.h"

namespace tav::TAV_VARIANT {

// In place and not share their kernels: here a source on the destination costs nothing.
template <class D> TAV_INLINE const D*          source(D* dst, self) { return dst; }
template <class D, class S> TAV_INLINE const S* source(D*, const S* src) { return src; }

template <class Op, scale_range Range> struct scaled : Op {
  using dst = typename Op::dst;

  template <class... S> static TavStatus run(int s, dst* to, size_t len, S... src) {
    return start(no_constant{}, s, to, len, source(to, src)...);
  }
  template <class S> static TavStatus run(int s, typename Op::src2 val, dst* to, size_t len, S src) {
    if (s == 0 && keeps<Op>(val)) return copied(to, len, src);
    if (clears<Op>(val)) return shared::zero_bytes(to, len * sizeof(dst));
    return start(val, s, to, len, source(to, src));
  }

 private:
  enum class way { none, down, up };

  struct no_constant {};
  static Op made(no_constant) { return Op{}; }
  static Op made(auto val) { return Op{val}; }

  // Each way is a function of its own, which makes what it keeps in registers from numbers: made outside, it would have
  // to come by memory.
  template <way Way, class C, class... S>
  TAV_APART static TavStatus go(int by, C constant, dst* to, size_t len, const S*... src) {
    const Op   op   = made(constant);
    const auto with = [&]<class Scale>(const Scale& scale) __attribute__((always_inline)) {
      return elementwise(typename Op::template kernel<Op, Scale>{op, scale}, to, len, src...);
    };
    const typename Op::template scales<Op, decltype(with)> scales{with};
    if constexpr (Way == way::none)
      return scales.none();
    else
      return Way == way::down ? scales.down(by) : scales.up(by);
  }

  template <class Go> struct each_way {
    const Go& run;

    TavStatus none() const { return run.template operator()<way::none>(0); }
    TavStatus down(int by) const { return run.template operator()<way::down>(by); }
    TavStatus up(int by) const { return run.template operator()<way::up>(by); }
  };

  template <class C, class... S> static TavStatus start(C constant, int s, dst* to, size_t len, const S*... src) {
    const auto way_of = [&]<way Way>(int by) { return go<Way>(by, constant, to, len, src...); };
    return with_scale<Range>(s, to, len, each_way<decltype(way_of)>{way_of});
  }
};

}  // namespace tav::TAV_VARIANT
