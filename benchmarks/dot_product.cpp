// Sums of products of two arrays.
#include <volk/volk.h>

#include "harness.h"
#include "plain_dot.h"

namespace bench {
namespace {

constexpr double singles = 1e-4, doubles = 1e-12;

lv_32fc_t*                     pairs(Tav32fc* p) { return reinterpret_cast<lv_32fc_t*>(p); }
template <class D, class T> D* sum(const arrays<T>& x) { return reinterpret_cast<D*>(x.out); }

// A sum of type D; its parts are of type Part.
template <class D, class T, auto Ours, class Part = D> void dot_contest(const row& r, double tolerance) {
  summary_contest<Part, T>(r, tolerance,
                           {{ours, [](auto& x, int n) { Ours(x.a, x.b, n, sum<D>(x)); }},
                            {loop, [](auto& x, int n) { plain::dot(x.a, x.b, n, sum<D>(x)); }}},
                           ramp<T>, int(sizeof(D) / sizeof(Part)));
}

template <class T, auto Ours> void scaled_dot_contest(const row& r) {
  constexpr int scale = 7;  // the sums that are compared do not saturate
  summary_contest<T, T>(r, 0,
                        {{ours, [](auto& x, int n) { Ours(x.a, x.b, n, x.out, scale); }},
                         {loop, [](auto& x, int n) { plain::dot_scaled(x.a, x.b, n, x.out, scale); }}});
}

void singles_beside_volk() {
  summary_contest<Tav32f, Tav32f>({.name = "DotProd_32f", .bytes = 8, .curve = true}, singles,
                                  {{ours, [](auto& x, int n) { tavsDotProd_32f(x.a, x.b, n, x.out); }},
                                   {loop, [](auto& x, int n) { plain::dot(x.a, x.b, n, x.out); }},
                                   volk<Tav32f>("volk_32f_x2_dot_prod_32f", [](auto& x, int n) {
                                     volk_32f_x2_dot_prod_32f_a(x.out, x.a, x.b, unsigned(n));
                                   })});
  summary_contest<Tav32f, Tav32fc>(
      {.name = "DotProd_32fc", .bytes = 16}, singles,
      {{ours, [](auto& x, int n) { tavsDotProd_32fc(x.a, x.b, n, x.out); }},
       {loop, [](auto& x, int n) { plain::dot(x.a, x.b, n, x.out); }},
       volk<Tav32fc>(
           "volk_32fc_x2_dot_prod_32fc",
           [](auto& x, int n) { volk_32fc_x2_dot_prod_32fc_a(pairs(x.out), pairs(x.a), pairs(x.b), unsigned(n)); })},
      ramp<Tav32fc>, 2);
}

}  // namespace

BENCH_FAMILY(dot_product) {
  singles_beside_volk();
  dot_contest<Tav64f, Tav64f, tavsDotProd_64f>({.name = "DotProd_64f", .bytes = 16}, doubles);
  dot_contest<Tav64f, Tav32f, tavsDotProd_32f64f>({.name = "DotProd_32f64f", .bytes = 8}, doubles);
  dot_contest<Tav64s, Tav16s, tavsDotProd_16s64s>({.name = "DotProd_16s64s", .bytes = 4}, 0);
  dot_contest<Tav64sc, Tav16sc, tavsDotProd_16sc64sc, Tav64s>({.name = "DotProd_16sc64sc", .bytes = 8}, 0);
  scaled_dot_contest<Tav16s, tavsDotProd_16s_Sfs>({.name = "DotProd_16s_Sfs", .bytes = 4});
  scaled_dot_contest<Tav32s, tavsDotProd_32s_Sfs>({.name = "DotProd_32s_Sfs", .bytes = 8});
}

}  // namespace bench
