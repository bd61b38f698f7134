// The kernel of the integer filters: 16-bit samples meet 16-bit taps, two products a lane in one multiply-and-add, in
// 32 bits that wrap. Two accumulators, A and B, whose lanes interleave to neighbouring outputs:
//
//   real      a step is two taps; each lane of samples is two neighbours. A: outputs 0 2 4 6, B: outputs 1 3 5 7, which
//             begin one sample later
//   complex   a step is one tap; each lane of samples is a pair. A: the real parts of four outputs, with the tap as
//             (re, -im), B: the imaginary ones, with the tap as (im, re)
//
// So no sample is ever shuffled, and no sum adds across lanes. The taps are a list of steps, that of the oldest sample
// first.
#pragma once
#include "frame/registers.h"

namespace tav::TAV_VARIANT::fir {

struct step_taps {
  __m128i a, b;
};

template <class T> struct word_steps;

template <> struct word_steps<Tav16s> {
  static constexpr int    taps = 2, words = 2;  // of a step
  static constexpr int    b_begins = 1;         // samples later than A
  static constexpr size_t outputs  = 8;
  static constexpr int    in_load  = 4;  // steps in a register of the list

  template <int K> TAV_INLINE static step_taps of(__m128i list) {
    const __m128i pair = _mm_shuffle_epi32(list, K * 0x55);
    return {pair, pair};
  }
};

template <> struct word_steps<Tav16sc> {
  static constexpr int    taps = 1, words = 4;
  static constexpr int    b_begins = 0;
  static constexpr size_t outputs  = 4;
  static constexpr int    in_load  = 2;

  template <int K> TAV_INLINE static step_taps of(__m128i list) {
    return {_mm_shuffle_epi32(list, 2 * K * 0x55), _mm_shuffle_epi32(list, (2 * K + 1) * 0x55)};
  }
};

template <int G> struct word_sums { __m128i a[G], b[G]; };

// The compiler would regroup the sums and keep samples for the next round, and then run out of registers: these hold
// it.
TAV_INLINE void                    hold(__m128i& sum) { __asm__("" : "+x"(sum)); }
template <class T> TAV_INLINE void hold(const T*& x) { __asm__("" : "+r"(x)); }

template <class T, int G> TAV_INLINE void add_step(word_sums<G>& s, const T* x, step_taps h) {
  using steps = word_steps<T>;
#pragma GCC unroll 4
  for (int g = 0; g < G; ++g) {
    const T* const at = x + g * int(steps::outputs);
    const __m128i  xa = load<access::unaligned, lanes<T>>(at);
    const __m128i  xb = load<access::unaligned, lanes<T>>(at + steps::b_begins);
    s.a[g]            = _mm_add_epi32(s.a[g], _mm_madd_epi16(xa, h.a));
    s.b[g]            = _mm_add_epi32(s.b[g], _mm_madd_epi16(xb, h.b));
    hold(s.a[g]), hold(s.b[g]);
  }
}

// `count` steps at G * outputs outputs. x may lie anywhere; the list is on a boundary.
template <int G, class T> TAV_INLINE word_sums<G> sums_at(const T* x, const Tav16s* list, size_t count) {
  using steps = word_steps<T>;
  word_sums<G> s;
#pragma GCC unroll 4
  for (int g = 0; g < G; ++g) s.a[g] = s.b[g] = _mm_setzero_si128();
#pragma GCC unroll 1
  for (; count >= size_t(steps::in_load); count -= steps::in_load) {
    const __m128i some = load<access::aligned, 8>(list);
    add_step(s, x, steps::template of<0>(some));
    add_step(s, x + steps::taps, steps::template of<1>(some));
    if constexpr (steps::in_load == 4) {
      add_step(s, x + 2 * steps::taps, steps::template of<2>(some));
      add_step(s, x + 3 * steps::taps, steps::template of<3>(some));
    }
    x += steps::in_load * steps::taps, list += 8;
    hold(x);
  }
#pragma GCC unroll 1
  for (; count != 0; --count) {
    add_step(s, x, steps::template of<0>(load<access::unaligned, steps::words>(list)));
    x += steps::taps, list += steps::words;
  }
  return s;
}

// Runs n / outputs groups: done(i, low, high) takes the sums of the outputs from i on, in order.
template <class T, class Done>
void run_groups(const T* x, const Tav16s* list, size_t steps, size_t n, const Done& done) {
  constexpr size_t outputs = word_steps<T>::outputs;
  const auto       pass    = [&](size_t i, __m128i a, __m128i b) {
    done(i, _mm_unpacklo_epi32(a, b), _mm_unpackhi_epi32(a, b));
  };
  size_t i = 0;
  for (; n - i >= 2 * outputs; i += 2 * outputs) {
    const word_sums<2> s = sums_at<2>(x + i, list, steps);
    pass(i, s.a[0], s.b[0]);
    pass(i + outputs, s.a[1], s.b[1]);
  }
  if (n - i < outputs) return;
  const word_sums<1> s = sums_at<1>(x + i, list, steps);
  pass(i, s.a[0], s.b[0]);
}

// The one output of x, in the low part of a register: the lanes are sums over every fourth or second step.
TAV_INLINE __m128i one_sum(const Tav16s* x, const Tav16s* list, size_t steps) {
  __m128i sum = _mm_setzero_si128();
  for (; steps >= 4; steps -= 4, x += 8, list += 8)
    sum = _mm_add_epi32(sum, _mm_madd_epi16(load<access::unaligned, 8>(x), load<access::aligned, 8>(list)));
  for (; steps != 0; --steps, x += 2, list += 2)
    sum = _mm_add_epi32(sum, _mm_madd_epi16(load<access::unaligned, 2>(x), load<access::unaligned, 2>(list)));
  sum = _mm_add_epi32(sum, _mm_unpackhi_epi64(sum, sum));
  return _mm_add_epi32(sum, _mm_shuffle_epi32(sum, 0x55));
}
TAV_INLINE __m128i one_sum(const Tav16sc* x, const Tav16s* list, size_t steps) {
  __m128i sum = _mm_setzero_si128();
  for (; steps >= 2; steps -= 2, x += 2, list += 8) {
    const __m128i pairs = load<access::unaligned, 2>(x);
    sum = _mm_add_epi32(sum, _mm_madd_epi16(_mm_unpacklo_epi32(pairs, pairs), load<access::aligned, 8>(list)));
  }
  if (steps != 0) {
    const __m128i pair = load<access::unaligned, 1>(x);
    sum = _mm_add_epi32(sum, _mm_madd_epi16(_mm_unpacklo_epi32(pair, pair), load<access::unaligned, 4>(list)));
  }
  return _mm_add_epi32(sum, _mm_unpackhi_epi64(sum, sum));
}

}  // namespace tav::TAV_VARIANT::fir
