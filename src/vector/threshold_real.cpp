// tavsThreshold_* of real elements, but for the reciprocals.
#include "vector/threshold_ops.h"

namespace tav::TAV_VARIANT {

using namespace thresholds;

TAV_BIND(Threshold_16s, &threshold<on_either_side<clipped, Tav16s>>::apart)
TAV_BIND(Threshold_16s_I, &threshold<on_either_side<clipped, Tav16s>>::in_place)
TAV_BIND(Threshold_32f, &threshold<on_either_side<clipped, Tav32f>>::apart)
TAV_BIND(Threshold_32f_I, &threshold<on_either_side<clipped, Tav32f>>::in_place)
TAV_BIND(Threshold_64f, &threshold<on_either_side<clipped, Tav64f>>::apart)
TAV_BIND(Threshold_64f_I, &threshold<on_either_side<clipped, Tav64f>>::in_place)

TAV_BIND(Threshold_LT_16s, &threshold<clipped<Tav16s, below>>::apart)
TAV_BIND(Threshold_LT_16s_I, &threshold<clipped<Tav16s, below>>::in_place)
TAV_BIND(Threshold_LT_32s, &threshold<clipped<Tav32s, below>>::apart)
TAV_BIND(Threshold_LT_32s_I, &threshold<clipped<Tav32s, below>>::in_place)
TAV_BIND(Threshold_LT_32f, &threshold<clipped<Tav32f, below>>::apart)
TAV_BIND(Threshold_LT_32f_I, &threshold<clipped<Tav32f, below>>::in_place)
TAV_BIND(Threshold_LT_64f, &threshold<clipped<Tav64f, below>>::apart)
TAV_BIND(Threshold_LT_64f_I, &threshold<clipped<Tav64f, below>>::in_place)

TAV_BIND(Threshold_GT_16s, &threshold<clipped<Tav16s, above>>::apart)
TAV_BIND(Threshold_GT_16s_I, &threshold<clipped<Tav16s, above>>::in_place)
TAV_BIND(Threshold_GT_32s, &threshold<clipped<Tav32s, above>>::apart)
TAV_BIND(Threshold_GT_32s_I, &threshold<clipped<Tav32s, above>>::in_place)
TAV_BIND(Threshold_GT_32f, &threshold<clipped<Tav32f, above>>::apart)
TAV_BIND(Threshold_GT_32f_I, &threshold<clipped<Tav32f, above>>::in_place)
TAV_BIND(Threshold_GT_64f, &threshold<clipped<Tav64f, above>>::apart)
TAV_BIND(Threshold_GT_64f_I, &threshold<clipped<Tav64f, above>>::in_place)

TAV_BIND(Threshold_LTVal_16s, &threshold<replaced<Tav16s, below>>::apart)
TAV_BIND(Threshold_LTVal_16s_I, &threshold<replaced<Tav16s, below>>::in_place)
TAV_BIND(Threshold_LTVal_32f, &threshold<replaced<Tav32f, below>>::apart)
TAV_BIND(Threshold_LTVal_32f_I, &threshold<replaced<Tav32f, below>>::in_place)
TAV_BIND(Threshold_LTVal_64f, &threshold<replaced<Tav64f, below>>::apart)
TAV_BIND(Threshold_LTVal_64f_I, &threshold<replaced<Tav64f, below>>::in_place)

TAV_BIND(Threshold_GTVal_16s, &threshold<replaced<Tav16s, above>>::apart)
TAV_BIND(Threshold_GTVal_16s_I, &threshold<replaced<Tav16s, above>>::in_place)
TAV_BIND(Threshold_GTVal_32f, &threshold<replaced<Tav32f, above>>::apart)
TAV_BIND(Threshold_GTVal_32f_I, &threshold<replaced<Tav32f, above>>::in_place)
TAV_BIND(Threshold_GTVal_64f, &threshold<replaced<Tav64f, above>>::apart)
TAV_BIND(Threshold_GTVal_64f_I, &threshold<replaced<Tav64f, above>>::in_place)

TAV_BIND(Threshold_LTValGTVal_16s, &threshold<replaced_outside<Tav16s>>::apart)
TAV_BIND(Threshold_LTValGTVal_16s_I, &threshold<replaced_outside<Tav16s>>::in_place)
TAV_BIND(Threshold_LTValGTVal_32s, &threshold<replaced_outside<Tav32s>>::apart)
TAV_BIND(Threshold_LTValGTVal_32s_I, &threshold<replaced_outside<Tav32s>>::in_place)
TAV_BIND(Threshold_LTValGTVal_32f_I, &threshold<replaced_outside<Tav32f>>::in_place)
TAV_BIND(Threshold_LTValGTVal_64f, &threshold<replaced_outside<Tav64f>>::apart)
TAV_BIND(Threshold_LTValGTVal_64f_I, &threshold<replaced_outside<Tav64f>>::in_place)

TAV_BIND(Threshold_LTAbs_16s, &threshold<clipped_magnitude<Tav16s, below>>::apart)
TAV_BIND(Threshold_LTAbs_16s_I, &threshold<clipped_magnitude<Tav16s, below>>::in_place)
TAV_BIND(Threshold_LTAbs_32s, &threshold<clipped_magnitude<Tav32s, below>>::apart)
TAV_BIND(Threshold_LTAbs_32s_I, &threshold<clipped_magnitude<Tav32s, below>>::in_place)
TAV_BIND(Threshold_LTAbs_32f, &threshold<clipped_magnitude<Tav32f, below>>::apart)
TAV_BIND(Threshold_LTAbs_32f_I, &threshold<clipped_magnitude<Tav32f, below>>::in_place)
TAV_BIND(Threshold_LTAbs_64f, &threshold<clipped_magnitude<Tav64f, below>>::apart)
TAV_BIND(Threshold_LTAbs_64f_I, &threshold<clipped_magnitude<Tav64f, below>>::in_place)

TAV_BIND(Threshold_GTAbs_16s, &threshold<clipped_magnitude<Tav16s, above>>::apart)
TAV_BIND(Threshold_GTAbs_16s_I, &threshold<clipped_magnitude<Tav16s, above>>::in_place)
TAV_BIND(Threshold_GTAbs_32s, &threshold<clipped_magnitude<Tav32s, above>>::apart)
TAV_BIND(Threshold_GTAbs_32s_I, &threshold<clipped_magnitude<Tav32s, above>>::in_place)
TAV_BIND(Threshold_GTAbs_32f, &threshold<clipped_magnitude<Tav32f, above>>::apart)
TAV_BIND(Threshold_GTAbs_32f_I, &threshold<clipped_magnitude<Tav32f, above>>::in_place)
TAV_BIND(Threshold_GTAbs_64f, &threshold<clipped_magnitude<Tav64f, above>>::apart)
TAV_BIND(Threshold_GTAbs_64f_I, &threshold<clipped_magnitude<Tav64f, above>>::in_place)

}  // namespace tav::TAV_VARIANT
