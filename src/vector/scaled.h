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
    return start(Op{}, s, to, len, source(to, src)...);
  }
  template <class S> static TavStatus run(int s, typename Op::src2 val, dst* to, size_t len, S src) {
    if (s == 0 && keeps<Op>(val)) return copied(to, len, src);
    if (clears<Op>(val)) return shared::zero_bytes(to, len * sizeof(dst));
    return start(Op{val}, s, to, len, source(to, src));
  }

 private:
  template <class... S> static TavStatus start(const Op& op, int s, dst* to, size_t len, const S*... src) {
    const auto with = [&]<class Scale>(const Scale& scale) {
      return elementwise(typename Op::template kernel<Op, Scale>{op, scale}, to, len, src...);
    };
    return with_scale<Range>(s, to, len, typename Op::template scales<Op, decltype(with)>{with});
  }
};

}  // namespace tav::TAV_VARIANT
