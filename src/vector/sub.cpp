// tavsSub_*: the second array less the first.
#include "vector/arithmetic_ops.h"

namespace tav::TAV_VARIANT {

TAV_BIND(Sub_16s, &two_sources<difference_of<Tav16s>>)
TAV_BIND(Sub_16s32f, &two_sources<converted_16s<difference_of<Tav32f>>>)
TAV_BIND(Sub_32f, &two_sources<difference_of<Tav32f>>)
TAV_BIND(Sub_64f, &two_sources<difference_of<Tav64f>>)
TAV_BIND(Sub_32fc, (&two_sources_of_parts<&::tavsSub_32f, Tav32fc>))
TAV_BIND(Sub_64fc, (&two_sources_of_parts<&::tavsSub_64f, Tav64fc>))

TAV_BIND(Sub_16s_I, &in_place<difference_of<Tav16s>>)
TAV_BIND(Sub_32f_I, &in_place<difference_of<Tav32f>>)
TAV_BIND(Sub_64f_I, &in_place<difference_of<Tav64f>>)
TAV_BIND(Sub_32fc_I, (&in_place_of_parts<&::tavsSub_32f_I, Tav32fc>))
TAV_BIND(Sub_64fc_I, (&in_place_of_parts<&::tavsSub_64f_I, Tav64fc>))

}  // namespace tav::TAV_VARIANT
