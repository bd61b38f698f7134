// The cascades, for each type of arithmetic.
#include "filter/iir/biquad_run.h"

namespace tav::TAV_VARIANT::iir {

template <class A> void run_cascade(const cascade<A>& c, const A* src, A* dst, size_t n) {
  run_from<transposed_form>(c, 0, src, dst, n);
}

template <class A> void run_cascade_df1(const cascade<A>& c, const A* src, A* dst, size_t n) {
  run_from<direct_form>(c, 0, src, dst, n);
}

template <class A> A run_sample(const cascade<A>& c, A x) {
  const A* taps = c.taps;
  A*       d    = c.delay;
  for (int s = 0; s < c.sections; ++s, taps += section_taps, d += transposed_entries) x = section_sample(taps, d, x);
  return x;
}

template <class A> void run_one_by_one(const cascade<A>& c, const A* src, A* dst, size_t n) {
  for (size_t i = 0; i < n; ++i) poke(dst + i, run_sample(c, peek(src + i)));
}

void run_two_cascades(const channels<Tav32f, 2>& data, size_t n) { run_pair<transposed_form>(data, n); }
void run_two_cascades_df1(const channels<Tav32f, 2>& data, size_t n) { run_pair<direct_form>(data, n); }

template <class A> void make_section(const cascade<A>& c, int section, const A* normalised) {
  A* const taps = c.taps + section_taps * size_t(section);
  for (int k = 0; k < section_taps; ++k) taps[k] = normalised[k];
  make_rows(c.rows[section], taps);
}

template <class A> TavStatus set_sections(const cascade<A>& c, const A* taps) {
  for (int s = 0; s < c.sections; ++s, taps += section_taps_given) {
    enum { b0, b1, b2, a0, a1, a2 };
    if (is_zero(peek(taps + b0)) || is_zero(peek(taps + a0))) return tavStatusDivideByZero;
    const A    by                       = reciprocal(peek(taps + a0));
    const auto given                    = [&](int k) { return times(peek(taps + k), by); };
    const A    normalised[section_taps] = {given(b0), given(b1), given(b2), given(a1), given(a2)};
    make_section(c, s, normalised);
  }
  return tavStatusOk;
}

TAV_IIR_CASCADES(, Tav32f)
TAV_IIR_CASCADES(, Tav32fc)
TAV_IIR_CASCADES(, Tav64f)
TAV_IIR_CASCADES(, Tav64fc)
template void run_cascade_df1(const cascade<Tav32f>&, const Tav32f*, Tav32f*, size_t);
template void run_cascade_df1(const cascade<Tav64f>&, const Tav64f*, Tav64f*, size_t);

}  // namespace tav::TAV_VARIANT::iir
