// tavsThreshold_LTValGTVal_32f, built once for each variant.
#include "vector/threshold_ops.h"

namespace tav::TAV_VARIANT {

TAV_BIND(Threshold_LTValGTVal_32f, &thresholds::threshold<thresholds::replaced_outside<Tav32f>>::apart)

}  // namespace tav::TAV_VARIANT
