// The larger and smaller of two elements, counts in an array, and a running update.
#include <volk/volk.h>

#include "harness.h"
#include "plain_counting.h"

namespace bench {
namespace {

template <class R, class T> R* result(const arrays<T>& x) { return reinterpret_cast<R*>(x.out); }

// Signs as in noise, which no branch can foresee.
template <class T> void noise(const arrays<T>& x, int n) {
  ramp(x, n);
  uint32_t bits = 1;
  for (int i = 0; i < n; ++i) {
    bits = bits * 1664525 + 1013904223;
    if (bits >> 31) x.a[i] = T(-x.a[i]);
  }
}

void silence(const arrays<Tav16s>& x, int n) {
  for (int i = 0; i < n; ++i) x.a[i] = x.b[i] = x.out[i] = 0;
}

// The running value starts anew each time.
void update_by(Tav16s alpha, const arrays<Tav16s>& x, int n) {
  Tav32s s = 0;
  tavsUpdateLinear_16s32s_I(x.a, n, &s, 1, alpha, 0);
  *result<Tav32s>(x) = s;
}
void update_plainly_by(Tav16s alpha, const arrays<Tav16s>& x, int n) {
  *result<Tav32s>(x) = plain::update(x.a, n, 0, 1, alpha);
}

constexpr char crossings[] = "Crossings of zero";

}  // namespace

BENCH_FAMILY(min_max_every) {
  contest<Tav32f>({.name = "MaxEvery_32f", .bytes = 12, .in_cache = 1.05, .in_memory = 1.25, .curve = true},
                  {{ours, [](auto& x, int n) { tavsMaxEvery_32f(x.a, x.b, x.out, unsigned(n)); }},
                   {loop, [](auto& x, int n) { plain::every_larger(x.a, x.b, x.out, n); }},
                   volk<Tav32f>("volk_32f_x2_max_32f",
                                [](auto& x, int n) { volk_32f_x2_max_32f_a(x.out, x.a, x.b, unsigned(n)); })});
  contest<Tav8u>({.name = "MaxEvery_8u", .bytes = 3, .in_cache = 1.05, .in_memory = 1.25},
                 {{ours, [](auto& x, int n) { tavsMaxEvery_8u(x.a, x.b, x.out, n); }},
                  {loop, [](auto& x, int n) { plain::every_larger(x.a, x.b, x.out, n); }}});
  contest<Tav16u>({.name = "MinEvery_16u_I", .bytes = 6, .in_cache = 1.05, .in_memory = 1},
                  {{ours, [](auto& x, int n) { tavsMinEvery_16u_I(x.a, x.out, n); }},
                   {loop, [](auto& x, int n) { plain::every_smaller(x.a, x.out, n); }}});
}

BENCH_FAMILY(counting) {
  contest<Tav16s>({.name = "MaxOrder_16s", .bytes = 2, .in_cache = 1.5, .in_memory = 1},
                  {{ours, [](auto& x, int n) { tavsMaxOrder_16s(x.a, n, result<int>(x)); }},
                   {loop, [](auto& x, int n) { *result<int>(x) = plain::order_of_integers(x.a, n); }}},
                  noise<Tav16s>);
  contest<Tav32f>({.name = "MaxOrder_32f", .bytes = 4, .in_cache = 3, .in_memory = 1},
                  {{ours, [](auto& x, int n) { tavsMaxOrder_32f(x.a, n, result<int>(x)); }},
                   {loop,
                    [](auto& x, int n) {
                      bool has_nan;
                      *result<int>(x) = plain::order_of_floats(x.a, n, &has_nan);
                      benchmark::DoNotOptimize(has_nan);
                    }}},
                  noise<Tav32f>);
  contest<Tav32s>({.name = "CountInRange_32s", .bytes = 4, .in_cache = 1.5, .in_memory = 1, .curve = true},
                  {{ours, [](auto& x, int n) { tavsCountInRange_32s(x.a, n, result<int>(x), -50, 50); }},
                   {loop, [](auto& x, int n) { *result<int>(x) = plain::count_between(x.a, n, -50, 50); }}},
                  noise<Tav32s>);
  contest<Tav32f>({.name = "ZeroCrossing_32f", .bytes = 4, .in_cache = 1, .in_memory = 1, .account = crossings},
                  {{ours, [](auto& x, int n) { tavsZeroCrossing_32f(x.a, unsigned(n), x.out, 0); }},
                   {loop, [](auto& x, int n) { *x.out = plain::zero_crossings(x.a, n); }}},
                  noise<Tav32f>);
  contest<Tav16s>({.name = "ZeroCrossing_16s32f", .bytes = 2, .in_cache = 1, .in_memory = 1, .account = crossings},
                  {{ours, [](auto& x, int n) { tavsZeroCrossing_16s32f(x.a, unsigned(n), result<Tav32f>(x), 0); }},
                   {loop, [](auto& x, int n) { *result<Tav32f>(x) = plain::zero_crossings(x.a, n); }}},
                  noise<Tav16s>);
}

// An update that grows is over after a few elements, so only those count that do not.
BENCH_FAMILY(update) {
  contest<Tav16s>({.name = "UpdateLinear_16s32s_I, alpha -1", .bytes = 2},
                  {{ours, [](auto& x, int n) { update_by(-1, x, n); }},
                   {loop, [](auto& x, int n) { update_plainly_by(-1, x, n); }}},
                  noise<Tav16s>);
  contest<Tav16s>(
      {.name = "UpdateLinear_16s32s_I, silence", .bytes = 2},
      {{ours, [](auto& x, int n) { update_by(2, x, n); }}, {loop, [](auto& x, int n) { update_plainly_by(2, x, n); }}},
      silence);
}

}  // namespace bench
