// tavsCopyBE_1u, tavsCopyLE_1u. The names tell the order of a wider word's bits: BE numbers a byte from its least
// significant bit, LE from its most significant one, as tavsCopy_1u does.
#include "frame/bind.h"
#include "vector/bit_copy.h"

namespace tav::TAV_VARIANT {

TAV_BIND(CopyBE_1u, (&copied_bits<from_bottom, tune.bit_copy_unroll>))
TAV_BIND(CopyLE_1u, (&copied_bits<from_top, tune.bit_copy_unroll>))

}  // namespace tav::TAV_VARIANT
