// tavsConjCcs_*, tavsConjPack_*, tavsConjPerm_*: rows. One is in expand_packed_tuned.cpp.
#include "transform/fft/expand_packed.h"

namespace tav::TAV_VARIANT {

using packed::ccs_format;
using packed::pack_format;
using packed::perm_format;

TAV_BIND(ConjCcs_16sc, &packed::expanded<ccs_format, Tav16sc>)
TAV_BIND(ConjCcs_32fc, &packed::expanded<ccs_format, Tav32fc>)
TAV_BIND(ConjCcs_64fc, &packed::expanded<ccs_format, Tav64fc>)
TAV_BIND(ConjPack_16sc, &packed::expanded<pack_format, Tav16sc>)
TAV_BIND(ConjPack_64fc, &packed::expanded<pack_format, Tav64fc>)
TAV_BIND(ConjPerm_16sc, &packed::expanded<perm_format, Tav16sc>)
TAV_BIND(ConjPerm_32fc, &packed::expanded<perm_format, Tav32fc>)
TAV_BIND(ConjPerm_64fc, &packed::expanded<perm_format, Tav64fc>)

TAV_BIND(ConjCcs_16sc_I, &packed::expanded_in_place<ccs_format, Tav16sc>)
TAV_BIND(ConjCcs_32fc_I, &packed::expanded_in_place<ccs_format, Tav32fc>)
TAV_BIND(ConjCcs_64fc_I, &packed::expanded_in_place<ccs_format, Tav64fc>)
TAV_BIND(ConjPack_16sc_I, &packed::expanded_in_place<pack_format, Tav16sc>)
TAV_BIND(ConjPack_32fc_I, &packed::expanded_in_place<pack_format, Tav32fc>)
TAV_BIND(ConjPack_64fc_I, &packed::expanded_in_place<pack_format, Tav64fc>)
TAV_BIND(ConjPerm_16sc_I, &packed::expanded_in_place<perm_format, Tav16sc>)
TAV_BIND(ConjPerm_32fc_I, &packed::expanded_in_place<perm_format, Tav32fc>)
TAV_BIND(ConjPerm_64fc_I, &packed::expanded_in_place<perm_format, Tav64fc>)

}  // namespace tav::TAV_VARIANT
