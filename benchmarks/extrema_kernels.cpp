// Other kernels for extrema whose plain loops are vectors already: what is left to gain. An extreme of 16 bits is one
// load and one instruction for each vector, so two vectors a cycle are the most that the loads allow. Of 32 bits it is
// six instructions without SSE4.1, and six are what the processor starts in a cycle.
#include <tmmintrin.h>

#include "harness.h"

namespace bench {
namespace {

struct smallest_16s {
  using type = Tav16s;
  static __m128i of(__m128i best, __m128i x) { return _mm_min_epi16(best, x); }
  static bool    beats(type a, type b) { return a < b; }
};

struct largest_32s {  // by logic
  using type = Tav32s;
  static __m128i of(__m128i best, __m128i x) {
    const __m128i kept = _mm_cmpgt_epi32(best, x);
    return _mm_or_si128(_mm_and_si128(kept, best), _mm_andnot_si128(kept, x));
  }
  static bool beats(type a, type b) { return a > b; }
};

struct largest_32s_by_difference : largest_32s {
  static __m128i of(__m128i best, __m128i x) {
    return _mm_xor_si128(best, _mm_and_si128(_mm_xor_si128(x, best), _mm_cmpgt_epi32(x, best)));
  }
};

template <class T> const __m128i* vectors(const T* p) { return reinterpret_cast<const __m128i*>(p); }

// The best of some vectors and of the elements behind the last round. A part of its caller, or else the vectors would
// have to live in memory.
template <class Op, int Count, class T>
inline __attribute__((always_inline)) void finish(const __m128i (&best)[Count], const T* rest, const T* end,
                                                  T* result) {
  T lanes[Count * 16 / sizeof(T)];
  __builtin_memcpy(lanes, best, sizeof lanes);
  T found = lanes[0];
  for (T lane : lanes) found = Op::beats(lane, found) ? lane : found;
  for (; rest != end; ++rest) found = Op::beats(*rest, found) ? *rest : found;
  *result = found;
}

enum class loads { unaligned, aligned };  // aligned ones may be operands of instructions

template <class Op, int Partials, loads Loads> void kernel(const arrays<typename Op::type>& x, int n) {
  constexpr int round = Partials * int(16 / sizeof(typename Op::type));
  __m128i       best[Partials];
  for (int k = 0; k < Partials; ++k) best[k] = _mm_load_si128(vectors(x.a));
  int i = 0;
  for (; i + round <= n; i += round)
#pragma GCC unroll 8
    for (int k = 0; k < Partials; ++k) {
      const __m128i* const p = vectors(x.a + i) + k;
      best[k]                = Op::of(best[k], Loads == loads::aligned ? _mm_load_si128(p) : _mm_loadu_si128(p));
    }
  finish<Op>(best, x.a + i, x.a + n, x.out);
}

// Four vectors are compared with the best; only where one beats it in a lane are they looked at again.
void skipping_32s(const arrays<Tav32s>& x, int n) {
  __m128i best[] = {_mm_load_si128(vectors(x.a))};
  int     i      = 0;
  for (; i + 16 <= n; i += 16) {
    const __m128i* const p     = vectors(x.a + i);
    const auto           beats = [&](int k) { return _mm_cmpgt_epi32(_mm_loadu_si128(p + k), best[0]); };
    const __m128i        any   = _mm_or_si128(_mm_or_si128(beats(0), beats(1)), _mm_or_si128(beats(2), beats(3)));
    if (_mm_movemask_epi8(any) != 0)
      for (int k = 0; k < 4; ++k) best[0] = largest_32s::of(best[0], _mm_loadu_si128(p + k));
  }
  finish<largest_32s>(best, x.a + i, x.a + n, x.out);
}

// Ever larger, as in a ramp of a signal: no best stays the best.
void rising(const arrays<Tav32s>& x, int n) {
  for (int i = 0; i < n; ++i) x.a[i] = i;
}

void max_32s(const arrays<Tav32s>& x, int n) { tavsMax_32s(x.a, n, x.out); }

}  // namespace

BENCH_FAMILY(extrema_kernels) {
  constexpr auto unaligned = loads::unaligned, aligned = loads::aligned;
  summary_contest<Tav16s, Tav16s>({.name = "Min_16s, other kernels", .bytes = 2}, 0,
                                  {{ours, [](auto& x, int n) { tavsMin_16s(x.a, n, x.out); }},
                                   {"1 vector", kernel<smallest_16s, 1, unaligned>},
                                   {"2 vectors", kernel<smallest_16s, 2, unaligned>},
                                   {"4 vectors", kernel<smallest_16s, 4, unaligned>},
                                   {"8 vectors", kernel<smallest_16s, 8, unaligned>},
                                   {"4 operands", kernel<smallest_16s, 4, aligned>}});
  const std::vector<contender<Tav32s>> kernels{{ours, max_32s},
                                               {"1 vector", kernel<largest_32s, 1, unaligned>},
                                               {"4 vectors", kernel<largest_32s, 4, unaligned>},
                                               {"4, by difference", kernel<largest_32s_by_difference, 4, unaligned>},
                                               {"8, by difference", kernel<largest_32s_by_difference, 8, unaligned>},
                                               {"skipping", skipping_32s}};
  summary_contest<Tav32s, Tav32s>({.name = "Max_32s, other kernels", .bytes = 4}, 0, kernels);
  summary_contest<Tav32s, Tav32s>({.name = "Max_32s, rising, other kernels", .bytes = 4}, 0, kernels, rising);
}

}  // namespace bench
