// Companding, and sound of two channels as lines and back.
#include "harness.h"
#include "plain_companding.h"

namespace bench {
namespace {

Tav8u*  codes(Tav16s* p) { return reinterpret_cast<Tav8u*>(p); }
Tav16s* samples(Tav32f* p) { return reinterpret_cast<Tav16s*>(p); }

// Every sample, or pair of codes, in no order; nothing behind a result that is smaller than its source.
void mixed(const arrays<Tav16s>& x, int n) {
  for (int i = 0; i < n; ++i) x.a[i] = Tav16s(i * 40503), x.out[i] = 0;
}

void levels(const arrays<Tav32f>& x, int n) {
  for (int i = 0; i < n; ++i) x.a[i] = float(i * 7919 % 2003 - 1001) / 1000, x.out[i] = 0;
}

// The two halves of an array.
struct two_lines {
  Tav32f* line[2];
  int     len;

  two_lines(Tav32f* p, int n) : line{p, p + n / 2}, len(n / 2) {}
  const Tav32f** source() { return const_cast<const Tav32f**>(line); }
};

}  // namespace

BENCH_FAMILY(companding) {
  contest<Tav16s>({.name = "LinToMuLaw_16s8u", .bytes = 3, .curve = true},
                  {{ours, [](auto& x, int n) { tavsLinToMuLaw_16s8u(x.a, codes(x.out), n); }},
                   {loop, [](auto& x, int n) { plain::to_mu_law(x.a, codes(x.out), n); }}},
                  mixed);
  contest<Tav16s>({.name = "LinToALaw_16s8u", .bytes = 3},
                  {{ours, [](auto& x, int n) { tavsLinToALaw_16s8u(x.a, codes(x.out), n); }},
                   {loop, [](auto& x, int n) { plain::to_a_law(x.a, codes(x.out), n); }}},
                  mixed);
  contest<Tav16s>({.name = "MuLawToLin_8u16s", .bytes = 3, .curve = true},
                  {{ours, [](auto& x, int n) { tavsMuLawToLin_8u16s(codes(x.a), x.out, n); }},
                   {loop, [](auto& x, int n) { plain::from_mu_law(codes(x.a), x.out, n); }}},
                  mixed);
}

BENCH_FAMILY(lines) {
  contest<Tav32f>({.name = "SplitScaled_16s32f_D2L, 2 lines", .bytes = 6},
                  {{ours,
                    [](auto& x, int n) {
                      two_lines dst(x.out, n);
                      tavsSplitScaled_16s32f_D2L(samples(x.a), dst.line, 2, dst.len);
                    }},
                   {loop,
                    [](auto& x, int n) {
                      two_lines dst(x.out, n);
                      plain::split(samples(x.a), dst.line, 2, dst.len);
                    }}},
                  levels);
  contest<Tav32f>({.name = "JoinScaled_32f16s_D2L, 2 lines", .bytes = 6},
                  {{ours,
                    [](auto& x, int n) {
                      two_lines src(x.a, n);
                      tavsJoinScaled_32f16s_D2L(src.source(), 2, src.len, samples(x.out));
                    }},
                   {loop,
                    [](auto& x, int n) {
                      two_lines src(x.a, n);
                      plain::join(src.source(), 2, src.len, samples(x.out));
                    }}},
                  levels);
}

}  // namespace bench
