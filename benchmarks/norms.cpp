// Norms beside the plain loop and, where VOLK has what they are made of, its kernel.
#include <math.h>
#include <volk/volk.h>

#include "harness.h"
#include "plain_norms.h"

namespace bench {
namespace {

using singles = const arrays<Tav32f>&;
using doubles = const arrays<Tav64f>&;
using words   = const arrays<Tav16s>&;
using pairs   = const arrays<Tav32fc>&;

template <class T> Tav32f* single(const arrays<T>& x) { return reinterpret_cast<Tav32f*>(x.out); }

}  // namespace

BENCH_FAMILY(norms) {
  summary_contest<Tav32f, Tav32f>({.name = "Norm_Inf_32f", .bytes = 4, .in_cache = 3}, 0,
                                  {{ours, [](singles x, int n) { tavsNorm_Inf_32f(x.a, n, x.out); }},
                                   {loop, [](singles x, int n) { *x.out = plain::norm_inf(x.a, n); }}});
  summary_contest<Tav32f, Tav32f>({.name = "Norm_L1_32f", .bytes = 4, .in_cache = 3}, 1e-5,
                                  {{ours, [](singles x, int n) { tavsNorm_L1_32f(x.a, n, x.out); }},
                                   {loop, [](singles x, int n) { *x.out = plain::norm_l1(x.a, n); }}});
  summary_contest<Tav32f, Tav32f>({.name = "Norm_L2_32f", .bytes = 4, .in_cache = 3, .against = loop, .curve = true},
                                  1e-5,
                                  {{ours, [](singles x, int n) { tavsNorm_L2_32f(x.a, n, x.out); }},
                                   {loop, [](singles x, int n) { *x.out = plain::norm_l2(x.a, n); }},
                                   volk<Tav32f>("volk_32f_x2_dot_prod_32f", [](singles x, int n) {
                                     volk_32f_x2_dot_prod_32f_a(x.out, x.a, x.a, unsigned(n));
                                     *x.out = sqrtf(*x.out);
                                   })});
  summary_contest<Tav64f, Tav64f>({.name = "Norm_L2_64f", .bytes = 8, .in_cache = 3}, 1e-14,
                                  {{ours, [](doubles x, int n) { tavsNorm_L2_64f(x.a, n, x.out); }},
                                   {loop, [](doubles x, int n) { *x.out = plain::norm_l2(x.a, n); }}});
  summary_contest<Tav32f, Tav16s>({.name = "Norm_L2_16s32f", .bytes = 2}, 0,
                                  {{ours, [](words x, int n) { tavsNorm_L2_16s32f(x.a, n, single(x)); }},
                                   {loop, [](words x, int n) { *single(x) = plain::norm_l2(x.a, n); }}});
  summary_contest<Tav32f, Tav32fc>({.name = "Norm_Inf_32fc32f", .bytes = 8}, 0,
                                   {{ours, [](pairs x, int n) { tavsNorm_Inf_32fc32f(x.a, n, single(x)); }},
                                    {loop, [](pairs x, int n) { *single(x) = plain::norm_inf(x.a, n); }}});
  summary_contest<Tav32f, Tav32f>({.name = "NormDiff_L2_32f", .bytes = 8, .in_cache = 3}, 1e-5,
                                  {{ours, [](singles x, int n) { tavsNormDiff_L2_32f(x.a, x.b, n, x.out); }},
                                   {loop, [](singles x, int n) { *x.out = plain::norm_l2(x.a, x.b, n); }}});
  summary_contest<Tav32f, Tav16s>({.name = "NormDiff_L1_16s32f", .bytes = 4}, 0,
                                  {{ours, [](words x, int n) { tavsNormDiff_L1_16s32f(x.a, x.b, n, single(x)); }},
                                   {loop, [](words x, int n) { *single(x) = plain::norm_l1(x.a, x.b, n); }}});
}

}  // namespace bench
