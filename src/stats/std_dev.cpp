// tavsStdDev of integers and of singles: the unbiased standard deviation.
#include "stats/deviations.h"
#include "stats/word_deviations.h"

namespace tav::TAV_VARIANT {
namespace {

template <class D> struct std_dev_of_words {
  using src1 = Tav16s;
  using dst  = D;

  static D of(size_t len, const Tav16s* src, int s) { return std_dev_of<D>(word_sums_over(len, src), len, s); }
};

struct std_dev_of_singles {
  using src1 = Tav32f;
  using dst  = Tav32f;

  static Tav32f of(size_t len, const Tav32f* src, int hint) {
    return moments_by_hint<wanted::deviation>(len, src, hint).std_dev;
  }
};

}  // namespace

TAV_BIND(StdDev_16s_Sfs, &deviation<std_dev_of_words<Tav16s>, int>)
TAV_BIND(StdDev_16s32s_Sfs, &deviation<std_dev_of_words<Tav32s>, int>)
TAV_BIND(StdDev_32f, &deviation<std_dev_of_singles, int>)

}  // namespace tav::TAV_VARIANT
