// The column pass of long transforms: the last four levels, 16 rows by 16, in one sweep over the memory. The copy of a
// few columns into a small block is the first butterfly, and the way back the second.
//
// The rows lie a power of two apart and would crowd one set of a cache: so four rows at a time are read into the
// compact block, and two whole lines, even of split data, are written to each row before the next.
#pragma once
#include "transform/fft/constant_records.h"

namespace tav::TAV_VARIANT::fft {

// The table has a record for L columns: w^8k, w^4k, w^2k, w^k for k below n / 16. The factors of the other three
// quarters of the second level are rotations of it by an eighth and a sixteenth of a turn.
template <class T> inline constexpr int column_record = 4 * twiddle_size<T>;

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

inline constexpr size_t groups_at_once = 8;

// Out may be In, or another view of the same memory.
template <class In, class Out, class T = typename In::value>
__attribute__((noinline)) void column_pass(In in, Out out, size_t n, const T* table) {
  constexpr size_t L = lanes<T>, chunk = groups_at_once * L, record = column_record<T>, turns = 6 * twiddle_size<T>;
  const size_t     row = n / 16;
  alignas(64) T    block[32 * chunk], turned[groups_at_once * turns];
  const groups<T>  inner{block};
  for (size_t k = 0; k < row; k += chunk, in = in + chunk, out = out + chunk, table += groups_at_once * record) {
#pragma GCC unroll 1
    for (size_t r = 0; r < 16; r += 4)
#pragma GCC unroll 1
      for (size_t c = 0; c < groups_at_once; ++c)
        radix22(in + (r * row + c * L), row, inner + (r * chunk + c * L), chunk, table + c * record);
#pragma GCC unroll 1
    for (size_t c = 0; c < groups_at_once; ++c)
      rotate_twiddles(table + c * record + record / 2, groups<T>{turned + c * turns});
#pragma GCC unroll 1
    for (size_t m = 0; m < 4; ++m)
#pragma GCC unroll 1
      for (size_t c = 0; c < groups_at_once; ++c) {
        const T* const w = m == 0 ? table + c * record + record / 2 : turned + c * turns + (m - 1) * radix22_record<T>;
        radix22(inner + (m * chunk + c * L), 4 * chunk, out + (m * row + c * L), 4 * row, w);
      }
  }
}

}  // namespace tav::TAV_VARIANT::fft
