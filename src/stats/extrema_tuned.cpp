// tavsMinMax and tavsMinMaxIndx of floats, for each variant.
#include "stats/extrema.h"

namespace tav::TAV_VARIANT {

TAV_BIND(MinMax_32f, &extrema::both<Tav32f>)
TAV_BIND(MinMaxIndx_32f, &extrema::both_and_indices<Tav32f>)
TAV_BIND(MinMaxIndx_64f, &extrema::both_and_indices<Tav64f>)

}  // namespace tav::TAV_VARIANT
