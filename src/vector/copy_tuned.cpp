// tavsCopy_64fc, tavsCopy_64sc: the general variant has a plan of its own for large blocks.
#include "frame/bind.h"
#include "vector/move_forms.h"

namespace tav::TAV_VARIANT {

constexpr auto engine = tune.pair_copy == copy_of_bytes ? shared::copy_bytes : shared::copy_pairs;

TAV_BIND(Copy_64sc, (&transferred<Tav64sc, engine>))
TAV_BIND(Copy_64fc, (&transferred<Tav64fc, engine>))

}  // namespace tav::TAV_VARIANT
