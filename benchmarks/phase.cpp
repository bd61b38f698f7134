// Angles, beside SLEEF's kernels for 16-byte registers: those within 1.0 units in the last place, and those within 3.5.
#include <emmintrin.h>
#include <sleef.h>

#include "harness.h"
#include "plain_phase.h"

namespace bench {
namespace {

// Runs many(i) for whole registers of `Lanes` points from i on, and the last points as the end of another register.
template <int Lanes, class Many> void each_register(int n, const Many& many) {
  int i = 0;
  for (; i + Lanes <= n; i += Lanes) many(i);
  if (i < n) many(n - Lanes);
}

template <auto Kernel> void sleef(const float* re, const float* im, float* dst, int n) {
  each_register<4>(n, [=](int i) { _mm_storeu_ps(dst + i, Kernel(_mm_loadu_ps(im + i), _mm_loadu_ps(re + i))); });
}

template <auto Kernel> void sleef(const Tav32fc* src, float* dst, int n) {
  each_register<4>(n, [=](int i) {
    const __m128 a = _mm_loadu_ps(&src[i].re), b = _mm_loadu_ps(&src[i + 2].re);
    _mm_storeu_ps(dst + i,
                  Kernel(_mm_shuffle_ps(a, b, _MM_SHUFFLE(3, 1, 3, 1)), _mm_shuffle_ps(a, b, _MM_SHUFFLE(2, 0, 2, 0))));
  });
}

template <auto Kernel> void sleef(const Tav64fc* src, double* dst, int n) {
  each_register<2>(n, [=](int i) {
    const __m128d a = _mm_loadu_pd(&src[i].re), b = _mm_loadu_pd(&src[i + 1].re);
    _mm_storeu_pd(dst + i, Kernel(_mm_unpackhi_pd(a, b), _mm_unpacklo_pd(a, b)));
  });
}

template <auto Kernel> void sleef(const Tav16sc* src, Tav16s* dst, int n, float units) {
  each_register<4>(n, [=](int i) {
    const __m128i pairs  = _mm_loadu_si128(reinterpret_cast<const __m128i*>(src + i));
    const __m128  re     = _mm_cvtepi32_ps(_mm_srai_epi32(_mm_slli_epi32(pairs, 16), 16)),
                 im      = _mm_cvtepi32_ps(_mm_srai_epi32(pairs, 16));
    const __m128i angles = _mm_cvtps_epi32(_mm_mul_ps(Kernel(im, re), _mm_set1_ps(units)));
    _mm_storel_epi64(reinterpret_cast<__m128i*>(dst + i), _mm_packs_epi32(angles, angles));
  });
}

constexpr char precise[] = "SLEEF u10", fast[] = "SLEEF u35";

// All quadrants and slopes.
template <class T> void around(const arrays<T>& x, int n) {
  const auto part = [](int v) { return v % 173 - 86; };
  for (int i = 0; i < n; ++i) {
    if constexpr (requires { x.a->re; })
      x.a[i] = {decltype(T::re)(part(i * 7)), decltype(T::re)(part(i * 11 + 3))};
    else
      x.a[i] = T(part(i * 7)), x.b[i] = T(part(i * 11 + 3));
  }
}

template <class F, class C> F* angles(const arrays<C>& x) { return reinterpret_cast<F*>(x.out); }

}  // namespace

BENCH_FAMILY(phase) {
  near_contest<Tav32f, Tav32f>({.name = "Phase_32f", .bytes = 12}, 1e-6,
                               {{ours, [](auto& x, int n) { tavsPhase_32f(x.a, x.b, x.out, n); }},
                                {loop, [](auto& x, int n) { plain::phase(x.a, x.b, x.out, n); }},
                                {precise, [](auto& x, int n) { sleef<Sleef_atan2f4_u10sse2>(x.a, x.b, x.out, n); }},
                                {fast, [](auto& x, int n) { sleef<Sleef_atan2f4_u35sse2>(x.a, x.b, x.out, n); }}},
                               around);
  near_contest<Tav32f, Tav32fc>(
      {.name = "Phase_32fc", .bytes = 12, .curve = true}, 1e-6,
      {{ours, [](auto& x, int n) { tavsPhase_32fc(x.a, angles<Tav32f>(x), n); }},
       {loop, [](auto& x, int n) { plain::phase(x.a, angles<Tav32f>(x), n); }},
       {precise, [](auto& x, int n) { sleef<Sleef_atan2f4_u10sse2>(x.a, angles<Tav32f>(x), n); }},
       {fast, [](auto& x, int n) { sleef<Sleef_atan2f4_u35sse2>(x.a, angles<Tav32f>(x), n); }}},
      around);
  near_contest<Tav64f, Tav64fc>(
      {.name = "Phase_64fc", .bytes = 24}, 1e-15,
      {{ours, [](auto& x, int n) { tavsPhase_64fc(x.a, angles<Tav64f>(x), n); }},
       {loop, [](auto& x, int n) { plain::phase(x.a, angles<Tav64f>(x), n); }},
       {precise, [](auto& x, int n) { sleef<Sleef_atan2d2_u10sse2>(x.a, angles<Tav64f>(x), n); }},
       {fast, [](auto& x, int n) { sleef<Sleef_atan2d2_u35sse2>(x.a, angles<Tav64f>(x), n); }}},
      around);
  near_contest<Tav16s, Tav16sc>(
      {.name = "Phase_16sc_Sfs, factor -13", .bytes = 6}, 1e-3,
      {{ours, [](auto& x, int n) { tavsPhase_16sc_Sfs(x.a, angles<Tav16s>(x), n, -13); }},
       {loop, [](auto& x, int n) { plain::phase_scaled(x.a, angles<Tav16s>(x), n, -13); }},
       {precise, [](auto& x, int n) { sleef<Sleef_atan2f4_u10sse2>(x.a, angles<Tav16s>(x), n, 0x1p13f); }},
       {fast, [](auto& x, int n) { sleef<Sleef_atan2f4_u35sse2>(x.a, angles<Tav16s>(x), n, 0x1p13f); }}},
      around);
}

}  // namespace bench
