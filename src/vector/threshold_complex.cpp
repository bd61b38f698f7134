// tavsThreshold_* of complex elements, but for the reciprocals.
#include "vector/threshold_16sc.h"
#include "vector/threshold_pairs.h"

namespace tav::TAV_VARIANT {

using namespace thresholds;

TAV_BIND(Threshold_16sc, &threshold<on_either_side<clipped, Tav16sc>>::apart)
TAV_BIND(Threshold_16sc_I, &threshold<on_either_side<clipped, Tav16sc>>::in_place)
TAV_BIND(Threshold_32fc, &threshold<on_either_side<clipped, Tav32fc>>::apart)
TAV_BIND(Threshold_32fc_I, &threshold<on_either_side<clipped, Tav32fc>>::in_place)
TAV_BIND(Threshold_64fc, &threshold<on_either_side<clipped, Tav64fc>>::apart)
TAV_BIND(Threshold_64fc_I, &threshold<on_either_side<clipped, Tav64fc>>::in_place)

TAV_BIND(Threshold_LT_16sc, &threshold<clipped<Tav16sc, below>>::apart)
TAV_BIND(Threshold_LT_16sc_I, &threshold<clipped<Tav16sc, below>>::in_place)
TAV_BIND(Threshold_LT_32fc, &threshold<clipped<Tav32fc, below>>::apart)
TAV_BIND(Threshold_LT_32fc_I, &threshold<clipped<Tav32fc, below>>::in_place)
TAV_BIND(Threshold_LT_64fc, &threshold<clipped<Tav64fc, below>>::apart)
TAV_BIND(Threshold_LT_64fc_I, &threshold<clipped<Tav64fc, below>>::in_place)

TAV_BIND(Threshold_GT_16sc, &threshold<clipped<Tav16sc, above>>::apart)
TAV_BIND(Threshold_GT_16sc_I, &threshold<clipped<Tav16sc, above>>::in_place)
TAV_BIND(Threshold_GT_32fc, &threshold<clipped<Tav32fc, above>>::apart)
TAV_BIND(Threshold_GT_32fc_I, &threshold<clipped<Tav32fc, above>>::in_place)
TAV_BIND(Threshold_GT_64fc, &threshold<clipped<Tav64fc, above>>::apart)
TAV_BIND(Threshold_GT_64fc_I, &threshold<clipped<Tav64fc, above>>::in_place)

TAV_BIND(Threshold_LTVal_16sc, &threshold<replaced<Tav16sc, below>>::apart)
TAV_BIND(Threshold_LTVal_16sc_I, &threshold<replaced<Tav16sc, below>>::in_place)
TAV_BIND(Threshold_LTVal_32fc, &threshold<replaced<Tav32fc, below>>::apart)
TAV_BIND(Threshold_LTVal_32fc_I, &threshold<replaced<Tav32fc, below>>::in_place)
TAV_BIND(Threshold_LTVal_64fc, &threshold<replaced<Tav64fc, below>>::apart)
TAV_BIND(Threshold_LTVal_64fc_I, &threshold<replaced<Tav64fc, below>>::in_place)

TAV_BIND(Threshold_GTVal_16sc, &threshold<replaced<Tav16sc, above>>::apart)
TAV_BIND(Threshold_GTVal_16sc_I, &threshold<replaced<Tav16sc, above>>::in_place)
TAV_BIND(Threshold_GTVal_32fc, &threshold<replaced<Tav32fc, above>>::apart)
TAV_BIND(Threshold_GTVal_32fc_I, &threshold<replaced<Tav32fc, above>>::in_place)
TAV_BIND(Threshold_GTVal_64fc, &threshold<replaced<Tav64fc, above>>::apart)
TAV_BIND(Threshold_GTVal_64fc_I, &threshold<replaced<Tav64fc, above>>::in_place)

}  // namespace tav::TAV_VARIANT
