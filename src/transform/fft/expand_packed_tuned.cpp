// tavsConjPack_32fc, scheduled for each variant.
#include "transform/fft/expand_packed.h"

namespace tav::TAV_VARIANT {

TAV_BIND(ConjPack_32fc, &packed::expanded<packed::pack_format, Tav32fc>)

}  // namespace tav::TAV_VARIANT
