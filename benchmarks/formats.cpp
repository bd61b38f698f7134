// Conversions of 24-bit integers and half floats. The arrays count elements of four bytes; the narrow side of a
// conversion fills the first part of its array.
#include "harness.h"
#include "plain_formats.h"

namespace bench {
namespace {

Tav8u*  bytes(Tav32f* p) { return reinterpret_cast<Tav8u*>(p); }
Tav16u* halves(Tav32f* p) { return reinterpret_cast<Tav16u*>(p); }
Tav32s* words(Tav32f* p) { return reinterpret_cast<Tav32s*>(p); }

void clear(const arrays<Tav32f>& x, int n) {
  for (int i = 0; i < n; ++i) x.b[i] = x.out[i] = 0;
}

// Finite normal halves of both signs, next to each other of like size.
void fill_halves(const arrays<Tav32f>& x, int n) {
  clear(x, n);
  for (int i = 0; i < 2 * n; ++i) halves(x.a)[i] = Tav16u((i & 1) << 15 | (0x3000 + i * 37 % 0x1400));
}

// Singles from -1 to 1.
void fill_singles(const arrays<Tav32f>& x, int n) {
  clear(x, n);
  for (int i = 0; i < n; ++i) x.a[i] = Tav32f(i * 7919 % 20011 - 10005) / 10005;
}

// All byte values, and no NaN when they are taken for singles.
void fill_bytes(const arrays<Tav32f>& x, int n) {
  clear(x, n);
  for (int i = 0; i < 4 * n; ++i) bytes(x.a)[i] = Tav8u(i % 4 == 3 ? i % 113 : i * 167);
}

constexpr double goal = 3;

}  // namespace

BENCH_FAMILY(convert_24) {
  contest<Tav32f>({.name = "Convert_24s32f", .bytes = 7, .in_cache = goal},
                  {{ours, [](auto& x, int n) { tavsConvert_24s32f(bytes(x.a), x.out, n); }},
                   {loop, [](auto& x, int n) { plain::widen_24(bytes(x.a), x.out, n); }}},
                  fill_bytes);
  contest<Tav32f>({.name = "Convert_24s32s", .bytes = 7, .in_cache = goal},
                  {{ours, [](auto& x, int n) { tavsConvert_24s32s(bytes(x.a), words(x.out), n); }},
                   {loop, [](auto& x, int n) { plain::widen_24(bytes(x.a), words(x.out), n); }}},
                  fill_bytes);
  contest<Tav32f>({.name = "Convert_32f24s_Sfs, s = -23", .bytes = 7, .in_cache = goal},
                  {{ours, [](auto& x, int n) { tavsConvert_32f24s_Sfs(x.a, bytes(x.out), n, -23); }},
                   {loop, [](auto& x, int n) { plain::narrow_to_24(x.a, bytes(x.out), n, -23); }}},
                  fill_singles);
}

BENCH_FAMILY(convert_half) {
  contest<Tav32f>({.name = "Convert_16f32f", .bytes = 6, .in_cache = goal},
                  {{ours, [](auto& x, int n) { tavsConvert_16f32f(halves(x.a), x.out, n); }},
                   {loop, [](auto& x, int n) { plain::half_to_float(halves(x.a), x.out, n); }}},
                  fill_halves);
  contest<Tav32f>({.name = "Convert_32f16f, to nearest", .bytes = 6, .in_cache = goal},
                  {{ours, [](auto& x, int n) { tavsConvert_32f16f(x.a, halves(x.out), n, 1); }},
                   {loop, [](auto& x, int n) { plain::float_to_half(x.a, halves(x.out), n); }}},
                  fill_singles);
}

}  // namespace bench
