// tavsXorC_8u, Not_8u, Not_16u: rows of each variant. The bodies are the same.
#include "frame/bind.h"
#include "vector/logic_ops.h"

namespace tav::TAV_VARIANT {

TAV_BIND(XorC_8u, &with_constant<xor_bits, Tav8u>)
TAV_BIND(XorC_8u_I, &with_constant_in_place<xor_bits, Tav8u>)

TAV_BIND(Not_8u, &inverted<Tav8u>)
TAV_BIND(Not_16u, &inverted<Tav16u>)
TAV_BIND(Not_8u_I, &inverted_in_place<Tav8u>)
TAV_BIND(Not_16u_I, &inverted_in_place<Tav16u>)

}  // namespace tav::TAV_VARIANT
