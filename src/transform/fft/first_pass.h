// The first pass: transforms of 8 points (odd orders) or 16 or 4 (even orders) without a table, from the caller's
// layout to the planar one of the stages.
//
// It comes in two forms that do the same arithmetic. The gathering one reads its rows straight from data in natural
// order, so that no reordering pass is needed; the other finds the data in bit-reversed order and may write where it
// reads.
#pragma once
#include "transform/fft/butterflies.h"
#include "transform/fft/constant_records.h"

namespace tav::TAV_VARIANT::fft {

// Points that a first pass transforms at once: so the stages of radix 4 that follow come out even. In doubles a stage
// costs less than the second layer of radix 16, while all of them are in the first-level cache.
template <class T> inline constexpr int four_to = sizeof(T) == 4 ? 0 : 10;
template <class T> constexpr int first_levels(int order) { return order % 2 != 0 ? 3 : order <= four_to<T> ? 2 : 4; }
template <class T> constexpr int first_radix(int order) { return 1 << first_levels<T>(order); }

template <class T> inline constexpr int columns_of = lanes<T> / 2;  // points of a register of pairs

// What a first pass computes on, and how many columns that holds: pairs as they lie, other layouts planar. Radix 8 does
// not fit eight registers if it is planar.
template <class Src, int Radix> struct gathered {
  using T                       = typename Src::value;
  static constexpr bool plane   = !std::is_same_v<Src, pairs<T>> && (sizeof(void*) == 8 || Radix != 8);
  static constexpr int  columns = plane ? lanes<T> : columns_of<T>;
  using value                   = std::conditional_t<plane, planar<T>, reg<T>>;
};

// Rows of natural order, `distance` points apart; their columns are neighbours in memory.
template <class Src, int Radix> struct distant_rows {
  using T = typename Src::value;
  Src    src;
  size_t distance;

  static TAV_INLINE void take(Src at, reg<T>& v) { v = at.columns(0); }
  static TAV_INLINE void take(Src at, planar<T>& v) { v = at.get(0); }

  template <class V> TAV_INLINE void two(int r, V& low, V& high) const {
    const Src at = src.at(r * distance);
    take(at, low), take(at.at(Radix / 2 * distance), high);
  }
};

TAV_INLINE constexpr int reversed_index(int i, int size) {
  int r = 0;
#pragma GCC unroll 4
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

// Radix 4 or 8 on the columns of one value V; column c goes to to(c).
template <bool Inverse, int Radix, class V, class T, class Rows, class To>
TAV_INLINE void few(const Rows& rows, const To& to) {
  V y[Radix];
  if constexpr (Radix == 4)
    rows4<Inverse, T>(rows, 0, 1, y);
  else
    rows8<Inverse, T>(rows, y);
#pragma GCC unroll 2
  for (int k = 0; k < Radix; k += 4) put_rows4<Inverse, T>(to, k, y + k);
}

// The first layer of radix 16, rows j, j + 4, j + 8, j + 12: to points 4j ... of each column's 16.
template <bool Inverse, class V, class T, class Rows, class To>
TAV_INLINE void sixteen_first(const Rows& rows, int j, const To& to) {
  V y[4];
  rows4<Inverse, T>(rows, j, j + 4, y);
  put_rows4<Inverse, T>(to, 4 * j, y);
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
  constexpr explicit streams(size_t apart) : at{} {
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
  using V            = typename gathered<Src, Radix>::value;
  constexpr int step = gathered<Src, Radix>::columns;
  if constexpr (Radix < 16) {
#pragma GCC unroll 4
    for (int c = 0; c < Columns; c += step)
      few<Inverse, Radix, V, T>(
          distant_rows<Src, Radix>{src + c, distance}, [&](int i) __attribute__((always_inline)) {
            return out.at(target.at[c + i]);
          });
  } else {
    alignas(64) T   block[32 * Columns];
    const groups<T> inner{block};
#pragma GCC unroll 1
    for (int j = 0; j < 4; ++j)
#pragma GCC unroll 4
      for (int c = 0; c < Columns; c += step)
        sixteen_first<Inverse, V, T>(
            distant_rows<Src, 16>{src + c, distance},
            j, [&](int i) __attribute__((always_inline)) { return inner + 16 * (c + i); });
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
// read once, into a block, and the visit reads that.
struct straight {
  template <int Radix, int Columns, class Src, class Visit>
  static TAV_INLINE void read_rows(Src src, size_t distance, const Visit& visit) {
    visit(src, distance);
  }
};
struct by_block {
  template <int Radix, int Columns, class T, class Visit>
  static TAV_INLINE void read_rows(split<T> src, size_t distance, const Visit& visit) {
    alignas(64) T rows[Radix * Columns * 2];
    using view = std::conditional_t<gathered<split<T>, Radix>::plane, groups<T>, pairs<T>>;
    const view block{rows};
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
  if (order % 2 != 0)
    gather<Reading, Inverse, 8, Columns>(src, out, n, lines);
  else
    gather<Reading, Inverse, 16, Columns>(src, out, n, lines);
}

// The columns of a visit fill a cache line.
template <class T> inline constexpr int line_of_pairs = 64 / (2 * sizeof(T));
template <class T> inline constexpr int line_of_parts = 64 / sizeof(T);

// Lengths whose rows do not crowd a cache: with a constant length all addresses of a visit are displacements.
template <bool Inverse, int Order, class Src, class Out, class T = typename Out::value>
__attribute__((noinline)) void gather_of(Src src, Out out) {
  constexpr int    radix = first_radix<T>(Order), columns = line_of_pairs<T>;
  constexpr size_t n = size_t(1) << Order, visits = n / (radix * columns);
  using on = gathered<Src, radix>;
  reversed_counter from(visits);
#pragma GCC unroll 1
  for (size_t v = 0; v < visits; ++v, from.next(), out = out + radix) {
    const Src here = src + columns * from.value();
#pragma GCC unroll 4
    for (int c = 0; c < columns; c += on::columns) {
      const auto to = [=](int i) __attribute__((always_inline)) {
        return out + reversed_index(c + i, columns) * (n / columns);
      };
      few<Inverse, radix, typename on::value, T>(distant_rows<Src, radix>{here + c, n / radix}, to);
    }
  }
}

// Whether the order is one of those, and then its first pass.
template <bool Inverse, int... Orders, class Src, class Out> bool gather_one_of(Src src, Out out, int order) {
  return ((order == Orders && (gather_of<Inverse, Orders>(src, out), true)) || ...);
}

template <bool Inverse, class T, class Out> void first_pass_gathering(pairs<T> src, Out out, int order, size_t lines) {
  if constexpr (sizeof(T) == 8) {
    if (gather_one_of<Inverse, 9, 10, 11>(src, out, order)) return;
  } else {
    if (order == 6) return gather<straight, Inverse, 16, 4>(src, out, 64, 1);
  }
  gather_by_radix<straight, Inverse, line_of_pairs<T>>(src, out, order, lines);
}

inline constexpr int by_block_from = 12;

template <bool Inverse, class T, class Out> void first_pass_gathering(split<T> src, Out out, int order, size_t lines) {
  if constexpr (sizeof(T) == 8) {
    if (gather_one_of<Inverse, 7, 8, 9, 10, 11>(src, out, order)) return;
  } else {
    if (order == 6) return gather<straight, Inverse, 16, 4>(src, out, 64, 1);
    if constexpr (!gathered<split<T>, 8>::plane)
      if (gather_one_of<Inverse, 7, 9>(src, out, order)) return;
    if (order < by_block_from) return gather_by_radix<straight, Inverse, line_of_pairs<T>>(src, out, order, lines);
  }
  gather_by_radix<by_block, Inverse, line_of_parts<T>>(src, out, order, lines);
}

// From bit-reversed order; out may be src.
template <bool Inverse, int Radix, class Src, class Out, class T = typename Out::value>
__attribute__((noinline)) void in_order(Src src, Out out, size_t n) {
  constexpr int step = columns_of<T>, size = Radix * step;
  if constexpr (Radix < 16) {
    for (size_t i = 0; i < n; i += size, src = src + size, out = out + size)
      few<Inverse, Radix, reg<T>, T>(neighbouring_rows<Src, Radix>{src}, [=](int c) { return out + c * Radix; });
  } else {
    alignas(64) T   block[2 * size];
    const groups<T> inner{block};
    for (size_t i = 0; i < n; i += size, src = src + size, out = out + size) {
#pragma GCC unroll 4
      for (int j = 0; j < 4; ++j)
        sixteen_first<Inverse, reg<T>, T>(neighbouring_rows<Src, 16>{src}, j, [=](int c) { return inner + 16 * c; });
#pragma GCC unroll 2
      for (int c = 0; c < step; ++c) sixteen_second(inner + 16 * c, out + 16 * c);
    }
  }
}

template <bool Inverse, class Src, class Out, class T = typename Out::value>
void first_pass_in_order(Src src, Out out, int order) {
  const size_t n = size_t(1) << order;
  if (order % 2 != 0) return in_order<Inverse, 8>(src, out, n);
  if constexpr (four_to<T> != 0)
    if (order <= four_to<T>) return in_order<Inverse, 4>(src, out, n);
  in_order<Inverse, 16>(src, out, n);
}

}  // namespace tav::TAV_VARIANT::fft
