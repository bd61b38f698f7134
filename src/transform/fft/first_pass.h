// The first pass: transforms of 8 points (odd orders) or 16 (even orders) without a table, from the caller's layout to
// the planar one of the stages.
//
// It comes in two forms that do the same arithmetic. The gathering one reads its rows straight from data in natural
// order, so that no reordering pass is needed; the other finds the data in bit-reversed order and may write where it
// reads.
#pragma once
#include "transform/fft/butterflies.h"
#include "transform/fft/constant_records.h"

namespace tav::TAV_VARIANT::fft {

// Points that a first pass transforms at once: so the stages of radix 4 that follow come out even.
inline constexpr int first_radix(int order) { return order % 2 == 0 ? 16 : 8; }
inline constexpr int first_levels(int order) { return order % 2 == 0 ? 4 : 3; }

template <class T> inline constexpr int columns_of = lanes<T> / 2;  // points of a register of pairs

// Rows of natural order, `distance` points apart; their columns are neighbours in memory.
template <class Src, int Radix> struct distant_rows {
  Src    src;
  size_t distance;

  template <class V> TAV_INLINE void two(int r, V& low, V& high) const {
    const Src at = src.at(r * distance);
    low          = at.columns(0);
    high         = at.at(Radix / 2 * distance).columns(0);
  }
};

inline constexpr int reversed_index(int i, int size) {
  int r = 0;
  for (int bit = 1; bit < size; bit *= 2) r = 2 * r + (i & bit ? 1 : 0);
  return r;
}

// Rows of bit-reversed order: each column is a run of Radix points, and a row and the one half the radix below are
// neighbours.
template <class Src, int Radix> struct neighbouring_rows {
  Src src;

  template <class V> TAV_INLINE void two(int r, V& low, V& high) const {
    const size_t at = size_t(reversed_index(r, Radix));
    if constexpr (columns_of<typename Src::value> == 2) {
      const V a = src.columns(at), b = src.columns(at + Radix);
      low  = _mm_movelh_ps(a, b);
      high = _mm_movehl_ps(b, a);
    } else {
      low  = src.columns(at);
      high = src.columns(at + 1);
    }
  }
};

// Radix 8 on the columns of one register; the first goes to a, the second to b.
template <bool Inverse, class Rows, class Out, class T = typename Out::value>
TAV_INLINE void eight(const Rows& rows, Out a, Out b) {
  reg<T> even[4], odd[4], y[4];
  rows8<Inverse, T>(rows, even, odd);
  y[0] = even[0] + odd[0], y[1] = even[1] + odd[1], y[2] = even[2] + odd[2], y[3] = even[3] + odd[3];
  put_rows4<Inverse, T>(a, b, y);
  y[0] = even[0] - odd[0], y[1] = even[1] - odd[1], y[2] = even[2] - odd[2], y[3] = even[3] - odd[3];
  put_rows4<Inverse, T>(a + 4, b + 4, y);
}

// The first layer of radix 16, rows j, j + 4, j + 8, j + 12: to points 4j ... of each column's 16.
template <bool Inverse, class Rows, class Out, class T = typename Out::value>
TAV_INLINE void sixteen_first(const Rows& rows, int j, Out a, Out b) {
  reg<T> y[4];
  rows4<Inverse, T>(rows, j, j + 4, y);
  put_rows4<Inverse, T>(a + 4 * j, b + 4 * j, y);
}

// The second layer, on one column.
template <class In, class Out, class T = typename In::value> TAV_INLINE void sixteen_second(In in, Out out) {
  const T* const w = pinned(&record_of_16<T>.values[0]);
#pragma GCC unroll 2
  for (int k = 0; k < 4; k += lanes<T>) radix4(in + k, 8, 4, 12, out + k, 4, w + k / lanes<T> * radix4_record<T>);
}

// Where the columns of a visit go: column c to stream reversed(c) of the output.
template <int Columns> struct streams {
  size_t at[Columns];
  explicit streams(size_t apart) {
    for (int c = 0; c < Columns; ++c) at[c] = reversed_index(c, Columns) * apart;
  }
};

// Many streams at once are too many for the processor's own prefetch: long transforms ask for the lines that will be
// written a few visits later. Asking for what will be read made every length slower.
inline constexpr size_t asking_lines = 4, points_ahead = 32;

template <int Radix, int Columns, class Out> TAV_INLINE void ask_ahead(Out out, const streams<Columns>& target) {
  constexpr int line = 64 / (2 * sizeof(typename Out::value));
  for (int c = 0; c < Columns; ++c)
#pragma GCC unroll 4
    for (int k = 0; k < Radix; k += line) out.ask(target.at[c] + points_ahead + k);
}

// One visit: a cache line of columns from each row.
template <bool Inverse, int Radix, int Columns, class Src, class Out, class T = typename Out::value>
TAV_INLINE void visit(Src src, size_t distance, Out out, const streams<Columns>& target) {
  constexpr int step = columns_of<T>;
  if constexpr (Radix == 8) {
#pragma GCC unroll 4
    for (int c = 0; c < Columns; c += step)
      eight<Inverse>(distant_rows<Src, 8>{src + c, distance}, out.at(target.at[c]), out.at(target.at[c + step - 1]));
  } else {
    alignas(64) T   block[32 * Columns];
    const groups<T> inner{block};
#pragma GCC unroll 1
    for (int j = 0; j < 4; ++j)
#pragma GCC unroll 4
      for (int c = 0; c < Columns; c += step)
        sixteen_first<Inverse>(distant_rows<Src, 16>{src + c, distance}, j, inner + 16 * c,
                               inner + 16 * (c + step - 1));
#pragma GCC unroll 1
    for (int c = 0; c < Columns; ++c) sixteen_second(inner + 16 * c, out.at(target.at[c]));
  }
}

// Counts through the bit-reversed numbers below `size`.
class reversed_counter {
 public:
  explicit reversed_counter(size_t size) : size_(size) {}
  size_t value() const { return reversed_; }
  void   next() {
      ++count_;
      reversed_ ^= size_ - (size_ >> (__builtin_ctzl(count_) + 1));
  }

