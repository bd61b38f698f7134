// tavsStdDev_64f, built for each variant.
#include "stats/deviations.h"

namespace tav::TAV_VARIANT {
namespace {

struct std_dev_of_doubles {
  using src1 = Tav64f;
  using dst  = Tav64f;

  static Tav64f of(size_t len, const Tav64f* src) { return moments_in_lanes(len, src).std_dev; }
};

}  // namespace

TAV_BIND(StdDev_64f, &deviation<std_dev_of_doubles>)

}  // namespace tav::TAV_VARIANT
