// The radix-4 stages behind the first pass, and the order in which they go over the data: depth first, so that a block
// that fits a cache goes through all its stages while it is there.
#pragma once
#include "transform/fft/columns.h"
#include "transform/fft/first_pass.h"
#include "transform/fft/plan.h"
#include "transform/fft/tables.h"

namespace tav::TAV_VARIANT::fft {

// One stage over n points; Out may be In, or another view of the same memory.
template <class In, class Out, class T = typename In::value>
TAV_INLINE void stage_of_span(In in, Out out, size_t n, size_t span, const T* table) {
  const size_t quarter = span / 4;
#pragma GCC unroll 1
  for (size_t done = 0; done < n; done += span, in = in + 3 * quarter, out = out + 3 * quarter) {
    const T* w = table;
#pragma GCC unroll 1
    for (size_t k = 0; k < quarter; k += lanes<T>, w += radix4_record<T>) {
      radix4(in, quarter, 2 * quarter, 3 * quarter, out, quarter, w);
      in = in + lanes<T>, out = out + lanes<T>;
    }
  }
}

template <size_t Span, class In, class Out, class T = typename In::value>
__attribute__((noinline)) void stage_of(In in, Out out, size_t n, const T* table) {
  stage_of_span(in, out, n, Span, table);
}
template <class In, class Out, class T = typename In::value>
__attribute__((noinline)) void stage_of_any(In in, Out out, size_t n, size_t span, const T* table) {
  stage_of_span(in, out, n, span, table);
}

// Results that only stages of long spans write here: the short ones are in fixed.h.
template <class Out> inline constexpr bool is_long_result = false;
template <class T, bool Exchanged, bool Scaled>
inline constexpr bool is_long_result<result<pairs<T>, Exchanged, Scaled>> = has_fixed<T>;

// With a constant span the addresses are displacements: worth code of its own for the spans that nearly all work is in.
template <class In, class Out, class T = typename In::value>
void stage(In in, Out out, size_t n, size_t span, const T* table) {
  if constexpr (is_long_result<Out>) return stage_of_any(in, out, n, span, table);
  if constexpr (four_to<T> != 0)
    if (span == 16) return stage_of<16>(in, out, n, table);
  switch (span) {
    case 32:
      return stage_of<32>(in, out, n, table);
    case 64:
      return stage_of<64>(in, out, n, table);
    case 128:
      return stage_of<128>(in, out, n, table);
    case 256:
      return stage_of<256>(in, out, n, table);
    case 512:
      return stage_of<512>(in, out, n, table);
    case 1024:
      return stage_of<1024>(in, out, n, table);
    case 2048:
      return stage_of<2048>(in, out, n, table);
    default:
      return stage_of_any(in, out, n, span, table);
  }
}

// Where the stages of a transform of 2^order points stand in its table.
template <class T> struct stage_plan {
  const T* table;
  size_t   first_span;

  stage_plan(const T* stages, int order) : table(stages), first_span(size_t(4) * first_radix<T>(order)) {}

  // A stage has 3/2 values a point, and each span is four times the one before: together half a value a point.
  const T* records(size_t span) const { return table + (span - first_span) / 2; }
};

inline constexpr size_t first_cache_bytes = 0x4000, second_cache_bytes = 0x40000;

// The stages with spans above `from` up to `to` points on n points, in place.
template <class Mid, class T = typename Mid::value>
TAV_INLINE void stages_between(Mid mid, size_t n, size_t from, size_t to, const stage_plan<T>& plan) {
  for (size_t span = 4 * from; span <= to; span *= 4) stage(mid, mid, n, span, plan.records(span));
}

// The largest span of the plan that fits `bytes` and n points.
template <class T> size_t span_within(size_t bytes, size_t n, size_t first) {
  size_t span = first;
  while (4 * span <= n && 4 * span * pair_bytes<T> <= bytes) span *= 4;
  return span;
}

// All stages with spans up to `last` on n points, depth first.
template <class Mid, class T = typename Mid::value>
void stages_up_to(Mid mid, size_t n, size_t first, size_t last, const stage_plan<T>& plan) {
  if (pair_bytes<T> * n <= first_cache_bytes) return stages_between(mid, n, first, last, plan);
  const size_t inner = span_within<T>(first_cache_bytes, last, first);
  const size_t outer = span_within<T>(second_cache_bytes, last, inner);
  for (size_t a = 0; a < n; a += outer) {
    for (size_t b = a; b < a + outer; b += inner) stages_between(mid + b, inner, first, inner, plan);
    stages_between(mid + a, outer, inner, outer, plan);
  }
  stages_between(mid, n, outer, last, plan);
}

// What follows the first pass: 2^order points through all their stages, from Mid to Out. Lengths that have column
// tables are cut into 16 transforms that a column pass combines.
template <class Mid, class Out, class T = typename Mid::value>
void combine(Mid mid, Out out, int order, const fft_tables<T>& tables) {
  const size_t n = size_t(1) << order;
  if (order >= tables.columns_from) {
    const fft_tables<T> inner = tables.inner(order);
    for (size_t i = 0; i < n; i += n / 16) combine(mid + i, mid + i, order - 4, inner);
    return column_pass(mid, out, n, tables.columns);
  }
  const size_t        first = size_t(first_radix<T>(order));
  const stage_plan<T> plan(tables.stages, order);
  stages_up_to(mid, n, first, n / 4, plan);
  stage(mid, out, n, n, plan.records(n));
}

}  // namespace tav::TAV_VARIANT::fft
