// Packed spectra: products, and the whole spectrum of a packed one. Beside plain loops.
#include "harness.h"
#include "plain_spectra.h"

namespace bench {
namespace {

using singles = arrays<Tav32f>;
using doubles = arrays<Tav64f>;
using words   = arrays<Tav16s>;

// A packed spectrum as the whole one's type: as many slots as the destination has pairs.
const float*   slots(const Tav32fc* p) { return reinterpret_cast<const float*>(p); }
const double*  slots(const Tav64fc* p) { return reinterpret_cast<const double*>(p); }
const int16_t* slots(const Tav16sc* p) { return reinterpret_cast<const int16_t*>(p); }

}  // namespace

BENCH_FAMILY(packed_products) {
  contest<Tav32f>({.name = "MulPack_32f", .bytes = 12, .curve = true},
                  {{ours, [](const singles& x, int n) { tavsMulPack_32f(x.a, x.b, x.out, n); }},
                   {loop, [](const singles& x, int n) { plain::mul_pack(x.a, x.b, x.out, n); }}});
  contest<Tav32f>({.name = "MulPerm_32f", .bytes = 12},
                  {{ours, [](const singles& x, int n) { tavsMulPerm_32f(x.a, x.b, x.out, n); }},
                   {loop, [](const singles& x, int n) { plain::mul_perm(x.a, x.b, x.out, n); }}});
  contest<Tav32f>({.name = "MulPackConj_32f_I", .bytes = 12},
                  {{ours, [](const singles& x, int n) { tavsMulPackConj_32f_I(x.a, x.out, n); }},
                   {loop, [](const singles& x, int n) { plain::mul_pack_conj(x.a, x.out, n); }}});
  contest<Tav64f>({.name = "MulPack_64f", .bytes = 24},
                  {{ours, [](const doubles& x, int n) { tavsMulPack_64f(x.a, x.b, x.out, n); }},
                   {loop, [](const doubles& x, int n) { plain::mul_pack(x.a, x.b, x.out, n); }}});
  contest<Tav16s>({.name = "MulPerm_16s_Sfs, factor 0", .bytes = 6},
                  {{ours, [](const words& x, int n) { tavsMulPerm_16s_Sfs(x.a, x.b, x.out, n, 0); }},
                   {loop, [](const words& x, int n) { plain::mul_perm_shifted(x.a, x.b, x.out, n, 0); }}});
  contest<Tav16s>({.name = "MulPerm_16s_Sfs, factor 15", .bytes = 6},
                  {{ours, [](const words& x, int n) { tavsMulPerm_16s_Sfs(x.a, x.b, x.out, n, 15); }},
                   {loop, [](const words& x, int n) { plain::mul_perm_shifted(x.a, x.b, x.out, n, 15); }}});
}

BENCH_FAMILY(whole_spectra) {
  contest<Tav32fc>({.name = "ConjCcs_32fc", .bytes = 12},
                   {{ours, [](auto& x, int n) { tavsConjCcs_32fc(x.a, x.out, n); }},
                    {loop, [](auto& x, int n) { plain::expand_ccs(x.a, x.out, n); }}});
  contest<Tav32fc>({.name = "ConjPack_32fc", .bytes = 12},
                   {{ours, [](auto& x, int n) { tavsConjPack_32fc(x.a, x.out, n); }},
                    {loop, [](auto& x, int n) { plain::expand_pack(slots(x.a), x.out, n); }}});
  contest<Tav64fc>({.name = "ConjPack_64fc", .bytes = 24},
                   {{ours, [](auto& x, int n) { tavsConjPack_64fc(x.a, x.out, n); }},
                    {loop, [](auto& x, int n) { plain::expand_pack(slots(x.a), x.out, n); }}});
  contest<Tav16sc>({.name = "ConjPerm_16sc", .bytes = 6},
                   {{ours, [](auto& x, int n) { tavsConjPerm_16sc(x.a, x.out, n); }},
                    {loop, [](auto& x, int n) { plain::expand_perm(slots(x.a), x.out, n); }}});
}

}  // namespace bench
