// Interleaved transforms of 2^6 to 2^12 points in code of their own: with length, spans and strides constant, addresses
// become displacements, and little time goes into calls and loops. They do what the general passes do, operation by
// operation, always in the work area or in an aligned dst.
#pragma once
#include "transform/fft/engine.h"
#include "transform/fft/stage_area.h"
#include "transform/fft/stages.h"

namespace tav::TAV_VARIANT::fft {

// Rows so far apart fall into few sets of the first-level cache: a line of each is used up before the next is read.
inline constexpr int crowded_rows_from = 12;

// A visit of radix 16. Where it can, the second layer runs two columns behind the first: its products fill the gaps
// between the shuffles, and what it reads was stored a while ago.
template <bool Inverse, int Order, int Columns, class Src, class Out, class T = typename Out::value>
TAV_INLINE void visit_of_sixteen(Src src, size_t distance, Out out, const streams<Columns>& target) {
  constexpr int   step = columns_of<T>, behind = 2;
  alignas(64) T   block[32 * Columns];
  const groups<T> inner{block};
  const auto      first = [&](int c, int j) __attribute__((always_inline)) {
         sixteen_first<Inverse, reg<T>, T>(
        distant_rows<Src, 16>{src + c, distance},
        j, [&](int i) __attribute__((always_inline)) { return inner + 16 * (c + i); });
  };
  const auto second = [&](int c) __attribute__((always_inline)) {
    sixteen_second(inner + 16 * c, out.at(target.at[c]));
  };
  if constexpr (Order >= crowded_rows_from) {
#pragma GCC unroll 4
    for (int j = 0; j < 4; ++j)
#pragma GCC unroll 8
      for (int c = 0; c < Columns; c += step) first(c, j);
#pragma GCC unroll 8
    for (int c = 0; c < Columns; ++c) second(c);
  } else {
#pragma GCC unroll 10
    for (int c = 0; c < Columns + behind; ++c) {
      if (c < Columns && c % step == 0)
#pragma GCC unroll 4
        for (int j = 0; j < 4; ++j) first(c, j);
      if (c >= behind) second(c - behind);
    }
  }
}

template <bool Inverse, int Order, class T> TAV_INLINE void fixed_first_pass(pairs<T> src, groups<T> out) {
  constexpr int              radix = first_radix<T>(Order), rows = (1 << Order) / radix;
  constexpr int              columns = rows < 8 ? rows : 8, visits = rows / columns;
  constexpr streams<columns> target((size_t(1) << Order) / columns);
  reversed_counter           from(visits);
  const T*                   end = out.p + 2 * visits * radix;
  if (visits > 1) end = pinned(end);  // a number of visits that is known, and small, would be unrolled
#pragma GCC unroll 1
  for (; out.p != end; out = out + radix) {
    const pairs<T> here = src + columns * from.value();
    if constexpr (radix == 8)
      visit<Inverse, 8, columns>(here, rows, out, target);
    else
      visit_of_sixteen<Inverse, Order>(here, rows, out, target);
    if (visits > 1) from.next();
  }
}

// A stage with two butterflies a block does them in one round. The record's address is made anew for each, or the
// compiler would keep one for every access.
template <size_t N, size_t Span, class In, class Out, class T>
TAV_INLINE void fixed_stage(In in, Out out, const T* table) {
  if constexpr (Span / 4 > 2 * lanes<T>) return stage_of_span(in, out, N, Span, table);
#pragma GCC unroll 1
  for (size_t done = 0; done < N; done += Span, in = in + Span, out = out + Span) {
    const T* w = table;
    __asm__("" : "+r"(w) : "r"(done));
#pragma GCC unroll 2
    for (size_t k = 0; k < Span / 4; k += lanes<T>, w += radix4_record<T>)
      radix4(in + k, Span / 4, Span / 2, 3 * Span / 4, out + k, Span / 4, w);
  }
}

// From here up the passes are functions: what transforms with and without a scale factor have in common is there once.
inline constexpr int in_passes_from = 7;

template <bool Inverse, int Order, class T>
__attribute__((noinline)) void first_pass_apart(pairs<T> src, groups<T> out) {
  fixed_first_pass<Inverse, Order>(src, out);
}
template <size_t N, size_t Span, class In, class Out, class T>
__attribute__((noinline)) void stage_apart(In in, Out out, const T* table) {
  fixed_stage<N, Span>(in, out, table);
}

template <int Order, size_t Span, class Mid, class Out, class T>
TAV_INLINE void fixed_stages(Mid mid, Out out, const stage_plan<T>& plan) {
  constexpr size_t n = size_t(1) << Order;
  if constexpr (Order < in_passes_from) {
    fixed_stage<n, Span>(mid, out, plan.records(Span));
  } else if constexpr (Span == n) {
    stage_apart<n, Span>(mid, out, plan.records(Span));
  } else {
    stage_apart<n, Span>(mid, mid, plan.records(Span));
    fixed_stages<Order, 4 * Span>(mid, out, plan);
  }
}

template <bool Inverse, bool Scaled, int Order, class T> void fixed(const transform<T>& t, const T* src, T* dst) {
  const pairs<T>                          from{const_cast<T*>(src)}, to{dst};
  const result<pairs<T>, Inverse, Scaled> out{to, t.scale};
  const groups<T>                         mid{stage_area(from, to, t.work)};
  if constexpr (Order < in_passes_from)
    fixed_first_pass<Inverse, Order>(from, mid);
  else
    first_pass_apart<Inverse, Order>(from, mid);
  fixed_stages<Order, size_t(4) * first_radix<T>(Order)>(mid, out, stage_plan<T>(t.tables.stages, Order));
}

template <class T> using fixed_kernel = void (*)(const transform<T>& t, const T* src, T* dst);

#define TAV_BY_DIRECTION(order)                                                                                      \
  {                                                                                                                  \
    {fixed<false, false, order>, fixed<false, true, order>}, { fixed<true, false, order>, fixed<true, true, order> } \
  }
template <class T>
static constexpr fixed_kernel<T> fixed_kernels[][2][2] = {
    TAV_BY_DIRECTION(6),  TAV_BY_DIRECTION(7),  TAV_BY_DIRECTION(8), TAV_BY_DIRECTION(9),
    TAV_BY_DIRECTION(10), TAV_BY_DIRECTION(11), TAV_BY_DIRECTION(12)};
#undef TAV_BY_DIRECTION

// For orders above direct_to, up to fixed_to.
template <class T> TAV_INLINE void run_fixed(const transform<T>& t, const T* src, T* dst) {
  fixed_kernels<T>[t.order - direct_to - 1][t.towards == direction::inverse][t.scale != nullptr](t, src, dst);
}

}  // namespace tav::TAV_VARIANT::fft
