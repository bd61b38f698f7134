// Polar coordinates, beside SLEEF's kernels for 16-byte registers (those within 1.0 units in the last place, and those
// within 3.5), and normalisation. Magnitudes and phases fill the first halves of the source arrays.
#include <emmintrin.h>
#include <sleef.h>

#include "harness.h"
#include "plain_polar.h"

namespace bench {
namespace {

using singles = const arrays<Tav32fc>&;
using doubles = const arrays<Tav64fc>&;
using words   = const arrays<Tav16sc>&;

template <class C> using part = decltype(C::re);
template <class C> part<C>* magn(const arrays<C>& x) { return &x.a->re; }
template <class C> part<C>* phase(const arrays<C>& x) { return &x.b->re; }

// Whole registers from i on; the last elements come as the end of another one.
template <int Lanes, class Many> void each_register(int n, const Many& many) {
  int i = 0;
  for (; i + Lanes <= n; i += Lanes) many(i);
  if (i < n) many(n - Lanes);
}

template <auto Kernel> void sleef(const float* m, const float* p, Tav32fc* dst, int n) {
  each_register<4>(n, [=](int i) {
    const auto   of   = Kernel(_mm_loadu_ps(p + i));
    const __m128 size = _mm_loadu_ps(m + i), re = _mm_mul_ps(size, of.y), im = _mm_mul_ps(size, of.x);
    _mm_storeu_ps(&dst[i].re, _mm_unpacklo_ps(re, im));
    _mm_storeu_ps(&dst[i + 2].re, _mm_unpackhi_ps(re, im));
  });
}

template <auto Kernel> void sleef(const double* m, const double* p, Tav64fc* dst, int n) {
  each_register<2>(n, [=](int i) {
    const auto    of   = Kernel(_mm_loadu_pd(p + i));
    const __m128d size = _mm_loadu_pd(m + i), re = _mm_mul_pd(size, of.y), im = _mm_mul_pd(size, of.x);
    _mm_storeu_pd(&dst[i].re, _mm_unpacklo_pd(re, im));
    _mm_storeu_pd(&dst[i + 1].re, _mm_unpackhi_pd(re, im));
  });
}

constexpr char precise[] = "SLEEF u10", fast[] = "SLEEF u35";

// Phases of some turns either way; none so near to an axis that a part would vanish.
template <class C> void turning(const arrays<C>& x, int n) {
  for (int i = 0; i < n; ++i) {
    magn(x)[i]  = part<C>(1 + i % 113);
    phase(x)[i] = part<C>((i * 37 % 173 - 86) * 0.1 + 0.03);
  }
}

constexpr int fraction = 12;

void turning_words(words x, int n) {
  for (int i = 0; i < n; ++i) {
    magn(x)[i]  = Tav16s(32000 - i % 113);
    phase(x)[i] = Tav16s(int((i * 37 % 173 - 86) * 0.09 * (1 << fraction)) + 77);
  }
}

}  // namespace

BENCH_FAMILY(polar) {
  near_contest<float, Tav32fc>(
      {.name = "PolarToCart_32fc", .bytes = 16, .curve = true}, 1e-6,
      {{ours, [](singles x, int n) { tavsPolarToCart_32fc(magn(x), phase(x), x.out, n); }},
       {loop, [](singles x, int n) { plain::polar_to_cart(magn(x), phase(x), x.out, n); }},
       {precise, [](singles x, int n) { sleef<Sleef_sincosf4_u10sse2>(magn(x), phase(x), x.out, n); }},
       {fast, [](singles x, int n) { sleef<Sleef_sincosf4_u35sse2>(magn(x), phase(x), x.out, n); }}},
      turning<Tav32fc>);
  near_contest<double, Tav64fc>(
      {.name = "PolarToCart_64fc", .bytes = 32}, 1e-14,
      {{ours, [](doubles x, int n) { tavsPolarToCart_64fc(magn(x), phase(x), x.out, n); }},
       {loop, [](doubles x, int n) { plain::polar_to_cart(magn(x), phase(x), x.out, n); }},
       {precise, [](doubles x, int n) { sleef<Sleef_sincosd2_u10sse2>(magn(x), phase(x), x.out, n); }},
       {fast, [](doubles x, int n) { sleef<Sleef_sincosd2_u35sse2>(magn(x), phase(x), x.out, n); }}},
      turning<Tav64fc>);
  near_contest<Tav16s, Tav16sc>(
      {.name = "PolarToCart_16sc", .bytes = 8}, 0.01,
      {{ours, [](words x, int n) { tavsPolarToCart_16sc(magn(x), phase(x), fraction, x.out, n); }},
       {loop, [](words x, int n) { plain::polar_to_cart(magn(x), phase(x), fraction, x.out, n); }}},
      turning_words);
}

BENCH_FAMILY(normalize) {
  contest<Tav32f>({.name = "Normalize_32f", .bytes = 8},
                  {{ours, [](auto& x, int n) { tavsNormalize_32f(x.a, x.out, n, 50, 7); }},
                   {loop, [](auto& x, int n) { plain::normalize(x.a, x.out, n, 50, 7); }}});
}

}  // namespace bench
