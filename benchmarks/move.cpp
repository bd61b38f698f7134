// Fills, copies and moves, beside the C library's.
#include <string.h>

#include "harness.h"
#include "plain_loops.h"

namespace bench {

BENCH_FAMILY(copy) {
  const auto row_of = [](const char* name, double bytes) {
    return row{.name = name, .bytes = bytes, .in_cache = 1.0, .in_memory = 1.35, .against = "memcpy"};
  };
  row bytes   = row_of("Copy_8u", 2);
  bytes.curve = true;
  contest<Tav8u>(bytes, {{ours, [](auto& x, int n) { tavsCopy_8u(x.a, x.out, n); }},
                         {"memcpy", [](auto& x, int n) { memcpy(x.out, x.a, size_t(n)); }},
                         {loop, [](auto& x, int n) { plain::copy(x.a, x.out, n); }}});
  contest<Tav8u>(row_of("Copy_8u, odd source", 2),
                 {{ours, [](auto& x, int n) { tavsCopy_8u(x.a + 5, x.out, n - 5); }},
                  {"memcpy", [](auto& x, int n) { memcpy(x.out, x.a + 5, size_t(n - 5)); }}});
  contest<Tav8u>(row_of("Copy_8u, odd destination", 2),
                 {{ours, [](auto& x, int n) { tavsCopy_8u(x.a, x.out + 5, n - 5); }},
                  {"memcpy", [](auto& x, int n) { memcpy(x.out + 5, x.a, size_t(n - 5)); }}});
  contest<Tav64fc>(row_of("Copy_64fc", 32),
                   {{ours, [](auto& x, int n) { tavsCopy_64fc(x.a, x.out, n); }},
                    {"memcpy", [](auto& x, int n) { memcpy(x.out, x.a, size_t(n) * sizeof *x.a); }}});
}

BENCH_FAMILY(move) {
  const auto row_of = [](const char* name) {
    return row{.name = name, .bytes = 2, .in_cache = 1.0, .in_memory = 1.0, .against = "memmove"};
  };
  contest<Tav8u>(row_of("Move_8u"), {{ours, [](auto& x, int n) { tavsMove_8u(x.a, x.out, n); }},
                                     {"memmove", [](auto& x, int n) { memmove(x.out, x.a, size_t(n)); }}});
  contest<Tav8u>(row_of("Move_8u, down by 16"),
                 {{ours, [](auto& x, int n) { tavsMove_8u(x.a + 16, x.a, n - 16); }},
                  {"memmove", [](auto& x, int n) { memmove(x.a, x.a + 16, size_t(n - 16)); }}});
  contest<Tav8u>(row_of("Move_8u, up by 16"),
                 {{ours, [](auto& x, int n) { tavsMove_8u(x.a, x.a + 16, n - 16); }},
                  {"memmove", [](auto& x, int n) { memmove(x.a + 16, x.a, size_t(n - 16)); }}});
}

BENCH_FAMILY(fill) {
  const auto row_of = [](const char* name, double bytes, const char* against) {
    return row{.name = name, .bytes = bytes, .in_cache = 1.0, .in_memory = 1.35, .against = against};
  };
  row zeros   = row_of("Zero_8u", 1, "memset");
  zeros.curve = true;
  contest<Tav8u>(zeros, {{ours, [](auto& x, int n) { tavsZero_8u(x.out, n); }},
                         {"memset", [](auto& x, int n) { memset(x.out, 0, size_t(n)); }},
                         {loop, [](auto& x, int n) { plain::fill<Tav8u>(0, x.out, n); }}});
  row values   = row_of("Set_8u", 1, "memset");
  values.curve = true;
  contest<Tav8u>(values, {{ours, [](auto& x, int n) { tavsSet_8u(7, x.out, n); }},
                          {"memset", [](auto& x, int n) { memset(x.out, 7, size_t(n)); }},
                          {loop, [](auto& x, int n) { plain::fill<Tav8u>(7, x.out, n); }}});
  contest<Tav16s>(row_of("Set_16s", 2, ""), {{ours, [](auto& x, int n) { tavsSet_16s(7, x.out, n); }},
                                             {loop, [](auto& x, int n) { plain::fill<Tav16s>(7, x.out, n); }}});
  contest<Tav32f>(row_of("Set_32f", 4, ""), {{ours, [](auto& x, int n) { tavsSet_32f(7, x.out, n); }},
                                             {loop, [](auto& x, int n) { plain::fill<Tav32f>(7, x.out, n); }}});
  contest<Tav64f>(row_of("Set_64f", 8, ""), {{ours, [](auto& x, int n) { tavsSet_64f(7, x.out, n); }},
                                             {loop, [](auto& x, int n) { plain::fill<Tav64f>(7, x.out, n); }}});
}

}  // namespace bench
