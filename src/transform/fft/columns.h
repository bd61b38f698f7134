// The column pass of long transforms: the last four levels, 16 rows by 16, in one sweep over the memory. The copy of a
// few columns into a small block is the first butterfly, and the way back the second.
//
// The rows lie a power of two apart and would crowd one set of a cache: so four rows at a time are read into the
// compact block, and two groups, a whole line, are written to each row before the next.
#pragma once
#include "transform/fft/constant_records.h"

namespace tav::TAV_VARIANT::fft {

// The table has a record for L columns: w^8k, w^4k, w^2k, w^k for k below n / 16. The factors of the other three
// quarters of the second level are rotations of it by an eighth and a sixteenth of a turn.
template <class T> inline constexpr int column_record = 4 * twiddle_size<T>;

template <class T> struct sixteenth {
  static constexpr T c = T(cosines_of_32[2]), s = T(cosines_of_32[6]);
  alignas(16) static constexpr T cosine[4] = {c, c, c, c}, sine[4] = {s, s, s, s};
};

// w points to w^2k, w^k; `turned` gets the same at k + m n / 16 for m = 1, 2, 3.
template <class T> TAV_INLINE void rotate_twiddles(const T* w, groups<T> turned) {
  constexpr size_t L = lanes<T>;
  using at           = sixteenth<T>;
  reg<T>       c = read(w), s = read(w + L);
  const reg<T> p = times(c + s, constants<T>::half_root), q = times(s - c, constants<T>::half_root);
  turned.put(0, p, q);
  turned.put(2 * L, s, flipped(c, constants<T>::negative));
  turned.put(4 * L, q, flipped(p, constants<T>::negative));
  c = read(w + 2 * L), s = read(w + 3 * L);
  turned.put(L, times(c, at::cosine) + times(s, at::sine), times(s, at::cosine) - times(c, at::sine));
  turned.put(3 * L, times(c + s, constants<T>::half_root), times(s - c, constants<T>::half_root));
  turned.put(5 * L, times(c, at::sine) + times(s, at::cosine), times(s, at::sine) - times(c, at::cosine));
}

// Out may be In, or another view of the same memory.
template <class In, class Out, class T = typename In::value>
__attribute__((noinline)) void column_pass(In in, Out out, size_t n, const T* table) {
  constexpr size_t L = lanes<T>, chunk = 4 * L, record = column_record<T>, turns = 6 * twiddle_size<T> / 2;
  const size_t     row = n / 16;
  alignas(64) T    block[32 * chunk], turned[4 * turns];
  const groups<T>  inner{block};
  for (size_t k = 0; k < row; k += chunk, in = in + chunk, out = out + chunk, table += 4 * record) {
#pragma GCC unroll 1
    for (size_t r = 0; r < 16; r += 4)
#pragma GCC unroll 1
      for (size_t c = 0; c < 4; ++c)
        radix22(in + (r * row + c * L), row, inner + (r * chunk + c * L), chunk, table + c * record);
#pragma GCC unroll 1
    for (size_t c = 0; c < 4; c += 2) {
      const T *first = table + c * record + record / 2, *second = first + record;
      rotate_twiddles(first, groups<T>{turned});
      rotate_twiddles(second, groups<T>{turned + 2 * turns});
#pragma GCC unroll 1
      for (size_t m = 0; m < 4; ++m) {
        const groups<T> from = inner + (m * chunk + c * L);
        const Out       to   = out + (m * row + c * L);
        radix22(from, 4 * chunk, to, 4 * row, first);
        radix22(from + L, 4 * chunk, to + L, 4 * row, second);
        first  = turned + m * radix22_record<T>;
        second = first + 2 * turns;
      }
    }
  }
}

}  // namespace tav::TAV_VARIANT::fft
