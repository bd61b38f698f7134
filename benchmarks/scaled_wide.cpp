// Scaled integer sums and products with results of 32 and 64 bits.
#include "harness.h"
#include "plain_loops.h"

namespace bench {

template <auto Ours, auto Loop, int Scale> static void scaled_contest(const char* name) {
  contest<Tav32s>({.name = name, .bytes = 12, .curve = Scale == 1},
                  {{ours, [](auto& x, int n) { Ours(x.a, x.b, x.out, n, Scale); }},
                   {loop, [](auto& x, int n) { Loop(x.a, x.b, x.out, n, Scale); }}});
}

static plain::pair<Tav32s>* pairs(Tav32sc* p) { return reinterpret_cast<plain::pair<Tav32s>*>(p); }

template <int Scale> static void pair_contest(const char* name) {
  contest<Tav32sc>(
      {.name = name, .bytes = 24},
      {{ours, [](auto& x, int n) { tavsMul_32sc_Sfs(x.a, x.b, x.out, n, Scale); }},
       {loop, [](auto& x, int n) { plain::multiply_scaled(pairs(x.a), pairs(x.b), pairs(x.out), n, Scale); }}});
}

template <int Scale> static void long_contest(const char* name) {
  contest<Tav64s>({.name = name, .bytes = 16},
                  {{ours, [](auto& x, int n) { tavsAddC_64s_Sfs(x.a, 1234567, x.out, unsigned(n), Scale, 1); }},
                   {loop, [](auto& x, int n) { plain::add_scaled(x.a, 1234567, x.out, n, Scale); }}});
}

using reals                    = void (*)(const Tav32s*, const Tav32s*, Tav32s*, int, int);
constexpr reals plain_add      = plain::add_scaled;
constexpr reals plain_multiply = plain::multiply_scaled;

static void by_a_constant() {
  contest<Tav32s>({.name = "MulC_32s_Sfs, scale 5", .bytes = 8},
                  {{ours, [](auto& x, int n) { tavsMulC_32s_Sfs(x.a, 123, x.out, n, 5); }},
                   {loop, [](auto& x, int n) { plain::multiply_scaled(x.a, 123, x.out, n, 5); }}});
}

BENCH_FAMILY(scaled_wide) {
  scaled_contest<tavsAdd_32s_Sfs, plain_add, 0>("Add_32s_Sfs, scale 0");
  scaled_contest<tavsAdd_32s_Sfs, plain_add, 1>("Add_32s_Sfs, scale 1");
  scaled_contest<tavsAdd_32s_Sfs, plain_add, 3>("Add_32s_Sfs, scale 3");
  scaled_contest<tavsMul_32s_Sfs, plain_multiply, 0>("Mul_32s_Sfs, scale 0");
  scaled_contest<tavsMul_32s_Sfs, plain_multiply, 20>("Mul_32s_Sfs, scale 20");
  by_a_constant();
  pair_contest<0>("Mul_32sc_Sfs, scale 0");
  pair_contest<5>("Mul_32sc_Sfs, scale 5");
  long_contest<0>("AddC_64s_Sfs, scale 0");
  long_contest<5>("AddC_64s_Sfs, scale 5");
}

}  // namespace bench
