// tavsMalloc_*, tavsFree: arrays at 64-byte boundaries.
#include "frame/allocate.h"
#include "frame/bind.h"

namespace tav::TAV_VARIANT {

TAV_BIND(Malloc_8u, &allocate<Tav8u>)
TAV_BIND(Malloc_8s, &allocate<Tav8s>)
TAV_BIND(Malloc_16u, &allocate<Tav16u>)
TAV_BIND(Malloc_16s, &allocate<Tav16s>)
TAV_BIND(Malloc_32u, &allocate<Tav32u>)
TAV_BIND(Malloc_32s, &allocate<Tav32s>)
TAV_BIND(Malloc_64s, &allocate<Tav64s>)
TAV_BIND(Malloc_32f, &allocate<Tav32f>)
TAV_BIND(Malloc_64f, &allocate<Tav64f>)
TAV_BIND(Malloc_8sc, &allocate<Tav8sc>)
TAV_BIND(Malloc_16sc, &allocate<Tav16sc>)
TAV_BIND(Malloc_32sc, &allocate<Tav32sc>)
TAV_BIND(Malloc_64sc, &allocate<Tav64sc>)
TAV_BIND(Malloc_32fc, &allocate<Tav32fc>)
TAV_BIND(Malloc_64fc, &allocate<Tav64fc>)
TAV_BIND(Free, &release)

}  // namespace tav::TAV_VARIANT
