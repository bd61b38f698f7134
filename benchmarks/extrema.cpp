// Extrema. Noise, whose largest and smallest elements stand in the later half, so that an index is far to seek.
#include <volk/volk.h>

#include "harness.h"
#include "plain_extrema.h"

namespace bench {
namespace {

// From 2 to 113, but for two elements.
template <class T> void noise(const arrays<T>& x, int n) {
  uint32_t state = 1;
  for (int i = 0; i < n; ++i) state = state * 1664525 + 1013904223, x.a[i] = T(2 + (state >> 16) % 112);
  x.a[n / 2 + n / 4] = 114;
  x.a[n - 2]         = 1;
}

// Where results go: indices first, for some contenders tell nothing else.
template <class T> int* index_in(const arrays<T>& x, int k = 0) { return reinterpret_cast<int*>(x.out) + k; }
template <class T> T*   extreme_in(const arrays<T>& x, int k = 0) { return x.out + 8 + k; }

template <class T, auto* Export> contender<T> our_index() {
  return {ours, [](auto& x, int n) { Export(x.a, n, extreme_in(x), index_in(x)); }};
}
template <class T> contender<T> loop_for_index() {
  return {loop, [](auto& x, int n) { plain::largest_at(x.a, n, extreme_in(x), index_in(x)); }};
}
template <class T, auto* Export> contender<T> our_indices() {
  return {ours, [](auto& x, int n) { Export(x.a, n, extreme_in(x), index_in(x), extreme_in(x, 1), index_in(x, 1)); }};
}
template <class T> contender<T> loop_for_indices() {
  return {loop, [](auto& x, int n) {
            plain::extremes_at(x.a, n, extreme_in(x), index_in(x), extreme_in(x, 1), index_in(x, 1));
          }};
}

void volk_index(const arrays<Tav32f>& x, int n) {
  volk_32f_index_max_32u_a(reinterpret_cast<uint32_t*>(index_in(x)), x.a, unsigned(n));
}

}  // namespace

// In cache the loops of integers are vectors, too: of 16 bits and less they take a cycle for each, and no kernel can
// load more than two. extrema_kernels.cpp has others.
BENCH_FAMILY(extrema) {
  summary_contest<Tav32f, Tav32f>({.name = "Max_32f", .bytes = 4, .in_cache = 3, .in_memory = 1, .curve = true}, 0,
                                  {{ours, [](auto& x, int n) { tavsMax_32f(x.a, n, x.out); }},
                                   {loop, [](auto& x, int n) { plain::largest(x.a, n, x.out); }}},
                                  noise);
  summary_contest<Tav32s, Tav32s>({.name = "Max_32s", .bytes = 4, .in_cache = 3, .in_memory = 1}, 0,
                                  {{ours, [](auto& x, int n) { tavsMax_32s(x.a, n, x.out); }},
                                   {loop, [](auto& x, int n) { plain::largest(x.a, n, x.out); }}},
                                  noise);
  summary_contest<Tav16s, Tav16s>({.name = "Min_16s", .bytes = 2, .in_cache = 3, .in_memory = 1}, 0,
                                  {{ours, [](auto& x, int n) { tavsMin_16s(x.a, n, x.out); }},
                                   {loop, [](auto& x, int n) { plain::smallest(x.a, n, x.out); }}},
                                  noise);
  summary_contest<Tav16s, Tav16s>({.name = "MaxAbs_16s", .bytes = 2, .in_memory = 1}, 0,
                                  {{ours, [](auto& x, int n) { tavsMaxAbs_16s(x.a, n, x.out); }},
                                   {loop, [](auto& x, int n) { plain::largest_magnitude(x.a, n, x.out); }}},
                                  noise);
  summary_contest<Tav8u, Tav8u>({.name = "MinMax_8u", .bytes = 1, .in_memory = 1}, 0,
                                {{ours, [](auto& x, int n) { tavsMinMax_8u(x.a, n, x.out, x.out + 1); }},
                                 {loop, [](auto& x, int n) { plain::extremes(x.a, n, x.out, x.out + 1); }}},
                                noise, 2);
  summary_contest<Tav32f, Tav32f>({.name = "MinMax_32f", .bytes = 4, .in_memory = 1}, 0,
                                  {{ours, [](auto& x, int n) { tavsMinMax_32f(x.a, n, x.out, x.out + 1); }},
                                   {loop, [](auto& x, int n) { plain::extremes(x.a, n, x.out, x.out + 1); }}},
                                  noise, 2);
}

BENCH_FAMILY(extrema_indices) {
  const auto row_of = [](const char* name, double bytes) { return row{.name = name, .bytes = bytes, .in_memory = 1}; };
  summary_contest<int, Tav16s>(row_of("MaxIndx_16s", 2), 0,
                               {our_index<Tav16s, tavsMaxIndx_16s>(), loop_for_index<Tav16s>()}, noise);
  summary_contest<int, Tav32s>(row_of("MaxIndx_32s", 4), 0,
                               {our_index<Tav32s, tavsMaxIndx_32s>(), loop_for_index<Tav32s>()}, noise);
  summary_contest<int, Tav32f>(row_of("MaxIndx_32f", 4), 0,
                               {our_index<Tav32f, tavsMaxIndx_32f>(), loop_for_index<Tav32f>(),
                                volk<Tav32f>("volk_32f_index_max_32u", volk_index)},
                               noise);
  summary_contest<int, Tav32f>(row_of("MinMaxIndx_32f", 4), 0,
                               {our_indices<Tav32f, tavsMinMaxIndx_32f>(), loop_for_indices<Tav32f>()}, noise, 2);
  summary_contest<int, Tav64f>(row_of("MinMaxIndx_64f", 8), 0,
                               {our_indices<Tav64f, tavsMinMaxIndx_64f>(), loop_for_indices<Tav64f>()}, noise, 2);
}

}  // namespace bench
