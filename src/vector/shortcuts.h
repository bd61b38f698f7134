// Constants that spare the work: an operation may tell that one keeps every element as it is, or makes zeros of all.
#pragma once
#include "frame/registers.h"

namespace tav::TAV_VARIANT {

// Whether a constant is n, both parts of a complex one: -0.0 is 0, too.
template <class T> TAV_INLINE bool equals(T val, int n) {
  if constexpr (requires { val.re; })
    return val.re == n && val.im == 0;
  else
    return val == n;
}

// Whether the operation tells so of a constant.

template <class Op> TAV_INLINE bool keeps(typename Op::src2 val) {
  if constexpr (requires { Op::keeps(val); })
    return Op::keeps(val);
  else
    return false;
}

template <class Op> TAV_INLINE bool clears(typename Op::src2 val) {
  if constexpr (requires { Op::clears(val); })
    return Op::clears(val);
  else
    return false;
}

// How an operation comes to tell it. A zero that clears does so deliberately whatever the source holds: infinities and
// NaNs too.
template <class Op> struct zero_keeps : Op {
  using Op::Op;
  static bool keeps(typename Op::src2 val) { return equals(val, 0); }
};
template <class Op> struct one_keeps : Op {
  using Op::Op;
  static bool keeps(typename Op::src2 val) { return equals(val, 1); }
};
template <class Op> struct zero_clears : Op {
  using Op::Op;
  static bool clears(typename Op::src2 val) { return equals(val, 0); }
};

}  // namespace tav::TAV_VARIANT
