// tavsMax, tavsMin, of elements and of magnitudes, tavsMinMax, and the forms with an index.
#include "stats/extrema.h"

namespace tav::TAV_VARIANT {

namespace extrema {

template <class T> using largest            = single<order_of<T>, side::largest>;
template <class T> using smallest           = single<order_of<T>, side::smallest>;
template <class T> using largest_magnitude  = single<magnitude_of<T>, side::largest>;
template <class T> using smallest_magnitude = single<magnitude_of<T>, side::smallest>;

}  // namespace extrema

TAV_BIND(Max_16s, &extrema::of_array<extrema::largest<Tav16s>>)
TAV_BIND(Max_32s, &extrema::of_array<extrema::largest<Tav32s>>)
TAV_BIND(Max_32f, &extrema::of_array<extrema::largest<Tav32f>>)
TAV_BIND(Max_64f, &extrema::of_array<extrema::largest<Tav64f>>)

TAV_BIND(MaxIndx_16s, &extrema::single_and_index<extrema::largest<Tav16s>>)
TAV_BIND(MaxIndx_32s, &extrema::single_and_index<extrema::largest<Tav32s>>)
TAV_BIND(MaxIndx_32f, &extrema::single_and_index<extrema::largest<Tav32f>>)
TAV_BIND(MaxIndx_64f, &extrema::single_and_index<extrema::largest<Tav64f>>)

TAV_BIND(Min_16s, &extrema::of_array<extrema::smallest<Tav16s>>)
TAV_BIND(Min_32s, &extrema::of_array<extrema::smallest<Tav32s>>)
TAV_BIND(Min_32f, &extrema::of_array<extrema::smallest<Tav32f>>)
TAV_BIND(Min_64f, &extrema::of_array<extrema::smallest<Tav64f>>)

TAV_BIND(MinIndx_16s, &extrema::single_and_index<extrema::smallest<Tav16s>>)
TAV_BIND(MinIndx_32s, &extrema::single_and_index<extrema::smallest<Tav32s>>)
TAV_BIND(MinIndx_32f, &extrema::single_and_index<extrema::smallest<Tav32f>>)
TAV_BIND(MinIndx_64f, &extrema::single_and_index<extrema::smallest<Tav64f>>)

TAV_BIND(MaxAbs_16s, &extrema::of_array<extrema::largest_magnitude<Tav16s>>)
TAV_BIND(MaxAbs_32s, &extrema::of_array<extrema::largest_magnitude<Tav32s>>)

TAV_BIND(MaxAbsIndx_16s, &extrema::single_and_index<extrema::largest_magnitude<Tav16s>>)
TAV_BIND(MaxAbsIndx_32s, &extrema::single_and_index<extrema::largest_magnitude<Tav32s>>)

TAV_BIND(MinAbs_16s, &extrema::of_array<extrema::smallest_magnitude<Tav16s>>)
TAV_BIND(MinAbs_32s, &extrema::of_array<extrema::smallest_magnitude<Tav32s>>)

TAV_BIND(MinAbsIndx_16s, &extrema::single_and_index<extrema::smallest_magnitude<Tav16s>>)
TAV_BIND(MinAbsIndx_32s, &extrema::single_and_index<extrema::smallest_magnitude<Tav32s>>)

TAV_BIND(MinMax_8u, &extrema::both<Tav8u>)
TAV_BIND(MinMax_16u, &extrema::both<Tav16u>)
TAV_BIND(MinMax_16s, &extrema::both<Tav16s>)
TAV_BIND(MinMax_32u, &extrema::both<Tav32u>)
TAV_BIND(MinMax_32s, &extrema::both<Tav32s>)
TAV_BIND(MinMax_64f, &extrema::both<Tav64f>)

TAV_BIND(MinMaxIndx_8u, &extrema::both_and_indices<Tav8u>)
TAV_BIND(MinMaxIndx_16u, &extrema::both_and_indices<Tav16u>)
TAV_BIND(MinMaxIndx_16s, &extrema::both_and_indices<Tav16s>)
TAV_BIND(MinMaxIndx_32u, &extrema::both_and_indices<Tav32u>)
TAV_BIND(MinMaxIndx_32s, &extrema::both_and_indices<Tav32s>)

}  // namespace tav::TAV_VARIANT
