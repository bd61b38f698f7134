// Conversions. The arrays have the wider of the two types; the narrower elements lie at their start.
#include <volk/volk.h>

#include "harness.h"
#include "plain_convert.h"

namespace bench {
namespace {

template <class T, class W> T* as(W* p) { return reinterpret_cast<T*>(p); }

// The library's function at one rounding mode and scale factor.
template <int Mode, int Scale>
const contender<Tav32f> to_16s{ours,
                               [](auto& x, int n) { tavsConvert_32f16s_Sfs(x.a, as<Tav16s>(x.out), n, Mode, Scale); }};

}  // namespace

BENCH_FAMILY(convert_float_to_integer) {
  const auto row_of = [](const char* name, double goal) {
    return row{.name = name, .bytes = 6, .in_cache = goal, .curve = goal > 0};
  };
  contest<Tav32f>(row_of("Convert_32f16s_Sfs, to nearest", 1.4),
                  {to_16s<1, 0>,
                   {loop, [](auto& x, int n) { plain::to_nearest(x.a, 1, as<Tav16s>(x.out), n); }},
                   volk<Tav32f>("volk_32f_s32f_convert_16i", [](auto& x, int n) {
                     volk_32f_s32f_convert_16i_a(as<Tav16s>(x.out), x.a, 1, unsigned(n));
                   })});
  contest<Tav32f>(row_of("Convert_32f16s_Sfs, scaled", 1.4),
                  {to_16s<1, 3>,
                   {loop, [](auto& x, int n) { plain::to_nearest(x.a, 0.125f, as<Tav16s>(x.out), n); }},
                   volk<Tav32f>("volk_32f_s32f_convert_16i", [](auto& x, int n) {
                     volk_32f_s32f_convert_16i_a(as<Tav16s>(x.out), x.a, 0.125f, unsigned(n));
                   })});
  contest<Tav32f>(row_of("Convert_32f16s_Sfs, toward zero", 0),
                  {to_16s<0, 0>, {loop, [](auto& x, int n) { plain::toward_zero(x.a, as<Tav16s>(x.out), n); }}});
  contest<Tav32f>(row_of("Convert_32f16s_Sfs, ties away", 0),
                  {to_16s<2, 0>, {loop, [](auto& x, int n) { plain::ties_away(x.a, as<Tav16s>(x.out), n); }}});
  contest<Tav32f>({.name = "Convert_32f32s_Sfs", .bytes = 8},
                  {{ours, [](auto& x, int n) { tavsConvert_32f32s_Sfs(x.a, as<Tav32s>(x.out), n, 1, 0); }},
                   {loop, [](auto& x, int n) { plain::to_nearest(x.a, as<Tav32s>(x.out), n); }},
                   volk<Tav32f>("volk_32f_s32f_convert_32i", [](auto& x, int n) {
                     volk_32f_s32f_convert_32i_a(as<Tav32s>(x.out), x.a, 1, unsigned(n));
                   })});
}

BENCH_FAMILY(convert_integer) {
  contest<Tav32f>({.name = "Convert_16s32f", .bytes = 6, .curve = true},
                  {{ours, [](auto& x, int n) { tavsConvert_16s32f(as<Tav16s>(x.a), x.out, n); }},
                   {loop, [](auto& x, int n) { plain::convert(as<const Tav16s>(x.a), x.out, n); }},
                   volk<Tav32f>("volk_16i_s32f_convert_32f", [](auto& x, int n) {
                     volk_16i_s32f_convert_32f_a(x.out, as<Tav16s>(x.a), 1, unsigned(n));
                   })});
  contest<Tav32f>({.name = "Convert_8u32f", .bytes = 5},
                  {{ours, [](auto& x, int n) { tavsConvert_8u32f(as<Tav8u>(x.a), x.out, n); }},
                   {loop, [](auto& x, int n) { plain::convert(as<const Tav8u>(x.a), x.out, n); }}});
  contest<Tav32s>({.name = "Convert_32s16s", .bytes = 6},
                  {{ours, [](auto& x, int n) { tavsConvert_32s16s(x.a, as<Tav16s>(x.out), n); }},
                   {loop, [](auto& x, int n) { plain::saturate(x.a, as<Tav16s>(x.out), n); }}});
}

}  // namespace bench
