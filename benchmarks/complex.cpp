// Complex arrays: parts, conjugates, magnitudes and power. Every array is made of pairs; a destination or source of
// parts fills half of one.
#include <volk/volk.h>

#include "harness.h"
#include "plain_complex.h"

namespace bench {
namespace {

using pairs = arrays<Tav32fc>;

lv_32fc_t* of_volk(Tav32fc* p) { return reinterpret_cast<lv_32fc_t*>(p); }
Tav32f*    parts(Tav32fc* p) { return reinterpret_cast<Tav32f*>(p); }
Tav16s*    parts(Tav16sc* p) { return reinterpret_cast<Tav16s*>(p); }
Tav32s*    parts(Tav32sc* p) { return reinterpret_cast<Tav32s*>(p); }

}  // namespace

BENCH_FAMILY(parts) {
  contest<Tav32fc>({.name = "Real_32fc", .bytes = 12},
                   {{ours, [](const pairs& x, int n) { tavsReal_32fc(x.a, parts(x.out), n); }},
                    {loop, [](const pairs& x, int n) { plain::real_parts(x.a, parts(x.out), n); }},
                    volk<Tav32fc>("volk_32fc_deinterleave_real_32f", [](const pairs& x, int n) {
                      volk_32fc_deinterleave_real_32f_a(parts(x.out), of_volk(x.a), unsigned(n));
                    })});
  contest<Tav32fc>({.name = "CplxToReal_32fc", .bytes = 16},
                   {{ours, [](const pairs& x, int n) { tavsCplxToReal_32fc(x.a, parts(x.out), parts(x.b), n); }},
                    {loop, [](const pairs& x, int n) { plain::take_apart(x.a, parts(x.out), parts(x.b), n); }},
                    volk<Tav32fc>("volk_32fc_deinterleave_32f_x2", [](const pairs& x, int n) {
                      volk_32fc_deinterleave_32f_x2_a(parts(x.out), parts(x.b), of_volk(x.a), unsigned(n));
                    })});
  contest<Tav32fc>({.name = "RealToCplx_32f", .bytes = 16},
                   {{ours, [](const pairs& x, int n) { tavsRealToCplx_32f(parts(x.a), parts(x.b), x.out, n); }},
                    {loop, [](const pairs& x, int n) { plain::join(parts(x.a), parts(x.b), x.out, n); }},
                    volk<Tav32fc>("volk_32f_x2_interleave_32fc", [](const pairs& x, int n) {
                      volk_32f_x2_interleave_32fc_a(of_volk(x.out), parts(x.a), parts(x.b), unsigned(n));
                    })});
}

BENCH_FAMILY(conj) {
  contest<Tav32fc>({.name = "Conj_32fc", .bytes = 16},
                   {{ours, [](const pairs& x, int n) { tavsConj_32fc(x.a, x.out, n); }},
                    {loop, [](const pairs& x, int n) { plain::conjugate(x.a, x.out, n); }},
                    volk<Tav32fc>("volk_32fc_conjugate_32fc", [](const pairs& x, int n) {
                      volk_32fc_conjugate_32fc_a(of_volk(x.out), of_volk(x.a), unsigned(n));
                    })});
  contest<Tav32fc>({.name = "ConjFlip_32fc", .bytes = 16},
                   {{ours, [](const pairs& x, int n) { tavsConjFlip_32fc(x.a, x.out, n); }},
                    {loop, [](const pairs& x, int n) { plain::conjugate_flipped(x.a, x.out, n); }}});
}

BENCH_FAMILY(magnitude) {
  contest<Tav32fc>({.name = "Magnitude_32fc", .bytes = 12, .curve = true},
                   {{ours, [](const pairs& x, int n) { tavsMagnitude_32fc(x.a, parts(x.out), n); }},
                    {loop, [](const pairs& x, int n) { plain::magnitude(x.a, parts(x.out), n); }},
                    volk<Tav32fc>("volk_32fc_magnitude_32f", [](const pairs& x, int n) {
                      volk_32fc_magnitude_32f_a(parts(x.out), of_volk(x.a), unsigned(n));
                    })});
  contest<Tav16sc>({.name = "Magnitude_16sc_Sfs, factor 0", .bytes = 6},
                   {{ours, [](auto& x, int n) { tavsMagnitude_16sc_Sfs(x.a, parts(x.out), n, 0); }},
                    {loop, [](auto& x, int n) { plain::magnitude_scaled(x.a, parts(x.out), n, 0); }},
                    volk<Tav16sc>("volk_16ic_magnitude_16i", [](auto& x, int n) {
                      volk_16ic_magnitude_16i_a(parts(x.out), reinterpret_cast<lv_16sc_t*>(x.a), unsigned(n));
                    })});
  contest<Tav16sc>({.name = "Magnitude_16sc_Sfs, factor 2", .bytes = 6},
                   {{ours, [](auto& x, int n) { tavsMagnitude_16sc_Sfs(x.a, parts(x.out), n, 2); }},
                    {loop, [](auto& x, int n) { plain::magnitude_scaled(x.a, parts(x.out), n, 2); }}});
  contest<Tav32sc>({.name = "Magnitude_32sc_Sfs, factor 0", .bytes = 12},
                   {{ours, [](auto& x, int n) { tavsMagnitude_32sc_Sfs(x.a, parts(x.out), n, 0); }},
                    {loop, [](auto& x, int n) { plain::magnitude_scaled(x.a, parts(x.out), n, 0); }}});
  contest<Tav32fc>({.name = "PowerSpectr_32fc", .bytes = 12},
                   {{ours, [](const pairs& x, int n) { tavsPowerSpectr_32fc(x.a, parts(x.out), n); }},
                    {loop, [](const pairs& x, int n) { plain::power(x.a, parts(x.out), n); }},
                    volk<Tav32fc>("volk_32fc_magnitude_squared_32f", [](const pairs& x, int n) {
                      volk_32fc_magnitude_squared_32f_a(parts(x.out), of_volk(x.a), unsigned(n));
                    })});
}

}  // namespace bench