 private:
  size_t size_, count_ = 0, reversed_ = 0;
};

// Split data of long transforms: all rows, in both arrays, fall into one set of the first-level cache, so each line is
// read once, into a block of pairs, and the visit reads that.
struct straight {
  template <int Radix, int Columns, class Src, class Visit>
  static TAV_INLINE void read_rows(Src src, size_t distance, const Visit& visit) {
    visit(src, distance);
  }
};
struct by_block {
  template <int Radix, int Columns, class T, class Visit>
  static TAV_INLINE void read_rows(split<T> src, size_t distance, const Visit& visit) {
    alignas(64) T  rows[Radix * Columns * 2];
    const pairs<T> block{rows};
#pragma GCC unroll 1
    for (size_t r = 0; r < Radix; ++r, src = src + distance)
#pragma GCC unroll 4
      for (size_t c = 0; c < Columns; c += lanes<T>) {
        const planar<T> p = src.get(c);
        (block + r * Columns).put(c, p.re, p.im);
      }
    visit(block, size_t(Columns));
  }
};

// Gathers from natural order; dst must not be src. `lines` neighbouring visits, a power of two, are taken together:
// long transforms read more of a memory page while they are there.
template <class Reading, bool Inverse, int Radix, int Columns, class Src, class Out>
__attribute__((noinline)) void gather(Src src, Out out, size_t n, size_t lines) {
  const size_t           visits = n / (Radix * Columns) / lines, distance = n / Radix, line_apart = n / Columns / lines;
  const streams<Columns> target(n / Columns);
  reversed_counter       from(visits);
#pragma GCC unroll 1
  for (size_t v = 0; v < visits; ++v, from.next(), out = out + Radix) {
    Src              here = src + Columns * lines * from.value();
    reversed_counter line(lines);
#pragma GCC unroll 1
    for (size_t u = 0; u < lines; ++u, line.next(), here = here + Columns) {
      const Out to = out + line.value() * line_apart;
      if (lines >= asking_lines) ask_ahead<Radix>(to, target);
      Reading::template read_rows<Radix, Columns>(
          here, distance, [&](auto rows, size_t apart) __attribute__((always_inline)) {
            visit<Inverse, Radix, Columns>(rows, apart, to, target);
          });
    }
  }
}

template <class Reading, bool Inverse, int Columns, class Src, class Out>
void gather_by_radix(Src src, Out out, int order, size_t lines) {
  const size_t n = size_t(1) << order;
  if (first_radix(order) == 8)
    gather<Reading, Inverse, 8, Columns>(src, out, n, lines);
  else
    gather<Reading, Inverse, 16, Columns>(src, out, n, lines);
}

// The columns of a visit fill a cache line.
template <class T> inline constexpr int line_of_pairs = 64 / (2 * sizeof(T));
template <class T> inline constexpr int line_of_parts = 64 / sizeof(T);

template <bool Inverse, class T, class Out> void first_pass_gathering(pairs<T> src, Out out, int order, size_t lines) {
  if (order == 6) return gather<straight, Inverse, 16, 4>(src, out, 64, 1);
  gather_by_radix<straight, Inverse, line_of_pairs<T>>(src, out, order, lines);
}

inline constexpr int by_block_from = 12;

template <bool Inverse, class T, class Out> void first_pass_gathering(split<T> src, Out out, int order, size_t lines) {
  if (order == 6) return gather<straight, Inverse, 16, 4>(src, out, 64, 1);
  if (order < by_block_from) return gather_by_radix<straight, Inverse, line_of_pairs<T>>(src, out, order, lines);
  gather_by_radix<by_block, Inverse, line_of_parts<T>>(src, out, order, lines);
}

// From bit-reversed order; out may be src.
template <bool Inverse, class Src, class Out, class T = typename Out::value>
__attribute__((noinline)) void first_pass_in_order(Src src, Out out, int order) {
  constexpr int step = columns_of<T>;
  const size_t  n    = size_t(1) << order;
  if (first_radix(order) == 8) {
    for (size_t i = 0; i < n; i += 8 * step, src = src + 8 * step, out = out + 8 * step)
      eight<Inverse>(neighbouring_rows<Src, 8>{src}, out, out + 8);
    return;
  }
  alignas(64) T   block[32 * step];
  const groups<T> inner{block};
  for (size_t i = 0; i < n; i += 16 * step, src = src + 16 * step, out = out + 16 * step) {
#pragma GCC unroll 4
    for (int j = 0; j < 4; ++j) sixteen_first<Inverse>(neighbouring_rows<Src, 16>{src}, j, inner, inner + 16);
#pragma GCC unroll 2
    for (int c = 0; c < step; ++c) sixteen_second(inner + 16 * c, out + 16 * c);
  }
}

}  // namespace tav::TAV_VARIANT::fft
