// The Direct FIR calls by type: calls that look the same with and without scale factors.
#pragma once
#include "harness/arena.h"
#include "harness/builds.h"
#include "harness/data.h"
#include "harness/parts.h"
#include "oracle/fir_direct.h"

namespace test::direct {

// The scale factor, and the exponent of integer taps.
struct factors {
  int scale = 0, taps = 0;
};

// What becomes of a piece of the signal.
enum class way { block, in_place, singly, singly_in_place };
inline constexpr int ways = 4;

enum class kind { plain, scaled, factored };

template <class Taps, class Data, class Sums, kind Kind, auto* Block, auto* InPlace, auto* One, auto* OneInPlace>
struct family {
  using taps                          = Taps;
  using data                          = Data;
  using sums                          = Sums;
  static constexpr kind  type         = Kind;
  static constexpr auto* block        = Block;
  static constexpr auto* in_place     = InPlace;
  static constexpr auto* one          = One;
  static constexpr auto* one_in_place = OneInPlace;

  // One call for a block, or one for each sample; dst holds the samples where it is done in place.
  static TavStatus run(way how, const Data* src, Data* dst, int len, const Taps* h, int n, Data* dly, int* index,
                       factors f) {
    const auto with = [&](auto call_it) {
      if constexpr (Kind == kind::plain)
        return call_it(n, dly, index);
      else if constexpr (Kind == kind::scaled)
        return call_it(n, dly, index, f.scale);
      else
        return call_it(n, f.taps, dly, index, f.scale);
    };
    if (how == way::block) return with([&](auto... more) { return call<Block>(src, dst, len, h, more...); });
    if (how == way::in_place) return with([&](auto... more) { return call<InPlace>(dst, len, h, more...); });
    for (int i = 0; i < len; ++i) {
      Data val;
      memcpy(&val, static_cast<const void*>(src + i), sizeof val);
      const TavStatus status = with([&](auto... more) {
        return how == way::singly ? call<One>(val, dst + i, h, more...) : call<OneInPlace>(dst + i, h, more...);
      });
      if (status != tavStatusOk) return status;
    }
    return tavStatusOk;
  }
};

#define TAV_DIRECT_FAMILY(name, taps, data, sums, form, scaled, self)                                            \
  using name = family<taps, data, sums, kind::form, &::tavsFIR##scaled, &::tavsFIR##self, &::tavsFIROne##scaled, \
                      &::tavsFIROne##self>;
TAV_DIRECT_FAMILY(direct_32f, Tav32f, Tav32f, Tav64f, plain, _Direct_32f, _Direct_32f_I)
TAV_DIRECT_FAMILY(direct_32fc, Tav32fc, Tav32fc, Tav64fc, plain, _Direct_32fc, _Direct_32fc_I)
TAV_DIRECT_FAMILY(direct_64f, Tav64f, Tav64f, Tav64f, plain, _Direct_64f, _Direct_64f_I)
TAV_DIRECT_FAMILY(direct_64fc, Tav64fc, Tav64fc, Tav64fc, plain, _Direct_64fc, _Direct_64fc_I)
TAV_DIRECT_FAMILY(direct_64f_32f, Tav64f, Tav32f, Tav64f, plain, 64f_Direct_32f, 64f_Direct_32f_I)
TAV_DIRECT_FAMILY(direct_64fc_32fc, Tav64fc, Tav32fc, Tav64fc, plain, 64fc_Direct_32fc, 64fc_Direct_32fc_I)
TAV_DIRECT_FAMILY(direct_32f_16s, Tav32f, Tav16s, Tav32f, scaled, 32f_Direct_16s_Sfs, 32f_Direct_16s_ISfs)
TAV_DIRECT_FAMILY(direct_32fc_16sc, Tav32fc, Tav16sc, Tav32fc, scaled, 32fc_Direct_16sc_Sfs, 32fc_Direct_16sc_ISfs)
TAV_DIRECT_FAMILY(direct_64f_16s, Tav64f, Tav16s, Tav64f, scaled, 64f_Direct_16s_Sfs, 64f_Direct_16s_ISfs)
TAV_DIRECT_FAMILY(direct_64fc_16sc, Tav64fc, Tav16sc, Tav64fc, scaled, 64fc_Direct_16sc_Sfs, 64fc_Direct_16sc_ISfs)
TAV_DIRECT_FAMILY(direct_64f_32s, Tav64f, Tav32s, Tav64f, scaled, 64f_Direct_32s_Sfs, 64f_Direct_32s_ISfs)
TAV_DIRECT_FAMILY(direct_64fc_32sc, Tav64fc, Tav32sc, Tav64fc, scaled, 64fc_Direct_32sc_Sfs, 64fc_Direct_32sc_ISfs)
TAV_DIRECT_FAMILY(direct_32s_16s, Tav32s, Tav16s, Tav32s, factored, 32s_Direct_16s_Sfs, 32s_Direct_16s_ISfs)
TAV_DIRECT_FAMILY(direct_32sc_16sc, Tav32sc, Tav16sc, Tav32sc, factored, 32sc_Direct_16sc_Sfs, 32sc_Direct_16sc_ISfs)
#undef TAV_DIRECT_FAMILY

// What one result should be.
template <class D, class P> D part_of_result(P sum, factors f) {
  if constexpr (std::is_integral_v<D>)
    return oracle::half_away<D>(double(P(sum * oracle::direct_scale<P>(f.scale))));
  else
    return D(sum);
}
template <class F>
typename F::data wanted(const std::vector<typename F::taps>& h, const std::vector<typename F::data>& window,
                        factors f) {
  using D = typename F::data;
  if constexpr (F::type == kind::factored) {
    const auto sum = oracle::wrapped_sum(h, window, window.size() - 1);
    return oracle::word_result<D>(sum, int64_t(f.taps) - f.scale);
  } else {
    const auto sum = oracle::direct_sum<typename F::sums>(h, window);
    if constexpr (is_pair<D>)
      return {part_of_result<decltype(D::re)>(sum.re, f), part_of_result<decltype(D::re)>(sum.im, f)};
    else
      return part_of_result<D>(sum, f);
  }
}

}  // namespace test::direct
