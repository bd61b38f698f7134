// tavsReal_32fc, tavsReal_64fc.
#include "vector/parts.h"

namespace tav::TAV_VARIANT {

TAV_BIND(Real_32fc, &one_source<real_part<Tav32fc>>)
TAV_BIND(Real_64fc, &one_source<real_part<Tav64fc>>)

}  // namespace tav::TAV_VARIANT
