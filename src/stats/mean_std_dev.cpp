// tavsMeanStdDev: mean and standard deviation in one pass, with the sums of tavsStdDev.
//
// The scale factor holds for both results of integers. Their mean is rounded as tavsMean does it, in the mode that the
// caller has set, and their deviation as tavsStdDev does it, to nearest.
#include "stats/deviations.h"
#include "stats/word_deviations.h"

namespace tav::TAV_VARIANT {
namespace {

template <class D> struct moments_of_words {
  using src1 = Tav16s;
  using dst  = D;

  static moments<D> of(size_t len, const Tav16s* src, int s) {
    const words_total sums = word_sums_over(len, src);
    const D           mean = settled(mean_of<D>(sums.sum, len, s));  // before the deviation's own rounding mode
    return {mean, std_dev_of<D>(sums, len, s)};
  }
};

struct moments_of_singles {
  using src1 = Tav32f;
  using dst  = Tav32f;

  static moments<Tav32f> of(size_t len, const Tav32f* src, int hint) {
    return moments_by_hint<wanted::both>(len, src, hint);
  }
};

struct moments_of_doubles {
  using src1 = Tav64f;
  using dst  = Tav64f;

  static moments<Tav64f> of(size_t len, const Tav64f* src) { return moments_in_lanes(len, src); }
};

}  // namespace

TAV_BIND(MeanStdDev_16s_Sfs, &mean_and_deviation<moments_of_words<Tav16s>, int>)
TAV_BIND(MeanStdDev_16s32s_Sfs, &mean_and_deviation<moments_of_words<Tav32s>, int>)
TAV_BIND(MeanStdDev_32f, &mean_and_deviation<moments_of_singles, int>)
TAV_BIND(MeanStdDev_64f, &mean_and_deviation<moments_of_doubles>)

}  // namespace tav::TAV_VARIANT
