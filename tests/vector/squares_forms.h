// What the tests of magnitudes and of power spectra share: one definition checked on separate parts and on pairs.
#pragma once
#include "harness/faults.h"
#include "harness/forms.h"
#include "harness/scaled.h"
#include "oracle/complex.h"

namespace test {

template <auto* Export, class C, class D, class One>
void on_pairs_of(TavStatus (*)(const C*, D*, int), const One& one) {
  check_layouts<Export, D, C>(
      usual_lengths(), [](D* dst, int len, const C* src) { return call<Export>(src, dst, len); },
      [&](std::vector<D>& dst, const std::vector<C>& src) {
        for (size_t i = 0; i < dst.size(); ++i) dst[i] = one(src[i].re, src[i].im);
        return tavStatusOk;
      });
}
// dst[i] = one(src[i].re, src[i].im)
template <auto* Export, class One> void check_on_pairs(const One& one) { on_pairs_of<Export>(Export, one); }

// The same with a scale factor: one(re, im, s), over layouts, factors and values.
template <auto* Export, class One> void check_scaled_on_pairs(const One& one) {
  check_scaled<Export>([&](auto v, auto, int s) { return one(v.re, v.im, s); });
}
template <auto* Export, class One> void check_scaled_on_parts(const One& one) {
  check_scaled<Export>([&](auto re, auto im, int s) { return one(re, im, s); });
}

// Pairs of words from every corner: all of one part beside a few of the other, and extremes of both.
inline std::vector<Tav16sc> pairs_of_words() {
  source_of_data       data(31);
  std::vector<Tav16sc> v;
  for (Tav16s im : {Tav16s(0), Tav16s(1), Tav16s(-32768), Tav16s(32767), data.value<Tav16s>()})
    for (int re = -32768; re < 32768; ++re) v.push_back({Tav16s(re), im});
  return v;
}

}  // namespace test
