// tavsMulPack_32f, tavsMulPackConj_32f_I, scheduled for each variant.
#include "transform/fft/mul_packed.h"

namespace tav::TAV_VARIANT {

TAV_BIND(MulPack_32f, &packed::product<packed::pack_format, product_of<Tav32fc>>)
TAV_BIND(MulPackConj_32f_I, &packed::product_in_place<packed::pack_format, packed::product_with_conjugate<Tav32fc>>)

}  // namespace tav::TAV_VARIANT
