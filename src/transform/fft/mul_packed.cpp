// tavsMulPack_*, tavsMulPerm_*, tavsMulPackConj_* of floats: rows. Two are in mul_packed_tuned.cpp.
#include "transform/fft/mul_packed.h"

namespace tav::TAV_VARIANT {

using packed::pack_format;
using packed::perm_format;

TAV_BIND(MulPack_64f, &packed::product<pack_format, product_of<Tav64fc>>)
TAV_BIND(MulPerm_32f, &packed::product<perm_format, product_of<Tav32fc>>)
TAV_BIND(MulPerm_64f, &packed::product<perm_format, product_of<Tav64fc>>)

TAV_BIND(MulPack_32f_I, &packed::product_in_place<pack_format, product_of<Tav32fc>>)
TAV_BIND(MulPack_64f_I, &packed::product_in_place<pack_format, product_of<Tav64fc>>)
TAV_BIND(MulPerm_32f_I, &packed::product_in_place<perm_format, product_of<Tav32fc>>)
TAV_BIND(MulPerm_64f_I, &packed::product_in_place<perm_format, product_of<Tav64fc>>)

TAV_BIND(MulPackConj_64f_I, &packed::product_in_place<pack_format, packed::product_with_conjugate<Tav64fc>>)

}  // namespace tav::TAV_VARIANT
