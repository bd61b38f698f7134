// 8- and 16-bit sums and products with a scale factor.
#include "harness.h"
#include "plain_loops.h"

namespace bench {

// A function of two sources at one factor, beside the plain loop for the same.
template <class T, auto Ours, auto Loop, int S> static void scaled(const char* name, double goal = 0) {
  contest<T>({.name = name, .bytes = 3.0 * sizeof(T), .in_cache = goal, .curve = goal > 0 && S < 2},
             {{ours, [](auto& x, int n) { Ours(x.a, x.b, x.out, n, S); }},
              {loop, [](auto& x, int n) { Loop(x.a, x.b, x.out, n, S); }}});
}

BENCH_FAMILY(scaled_narrow) {
  scaled<Tav16s, tavsAdd_16s_Sfs, plain::add_scaled<Tav16s>, 0>("Add_16s_Sfs, s = 0", 5);
  scaled<Tav16s, tavsAdd_16s_Sfs, plain::add_scaled<Tav16s>, 1>("Add_16s_Sfs, s = 1", 2.5);
  scaled<Tav16s, tavsAdd_16s_Sfs, plain::add_scaled<Tav16s>, 3>("Add_16s_Sfs, s = 3", 2.5);
  scaled<Tav16s, tavsSub_16s_Sfs, plain::sub_scaled<Tav16s>, -2>("Sub_16s_Sfs, s = -2");
  scaled<Tav16u, tavsAdd_16u_Sfs, plain::add_scaled<Tav16u>, 1>("Add_16u_Sfs, s = 1");
  scaled<Tav8u, tavsAdd_8u_Sfs, plain::add_scaled<Tav8u>, 0>("Add_8u_Sfs, s = 0");
  scaled<Tav8u, tavsAdd_8u_Sfs, plain::add_scaled<Tav8u>, 1>("Add_8u_Sfs, s = 1");
  scaled<Tav8u, tavsMul_8u_Sfs, plain::mul_scaled<Tav8u>, 4>("Mul_8u_Sfs, s = 4");
  scaled<Tav16s, tavsMul_16s_Sfs, plain::mul_scaled<Tav16s>, 0>("Mul_16s_Sfs, s = 0");
  scaled<Tav16s, tavsMul_16s_Sfs, plain::mul_scaled<Tav16s>, 15>("Mul_16s_Sfs, s = 15");
  scaled<Tav16u, tavsMul_16u_Sfs, plain::mul_scaled<Tav16u>, 16>("Mul_16u_Sfs, s = 16");
  scaled<Tav16sc, tavsMul_16sc_Sfs, plain::mul_scaled_pairs, 15>("Mul_16sc_Sfs, s = 15");
}

}  // namespace bench
