// Other kernels for filters of eight taps, in turns with the library's: what is left to gain.
// docs/performance/limits.md reads the outcome.
#include <string.h>
#include <tmmintrin.h>

#include <algorithm>

#include "harness.h"

namespace bench {
namespace {

constexpr int   taps    = 8;
constexpr float h[taps] = {0.5f, 0.25f, 0.125f, 0.25f, 0.5f, 0.125f, 0.25f, 0.375f};

// Each tap through a register.
struct alignas(16) repeated_taps {
  float of[4 * taps];
  repeated_taps() {
    for (int i = 0; i < 4 * taps; ++i) of[i] = h[i / 4];
  }
  __m128 operator[](int k) const { return _mm_load_ps(of + 4 * k); }
} const repeated;

// Keeps gcc from loading a value again, and from keeping the taps in more registers than a kernel says.
inline __m128 loaded_once(__m128 v) {
  __asm__ volatile("" : "+x"(v) : : "memory");
  return v;
}

// Four taps in registers, and again the other four, whose results are added.
template <bool First> void pass(const float* x, int first_tap, float* y, int n) {
  __m128 tap[4];
  for (int k = 0; k < 4; ++k) tap[k] = repeated[first_tap + k];
#pragma GCC unroll 2
  for (int i = 0; i < n; i += 4) {
    __m128 sum = _mm_loadu_ps(x + i) * tap[0];
#pragma GCC unroll 4
    for (int k = 1; k < 4; ++k) sum += _mm_loadu_ps(x + i - k) * tap[k];
    _mm_storeu_ps(y + i, First ? sum : _mm_loadu_ps(y + i) + sum);
  }
}
void two_passes(const float* x, float* y, int n) {
  constexpr int piece = 1024;
  for (int i = 0; i < n; i += piece) {
    pass<true>(x + i, 0, y + i, std::min(piece, n - i));
    pass<false>(x + i - 4, 4, y + i, std::min(piece, n - i));
  }
}

// The samples k places before those of a register.
inline __m128 earlier(int k, __m128 now, __m128 before) {
  const __m128i a = _mm_castps_si128(now), b = _mm_castps_si128(before);
  return k == 0 ? now
                : _mm_castsi128_ps(k == 1   ? _mm_alignr_epi8(a, b, 12)
                                   : k == 2 ? _mm_alignr_epi8(a, b, 8)
                                            : _mm_alignr_epi8(a, b, 4));
}

// Samples read for each product, by rounds of Vectors registers.
template <int Vectors> void reading_twice(const float* x, float* y, int n) {
  for (int i = 0; i < n; i += 4 * Vectors) {
    __m128 low[Vectors]{}, high[Vectors]{};
#pragma GCC unroll 8
    for (int k = 0; k < taps; ++k) {
      const __m128 tap = repeated[k];
#pragma GCC unroll 2
      for (int v = 0; v < Vectors; ++v) (k < 4 ? low : high)[v] += _mm_loadu_ps(x + i + 4 * v - k) * tap;
    }
#pragma GCC unroll 2
    for (int v = 0; v < Vectors; ++v) _mm_storeu_ps(y + i + 4 * v, low[v] + high[v]);
  }
}

inline __m128 plus_product(bool first, __m128 sum, __m128 v, __m128 tap) { return first ? v * tap : sum + v * tap; }

// With eight registers one step after the other.
inline __m128 step_done(__m128 sum) { return sizeof(void*) == 4 ? loaded_once(sum) : sum; }

// Samples used twice: what the later taps make of them is carried to the next outputs. Kept: taps in registers.
// Shifted: of two registers of samples, rather than loaded at every offset.
template <int Kept, bool Shifted> void carrying(const float* x, float* y, int n) {
  __m128 tap[taps], carried = _mm_setzero_ps(), before = _mm_loadu_ps(x - 4);
#pragma GCC unroll 8
  for (int k = 0; k < Kept; ++k) tap[k] = repeated[k];
  for (int k = 4; k < taps; ++k) carried += _mm_loadu_ps(x - k) * repeated[k];
#pragma GCC unroll 2
  for (int i = 0; i < n; i += 4) {
    const __m128 now = Shifted ? loaded_once(_mm_loadu_ps(x + i)) : before;
    __m128       low{}, high{};
#pragma GCC unroll 4
    for (int k = 0; k < 4; ++k) {
      const __m128 v = Shifted ? earlier(k, now, before) : loaded_once(_mm_loadu_ps(x + i - k));
      low            = step_done(plus_product(k == 0, low, v, k < Kept ? tap[k] : repeated[k]));
      high           = step_done(plus_product(k == 0, high, v, 4 + k < Kept ? tap[4 + k] : repeated[4 + k]));
    }
    _mm_storeu_ps(y + i, low + carried);
    carried = high, before = now;
  }
}

// Sums in double precision, of even and odd taps apart, four outputs Groups times.
enum class halves { shuffled, loaded };

template <int Groups, halves By> void in_doubles(const float* x, float* y, int n) {
  for (int i = 0; i < n; i += 4 * Groups) {
    __m128d    even[2 * Groups]{}, odd[2 * Groups]{};
    const auto add = [&](__m128d * sums, const float* p, __m128 tap) __attribute__((always_inline)) {
#pragma GCC unroll 2
      for (int g = 0; g < Groups; ++g) {
        if constexpr (By == halves::shuffled) {
          const __m128 product = _mm_loadu_ps(p + 4 * g) * tap;
          sums[2 * g] += _mm_cvtps_pd(product);
          sums[2 * g + 1] += _mm_cvtps_pd(_mm_movehl_ps(product, product));
        } else {
#pragma GCC unroll 2
          for (int half = 0; half < 2; ++half) {
            const __m128d pair = _mm_loaddup_pd(reinterpret_cast<const double*>(p + 4 * g + 2 * half));
            sums[2 * g + half] += _mm_cvtps_pd(_mm_castpd_ps(pair) * tap);
          }
        }
      }
    };
#pragma GCC unroll 1
    for (int k = taps - 1; k > 0; k -= 2) {
      add(even, x + i - k, _mm_set1_ps(h[k]));
      add(odd, x + i - k + 1, _mm_set1_ps(h[k - 1]));
    }
#pragma GCC unroll 2
    for (int g = 0; g < Groups; ++g)
      _mm_storeu_ps(y + i + 4 * g, _mm_movelh_ps(_mm_cvtpd_ps(even[2 * g] + odd[2 * g]),
                                                 _mm_cvtpd_ps(even[2 * g + 1] + odd[2 * g + 1])));
  }
}

// The kernels take whole rounds with the samples before them. The first and the last outputs are plain sums.
template <auto Kernel>
constexpr auto from_rest = [](const arrays<Tav32f>& x, int n) {
  const auto plainly = [&](int from, int to) {
    for (int i = from; i < to; ++i) {
      float sum = 0;
      for (int k = 0; k < taps && k <= i; ++k) sum += x.a[i - k] * h[k];
      x.out[i] = sum;
    }
  };
  const int rounds = (n - taps) / 8 * 8;
  plainly(0, taps);
  Kernel(x.a + taps, x.out + taps, rounds);
  plainly(taps + rounds, n);
};

void library(const arrays<Tav32f>& x, int n) {
  static FIRState_32f* const state = [] {
    FIRState_32f* s = nullptr;
    tavsFIRInitAlloc_32f(&s, h, taps, nullptr);
    return s;
  }();
  tavsFIRSetDlyLine_32f(state, nullptr);
  tavsFIR_32f(x.a, x.out, n, state);
}

void library_direct(const arrays<Tav32f>& x, int n) {
  float ring[2 * taps] = {};
  int   index          = 0;
  tavsFIR_Direct_32f(x.a, x.out, n, h, taps, ring, &index);
}

}  // namespace

BENCH_FAMILY(fir_kernels) {
  near_contest<Tav32f, Tav32f>({.name = "FIR_32f, 8 taps, other kernels", .bytes = 8}, 1e-6,
                               {{ours, library},
                                {"two passes", from_rest<two_passes>},
                                {"samples read twice", from_rest<reading_twice<1>>},
                                {"2 vectors, samples read twice", from_rest<reading_twice<2>>},
                                {"carrying, no taps kept", from_rest<carrying<0, false>>},
                                {"carrying, 3 taps kept", from_rest<carrying<3, false>>},
                                {"carrying, 8 taps kept", from_rest<carrying<8, false>>},
                                {"carrying, windows shifted", from_rest<carrying<3, true>>}});
  near_contest<Tav32f, Tav32f>({.name = "FIR_Direct_32f, 8 taps, other kernels", .bytes = 8}, 1e-6,
                               {{ours, library_direct},
                                {"halves shuffled", from_rest<in_doubles<1, halves::shuffled>>},
                                {"halves loaded", from_rest<in_doubles<1, halves::loaded>>},
                                {"8 outputs, halves shuffled", from_rest<in_doubles<2, halves::shuffled>>},
                                {"8 outputs, halves loaded", from_rest<in_doubles<2, halves::loaded>>}});
}

}  // namespace bench
