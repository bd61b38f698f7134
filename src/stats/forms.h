// The argument patterns of the functions that make one result of one or two arrays: check, then run.
//
// An operation names its types as vector/forms.h does and brings `of(len, sources..., more...)`, where `more` is the
// scale factor or the hint, if the form has one.
#pragma once
#include "frame/bind.h"
#include "frame/checks.h"
#include "frame/reduce_shape.h"

namespace tav::TAV_VARIANT {

template <class Op, class... More>
TavStatus one_array(const typename Op::src1* src, int len, typename Op::dst* result, More... more) {
  if (const TavStatus bad = check_vector(len, src, result)) return bad;
  poke(result, typename Op::dst(Op::of(size_t(len), src, more...)));
  return tavStatusOk;
}

template <class Op, class... More>
TavStatus two_arrays_to_one(const typename Op::src1* src1, const typename Op::src2* src2, int len,
                            typename Op::dst* result, More... more) {
  if (const TavStatus bad = check_vector(len, src1, src2, result)) return bad;
  poke(result, typename Op::dst(Op::of(size_t(len), src1, src2, more...)));
  return tavStatusOk;
}

}  // namespace tav::TAV_VARIANT
