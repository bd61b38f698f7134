// The argument patterns of the functions that make a standard deviation of an array of at least two elements.
#pragma once
#include "stats/forms.h"

namespace tav::TAV_VARIANT {

template <class T> struct moments { T mean, std_dev; };

template <class... P> TAV_INLINE TavStatus check_two_or_more(int len, const P*... p) {
  const TavStatus bad = check_vector(len, p...);
  return bad == tavStatusOk && len < 2 ? tavStatusBadSize : bad;
}

// An operation brings `of(len, source, more...)`, as in stats/forms.h.
template <class Op, class... More>
TavStatus deviation(const typename Op::src1* src, int len, typename Op::dst* result, More... more) {
  if (const TavStatus bad = check_two_or_more(len, src, result)) return bad;
  poke(result, Op::of(size_t(len), src, more...));
  return tavStatusOk;
}

// Here of() gives `moments`.
template <class Op, class... More>
TavStatus mean_and_deviation(const typename Op::src1* src, int len, typename Op::dst* mean, typename Op::dst* stdDev,
                             More... more) {
  if (const TavStatus bad = check_two_or_more(len, src, stdDev, mean)) return bad;
  const moments<typename Op::dst> both = Op::of(size_t(len), src, more...);
  poke(mean, both.mean);
  poke(stdDev, both.std_dev);
  return tavStatusOk;
}

}  // namespace tav::TAV_VARIANT
