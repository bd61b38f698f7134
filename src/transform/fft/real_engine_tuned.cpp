// The real transform: a complex one of half the length and the recombination behind or before it.
#include "transform/fft/plan.h"
#include "transform/fft/real.h"
#include "transform/fft/recombination.h"

namespace tav::TAV_VARIANT::fft {
namespace {

template <class T> bool     has_factors(const fft_record<T>& r) { return r.order >= plan_of<T>.factors_from; }
template <class T> const T* coarse_table(const fft_record<T>& r) { return r.real_inverse + 2 * fine_bins<T>; }

template <class T> __attribute__((noinline)) void recombine_forward(const fft_record<T>& r, T* z) {
  const size_t half = size_t(1) << (r.order - 1);
  T* const     low  = z + 2;
  T* const     high = z + 2 * (half - lanes<T>);
  const auto   step = [=](size_t k, const T* w) __attribute__((always_inline)) {
      step_of_bins<false, T>(low + 2 * k, high - 2 * k, low + 2 * k, high - 2 * k, w);
  };
  if (!has_factors(r)) return each_listed(r.real_forward, half / 2, step);
  T* const point  = z + half;  // the middle bin: its two factors are rounded, so it is written by itself
  const T  middle = peek(point + 1);
  const T  re     = peek(point);
  each_multiplied<false>(r.real_forward, coarse_table(r), half / 2, step);
  poke(point, re);
  poke(point + 1, -middle);
}

template <class T> __attribute__((noinline)) void recombine_inverse(const fft_record<T>& r, const T* x, T* z) {
  const size_t   half = size_t(1) << (r.order - 1);
  const T* const last = x + 2 * (half - 1 - lanes<T>);
  T *const low = z + 2, *const high = z + 2 * (half - lanes<T>);
  const auto step = [=](size_t k, const T* w) __attribute__((always_inline)) {
    step_of_bins<true>(x + 2 * k, last - 2 * k, low + 2 * k, high - 2 * k, w);
  };
  if (!has_factors(r)) return each_listed(r.real_inverse, half / 2, step);
  const T re = peek(x + half - 2), im = peek(x + half - 1);
  each_multiplied<true>(r.real_inverse, coarse_table(r), half / 2, step);
  poke(z + half, re + re);
  poke(z + half + 1, -(im + im));
}

}  // namespace

template <class T> void run_forward(const fft_record<T>& r, const T* src, T* dst, void* work) {
  if (r.order <= real_direct_to<T>) return run_short_forward(r.order, scale_towards(r, direction::forward), src, dst);
  run_pairs(transform_of(r, direction::forward, r.order - 1, work), src, dst);
  put_real_bins(dst, peek(dst), peek(dst + 1));
  recombine_forward(r, dst);
}

template <class T> void run_inverse(const fft_record<T>& r, const half_spectrum<T>& src, T* dst, void* work) {
  if (r.order <= real_direct_to<T>) return run_short_inverse(r.order, scale_towards(r, direction::inverse), src, dst);
  put_real_bins(dst, src.first, src.middle);
  recombine_inverse(r, src.bins, dst);
  run_pairs(transform_of(r, direction::inverse, r.order - 1, work), dst, dst);
}

TAV_FFT_REAL(, Tav32f)
TAV_FFT_REAL(, Tav64f)

}  // namespace tav::TAV_VARIANT::fft
