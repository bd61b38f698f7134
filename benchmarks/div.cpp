// Quotients of two arrays, and of an array and a constant.
#include <volk/volk.h>

#include "harness.h"
#include "plain_division.h"

namespace bench {

template <class T, auto Ours> static void scaled(const char* name) {
  contest<T>({.name = name, .bytes = 3.0 * sizeof(T)},
             {{ours, [](auto& x, int n) { Ours(x.a, x.b, x.out, n, 0); }},
              {loop, [](auto& x, int n) { plain::divide(x.a, x.b, x.out, n); }}});
}

BENCH_FAMILY(div) {
  scaled<Tav8u, tavsDiv_8u_Sfs>("Div_8u_Sfs, factor 0");
  scaled<Tav16s, tavsDiv_16s_Sfs>("Div_16s_Sfs, factor 0");
  scaled<Tav16u, tavsDiv_16u_Sfs>("Div_16u_Sfs, factor 0");
  contest<Tav32f>({.name = "Div_32f", .bytes = 12, .curve = true},
                  {{ours, [](auto& x, int n) { tavsDiv_32f(x.a, x.b, x.out, n); }},
                   {loop, [](auto& x, int n) { plain::divide(x.a, x.b, x.out, n); }},
                   volk<Tav32f>("volk_32f_x2_divide_32f",
                                [](auto& x, int n) { volk_32f_x2_divide_32f_a(x.out, x.b, x.a, unsigned(n)); })});
}

BENCH_FAMILY(div_c) {
  contest<Tav16s>({.name = "DivC_16s_Sfs, by 7, factor 0", .bytes = 4},
                  {{ours, [](auto& x, int n) { tavsDivC_16s_Sfs(x.a, 7, x.out, n, 0); }},
                   {loop, [](auto& x, int n) { plain::divide_by<Tav16s>(x.a, 7, x.out, n); }}});
}

}  // namespace bench
