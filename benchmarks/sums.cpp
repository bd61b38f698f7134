// Sums, means and deviations of one array.
#include <volk/volk.h>

#include "harness.h"
#include "plain_sums.h"

namespace bench {
namespace {

constexpr int fast = 1, accurate = 0;  // hints

contender<Tav32f> volk_sum() {
  return volk<Tav32f>("volk_32f_accumulator_s32f",
                      [](auto& x, int n) { volk_32f_accumulator_s32f_a(x.out, x.a, unsigned(n)); });
}

// It divides by n where others divide by n - 1, and makes the mean as well.
contender<Tav32f> volk_std_dev() {
  return volk<Tav32f>("volk_32f_stddev_and_mean_32f_x2",
                      [](auto& x, int n) { volk_32f_stddev_and_mean_32f_x2_a(x.out, x.out + 1, x.a, unsigned(n)); });
}

}  // namespace

BENCH_FAMILY(sums) {
  constexpr double close     = 1e-5;
  const auto       plain_sum = contender<Tav32f>{loop, [](auto& x, int n) { plain::sum(x.a, x.out, n); }};
  summary_contest<Tav32f, Tav32f>(
      {.name = "Sum_32f, fast", .bytes = 4, .in_cache = 3, .against = loop, .curve = true}, close,
      {{ours, [](auto& x, int n) { tavsSum_32f(x.a, n, x.out, fast); }}, plain_sum, volk_sum()});
  summary_contest<Tav32f, Tav32f>(
      {.name = "Sum_32f, accurate", .bytes = 4}, close,
      {{ours, [](auto& x, int n) { tavsSum_32f(x.a, n, x.out, accurate); }}, plain_sum, volk_sum()});
  summary_contest<Tav64f, Tav64f>({.name = "Sum_64f", .bytes = 8, .in_cache = 3}, 1e-13,
                                  {{ours, [](auto& x, int n) { tavsSum_64f(x.a, n, x.out); }},
                                   {loop, [](auto& x, int n) { plain::sum(x.a, x.out, n); }}});
  summary_contest<Tav16s, Tav16s>({.name = "Sum_16s_Sfs", .bytes = 2}, 0,
                                  {{ours, [](auto& x, int n) { tavsSum_16s_Sfs(x.a, n, x.out, 8); }},
                                   {loop, [](auto& x, int n) { plain::sum_scaled(x.a, x.out, n, 8); }}});
  summary_contest<Tav32s, Tav32s>({.name = "Sum_32s_Sfs", .bytes = 4}, 0,
                                  {{ours, [](auto& x, int n) { tavsSum_32s_Sfs(x.a, n, x.out, 8); }},
                                   {loop, [](auto& x, int n) { plain::sum_scaled(x.a, x.out, n, 8); }}});
}

BENCH_FAMILY(means) {
  summary_contest<Tav32f, Tav32f>({.name = "Mean_32f, fast", .bytes = 4, .in_cache = 3}, 1e-5,
                                  {{ours, [](auto& x, int n) { tavsMean_32f(x.a, n, x.out, fast); }},
                                   {loop, [](auto& x, int n) { plain::mean(x.a, x.out, n); }}});
}

BENCH_FAMILY(deviations) {
  constexpr double close         = 1e-3;
  const auto       plain_std_dev = contender<Tav32f>{loop, [](auto& x, int n) { plain::std_dev(x.a, x.out, n); }};
  summary_contest<Tav32f, Tav32f>(
      {.name = "StdDev_32f, fast", .bytes = 4, .in_cache = 3, .against = loop, .account = "Deviations"}, close,
      {{ours, [](auto& x, int n) { tavsStdDev_32f(x.a, n, x.out, fast); }}, plain_std_dev, volk_std_dev()});
  summary_contest<Tav32f, Tav32f>(
      {.name = "StdDev_32f, accurate", .bytes = 4}, close,
      {{ours, [](auto& x, int n) { tavsStdDev_32f(x.a, n, x.out, accurate); }}, plain_std_dev, volk_std_dev()});
  summary_contest<Tav16s, Tav16s>({.name = "StdDev_16s_Sfs", .bytes = 2}, 0,
                                  {{ours, [](auto& x, int n) { tavsStdDev_16s_Sfs(x.a, n, x.out, -3); }},
                                   {loop, [](auto& x, int n) { plain::std_dev_scaled(x.a, x.out, n, -3); }}});
}

}  // namespace bench
